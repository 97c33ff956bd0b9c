// SPDX-License-Identifier: MIT
#include "ControlValue.h"
#include "DataControl.h"
#include "Diet.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "TestSupport.h"
#include "WindowLinks.h"
#include "ZobToolbar.h"
#include "clsDietItem.h"
#include "clsScenario.h"
#include "frmSelect_AE.h"
#include "frmSelect_GE.h"
#include "frmSelect_TrophicLevel.h"
#include "frmSelect_WaterConversion.h"

#include <QRadioButton>
#include <QTimer>
#include <gtest/gtest.h>

namespace {
//! Stands in for an entry window: records the request it was opened with and closes when shown modally.
class frmFakeEntry : public ZobWindow {
public:
    frmFakeEntry(Session &s, QtWindowHost &h, const QString &name) : ZobWindow(s, h, name) {}
    void setRecord(const RecordRequest &r) override { requests.append(r); }
    bool isMdiChild() const override { return false; }
    static inline QList<RecordRequest> requests;
};
class frmDE_GE : public frmFakeEntry {
public:
    frmDE_GE(Session &s, QtWindowHost &h) : frmFakeEntry(s, h, QStringLiteral("frmDE_GE")) {}
};
class frmDE_WaterConversion : public frmFakeEntry {
public:
    frmDE_WaterConversion(Session &s, QtWindowHost &h) : frmFakeEntry(s, h, QStringLiteral("frmDE_WaterConversion")) {}
};
//! The diet item window as the pickers see it: its changed flag and its list.
class frmDE_DietItem : public ZobWindow, public ListView, public DietItemWindow {
public:
    frmDE_DietItem(Session &s, QtWindowHost &h) : ZobWindow(s, h, QStringLiteral("frmDE_DietItem")) {}
    void refreshList() override { ++refreshes; }
    void setIsChanged(bool on) override { flags.append(on); }
    bool isChanged() const override { return !flags.isEmpty() && flags.last(); }
    static inline int refreshes = 0;
    static inline QList<bool> flags;
};
const WindowRegistration<frmDE_GE> regGE(QStringLiteral("frmDE_GE"));
const WindowRegistration<frmDE_WaterConversion> regWater(QStringLiteral("frmDE_WaterConversion"));
const WindowRegistration<frmDE_DietItem> regItem(QStringLiteral("frmDE_DietItem"));

class PickerTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        frmFakeEntry::requests.clear();
        frmDE_DietItem::refreshes = 0;
        frmDE_DietItem::flags.clear();
        ts->windows = &host;
        ts->gScenario = std::make_shared<clsScenario>(ts.session());
        ts->gDietItem = std::make_shared<clsDietItem>(ts.session());
        ts->gDB->Execute(QStringLiteral("Insert Into tblDietItem (DietItemID, DietID, Name, KingdomID, SubkingdomID, "
                                        "PhylumID, ClassID, OrderID, FamilyID) Values (970001, 1, 'Probe', 2, 2, 5, 14, 51, 90)"));
    }
    //! Opens a picker for the probe item (or another record) as a caller does, and lets it load.
    template <typename W>
    W *open(const QString &name, qint32 recordId = 970001, qint32 selectedId = 0, bool filter = true,
            const QString &mode = QStringLiteral("ReadOnly"))
    {
        auto *w = host.form<W>(name);
        RecordRequest r;
        r.recordId = recordId;
        r.table = QStringLiteral("tblDietItem");
        r.keyField = QStringLiteral("DietItemID");
        r.mode = mode;
        r.selectedId = selectedId;
        r.filter = filter;
        w->setRecord(r);
        w->Form_Activate();
        return w;
    }
    DataControl *list(ZobWindow *w) { return w->findChild<DataControl *>(static_cast<FilteredPicker *>(w)->profile().dataControl); }
    //! The one value of a statement.
    QVariant scalar(const QString &sql) { return ts->gDB->OpenRecordset(sql, RecordsetType::Snapshot)->field(0); }
    QVariant item(const QString &column)
    {
        return ts->Lookup(QStringLiteral("tblDietItem"), column, QStringLiteral("DietItemID = 970001"));
    }
    void pick(ZobWindow *w, int level) { w->control<QRadioButton>(QStringLiteral("optFilter(%1)").arg(level))->click(); }
    TestSession ts;
    QtWindowHost host{ts.session()};
};
}  // namespace

