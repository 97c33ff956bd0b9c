// SPDX-License-Identifier: MIT
// The script bindings calc.* and diet.*: their names and argument orders are a contract with the
// scripts, and their results are the routines' own numbers.
#include "CalcFixture.h"
#include "CalcScriptApi.h"
#include "DietScriptApi.h"

#include <QMetaMethod>
#include <cmath>

namespace {

//! "Name(type,type)" of every invokable method of an object.
QStringList signaturesOf(const QObject &object)
{
    QStringList out;
    const QMetaObject *meta = object.metaObject();
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i)
        if (meta->method(i).methodType() == QMetaMethod::Method)
            out << QString::fromLatin1(meta->method(i).methodSignature());
    return out;
}

using ScriptApiTest = CalcTest;

TEST_F(ScriptApiTest, MethodsHaveTheScriptNamesAndArgumentOrders)
{
    CalcScriptApi calc(s);
    DietScriptApi diet(s);
    // Names and argument orders as one list each: scripts call them by these.
    EXPECT_EQ(signaturesOf(calc).join(QLatin1Char(' ')) + QLatin1Char(' '), QStringLiteral(
        "lastError() ConvertWeightIs(bool,double,double) CalculateDietPorportion(bool) "
        "ConvertDietProportion(bool,QString) ConvertDietProportion(bool) SumProportions(bool) GetH2OAvg() "
        "GetAvgTrophicLevel(QVariant,QString) GetMEAvg() GetFMR_TDI(QString) GetDailyDryDiet() "
        "GetIntakeEquationText(QVariant,QString) GetIntakeRate(QVariant,double,QString) "
        "GetClassificationText(QVariant,QString,QString) "
        "GetMeasurementText(QVariant,QString,QString,QString) CalculationSQL() "));
    EXPECT_EQ(signaturesOf(diet).join(QLatin1Char(' ')) + QLatin1Char(' '), QStringLiteral(
        "lastError() GetDietItemsSQL(QVariant,QVariant) Replace() AddWildlifeDiet(QVariant) "
        "AddWildlifeDietItems(QVariant) GetTrophicLevelText(QVariant,QString) "
        "GetWaterConversionText(QVariant,QString) UpdateDS(bool) "));
}

TEST_F(ScriptApiTest, NumbersComeBackAsTheDoubleOfTheSingle)
{
    CalcScriptApi calc(s);
    double converted = 0.0;
    ASSERT_TRUE(QMetaObject::invokeMethod(&calc, "ConvertWeightIs", Q_RETURN_ARG(double, converted), Q_ARG(bool, false),
                                          Q_ARG(double, 0.4), Q_ARG(double, 50.0)));
    EXPECT_EQ(converted, static_cast<double>(0.2f));
    EXPECT_EQ(calc.lastError(), QString());

    // The routine has no handler of its own: the script gets NaN and the error text.
    ASSERT_TRUE(QMetaObject::invokeMethod(&calc, "ConvertWeightIs", Q_RETURN_ARG(double, converted), Q_ARG(bool, true),
                                          Q_ARG(double, 0.4), Q_ARG(double, 100.0)));
    EXPECT_TRUE(std::isnan(converted));
    EXPECT_EQ(calc.lastError(), QStringLiteral("11 Division by zero"));

    fmr(QStringLiteral("101.49"));
    ae(1, QStringLiteral("100"));
    ge(1, QStringLiteral("3.2"), QStringLiteral("3.2"));
    item(1, QStringLiteral("meal"), QStringLiteral("1"), QStringLiteral("1"), 0, QStringLiteral("60"), 1, 1);
    EXPECT_EQ(calc.GetFMR_TDI(QStringLiteral("TDI")), static_cast<double>(31.72f));
    EXPECT_EQ(calc.GetDailyDryDiet(), static_cast<double>((1.0f - 0.6f) * 31.72f));
    EXPECT_EQ(calc.GetAvgTrophicLevel(QStringLiteral("7"), QStringLiteral("tblWildlifeDietItems")), QStringLiteral("0"));
    EXPECT_TRUE(shown().isEmpty());

    // An id that is not a number is the script's error, not a routine's.
    EXPECT_EQ(calc.GetIntakeRate(QStringLiteral("abc"), 100.0, QStringLiteral("Base")), 0.0);
    EXPECT_EQ(calc.lastError(), QStringLiteral("13 Type mismatch"));
}

TEST_F(ScriptApiTest, ProportionCommandsRunOnTheScenario)
{
    CalcScriptApi calc(s);
    water(1, QStringLiteral("50"));
    item(1, QStringLiteral("a"), QStringLiteral("0.3"), QStringLiteral("NULL"), 1);
    item(2, QStringLiteral("b"), QStringLiteral("0.3"), QStringLiteral("NULL"), 1);
    bool rescaled = false;
    ASSERT_TRUE(QMetaObject::invokeMethod(&calc, "CalculateDietPorportion", Q_RETURN_ARG(bool, rescaled), Q_ARG(bool, true)));
    EXPECT_TRUE(rescaled);
    // The one-argument form converts the scenario's own items ("User").
    ASSERT_TRUE(QMetaObject::invokeMethod(&calc, "ConvertDietProportion", Q_ARG(bool, true)));
    EXPECT_EQ(doubles(proportions("Dry_Proportion")), (std::vector<double>{0.25, 0.25}));
}

TEST_F(ScriptApiTest, DietCallsTakeEitherOrderOfTypeAndId)
{
    DietScriptApi diet(s);
    const QString expected = QStringLiteral(" WHERE tblWildlifeDietItems.ScenarioID = 7 Order by tblWildlifeDietItems.Name");
    EXPECT_TRUE(diet.GetDietItemsSQL(QStringLiteral("User"), 7).endsWith(expected));
    EXPECT_TRUE(diet.GetDietItemsSQL(7, QStringLiteral("User")).endsWith(expected));
    EXPECT_EQ(diet.GetTrophicLevelText(0, QStringLiteral("tblDietItem")), QStringLiteral("No record selected"));
    EXPECT_TRUE(diet.Replace());
    EXPECT_EQ(diet.lastError(), QString());

    // Without an open scenario the routines report instead of crashing.
    s.gScenario.reset();
    EXPECT_FALSE(diet.Replace());
    ASSERT_EQ(shown().size(), 1);
    EXPECT_EQ(shown()[0].text,
              QStringLiteral("91\r\nObject variable or With block variable not set\r\nError in .ReplaceWildlifeDietItems"));
}

}  // namespace
