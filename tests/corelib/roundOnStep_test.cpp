#include "core/roundOnStep.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

namespace kestrova::Solvane {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// -0.0 differs from 0.0 and a NaN equals itself.
bool isSameDouble(double left, double right)
{
    return std::memcmp(&left, &right, sizeof left) == 0;
}

struct Rounding {
    char const * name;
    double value;
    double step;
    double expected;
};

class RoundOnStep : public ::testing::TestWithParam<Rounding> {};

TEST_P(RoundOnStep, GivesTheExpectedDouble)
{
    double const rounded = roundOnStep(GetParam().value, GetParam().step);
    EXPECT_TRUE(isSameDouble(rounded, GetParam().expected))
        << rounded << " instead of " << GetParam().expected;
}

INSTANTIATE_TEST_SUITE_P(Nearest, RoundOnStep,
                         ::testing::Values(Rounding{"Down", 0.32, 0.1, 0.3},           //
                                           Rounding{"Up", 0.38, 0.1, 0.4},             //
                                           Rounding{"NegativeUp", -0.32, 0.1, -0.3},   //
                                           Rounding{"NegativeDown", -0.38, 0.1, -0.4}, //
                                           Rounding{"WholeStep", 7.4, 1.0, 7.0},       //
                                           Rounding{"LargeStep", 249.0, 100.0, 200.0}, //
                                           Rounding{"StepOfSeveralUnits", 13.0, 6.2, 12.4},
                                           Rounding{"StepWithoutAShortLiteral", 0.7, 1.0 / 3.0, 2.0 / 3.0},
                                           Rounding{"SmallStep", 1.23456e-10, 1e-12, 1.23e-10},
                                           Rounding{"SmallNegativeToPlainZero", -0.04, 0.1, 0.0},
                                           Rounding{"JustOutsideTheTolerance", 0.3000000002, 0.1, 0.3},
                                           Rounding{"ThreeUlpAboveALargeValue", 12345678.900000006, 0.1,
                                                    12345678.9}),
                         [](auto const & row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(HalvesAwayFromZero, RoundOnStep,
                         ::testing::Values(Rounding{"ExactHalf", 2.5, 1.0, 3.0},              //
                                           Rounding{"NegativeExactHalf", -2.5, 1.0, -3.0},    //
                                           Rounding{"DecimalHalf", 0.35, 0.1, 0.4},           //
                                           Rounding{"NegativeDecimalHalf", -0.35, 0.1, -0.4}, //
                                           Rounding{"DecimalHalfOfSmallStep", 1.0005, 0.001, 1.001},
                                           Rounding{"HalfOfSeveralUnits", 9.3, 6.2, 12.4},
                                           Rounding{"BelowAHalf", 0.349999, 0.1, 0.3},
                                           Rounding{"HalfAtALargeRatio", 1099511627776.5, 1.0,
                                                    1099511627777.0}),
                         [](auto const & row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    OnTheGrid, RoundOnStep,
    ::testing::Values(Rounding{"Literal", 0.3, 0.1, 0.3},
                      Rounding{"OneUlpAbove", 0.30000000000000004, 0.1, 0.30000000000000004},
                      Rounding{"OneUlpBelow", 0.29999999999999993, 0.1, 0.29999999999999993},
                      Rounding{"WithinAMilliardthOfTheStep", 0.30000000005, 0.1, 0.30000000005},
                      Rounding{"TwoUlpAboveWhereThatIsMore", 12345678.900000004, 0.1, 12345678.900000004},
                      Rounding{"Zero", 0.0, 0.1, 0.0}, //
                      Rounding{"NegativeZero", -0.0, 0.1, -0.0},
                      Rounding{"SmallestDouble", 5e-324, 0.1, 5e-324},
                      Rounding{"WholeAtALargeRatio", 4503599627370497.0, 1.0, 4503599627370497.0}),
    [](auto const & row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(GivenBack, RoundOnStep,
                         ::testing::Values(Rounding{"StepZero", 0.32, 0.0, 0.32},                   //
                                           Rounding{"StepNegativeZero", 0.32, -0.0, 0.32},          //
                                           Rounding{"StepNegative", 0.32, -0.1, 0.32},              //
                                           Rounding{"StepInfinite", 0.32, infinity, 0.32},          //
                                           Rounding{"StepNaN", 0.32, notANumber, 0.32},             //
                                           Rounding{"Infinite", infinity, 0.1, infinity},           //
                                           Rounding{"NegativeInfinite", -infinity, 0.1, -infinity}, //
                                           Rounding{"NaN", notANumber, 0.1, notANumber},            //
                                           Rounding{"NegativeZeroOnStepZero", -0.0, 0.0, -0.0},     //
                                           Rounding{"RatioPastTwoToThe53", 9007199254740993.5, 0.1,
                                                    9007199254740993.5},
                                           Rounding{"RatioBeyondAllDoubles", 1e300, 1e-300, 1e300},
                                           Rounding{"GridPointBeyondAllDoubles", 1.6e308, 1e308, 1.6e308}),
                         [](auto const & row) { return row.param.name; });

struct DecimalStep {
    char const * name;
    char const * text;
    int units; ///< of the last decimal place
    int decimals;
};

/// The double of \a units in the decimal place \a decimals: (-12, 2) gives -0.12.
double literalOf(int units, int decimals)
{
    return (QByteArray::number(units) + "e-" + QByteArray::number(decimals)).toDouble();
}

class RoundOnDecimalStep : public ::testing::TestWithParam<DecimalStep> {
protected:
    double step() const { return QByteArray(GetParam().text).toDouble(); }

    double literal(int k) const { return literalOf(k * GetParam().units, GetParam().decimals); }
};

TEST_P(RoundOnDecimalStep, GivesBackEveryLiteralOfTheGrid)
{
    int wrong = 0;
    for (int k = -20000; k <= 20000; ++k)
        wrong += isSameDouble(roundOnStep(literal(k), step()), literal(k)) ? 0 : 1;
    EXPECT_EQ(wrong, 0);
}

TEST_P(RoundOnDecimalStep, GivesBackEveryProductOfTheGrid)
{
    int wrong = 0;
    for (int k = -20000; k <= 20000; ++k)
        wrong += isSameDouble(roundOnStep(k * step(), step()), k * step()) ? 0 : 1;
    EXPECT_EQ(wrong, 0);
}

TEST_P(RoundOnDecimalStep, RoundsToTheLiteralFromBothSides)
{
    int wrong = 0;
    for (int k = -20000; k <= 20000; ++k) {
        for (double const part : {-0.4, 0.4}) {
            double const rounded = roundOnStep(literal(k) + part * step(), step());
            wrong += isSameDouble(rounded, literal(k)) ? 0 : 1;
        }
    }
    EXPECT_EQ(wrong, 0);
}

INSTANTIATE_TEST_SUITE_P(Steps, RoundOnDecimalStep,
                         ::testing::Values(DecimalStep{"Tenth", "0.1", 1, 1},        //
                                           DecimalStep{"TwoTenths", "0.2", 2, 1},    //
                                           DecimalStep{"ThreeTenths", "0.3", 3, 1},  //
                                           DecimalStep{"Hundredth", "0.01", 1, 2},   //
                                           DecimalStep{"Thousandth", "0.001", 1, 3}, //
                                           DecimalStep{"SixPointTwo", "6.2", 62, 1}),
                         [](auto const & row) { return row.param.name; });

} // namespace

} // namespace kestrova::Solvane
