// SPDX-License-Identifier: MIT
// The shared entry window's writes: only what was typed goes into the row, empty text as null, in one
// update that a bad value refuses whole; a vetted record and a row gone meanwhile are never written;
// leaving a row (a move or the window's end) writes like Save. And the measurement columns by kind.
#include "ControlValue.h"
#include "DataControl.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "TestSupport.h"
#include "ZobToolbar.h"
#include "clsDietItem.h"
#include "clsScenario.h"
#include "frmDE_AE.h"
#include "frmDE_Measurement.h"
#include "frmDE_Weight.h"

#include <QAction>
#include <gtest/gtest.h>

namespace {
class EntryTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ts->windows = &host;
        ts->gScenario = std::make_shared<clsScenario>(ts.session());
        ts->gDietItem = std::make_shared<clsDietItem>(ts.session());
        ts->gDB->Execute(QStringLiteral("Insert Into tblAE (AEID, ConsumerName, FoodName, Comments, Mean, DataSourceID) "
                                        "Values (990001, 'Mink', 'Fish', 'old note', 80, 5)"));
    }
    template <typename W>
    W *open(const QString &name, qint32 id, const QString &table, const QString &key, const QString &mode = QStringLiteral("Write"))
    {
        auto *w = host.form<W>(name);
        RecordRequest r;
        r.recordId = id;
        r.table = table;
        r.keyField = key;
        r.mode = mode;
        w->setRecord(r);
        w->Form_Activate();
        return w;
    }
    frmDE_AE *ae(qint32 id = 990001) { return open<frmDE_AE>(QStringLiteral("frmDE_AE"), id, QStringLiteral("tblAE"), QStringLiteral("AEID")); }
    //! The row as text, column by column.
    QStringList row(const QString &table, const QString &key, qint32 id)
    {
        auto rs = ts->gDB->OpenRecordset(QStringLiteral("Select * From %1 Where %2 = %3").arg(table, key).arg(id), RecordsetType::Snapshot);
        QStringList out;
        for (int i = 0; !rs->EOF_() && i < rs->fieldNames().size(); ++i)
            out << (rs->field(i).isNull() ? QStringLiteral("<null>") : rs->field(i).toString());
        return out;
    }
    QStringList texts() const
    {
        QStringList out;
        for (const ShownMessage &m : ts.messages.shown)
            out << m.text;
        return out;
    }
    void type(ZobWindow *w, const QString &control, const QString &text) { ControlValue::setText(w->control(control), text, Origin::User); }
    TestSession ts;
    QtWindowHost host{ts.session()};
};
}  // namespace

TEST_F(EntryTest, SaveWritesOnlyWhatWasTypedAndEmptyTextAsNull)
{
    frmDE_AE *w = ae();
    QStringList expected = row(QStringLiteral("tblAE"), QStringLiteral("AEID"), 990001);
    type(w, QStringLiteral("txtConsumerName"), QStringLiteral("O'Neil's mink"));
    type(w, QStringLiteral("txtAE(0)"), QString());
    // Another window writes a column this one shows but nobody typed in: it is kept.
    ts->gDB->Execute(QStringLiteral("Update tblAE Set FoodName = 'Crayfish' Where AEID = 990001"));
    w->save();
    w->save();
    expected[1] = QStringLiteral("O'Neil's mink");
    expected[4] = QStringLiteral("Crayfish");
    expected[17] = QStringLiteral("<null>");
    EXPECT_EQ(row(QStringLiteral("tblAE"), QStringLiteral("AEID"), 990001), expected);
    EXPECT_TRUE(texts().isEmpty());
}

TEST_F(EntryTest, ABadNumberRefusesTheWholeUpdate)
{
    auto *w = open<frmDE_Weight>(QStringLiteral("frmDE_Weight"), 1, QStringLiteral("tblWeight"), QStringLiteral("WeightID"));
    ts->gDB->Execute(QStringLiteral("Update tblWeight Set DataSourceID = 6 Where WeightID = 1"));
    w->LoadData();
    const QStringList before = row(QStringLiteral("tblWeight"), QStringLiteral("WeightID"), 1);
    type(w, QStringLiteral("txtRegion"), QStringLiteral("North"));
    type(w, QStringLiteral("txtMean"), QStringLiteral("heavy"));
    w->save();
    EXPECT_EQ(row(QStringLiteral("tblWeight"), QStringLiteral("WeightID"), 1), before);
    ASSERT_EQ(texts().size(), 1);
    EXPECT_TRUE(texts().first().contains(QStringLiteral("Error in routine frmDE_Weight.SaveWeight")));
}

