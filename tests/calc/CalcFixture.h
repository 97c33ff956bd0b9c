// SPDX-License-Identifier: MIT
// A scenario in an empty database, built row by row, for the calculation and diet tests.
#pragma once

#include "TestSupport.h"
#include "VbError.h"
#include "VbFormat.h"
#include "clsScenario.h"

#include <QStringList>
#include <QVariant>
#include <gtest/gtest.h>
#include <sqlite3.h>

class CalcTest : public ::testing::Test {
protected:
    static constexpr int kSid = 7;

    CalcTest()
    {
        s.gScenario = std::make_shared<clsScenario>(s);
        s.gScenario->SID = kSid;
        s.gScenario->DietType = 1;
    }

    //! Runs SQLite statements as they stand (test setup only).
    //! Fixture text, several statements at once, run on the connection as it stands.
    void sql(const QString &statements)
    {
        ASSERT_EQ(sqlite3_exec(s.gDB->handle(), statements.toUtf8().constData(), nullptr, nullptr, nullptr), SQLITE_OK)
            << sqlite3_errmsg(s.gDB->handle());
    }

    //! A moisture row.
    void water(int id, const QString &mean, int dataSource = 4)
    {
        sql(QStringLiteral("INSERT INTO tblWaterConversion (WaterConversionID, Item, Mean, DataSourceID) "
                           "VALUES (%1, 'Water %1', %2, %3)").arg(id).arg(mean).arg(dataSource));
    }

    //! A diet item of the scenario: proportions and water percent as SQL literals ("NULL" allowed).
    void item(int id, const QString &name, const QString &wet, const QString &dry, int waterId = 0,
              const QString &waterPercent = QStringLiteral("NULL"), int aeId = 0, int geId = 0,
              const QString &trophic = QStringLiteral("NULL"), int scenario = kSid)
    {
        sql(QStringLiteral("INSERT INTO tblWildlifeDietItems (ScenarioID, DietID, DietItemID, Name, Wet_Proportion, "
                           "Dry_Proportion, WaterConversionID, WaterPercent, AEID, GrossEnergyID, TrophicLevel) VALUES "
                           "(%1, 3, %2, '%3', %4, %5, %6, %7, %8, %9, %10)")
                .arg(scenario).arg(id).arg(name, wet, dry).arg(waterId).arg(waterPercent).arg(aeId).arg(geId)
                .arg(trophic));
    }

    //! An assimilation efficiency row and a gross energy row.
    void ae(int id, const QString &mean) { sql(QStringLiteral("INSERT INTO tblAE (AEID, Mean) VALUES (%1, %2)").arg(id).arg(mean)); }
    void ge(int id, const QString &wet, const QString &dry)
    {
        sql(QStringLiteral("INSERT INTO tblGrossEnergy (GrossEnergyID, Item, WET_WT_KCALG, DRY_WT_KCALG) "
                           "VALUES (%1, 'GE %1', %2, %3)").arg(id).arg(wet, dry));
    }

    //! The scenario's food energy row (intake type 3) with its FMR.
    void fmr(const QString &adjustedRate)
    {
        sql(QStringLiteral("INSERT INTO tblIntakeZOB (ScenarioID, IntakeTypeID, AdjustedRate) VALUES (%1, 3, %2)")
                .arg(kSid).arg(adjustedRate));
    }

    //! The values of one column, in the order of the statement.
    QVariantList column(const QString &select)
    {
        QVariantList out;
        auto rs = s.gDB->OpenRecordset(select, RecordsetType::Snapshot);
        for (; !rs->EOF_(); rs->MoveNext())
            out << rs->field(0);
        return out;
    }
    QVariant value(const QString &select) { return column(select).value(0); }

    //! Proportions of the scenario's items in DietItemID order.
    QVariantList proportions(const char *field)
    {
        return column(QStringLiteral("SELECT %1 FROM tblWildlifeDietItems WHERE ScenarioID = %2 ORDER BY DietItemID")
                          .arg(QLatin1String(field)).arg(kSid));
    }

    const QVector<ShownMessage> &shown() const { return t.messages.shown; }

    TestSession t{false};
    Session &s = t.session();
};

//! The text of the shared error box.
inline QString sharedError(const QString &routine, int number, const QString &description)
{
    return QStringLiteral("Error in routine ") + routine + QStringLiteral("\r\n\r\n") + description
           + QStringLiteral("\r\n") + QString::number(number);
}

//! Doubles of a list, for comparing stored proportions.
inline std::vector<double> doubles(const QVariantList &values)
{
    std::vector<double> out;
    for (const QVariant &v : values)
        out.push_back(v.isNull() ? -1.0 : v.toDouble());
    return out;
}
