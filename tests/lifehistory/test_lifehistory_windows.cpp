// SPDX-License-Identifier: MIT
// The species search as a window: the species chosen is written into the scenario's row. (The walk
// through the species found and the browser's pages are checked through the program by lifehistory.js.)
#include "ControlValue.h"
#include "Database.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "TestSupport.h"
#include "clsScenario.h"
#include "frmSearch_LifeHistory.h"

#include <gtest/gtest.h>

namespace {
class LifeHistoryWindows : public ::testing::Test {
protected:
    void SetUp() override { ts->gScenario = std::make_shared<clsScenario>(ts.session()); }
    frmSearch_LifeHistory *search() { return host.form<frmSearch_LifeHistory>(QStringLiteral("frmSearch_LifeHistory")); }
    qint32 scalar(const QString &sql)
    {
        auto rs = ts->gDB->OpenRecordset(sql, RecordsetType::Snapshot);
        return rs->field(0).toInt();
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
