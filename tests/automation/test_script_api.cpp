// SPDX-License-Identifier: MIT
// The script API as a script sees it, run on the GUI thread (where the bridge calls straight
// through): controls read and written through the control-value adapter, with the results scripts
// have always had, and the session's scenario and project as properties over their field tables.
#include "ControlValue.h"
#include "GlobalApis.h"
#include "GuiBridge.h"
#include "QtWindowHost.h"
#include "ScriptMessageService.h"
#include "TestSupport.h"
#include "UiApi.h"
#include "clsProject.h"
#include "clsScenario.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QJSEngine>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace {
//! A kind of control no adapter of the program knows, added as a layer would add one.
class SpinAdapter : public ControlAdapter {
public:
    bool handles(const QWidget *w) const override { return qobject_cast<const QSpinBox *>(w) != nullptr; }
    QString kind() const override { return QStringLiteral("spin"); }
    QString text(const QWidget *w) const override { return static_cast<const QSpinBox *>(w)->text(); }
    QVariant value(const QWidget *w) const override { return static_cast<const QSpinBox *>(w)->value(); }
    void setValue(QWidget *w, const QVariant &v, Origin) const override { static_cast<QSpinBox *>(w)->setValue(v.toInt()); }
};
const ControlAdapterRegistration<SpinAdapter> spinAdapter;

class ScriptApiTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        QJSValue global = engine.globalObject();
        global.setProperty(QStringLiteral("ui"), engine.newQObject(new UiApi(ctx)));
        global.setProperty(QStringLiteral("session"), engine.newQObject(new SessionApi(ctx)));
    }
    //! The script's result as text, or "error: <message>".
    QString run(const QString &script)
    {
        const QJSValue v = engine.evaluate(script);
        return v.isError() ? QStringLiteral("error: ") + v.property(QStringLiteral("message")).toString() : v.toString();
    }
    template <typename W>
    W *add(const char *name)
    {
        auto *w = new W(&window);
        w->setObjectName(QLatin1String(name));
        return w;
    }

    TestSession ts;
    QtWindowHost host{ts.session()};
    ScriptMessageService messages;
    GuiBridge bridge;
    QJSEngine engine;
    ScriptContext ctx{&engine, &bridge, &ts.session(), &host, &messages};
    QWidget window;
};
}  // namespace

