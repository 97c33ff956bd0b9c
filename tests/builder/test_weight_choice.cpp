// SPDX-License-Identifier: MIT
#include "VbError.h"
#include "WeightChoice.h"

#include <gtest/gtest.h>
#include <limits>

using namespace WeightChoice;

namespace {
float weightOf(const WeightRow &row, qint16 estimator)
{
    float weight = -1;
    EXPECT_TRUE(weightFor(row, estimator, weight));
    return weight;
}
int errorOf(const WeightRow &row, qint16 estimator)
{
    float weight = -1;
    try {
        weightFor(row, estimator, weight);
    } catch (const VbError &e) {
        EXPECT_EQ(weight, -1.0f) << "a failed statistic leaves the weight alone";
        return e.number();
    }
    return 0;
}
}  // namespace

TEST(WeightChoice, EachStatisticIsRoundedToTwoDecimalsThroughItsText)
{
    const WeightRow row{12.345, 20.004, 2.675, 0.5};
    EXPECT_FLOAT_EQ(weightOf(row, Mean), 12.35f);
    EXPECT_FLOAT_EQ(weightOf(row, Max), 20.0f);
    EXPECT_FLOAT_EQ(weightOf(row, Min), 2.68f);   // ties away from zero on the single's own text
    EXPECT_FLOAT_EQ(weightOf(row, MeanPlusVariance), 12.85f);
    EXPECT_FLOAT_EQ(weightOf(row, MeanMinusVariance), 11.85f);
    EXPECT_FLOAT_EQ(weightOf({0.004, {}, {}, {}}, Mean), 0.0f);
    EXPECT_FLOAT_EQ(weightOf({-3.0, {}, {}, 5.0}, MeanMinusVariance), -8.0f);
}

TEST(WeightChoice, OnlyTheMeanStandsInForANull)
{
    const WeightRow empty{{}, {}, {}, {}};
    EXPECT_FLOAT_EQ(weightOf(empty, Mean), 0.0f);
    EXPECT_EQ(errorOf(empty, Max), 13);
    EXPECT_EQ(errorOf(empty, Min), 13);
    EXPECT_EQ(errorOf({10.0, {}, {}, {}}, MeanPlusVariance), 13);
    EXPECT_EQ(errorOf({{}, {}, {}, 1.0}, MeanMinusVariance), 13);
    const double big = std::numeric_limits<float>::max();
    EXPECT_EQ(errorOf({big, {}, {}, big}, MeanPlusVariance), 6);

    float weight = 7;
    EXPECT_FALSE(weightFor({1.0, 2.0, 3.0, 4.0}, DetectionLimit, weight));
    EXPECT_FALSE(weightFor({1.0, 2.0, 3.0, 4.0}, 6, weight));
    EXPECT_EQ(weight, 7.0f);
}

TEST(WeightChoice, AStatisticIsOfferedWhenPresentAndNotZero)
{
    const WeightRow row{0.0, 5.0, {}, 1.5};
    EXPECT_FALSE(offered(row, Mean));
    EXPECT_TRUE(offered(row, Max));
    EXPECT_FALSE(offered(row, Min));
    EXPECT_TRUE(offered(row, MeanPlusVariance));
    EXPECT_TRUE(offered(row, MeanMinusVariance));
    EXPECT_FALSE(offered({1.0, 1.0, 1.0, 1.0}, DetectionLimit));
    EXPECT_FALSE(offered({1.0, 1.0, 1.0, {}}, MeanMinusVariance));
}

TEST(WeightChoice, TheListIsNarrowedOnlyForAKnownSpecies)
{
    const QString all = listStatement(0, 1, 4, QStringLiteral("tblStatus.Description"));
    EXPECT_FALSE(all.contains(QLatin1String("Where")));
    EXPECT_FALSE(all.contains(QLatin1String("Order By")));
    const QString some = listStatement(25, 2, 0, QStringLiteral("tblWeight.Mean"));
    EXPECT_TRUE(some.endsWith(QLatin1String(" Where tblWeight.SpeciesID = 25 AND tblWeight.StatusID = 2 Order By tblWeight.Mean")));
    EXPECT_EQ(headOrder(1), QStringLiteral("tblStatus.description"));
    EXPECT_EQ(headOrder(9), QStringLiteral("tblHabitatType.description"));
    EXPECT_TRUE(headOrder(0).isEmpty());
    EXPECT_TRUE(headOrder(10).isEmpty());
}
