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