TEST(PickerStatements, FilterOnlyForAPositiveValueAndSortsByTheirTables)
{
    const PickerProfile p = frmSelect_GE::profile();
    EXPECT_EQ(FilteredPicker::listStatement(p, QStringLiteral("FamilyID"), 90, QStringLiteral("Lifestage")),
              p.listSql + QStringLiteral(" WHERE tblGrossEnergy.FamilyID=90 ORDER BY tblLifeStage.Description"));
    EXPECT_EQ(FilteredPicker::listStatement(p, QStringLiteral("FamilyID"), 0, QStringLiteral("Component")),
              p.listSql + QStringLiteral(" ORDER BY tblComponent.Description"));
    EXPECT_EQ(FilteredPicker::listStatement(p, QString(), 7, QStringLiteral("lifestage")),
              p.listSql + QStringLiteral(" ORDER BY lifestage"));
    EXPECT_EQ(FilteredPicker::levelColumn(0), QString());
    EXPECT_EQ(FilteredPicker::levelColumn(1), QStringLiteral("KingdomID"));
    EXPECT_EQ(FilteredPicker::levelColumn(6), QStringLiteral("FamilyID"));
    EXPECT_EQ(FilteredPicker::levelColumn(7), QString());
}

TEST_F(PickerTest, TheHeldRowIsShownFirstUnlessTheFilterLeavesItOut)
{
    const qint32 held = scalar(QStringLiteral("Select Max(GrossEnergyID) From tblGrossEnergy Where FamilyID <> 90 Or FamilyID Is Null")).toInt();
    auto *w = open<frmSelect_GE>(QStringLiteral("frmSelect_GE"), 970001, held);
    EXPECT_EQ(list(w)->current().field(QStringLiteral("GrossEnergyID")).toInt(), held);
    EXPECT_EQ(w->control<QWidget>(QStringLiteral("fraFilter"))->isVisibleTo(w), true);
    pick(w, 6);
    EXPECT_EQ(list(w)->currentRow(), 0);
    EXPECT_TRUE(ts.messages.shown.isEmpty());
}

TEST_F(PickerTest, SelectWritesTheRowAndTellsTheDietItemWindowOnce)
{
    auto *itemWindow = dynamic_cast<frmDE_DietItem *>(host.form(QStringLiteral("frmDE_DietItem")));
    ts->gDietItem->window = itemWindow;
    auto *w = open<frmSelect_AE>(QStringLiteral("frmSelect_AE"));
    list(w)->moveTo(2);
    const QVariant chosen = list(w)->current().field(QStringLiteral("AEID"));
    w->toolbar()->click(QStringLiteral("Select"));
    EXPECT_EQ(item(QStringLiteral("AEID")), chosen);
    EXPECT_EQ(frmDE_DietItem::refreshes, 1);
    ASSERT_FALSE(frmDE_DietItem::flags.isEmpty());
    EXPECT_TRUE(frmDE_DietItem::flags.first());
    ts->gDietItem->window = nullptr;
    EXPECT_FALSE(host.isLoaded(QStringLiteral("frmSelect_AE")));
    EXPECT_TRUE(ts.messages.shown.isEmpty());
}

TEST_F(PickerTest, ATypedValueWinsOverTheRowAndZeroTakesTheRow)
{
    auto *w = open<frmSelect_TrophicLevel>(QStringLiteral("frmSelect_TrophicLevel"));
    ControlValue::setText(w->control<QWidget>(QStringLiteral("txtTL")), QStringLiteral("0.46"));
    w->toolbar()->click(QStringLiteral("Select"));
    EXPECT_EQ(item(QStringLiteral("TrophicLevelID")).toInt(), 0);
    EXPECT_FLOAT_EQ(item(QStringLiteral("TrophicLevel")).toFloat(), 0.5f);
    EXPECT_EQ(item(QStringLiteral("TrophiclevelDS")).toInt(), 6);

    w = open<frmSelect_TrophicLevel>(QStringLiteral("frmSelect_TrophicLevel"));
    ControlValue::setText(w->control<QWidget>(QStringLiteral("txtTL")), QStringLiteral("0"));
    list(w)->moveTo(1);
    Recordset &row = list(w)->current();
    const QVariant id = row.field(QStringLiteral("TrophicLevelID")), ds = row.field(QStringLiteral("DataSourceID"));
    w->toolbar()->click(QStringLiteral("Select"));
    EXPECT_EQ(item(QStringLiteral("TrophicLevelID")), id);
    EXPECT_EQ(item(QStringLiteral("TrophiclevelDS")), ds);
}

TEST_F(PickerTest, AGoneCallerEndsMoistureQuietlyButIsReportedElsewhere)
{
    auto *water = open<frmSelect_WaterConversion>(QStringLiteral("frmSelect_WaterConversion"), 999999);
    water->toolbar()->click(QStringLiteral("Select"));
    EXPECT_TRUE(ts.messages.shown.isEmpty());
    EXPECT_TRUE(host.isLoaded(QStringLiteral("frmSelect_WaterConversion")));
    EXPECT_EQ(frmDE_DietItem::refreshes, 0);

    auto *ge = open<frmSelect_GE>(QStringLiteral("frmSelect_GE"), 999999);
    ge->toolbar()->click(QStringLiteral("Select"));
    ASSERT_EQ(ts.messages.shown.size(), 1);
    EXPECT_TRUE(ts.messages.shown[0].text.contains(QStringLiteral("No current record.")));
    EXPECT_TRUE(host.isLoaded(QStringLiteral("frmSelect_GE")));
}

