// SPDX-License-Identifier: MIT
// The diet copy: the item statements, the overwrite question, the copy of head and items, the texts
// of an item's trophic level and water content, the user-change mark, and new item rows.
#include "CalcFixture.h"
#include "Diet.h"
#include "clsDietItem.h"

#include <QFile>

namespace {

class DietCopyTest : public CalcTest {
protected:
    DietCopyTest()
    {
        sql(QStringLiteral(
            "INSERT INTO tblDataSource (DataSourceID, Description) VALUES (4, 'Primary'), (6, 'User entered'), "
            "(7, 'Handbook');"
            "INSERT INTO tblWaterConversion (WaterConversionID, Item, Mean, DataSourceID) VALUES (1, 'Beetles', 65.5, 4), "
            "(2, 'Berries', 80, 7);"
            "INSERT INTO tblTrophicLevel (TrophicLevelID, Item, TrophicLevel, DataSourceID) VALUES (1, 'Insects', 2.5, 4), "
            "(2, 'Plants', 3, 7), (3, 'Odd', 2.345, NULL);"
            "INSERT INTO tblDiet (DietID, fldDiet_ID, SpeciesID, DataTypeID, MeasureTermID, Location, Region, "
            "DataSourceID, CollectionNotes, Notes) VALUES (3, 30, 5, 2, 1, 'Marsh', 'North', 4, 'June', 'not copied');"
            "INSERT INTO tblDietItem (DietItemID, DietID, Name, Wet_Proportion, Dry_Proportion, WaterConversionID, "
            "WaterPercent, TrophicLevelID, AEID, GrossEnergyID, Genus, Comments, DataSourceID) VALUES "
            "(31, 3, 'beetles', 0.3, 0.2, 1, 99, 1, 1, 1, 'Carabus', 'ground', 4), "
            "(32, 3, 'berries', 0.2, 0.1, 2, 99, 2, 2, 2, NULL, NULL, 7), "
            "(33, 3, 'snails', 0.1, 0.3, 1, 99, 1, 3, 3, NULL, NULL, 4), "
            "(34, 3, 'worms', 0.3, 0.3, NULL, 99, 1, 4, 4, NULL, NULL, 4), "
            "(35, 3, 'fish', 0.1, 0.1, 2, 99, 2, 5, 5, NULL, NULL, 4), "
            "(40, 4, 'other diet', 1, 1, 1, 99, 1, 1, 1, NULL, NULL, 4);"
            "INSERT INTO tblWildlife (ScenarioID, DietID, DietSeason, DietSex, DietHabitat, DietDataSourceID) "
            "VALUES (7, 3, 'Summer', 'Both', 'Marsh', 4), (8, 3, 'Winter', 'Male', 'Forest', 4);"));
    }
    QStringList copiedNames()
    {
        QStringList out;
        for (const QVariant &v : column(QStringLiteral("SELECT Name FROM tblWildlifeDietItems WHERE ScenarioID = 7 "
                                                       "ORDER BY Name")))
            out << v.toString();
        return out;
    }
    void copyDiet3()
    {
        AddWildlifeDiet(s, 3);
        AddWildlifeDietItems(s, 3);
    }
};

TEST_F(DietCopyTest, CopiesTheHeadAndOnlyItemsWithAMoistureRow)
{
    copyDiet3();
    EXPECT_TRUE(shown().isEmpty());
    // Ids, proportions, water content and trophic level with their sources are compared with the
    // reference for every shipped diet by ShippedDietCopy; here the texts that ride along.
    EXPECT_EQ(column(QStringLiteral("SELECT fldDiet_ID || '|' || Region || '|' || CollectionNotes FROM tblWildlifeDiet "
                                    "WHERE ScenarioID = 7")),
              QVariantList{QStringLiteral("30|North|June")});
    // "worms" has no moisture row and is left out without a word.
    EXPECT_EQ(copiedNames(), (QStringList{QStringLiteral("beetles"), QStringLiteral("berries"), QStringLiteral("fish"),
                                          QStringLiteral("snails")}));
    EXPECT_EQ(value(QStringLiteral("SELECT Genus || '|' || Comments || '|' || WaterPercent FROM tblWildlifeDietItems "
                                   "WHERE Name = 'beetles'")).toString(),
              QStringLiteral("Carabus|ground|65.5"));  // water from the moisture row, not the item's 99

    // The values are frozen: a later change of the reference does not reach the copy.
    sql(QStringLiteral("UPDATE tblWaterConversion SET Mean = 10; UPDATE tblTrophicLevel SET TrophicLevel = 9"));
    EXPECT_EQ(value(QStringLiteral("SELECT WaterPercent FROM tblWildlifeDietItems WHERE Name = 'beetles'")).toDouble(), 65.5);
    EXPECT_EQ(value(QStringLiteral("SELECT TrophicLevel FROM tblWildlifeDietItems WHERE Name = 'fish'")).toDouble(), 3.0);
}

TEST_F(DietCopyTest, FailuresKeepWhatWasWritten)
{
    AddWildlifeDiet(s, 99);
    ASSERT_EQ(shown().size(), 1);
    EXPECT_EQ(shown()[0].text, QStringLiteral("3021\r\nNo current record.\r\nError in .AddWildlifeDiet"));
    EXPECT_EQ(shown()[0].title, QStringLiteral("System Developer Message"));
    EXPECT_TRUE(column(QStringLiteral("SELECT * FROM tblWildlifeDiet")).isEmpty());

    // "fish" points at a trophic level that does not exist: its "not found" cannot go into the number column.
    t.messages.shown.clear();
    sql(QStringLiteral("UPDATE tblDietItem SET TrophicLevelID = 77 WHERE Name = 'fish'"));
    AddWildlifeDietItems(s, 3);
    ASSERT_EQ(shown().size(), 1);
    EXPECT_TRUE(shown()[0].text.startsWith(QStringLiteral("3421\r\n")));
    EXPECT_TRUE(shown()[0].text.endsWith(QStringLiteral("Error in code routine AddWildlifeDietItems")));
    EXPECT_EQ(shown()[0].title, QStringLiteral("System Developer Message"));
    EXPECT_EQ(copiedNames(), (QStringList{QStringLiteral("beetles"), QStringLiteral("berries"), QStringLiteral("snails")}));  // copied before fish
}

TEST_F(DietCopyTest, ItemStatementsListCopiesOrReferenceItemsByName)
{
    const QString user = GetDietItemsSQL(s, QStringLiteral("User"), kSid);
    EXPECT_TRUE(user.startsWith(QStringLiteral("SELECT tblWildlifeDietItems.DietID, tblWildlifeDietItems.DietItemID, ")));
    EXPECT_TRUE(user.endsWith(QStringLiteral(" ON tblLifeStage.LifeStageID = tblWildlifeDietItems.LifeStageID WHERE "
                                             "tblWildlifeDietItems.ScenarioID = 7 Order by tblWildlifeDietItems.Name")));
    const QString perm = GetDietItemsSQL(s, QStringLiteral("Perm"), 3);
    EXPECT_TRUE(perm.contains(QStringLiteral("tblDietItem.Dry_Proportion, tblDietItem.DataSourceID, tblGrossEnergy.WET_WT_KCALG")));
    EXPECT_TRUE(perm.endsWith(QStringLiteral(" WHERE ([tblDietItem].[DietID]= 3) Order By tblDietItem.Name")));
    EXPECT_FALSE(perm.contains(QStringLiteral("tblWildlifeDietItems")));
    EXPECT_EQ(GetDietItemsSQL(s, QStringLiteral("user "), kSid), QString());
    t.cursor.setBusy(true);
    EXPECT_EQ(GetDietItemsSQL(s, QStringLiteral("Other"), 1), QString());
    EXPECT_FALSE(t.cursor.busy());

    // The outer joins keep every item although none has AE, gross energy or life stage rows.
    QStringList names;
    auto rs = s.gDB->OpenRecordset(perm, RecordsetType::Snapshot);
    for (; !rs->EOF_(); rs->MoveNext())
        names << rs->field(QStringLiteral("Name")).toString();
    EXPECT_EQ(names, (QStringList{QStringLiteral("beetles"), QStringLiteral("berries"), QStringLiteral("fish"),
                                  QStringLiteral("snails"), QStringLiteral("worms")}));

    copyDiet3();
    auto copies = s.gDB->OpenRecordset(user, RecordsetType::Snapshot);
    EXPECT_EQ(copies->field(QStringLiteral("Name")).toString(), QStringLiteral("beetles"));
    EXPECT_EQ(copies->field(QStringLiteral("WaterPercent")).toDouble(), 65.5);  // the moisture row's mean
    copies->MoveLast();
    EXPECT_EQ(copies->RecordCount(), 4);
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(DietCopyTest, OverwriteQuestionDecidesWhetherTheCopyGoesOn)
{
    EXPECT_TRUE(ReplaceWildlifeDietItems(s));  // nothing to replace: no question
    EXPECT_TRUE(shown().isEmpty());

    copyDiet3();
    t.messages.answers = {MsgAnswer::No};
    EXPECT_FALSE(ReplaceWildlifeDietItems(s));
    ASSERT_EQ(shown().size(), 1);
    EXPECT_EQ(shown()[0].text, QStringLiteral("Do you want to overwrite existing Diet ?"));
    EXPECT_EQ(shown()[0].icon, MsgIcon::Question);
    EXPECT_EQ(shown()[0].buttons, MsgButtons::YesNo);
    EXPECT_EQ(shown()[0].defaultButton, 2);
    EXPECT_EQ(copiedNames().size(), 4);
    EXPECT_EQ(value(QStringLiteral("SELECT DietID FROM tblWildlife WHERE ScenarioID = 7")).toInt(), 3);

    t.messages.answers = {MsgAnswer::Yes};
    EXPECT_TRUE(ReplaceWildlifeDietItems(s));
    EXPECT_TRUE(copiedNames().isEmpty());
    EXPECT_TRUE(column(QStringLiteral("SELECT * FROM tblWildlifeDiet")).isEmpty());
    EXPECT_EQ(column(QStringLiteral("SELECT DietID || '|' || DietSeason || '|' || DietSex || '|' || DietHabitat "
                                    "FROM tblWildlife ORDER BY ScenarioID")),
              (QVariantList{QStringLiteral("0|||"), QStringLiteral("3|Winter|Male|Forest")}));
}

TEST_F(DietCopyTest, TrophicLevelText)
{
    copyDiet3();
    sql(QStringLiteral("INSERT INTO tblDietItem (DietItemID, DietID, Name, TrophicLevelID) VALUES (50, 9, 'none', NULL), "
                       "(51, 9, 'odd', 3)"));
    struct Case {
        int id;
        const char *table, *expected;
    };
    const Case cases[] = {
        {0, "tblDietItem", "No record selected"},
        {31, "tblDietItem", "Item: Insects Trophic Level:  2.5 - Data Source: Primary"},
        {32, "tblWildlifeDietItems", "Item: Plants Trophic Level:  3. - Data Source: Handbook"},
        {50, "tblDietItem", ""},  // no trophic level chosen
    };
    for (const Case &c : cases)
        EXPECT_EQ(GetTrophicLevelText(s, c.id, QLatin1String(c.table)), QLatin1String(c.expected)) << c.id;
    EXPECT_TRUE(shown().isEmpty());

    // A level without a data source cannot be described: the report names the routine.
    EXPECT_EQ(GetTrophicLevelText(s, 51, QStringLiteral("tblDietItem")), QString());
    ASSERT_EQ(shown().size(), 1);
    EXPECT_EQ(shown()[0].text, sharedError(QStringLiteral("GetTrophicLevelText"), 94, QStringLiteral("Invalid use of Null")));
}

TEST_F(DietCopyTest, WaterConversionText)
{
    copyDiet3();
    sql(QStringLiteral("UPDATE tblWildlifeDietItems SET WaterPercent = 70.125, WaterPercentDS = 6 WHERE Name = 'snails';"
                       "INSERT INTO tblGrossEnergy (GrossEnergyID, WaterConversionID, WaterPercent, DataSourceID) "
                       "VALUES (8, 2, 5.5, 7)"));
    struct Case {
        int id;
        const char *table, *expected;
    };
    const Case cases[] = {
        {0, "tblDietItem", ""},
        {31, "tblDietItem", "Item:  Beetles Percent Water:  99. - Data Source: Primary"},
        {33, "tblWildlifeDietItems", "Item:  Beetles Percent Water:  70.13 - Data Source: User entered"},
        {32, "tblWildlifeDietItems", "Item:  Berries Percent Water:  80. - Data Source: Handbook"},
        {8, "tblGrossEnergy", "Item:  Berries Percent Water:  5.5 - Data Source: Handbook"},
        {77, "tblWildlifeDietItems", "Water content not found. "},
    };
    for (const Case &c : cases)
        EXPECT_EQ(GetWaterConversionText(s, c.id, QLatin1String(c.table)), QLatin1String(c.expected)) << c.id;
    EXPECT_TRUE(shown().isEmpty());
}

struct FakeDietItemWindow : DietItemWindow {
    void setIsChanged(bool changed) override { m_changed = changed; }
    bool isChanged() const override { return m_changed; }
    bool m_changed = true;
};

TEST_F(DietCopyTest, UserChangeMarksTheDietOnce)
{
    copyDiet3();
    s.gDietItem = std::make_shared<clsDietItem>(s);
    FakeDietItemWindow window;
    s.gDietItem->window = &window;
    s.gScenario->Diet_DataSource = 4;

    UpdateDS(s, false);  // nothing changed: nothing written
    EXPECT_EQ(value(QStringLiteral("SELECT DietDataSourceID FROM tblWildlife WHERE ScenarioID = 7")).toInt(), 4);
    EXPECT_TRUE(window.isChanged());

    UpdateDS(s, true);
    EXPECT_EQ(value(QStringLiteral("SELECT DietDataSourceID FROM tblWildlife WHERE ScenarioID = 7")).toInt(), 6);
    EXPECT_EQ(value(QStringLiteral("SELECT DataSourceID FROM tblWildlifeDiet WHERE ScenarioID = 7")).toInt(), 6);
    EXPECT_EQ(value(QStringLiteral("SELECT DietDataSourceID FROM tblWildlife WHERE ScenarioID = 8")).toInt(), 4);
    EXPECT_FALSE(window.isChanged());
    EXPECT_EQ(s.gScenario->Diet_DataSource, 6);

    // Already user data: no statement runs, the window keeps its flag.
    window.setIsChanged(true);
    sql(QStringLiteral("UPDATE tblWildlife SET DietDataSourceID = 2 WHERE ScenarioID = 7"));
    UpdateDS(s, true);
    EXPECT_EQ(value(QStringLiteral("SELECT DietDataSourceID FROM tblWildlife WHERE ScenarioID = 7")).toInt(), 2);
    EXPECT_TRUE(window.isChanged());
    EXPECT_TRUE(shown().isEmpty());

    // The window closed: the scenario is still marked.
    s.gDietItem->window = nullptr;
    sql(QStringLiteral("UPDATE tblWildlifeDiet SET DataSourceID = 4"));
    UpdateDS(s, true);
    EXPECT_EQ(value(QStringLiteral("SELECT DietDataSourceID FROM tblWildlife WHERE ScenarioID = 7")).toInt(), 6);
}

TEST_F(DietCopyTest, UpdateDsTracesAtLevelOne)
{
    copyDiet3();
    s.gDiagLevel = 1;
    UpdateDS(s, true);
    QFile trace(Session::join(t.home(), QStringLiteral("diag.txt")));
    ASSERT_TRUE(trace.open(QIODevice::ReadOnly));
    EXPECT_TRUE(QString::fromUtf8(trace.readAll()).contains(QStringLiteral("\tmodDiet.UpdateDS successful :) ")));
}

TEST_F(DietCopyTest, NewItemRowsInTheReferenceAndInTheScenario)
{
    clsDietItem item(s);
    s.gScenario->SID = 0;
    const qint32 reference = item.AddNew(QStringLiteral("tblDietItem"), 3);
    EXPECT_EQ(reference, 41);  // the next autonumber after 40
    EXPECT_EQ(value(QStringLiteral("SELECT DietID FROM tblDietItem WHERE DietItemID = 41")).toInt(), 3);

    s.gScenario->SID = kSid;
    copyDiet3();
    const qint32 copy = item.AddNew(QStringLiteral("tblWildlifeDietItems"), 3);
    EXPECT_EQ(copy, 42);  // above every item id in use
    EXPECT_EQ(value(QStringLiteral("SELECT ScenarioID FROM tblWildlifeDietItems WHERE DietItemID = 42")).toInt(), kSid);
    // With a scenario open, a reference item is still added (the reference table has no ScenarioID).
    EXPECT_EQ(item.AddNew(QStringLiteral("tblDietItem"), 3), 42);
}

TEST(clsDietItem, DateNumber)
{
    EXPECT_EQ(clsDietItem::GetDID(QDateTime(QDate(2024, 12, 31), QTime(23, 59, 58))), 1231235958);
    EXPECT_EQ(clsDietItem::GetDID(QDateTime(QDate(2024, 1, 2), QTime(3, 4, 5))), 102030405);
}

}  // namespace
