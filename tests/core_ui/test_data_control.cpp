// SPDX-License-Identifier: MIT
#include "DataControl.h"
#include "Database.h"
#include "TestSupport.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <gtest/gtest.h>

namespace {
class DataControlTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ts->gDB->Execute(QStringLiteral("Delete * From tblProject"));
        for (const char *c : {"alpha", "beta", "gamma"})
            ts->gDB->Execute(QStringLiteral("Insert Into tblProject (Name) Values ('%1')").arg(QLatin1String(c)));
        dc.setDatabase(ts->gDB);
        dc.setRecordSource(QStringLiteral("Select ProjectID, Name From tblProject Order By Name"));
    }
    TestSession ts;
    DataControl dc{QStringLiteral("dcMain")};
};
}  // namespace

// The "Record: n of m" caption is checked through the setup window by system_setup.js.
TEST_F(DataControlTest, MovingPastTheLastRowStaysOnIt)
{
    dc.Refresh();
    dc.MoveLast();
    dc.MoveNext();
    EXPECT_EQ(dc.currentRow(), 2);
    EXPECT_EQ(dc.caption(), QStringLiteral("Record: 3 of 3"));
}

TEST_F(DataControlTest, GridFollowsEveryRefresh)
{
    DataGrid grid(QStringLiteral("ssGrdMain"));
    grid.setDataControl(&dc);
    dc.Refresh();
    grid.setColumnHidden(QStringLiteral("ProjectID"), true);
    grid.setColumnCaption(QStringLiteral("Name"), QStringLiteral("Text"));
    ASSERT_EQ(grid.recordsetModel()->rowCount(), 3);
    EXPECT_EQ(grid.columnCaptions(), QStringList{QStringLiteral("Text")});

    ts->gDB->Execute(QStringLiteral("Insert Into tblProject (Name) Values ('aardvark')"));
    dc.Refresh();
    EXPECT_EQ(grid.recordsetModel()->rowCount(), 4);
    EXPECT_EQ(grid.cellText(0, 0), QStringLiteral("aardvark"));
    EXPECT_EQ(grid.columnCaptions(), QStringList{QStringLiteral("Text")});  // hidden columns survive
    EXPECT_EQ(grid.currentRowIndex(), 0);

    grid.selectRowIndex(2);
    EXPECT_EQ(dc.currentRow(), 2);
    dc.MoveFirst();
    EXPECT_EQ(grid.currentIndex().row(), 0);
}

TEST_F(DataControlTest, OnlyTheDeclaredColumnsShowInTheirDeclaredOrderAfterEachRefresh)
{
    DataGrid grid(QStringLiteral("ssGrdMain"));
    dc.setRecordSource(QStringLiteral("Select ProjectID, Name, Purpose From tblProject Order By Name"));
    grid.setDataControl(&dc);
    dc.Refresh();
    grid.setColumns({{"Purpose", "Why"}, {"name"}}, true);
    EXPECT_EQ(grid.columnCaptions(), (QStringList{QStringLiteral("Why"), QStringLiteral("Name")}));
    EXPECT_EQ(grid.rowTexts(0), (QStringList{QString(), QStringLiteral("alpha")}));
    dc.Refresh();
    EXPECT_EQ(grid.columnCaptions(), (QStringList{QStringLiteral("Why"), QStringLiteral("Name")}));
}

TEST_F(DataControlTest, LongListsAreCountedByTheDatabaseAndReadAsShown)
{
    ts->gDB->Execute(QStringLiteral("Delete * From tblProject"));
    ts->gDB->executeNative(QStringLiteral(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
        "INSERT INTO tblProject (Name, Purpose) SELECT printf('project %04d', i), 'p' FROM n"));
    DataGrid grid(QStringLiteral("ssGrdMain"));
    grid.setDataControl(&dc);
    grid.setColumnHidden(QStringLiteral("ProjectID"), true);
    grid.setColumnCaption(QStringLiteral("Name"), QStringLiteral("A caption wider than any project name in the list"));
    grid.resize(400, 300);
    grid.show();
    dc.Refresh();
    grid.fitColumns();  // from the header and the rows in view
    EXPECT_EQ(dc.caption(), QStringLiteral("Record: 1 of 3000"));
    EXPECT_EQ(grid.recordsetModel()->rowCount(), 3000);
    EXPECT_LT(dc.recordset()->rowsRead(), 200);   // neither the count nor the column widths read every row
    const int name = dc.fieldIndex(QStringLiteral("Name"));
    EXPECT_GE(grid.columnWidth(name), grid.horizontalHeader()->sectionSizeHint(name));

    EXPECT_EQ(grid.cellText(2500, 0), QStringLiteral("project 2501"));
    grid.selectRowIndex(2999);
    EXPECT_EQ(dc.caption(), QStringLiteral("Record: 3000 of 3000"));
    EXPECT_EQ(dc.recordset()->field(QStringLiteral("Name")).toString(), QStringLiteral("project 3000"));
    dc.MoveFirst();
    dc.MoveLast();
    EXPECT_EQ(dc.currentRow(), 2999);
}

