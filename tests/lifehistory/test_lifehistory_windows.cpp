// SPDX-License-Identifier: MIT
// The species search and the browser as windows: the assignment to a scenario's row, the walk through
// the species found, the text pages' numbered references, and that nothing is written.
#include "ControlEvents.h"
#include "ControlValue.h"
#include "DataControl.h"
#include "Database.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "TestSupport.h"
#include "ZobToolbar.h"
#include "clsScenario.h"
#include "frmLifeHistory.h"
#include "frmSearch_LifeHistory.h"

#include <QLabel>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTimer>
#include <gtest/gtest.h>

namespace {
class LifeHistoryWindows : public ::testing::Test {
protected:
    void SetUp() override { ts->gScenario = std::make_shared<clsScenario>(ts.session()); }
    QString text(ZobWindow *w, const QString &name) { return ControlValue::text(w->control(name)); }
    frmSearch_LifeHistory *search() { return host.form<frmSearch_LifeHistory>(QStringLiteral("frmSearch_LifeHistory")); }
    qint32 scalar(const QString &sql)
    {
        auto rs = ts->gDB->OpenRecordset(sql, RecordsetType::Snapshot);
        return rs->field(0).toInt();
    }
    //! Searches for a name and opens the browser on page tab; the modal showing ends at once.
    frmLifeHistory *browse(const QString &name, int tab)
    {
        ControlValue::setText(search()->control(QStringLiteral("txtSearch(0)")), name);
        search()->toolbar()->click(4);
        QTimer::singleShot(0, [this] { host.hide(QStringLiteral("frmLifeHistory")); });
        clickLink(tab);
        return host.form<frmLifeHistory>(QStringLiteral("frmLifeHistory"));
    }
    void clickLink(int index)
    {
        emit ControlEvents::of(search()->control(QStringLiteral("LblGenInfo(%1)").arg(index)))->Click();
    }
    TestSession ts;
    QtWindowHost host{ts.session()};
};
}  // namespace

TEST_F(LifeHistoryWindows, SelectWritesTheSpeciesIntoTheScenarioRowAndTheScenario)
{
    ts->gDB->Execute(QStringLiteral("Insert Into tblWildlife (ScenarioID, SpeciesID) Values (777001, 0)"));
    RecordRequest request;
    request.recordId = 777001;
    request.keyField = QStringLiteral("ScenarioID");
    request.table = QStringLiteral("tblWildlife");
    search()->setRecord(request);
    ControlValue::setText(search()->control(QStringLiteral("txtSearch(0)")), QStringLiteral("robin"));
    search()->toolbar()->click(4);
    const qint32 robin = scalar(QStringLiteral("Select SpeciesID From tblSpecies Where Common = 'American robin'"));
    search()->toolbar()->click(7);
    EXPECT_EQ(scalar(QStringLiteral("Select SpeciesID From tblWildlife Where ScenarioID = 777001")), robin);
    EXPECT_EQ(ts->gScenario->SpeciesID, robin);
    EXPECT_EQ(ts->gScenario->Species_DataSource,
              scalar(QStringLiteral("Select DataSourceID From tblSpecies Where SpeciesID = %1").arg(robin)));
    EXPECT_FALSE(host.isLoaded(QStringLiteral("frmSearch_LifeHistory")));

    // From the menu ("NA") nothing is written, but the scenario still takes the species.
    RecordRequest menu;
    menu.table = menu.keyField = QStringLiteral("NA");
    search()->setRecord(menu);
    ControlValue::setText(search()->control(QStringLiteral("txtSearch(0)")), QStringLiteral("mallard"));
    search()->toolbar()->click(4);
    search()->toolbar()->click(7);
    EXPECT_EQ(scalar(QStringLiteral("Select SpeciesID From tblWildlife Where ScenarioID = 777001")), robin);
    EXPECT_NE(ts->gScenario->SpeciesID, robin);
}

TEST_F(LifeHistoryWindows, NothingFoundSaysSoAndSelectOrBrowseWithoutSpeciesWarns)
{
    ControlValue::setText(search()->control(QStringLiteral("txtSearch(0)")), QStringLiteral("no such animal"));
    search()->toolbar()->click(4);
    EXPECT_EQ(text(search(), QStringLiteral("lblSearchCaption")), QStringLiteral("No records found"));
    ASSERT_FALSE(ts.messages.shown.isEmpty());
    EXPECT_EQ(ts.messages.shown.last().text, QStringLiteral("No records found."));
    clickLink(2);
    EXPECT_EQ(ts.messages.shown.last().text, QStringLiteral("No species record."));
    EXPECT_FALSE(host.isLoaded(QStringLiteral("frmLifeHistory")));
    // An apostrophe is reported under the toolbar's routine name, and the window stays usable.
    ControlValue::setText(search()->control(QStringLiteral("txtSearch(0)")), QStringLiteral("o'brien"));
    search()->toolbar()->click(4);
    EXPECT_TRUE(ts.messages.shown.last().text.contains(QLatin1String("frmSeardch_LifeHistory.TB_MDI_ButtonClick")));
    search()->toolbar()->click(2);
    EXPECT_EQ(text(search(), QStringLiteral("txtSearch(0)")), QString());
    search()->toolbar()->click(7);
    EXPECT_EQ(ts.messages.shown.last().text, QStringLiteral("No records selected."));
}