TEST_F(PickerTest, NewAddsARowAndOpensItsEntryWindowForWriting)
{
    const int before = scalar(QStringLiteral("Select Count(*) From tblGrossEnergy")).toInt();
    auto *w = open<frmSelect_GE>(QStringLiteral("frmSelect_GE"), 0, 0, false, QStringLiteral("Write"));
    w->toolbar()->click(QStringLiteral("New"));
    ASSERT_EQ(frmFakeEntry::requests.size(), 1);
    const RecordRequest &r = frmFakeEntry::requests[0];
    EXPECT_EQ(r.mode, QStringLiteral("Write"));
    EXPECT_EQ(r.table, QStringLiteral("tblGrossEnergy"));
    EXPECT_EQ(scalar(QStringLiteral("Select Count(*) From tblGrossEnergy")).toInt(), before + 1);
    EXPECT_EQ(ts->Lookup(QStringLiteral("tblGrossEnergy"), QStringLiteral("GrossEnergyID"),
                         QStringLiteral("GrossEnergyID = %1").arg(r.recordId)).toInt(), r.recordId);
    EXPECT_FALSE(host.isLoaded(QStringLiteral("frmSelect_GE")));
}

TEST_F(PickerTest, ADoubleClickHandsOnTheCallerAndMoistureAlwaysWrites)
{
    QTimer::singleShot(0, &host, [this] { host.unload(QStringLiteral("frmDE_GE")); });
    auto *ge = open<frmSelect_GE>(QStringLiteral("frmSelect_GE"), 970001, 5);
    list(ge)->moveTo(1);
    const int geRow = list(ge)->current().field(QStringLiteral("GrossEnergyID")).toInt();
    ge->findChild<DataGrid *>(QStringLiteral("ssCmbSearch"))->dblClickRow(1);
    ASSERT_EQ(frmFakeEntry::requests.size(), 1);
    EXPECT_EQ(frmFakeEntry::requests[0].recordId, geRow);
    EXPECT_EQ(frmFakeEntry::requests[0].mode, QStringLiteral("ReadOnly"));
    EXPECT_EQ(frmFakeEntry::requests[0].selectedId, 5);
    EXPECT_EQ(frmFakeEntry::requests[0].table, QStringLiteral("tblDietItem"));

    QTimer::singleShot(0, &host, [this] { host.unload(QStringLiteral("frmDE_WaterConversion")); });
    // Browsing, the moisture Select opens the row, for writing, with the picker's record id as selected id.
    auto *water = open<frmSelect_WaterConversion>(QStringLiteral("frmSelect_WaterConversion"), 0, 5, false,
                                                  QStringLiteral("ReadOnly"));
    const int waterRow = list(water)->current().field(QStringLiteral("WaterConversionID")).toInt();
    water->toolbar()->click(QStringLiteral("Select"));
    ASSERT_EQ(frmFakeEntry::requests.size(), 2);
    EXPECT_EQ(frmFakeEntry::requests[1].mode, QStringLiteral("Write"));
    EXPECT_EQ(frmFakeEntry::requests[1].selectedId, 0);
    EXPECT_EQ(frmFakeEntry::requests[1].recordId, waterRow);
}

TEST_F(PickerTest, TheWaterRatioFollowsTheTypedContent)
{
    auto *w = open<frmSelect_WaterConversion>(QStringLiteral("frmSelect_WaterConversion"));
    QWidget *content = w->control<QWidget>(QStringLiteral("txtWaterRatio(0)"));
    QWidget *ratio = w->control<QWidget>(QStringLiteral("txtWaterRatio(1)"));
    ControlValue::type(content, QStringLiteral("62.5"));
    EXPECT_EQ(ControlValue::text(ratio), QStringLiteral(".375"));
    ControlValue::type(content, QStringLiteral("101"));
    EXPECT_EQ(ControlValue::text(ratio), QStringLiteral("0"));
    ASSERT_EQ(ts.messages.shown.size(), 1);
    EXPECT_EQ(ts.messages.shown[0].text, QStringLiteral("Water content cannot be greater than 100 %."));
    // The refused value stays and is what Select writes.
    w->toolbar()->click(QStringLiteral("Select"));
    EXPECT_FLOAT_EQ(item(QStringLiteral("WaterPercent")).toFloat(), 101.0f);
    EXPECT_EQ(item(QStringLiteral("WaterConversionID")).toInt(), 0);
}