TEST_F(DataControlTest, ColumnsFitTheWidestTextInViewOfOneLineOrSeveral)
{
    // By characters the first name is the longest, by width the second is wider; the third would be
    // the widest on one line but shows on two shorter ones.
    ts->gDB->Execute(QStringLiteral("Delete * From tblProject"));
    ts->gDB->executeNative(QStringLiteral("INSERT INTO tblProject (Name) VALUES ('iiiiiiiiiiii'), ('WWWWWWW'), "
                                          "('aaaaaaa' || char(10) || 'aaaaaaa')"));
    DataGrid grid(QStringLiteral("ssGrdMain"));
    grid.setDataControl(&dc);
    grid.setColumnCaption(QStringLiteral("Name"), QStringLiteral("N"));
    dc.Refresh();
    grid.fitColumns(0);
    const QFontMetrics metrics(grid.font());
    const int name = dc.fieldIndex(QStringLiteral("Name"));
    EXPECT_GE(grid.columnWidth(name), metrics.horizontalAdvance(QStringLiteral("WWWWWWW")));
    EXPECT_LT(grid.columnWidth(name), metrics.horizontalAdvance(QStringLiteral("aaaaaaa aaaaaaa")));
}

TEST_F(DataControlTest, LongComboListsAreReadAsTheyAreLookedAt)
{
    ts->gDB->executeNative(QStringLiteral(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
        "INSERT INTO tblProject (Name) SELECT printf('place %04d', i) FROM n"));
    QComboBox combo;
    fillCombo(&combo, *ts->gDB, QStringLiteral("Select ProjectID, Name From tblProject Where Name Like 'place*' Order By Name"),
              QStringLiteral("Name"), QStringLiteral("ProjectID"));
    EXPECT_EQ(combo.currentIndex(), -1);
    EXPECT_LT(combo.count(), 3000);
    const QVariant far = ts->gDB->OpenRecordset(QStringLiteral("Select ProjectID From tblProject Where Name = 'place 2990'"))->field(0);
    selectComboValue(&combo, far);
    EXPECT_EQ(combo.currentText(), QStringLiteral("place 2990"));
    for (const QVariant &missing : {QVariant(-5), QVariant()}) {
        selectComboValue(&combo, missing);
        EXPECT_EQ(combo.currentIndex(), -1);
    }
    EXPECT_EQ(combo.count(), 3000);
    combo.addItem(QStringLiteral("(none)"), 0);
    EXPECT_EQ(combo.itemText(3000), QStringLiteral("(none)"));
}

TEST_F(DataControlTest, BoundBoxIsWrittenBackWhenTheRowIsLeft)
{
    QLineEdit box;
    dc.bind(&box, QStringLiteral("Name"));
    dc.Refresh();
    EXPECT_EQ(box.text(), QStringLiteral("alpha"));
    const QVariant id = dc.value(0, QStringLiteral("ProjectID"));

    box.setText(QStringLiteral("changed"));
    // Not yet written: the row has not been left.
    auto before = ts->gDB->OpenRecordset(QStringLiteral("Select Name From tblProject Where ProjectID = %1").arg(id.toInt()));
    EXPECT_EQ(before->field(0).toString(), QStringLiteral("alpha"));

    // Leaving the row writes it (runtime.js checks that through a window).
    dc.MoveNext();
    EXPECT_EQ(box.text(), QStringLiteral("beta"));

    // An emptied box writes null; an untouched row writes nothing.
    box.clear();
    dc.MovePrevious();
    auto nulled = ts->gDB->OpenRecordset(QStringLiteral("Select Name From tblProject Where Name Is Null"));
    EXPECT_EQ(nulled->RecordCount(), 1);
}