TEST_F(LifeHistoryWindows, TextPagesNumberTheReferencesTheRowCites)
{
    frmLifeHistory *w = browse(QStringLiteral("robin"), 0);
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(text(w, QStringLiteral("txtDisplay")).startsWith(QLatin1String("American robin Kingdom:")));
    EXPECT_EQ(text(w, QStringLiteral("dcSpecies")).trimmed(), QStringLiteral("Species: 1 of 1"));
    ControlValue::input(w->control(QStringLiteral("optGeneral(1)")), true);
    const QString body = text(w, QStringLiteral("txtGeneralOrder(0)"));
    EXPECT_TRUE(body.contains(QLatin1String("Lislevand")));
    // As many numbered lines as the row cites distinct references.
    auto rs = ts->gDB->OpenRecordset(QStringLiteral("Select * From tblLIFEHISTORYTEXT Where SpeciesID = %1 And LifeText_Type = 'general'")
                                         .arg(scalar(QStringLiteral("Select SpeciesID From tblSpecies Where Common = 'American robin'"))),
                                     RecordsetType::Snapshot);
    QSet<QString> cited;
    for (int i = 1; i <= 15; ++i)
        if (!rs->field(QStringLiteral("Ref%1").arg(i)).toString().isEmpty())
            cited.insert(rs->field(QStringLiteral("Ref%1").arg(i)).toString());
    const QStringList lines = text(w, QStringLiteral("txtGeneralOrder(1)")).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), cited.size());
    for (int i = 0; i < lines.size(); ++i)
        EXPECT_TRUE(lines[i].startsWith(QString::number(i + 1) + QStringLiteral(".  "))) << lines[i].toStdString();
    EXPECT_TRUE(text(w, QStringLiteral("txtGeneralOrder(2)")).startsWith(QLatin1String("1.  ")));
    EXPECT_TRUE(ControlValue::locked(w->control(QStringLiteral("txtGeneralOrder(0)"))));
}

TEST_F(LifeHistoryWindows, WalkingMovesTheSearchAndATopicWithoutRowsSaysSo)
{
    frmLifeHistory *w = browse(QString(), 4);
    auto *outer = w->control<QTabWidget>(QStringLiteral("ssTabLifeHistory"));
    EXPECT_EQ(outer->currentIndex(), 4);
    DataControl *species = w->control<DataControl>(QStringLiteral("dcSpecies"));
    DataControl *found = search()->control<DataControl>(QStringLiteral("dcSearch"));
    ASSERT_GT(species->rowCount(), 3);
    QStringList heads;
    for (int i = 0; i < 3; ++i) {
        species->MoveNext();
        EXPECT_EQ(found->currentRow(), species->currentRow());
        heads << text(w, QStringLiteral("txtDisplay"));
    }
    EXPECT_EQ(QSet<QString>(heads.begin(), heads.end()).size(), 3);
    EXPECT_TRUE(text(w, QStringLiteral("dcSpecies")).endsWith(QStringLiteral("Species: 4 of %1").arg(species->rowCount())));

    // A species with no text at all: the boxes stay empty, the position is " of 0", and words say why.
    ts->gDB->Execute(QStringLiteral("Insert Into tblSpecies (SpeciesID, Common, Latin, TaxonID) Values (880001, 'Aaa test bird', 'Aus testus', 2)"));
    frmLifeHistory *again = browse(QStringLiteral("Aaa test bird"), 0);
    EXPECT_EQ(text(again, QStringLiteral("txtGeneralOrder(0)")), QString());
    EXPECT_EQ(text(again, QStringLiteral("dcMainGeneral")), QStringLiteral(" of 0"));
    EXPECT_TRUE(again->control<QLabel>(QStringLiteral("lblNoTextMainGeneral"))->isVisibleTo(again));

    // The species deleted while shown: the head says so, the pages are empty, and nothing is reported.
    ts->gDB->Execute(QStringLiteral("Delete From tblSpecies Where SpeciesID = 880001"));
    again->PuS_SetTab(4);
    again->PuS_SetTab(0);
    EXPECT_EQ(text(again, QStringLiteral("txtDisplay")), QStringLiteral("Aaa test bird: this species is no longer in the database."));
    EXPECT_TRUE(ts.messages.shown.isEmpty());
}

TEST_F(LifeHistoryWindows, BrowsingEveryPageAndOptionWritesNothing)
{
    const auto snapshot = [this] {
        QStringList all;
        for (const char *t : {"tblWeight", "tblDiet", "tblDietItem", "tblPOPDENS", "tblSEASON", "tblLIFEHISTORYTEXT", "tblSpecies"}) {
            auto rs = ts->gDB->OpenRecordset(QStringLiteral("Select * From ") + QString::fromLatin1(t), RecordsetType::Snapshot);
            for (; !rs->EOF_(); rs->MoveNext())
                for (int i = 0; i < rs->fieldCount(); ++i)
                    all << rs->field(i).toString();
        }
        return all;
    };
    const QStringList before = snapshot();
    frmLifeHistory *w = browse(QStringLiteral("mallard"), 0);
    auto *outer = w->control<QTabWidget>(QStringLiteral("ssTabLifeHistory"));
    for (int page = 0; page < outer->count(); ++page) {
        outer->setCurrentIndex(page);
        for (QTabWidget *inner : outer->widget(page)->findChildren<QTabWidget *>())
            for (int t = 0; t < inner->count(); ++t) {
                inner->setCurrentIndex(t);
                for (QWidget *c : inner->widget(t)->findChildren<QWidget *>())
                    if (c->objectName().startsWith(QLatin1String("opt")))
                        ControlValue::input(c, true);
            }
    }
    EXPECT_EQ(snapshot(), before);
    EXPECT_TRUE(ts.messages.shown.isEmpty()) << ts.messages.shown.first().text.toStdString();
}