TEST_F(EntryTest, AVettedRecordIsLockedAndNeverWritten)
{
    ts->gDB->Execute(QStringLiteral("Update tblAE Set DataSourceID = 7 Where AEID = 990001"));
    frmDE_AE *w = ae();
    const QStringList before = row(QStringLiteral("tblAE"), QStringLiteral("AEID"), 990001);
    EXPECT_TRUE(w->isVetted());
    EXPECT_FALSE(w->toolbar()->button(QStringLiteral("Save"))->isVisible());
    EXPECT_TRUE(ControlValue::locked(w->control(QStringLiteral("txtConsumerName"))));
    EXPECT_TRUE(ControlValue::locked(w->control(QStringLiteral("ssFoodGroup"))));
    ControlValue::setText(w->control(QStringLiteral("txtConsumerName")), QStringLiteral("Otter"));
    w->save();
    host.unload(QStringLiteral("frmDE_AE"));
    EXPECT_EQ(row(QStringLiteral("tblAE"), QStringLiteral("AEID"), 990001), before);
}

TEST_F(EntryTest, LeavingTheRowWritesAndAVanishedRowIsLeftAlone)
{
    frmDE_AE *w = ae();
    type(w, QStringLiteral("txtFoodName"), QStringLiteral("Frogs"));
    host.unload(QStringLiteral("frmDE_AE"));
    EXPECT_EQ(ts->Lookup(QStringLiteral("tblAE"), QStringLiteral("FoodName"), QStringLiteral("AEID = 990001")).toString(), QStringLiteral("Frogs"));

    w = ae();
    ts->gDB->Execute(QStringLiteral("Delete From tblAE Where AEID = 990001"));
    type(w, QStringLiteral("txtFoodName"), QStringLiteral("Ghost"));
    w->save();
    EXPECT_EQ(ts->Lookup(QStringLiteral("tblAE"), QStringLiteral("AEID"), QStringLiteral("FoodName = 'Ghost'")).toString(), QStringLiteral("not found"));
    EXPECT_TRUE(texts().isEmpty());
}

TEST_F(EntryTest, RecordIdBelowOneBindsTheTableAndAMoveWritesTheRowLeft)
{
    frmDE_AE *w = ae(0);
    auto *dc = w->findChild<DataControl *>(QStringLiteral("dcAE"));
    ASSERT_GT(dc->rowCount(), 1);
    dc->moveTo(dc->rowCount() - 1);
    EXPECT_EQ(w->currentId(), 990001);
    type(w, QStringLiteral("txtConsumerGenus"), QStringLiteral("Neovison"));
    dc->MoveFirst();
    EXPECT_EQ(ts->Lookup(QStringLiteral("tblAE"), QStringLiteral("ConsumerGenus"), QStringLiteral("AEID = 990001")).toString(),
              QStringLiteral("Neovison"));
}

TEST_F(EntryTest, MeasurementColumnsFollowTheKind)
{
    EXPECT_EQ(frmDE_Measurement::columnsOf(QStringLiteral("WW")),
              (QStringList{"WET_WT_KCALG", "Min_W", "Max_W", "", "Variance_ww"}));
    EXPECT_EQ(frmDE_Measurement::columnsOf(QStringLiteral("DW")).first(), QStringLiteral("DRY_WT_KCALG"));
    EXPECT_EQ(frmDE_Measurement::columnsOf(QStringLiteral("H2O")).value(3), QStringLiteral("Sample"));
    EXPECT_TRUE(frmDE_Measurement::columnsOf(QStringLiteral("XX")).isEmpty());
    // An unknown kind writes only the variance type and the data source.
    auto *m = host.form<frmDE_Measurement>(QStringLiteral("frmDE_Measurement"));
    m->PuS_SetRecord(990001, QStringLiteral("AEID"), QStringLiteral("tblAE"), QStringLiteral("XX"));
    ControlValue::setText(m->control(QStringLiteral("txtFields(30)")), QStringLiteral("12"));
    m->SaveMeasurement();
    EXPECT_EQ(ts->Lookup(QStringLiteral("tblAE"), QStringLiteral("Mean"), QStringLiteral("AEID = 990001")).toInt(), 80);
    EXPECT_EQ(ts->Lookup(QStringLiteral("tblAE"), QStringLiteral("DataSourceID"), QStringLiteral("AEID = 990001")).toInt(), 5);
    // With the data source emptied, null is written.
    ControlValue::setValue(m->control(QStringLiteral("cboDataSource")), QVariant());
    m->SaveMeasurement();
    EXPECT_TRUE(ts->gDB->OpenRecordset(QStringLiteral("Select DataSourceID From tblAE Where AEID = 990001"), RecordsetType::Snapshot)
                    ->field(0).isNull());
}