TEST_F(ScriptApiTest, ControlsReadAndTakeValuesAsScriptsAlwaysHad)
{
    window.setObjectName(QStringLiteral("frmProbe"));
    add<QLineEdit>("txtName");
    auto *combo = add<QComboBox>("cboKind");
    combo->addItem(QStringLiteral("Alpha"), 10);
    combo->addItem(QStringLiteral("Beta"), 20);
    add<QListWidget>("lstItems")->addItems({QStringLiteral("one"), QStringLiteral("two")});
    add<QCheckBox>("chkFlag");
    add<QLabel>("lblCaption");
    add<QFrame>("fraPlain");
    add<QSpinBox>("spnCount");
    auto *tree = add<QTreeWidget>("tvwClass");
    new QTreeWidgetItem(new QTreeWidgetItem(tree, {QStringLiteral("Aves")}), {QStringLiteral("Ardeidae")});
    window.show();
    run(QStringLiteral("var w = ui.window('frmProbe'); var c = function (n) { return w.control(n); };"));

    // An empty text box's value is "", not null; a number or boolean is written as JavaScript does.
    EXPECT_EQ(run(QStringLiteral("JSON.stringify(c('txtName').value)")), QStringLiteral("\"\""));
    EXPECT_EQ(run(QStringLiteral("c('txtName').setValue(true); c('txtName').text")), QStringLiteral("true"));
    EXPECT_EQ(run(QStringLiteral("c('txtName').setValue(0.1); c('txtName').text")), QStringLiteral("0.1"));
    EXPECT_EQ(run(QStringLiteral("c('txtName').setValue(null); c('txtName').text")), QString());

    EXPECT_EQ(run(QStringLiteral("c('cboKind').setValue(20); c('cboKind').text + c('cboKind').value")), QStringLiteral("Beta20"));
    EXPECT_EQ(run(QStringLiteral("c('cboKind').select('Gamma')")), QStringLiteral("error: cboKind has no item Gamma"));
    EXPECT_EQ(run(QStringLiteral("c('lstItems').select('TWO'); c('lstItems').value")), QStringLiteral("two"));
    EXPECT_EQ(run(QStringLiteral("c('chkFlag').setValue(1); c('chkFlag').value")), QStringLiteral("1"));
    EXPECT_EQ(run(QStringLiteral("c('lblCaption').setText('x')")), QStringLiteral("error: lblCaption does not take text"));
    EXPECT_EQ(run(QStringLiteral("c('txtName').items")), QStringLiteral("error: txtName has no items"));
    EXPECT_EQ(run(QStringLiteral("c('lstItems').currentTab")), QStringLiteral("error: lstItems is not a tab strip"));
    EXPECT_EQ(run(QStringLiteral("c('lstItems').rowCount")), QStringLiteral("error: lstItems is not a grid"));
    EXPECT_EQ(run(QStringLiteral("[c('txtName').type, c('cboKind').type, c('fraPlain').type].join()")),
              QStringLiteral("text,combo,QFrame"));
    // A kind the adapter knows is known to scripts with nothing more: the tree.
    EXPECT_EQ(run(QStringLiteral("var t = c('tvwClass'); t.select('ardeidae'); [t.type, t.text, t.value, t.items].join()")),
              QStringLiteral("tree,Ardeidae,1,Aves,Ardeidae"));
    // So is a kind registered from outside the runtime, in the one file of its adapter.
    EXPECT_EQ(run(QStringLiteral("var n = c('spnCount'); n.setValue(4); [n.type, n.value, n.text].join()")),
              QStringLiteral("spin,4,4"));
    EXPECT_EQ(run(QStringLiteral("w.control('txtNothing')")), QStringLiteral("error: the window frmProbe has no control txtNothing"));
}

TEST_F(ScriptApiTest, ScenarioAndProjectFieldsAreProperties)
{
    // Without a scenario every field reads as its type's default and a write goes nowhere.
    EXPECT_EQ(run(QStringLiteral("var s = session.scenario; [s.exists, s.SID, s.Mode, s.Weight].join('|')")),
              QStringLiteral("false|0||0"));
    EXPECT_EQ(run(QStringLiteral("s.SID = 5; s.SID")), QStringLiteral("0"));

    auto scenario = std::make_shared<clsScenario>(ts.session());
    scenario->SID = 7;
    scenario->Weight = 0.1f;
    scenario->DietType = 1;
    scenario->FileName = QStringLiteral("heron.ZOB");
    ts->gScenario = scenario;
    EXPECT_EQ(run(QStringLiteral("[s.exists, s.SID, s.FileName, s.DietType].join('|')")), QStringLiteral("true|7|heron.ZOB|1"));
    // A single reads as the double of the single.
    EXPECT_EQ(run(QStringLiteral("s.Weight === 0.10000000149011612")), QStringLiteral("true"));
    EXPECT_EQ(run(QStringLiteral("typeof s.SID + typeof s.Mode + typeof s.Weight")), QStringLiteral("numberstringnumber"));
    run(QStringLiteral("s.DietType = 2; s.DietID = '12'; s.SID = 9;"));
    EXPECT_EQ(scenario->DietType, 2);
    EXPECT_EQ(scenario->DietID, 12);
    EXPECT_EQ(scenario->SID, 9);
    EXPECT_EQ(run(QStringLiteral("['SID', 'Mode', 'DietID', 'DietType', 'ScenarioType', 'FileName', 'FilePath', "
                                 "'SpeciesID', 'WeightID', 'Weight', 'exists'].filter(n => !(n in s)).length")),
              QStringLiteral("0"));

    auto project = std::make_shared<clsProject>(ts.session());
    project->PID = 3;
    project->Name = QStringLiteral("Heron Marsh");
    ts->gProject = project;
    EXPECT_EQ(run(QStringLiteral("var p = session.project; [p.exists, p.PID, p.Name, p.Mode].join('|')")),
              QStringLiteral("true|3|Heron Marsh|"));
}