TEST_F(DataControlTest, CheckCellsAreWrittenAtOnceThroughTheRecordsetOrTheWriteTable)
{
    const int ref = ts->gDB->OpenRecordset(QStringLiteral("Select Min(ReferenceID) As R From qryReference"))->field(QStringLiteral("R")).toInt();
    for (int species : {990001, 990002})
        ts->gDB->Execute(QStringLiteral("Insert Into jtblSpeciesReference (SpeciesID, ReferenceID) Values (%1, %2)").arg(species).arg(ref));
    auto isDiet = [&](int species) {
        return ts->gDB->OpenRecordset(QStringLiteral("Select IsDiet From jtblSpeciesReference Where SpeciesID = %1").arg(species))
            ->field(QStringLiteral("IsDiet")).toBool();
    };
    DataGrid grid(QStringLiteral("ssGrdMain"));
    grid.setDataControl(&dc);
    int failures = 0;
    QObject::connect(&dc, &DataControl::Error, [&](int number, const QString &) { failures += number == 3027; });
    GridColumn diet{QStringLiteral("IsDiet"), QStringLiteral("Diet")};
    diet.check = true;
    // A join cannot be edited itself: without a write table the tick is refused and reported.
    dc.setRecordSource(QStringLiteral("SELECT jtblSpeciesReference.ReferenceID, qryReference.Reference, jtblSpeciesReference.IsDiet "
                                      "FROM qryReference INNER JOIN jtblSpeciesReference ON qryReference.ReferenceID = "
                                      "jtblSpeciesReference.ReferenceID WHERE jtblSpeciesReference.SpeciesID = 990001"));
    dc.Refresh();
    grid.setColumns({{QStringLiteral("ReferenceID")}, {QStringLiteral("Reference")}, diet}, true);
    EXPECT_FALSE(grid.clickCell(0, 2));
    EXPECT_EQ(failures, 1);
    dc.setWriteTable(QStringLiteral("jtblSpeciesReference"), {QStringLiteral("ReferenceID")}, QStringLiteral("SpeciesID = 990001"));
    EXPECT_TRUE(grid.clickCell(0, 2));
    EXPECT_TRUE(isDiet(990001));
    EXPECT_FALSE(isDiet(990002));   // the shared criterion keeps other species' links out
    EXPECT_EQ(grid.cellText(0, 2), QStringLiteral("True"));
    EXPECT_EQ(grid.recordsetModel()->index(0, dc.fieldIndex(QStringLiteral("IsDiet"))).data(Qt::CheckStateRole).toInt(), Qt::Checked);
    // One table: the recordset writes the row itself.
    dc.setRecordSource(QStringLiteral("Select ReferenceID, IsDiet From jtblSpeciesReference Where SpeciesID = 990002"));
    dc.Refresh();
    EXPECT_TRUE(grid.clickCell(0, 1));
    EXPECT_TRUE(isDiet(990002));
    EXPECT_TRUE(grid.clickCell(0, 1));
    EXPECT_FALSE(isDiet(990002));
    EXPECT_EQ(failures, 1);
}

TEST_F(DataControlTest, NeighbouringColumnsOfAGroupShareItsCaption)
{
    DataGrid grid(QStringLiteral("ssGrdMain"));
    grid.setDataControl(&dc);
    dc.Refresh();
    grid.setColumns(inGroup(QStringLiteral("Project"), {{QStringLiteral("Name")}, {QStringLiteral("ProjectID"), QStringLiteral("Id")}}), true);
    EXPECT_EQ(grid.columnCaptions(), (QStringList{QStringLiteral("Name"), QStringLiteral("Id")}));
    EXPECT_EQ(grid.columnGroups(), (QStringList{QStringLiteral("Project"), QStringLiteral("Project")}));
    EXPECT_GT(grid.horizontalHeader()->sizeHint().height(), QHeaderView(Qt::Horizontal).sizeHint().height());
    grid.headClick(0);   // heads still answer clicks
}
