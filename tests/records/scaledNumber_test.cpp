#include "printedParameter.h"

#include "support/processLocale.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <random>

using kestrova::test::print;
using kestrova::test::Printed;
using kestrova::test::ProcessLocale;

// Integers are printed without floating point where that gives the same digits. Here every kind of number is
// held against the definition: printf of the number divided by a power of ten.

namespace {

constexpr double powersOfTen[8] = {1.0, 10.0, 100.0, 1000.0, 10000.0, 100000.0, 1000000.0, 10000000.0};

struct Layout {
    int width;
    int precision;
    bool plus;
    bool zero;
};

std::string cPrinted(double value, Layout const & layout)
{
    char text[256];
    switch ((layout.plus ? 1 : 0) + (layout.zero ? 2 : 0)) {
    case 0:
        std::snprintf(text, sizeof(text), "%*.*f", layout.width, layout.precision, value);
        break;
    case 1:
        std::snprintf(text, sizeof(text), "%+*.*f", layout.width, layout.precision, value);
        break;
    case 2:
        std::snprintf(text, sizeof(text), "%0*.*f", layout.width, layout.precision, value);
        break;
    default:
        std::snprintf(text, sizeof(text), "%+0*.*f", layout.width, layout.precision, value);
        break;
    }
    return text;
}

std::string cPrintedScaled(qint64 value, Layout const & layout)
{
    return cPrinted(static_cast<double>(value) / powersOfTen[layout.precision & 7], layout);
}

QString formatFor(Layout const & layout, char const * conversion)
{
    std::string format = "%";
    format += layout.plus ? "+" : "";
    format += layout.zero ? "0" : "";
    format += std::to_string(layout.width) + "." + std::to_string(layout.precision) + conversion;
    return QString::fromStdString(format);
}

class Cases {
public:
    explicit Cases(unsigned seed)
        : random(seed)
    {}

    Layout layout()
    {
        bool const isLarge = random() % 16 == 0;
        return {1 + below(isLarge ? 300 : 20), below(isLarge ? 60 : 10), below(2) == 1, below(2) == 1};
    }

    /// Of every magnitude alike, with a few around the powers of two.
    qint64 integer()
    {
        quint64 const bits = random() >> below(64);
        quint64 const value = below(4) == 0 ? (quint64(1) << below(64)) + random() % 5 - 2 : bits;
        return static_cast<qint64>(below(2) == 0 ? value : 0 - value);
    }

    /// Any bits a double can have, and numbers that people use.
    double real()
    {
        double value = static_cast<double>(integer()) / powersOfTen[below(8)];
        if (below(2) == 0) {
            quint64 const bits = random();
            std::memcpy(&value, &bits, sizeof(value));
        }
        return value;
    }

    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

private:
    std::mt19937_64 random;
};

void compareWithPrintf(unsigned seed, int count)
{
    Cases cases(seed);
    for (int i = 0; i < count; ++i) {
        Layout const layout = cases.layout();

        qint64 const integer = cases.integer();
        std::string const scaled = cPrintedScaled(integer, layout);
        for (char const * conversion : {"I64d", "I64u"}) {
            Printed const printed = print(formatFor(layout, conversion), &integer, 8);
            ASSERT_EQ(printed, (Printed{0, scaled, static_cast<int>(scaled.size())})) << integer;
        }

        double const real = cases.real();
        std::string const printedReal = cPrinted(real, layout);
        ASSERT_EQ(print(formatFor(layout, "lf"), &real, 8),
                  (Printed{0, printedReal, static_cast<int>(printedReal.size())}))
            << real;
        auto const single = static_cast<float>(real);
        std::string const printedSingle = cPrinted(static_cast<double>(single), layout);
        ASSERT_EQ(print(formatFor(layout, "f"), &single, 4).text, printedSingle) << single;
    }
}

} // namespace

TEST(ScaledNumber, PrintsTheDigitsOfPrintf)
{
    ProcessLocale const plain("C");
    compareWithPrintf(1, 300000);
}

TEST(ScaledNumber, PrintsTheDigitsOfPrintfWithADecimalComma)
{
    ProcessLocale const german("de_DE.UTF-8");
    if (!german.isAvailable())
        GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed";
    ASSERT_EQ(cPrinted(0.5, Layout{1, 1, false, false}), "0,5");
    compareWithPrintf(2, 300000);
}

TEST(ScaledNumber, PrintsTheDigitsOfPrintfAroundTheLimitOfExactness)
{
    ProcessLocale const plain("C");
    for (qint64 const limit : {qint64(1) << 51, qint64(1) << 52, qint64(1) << 53, qint64(1) << 62}) {
        for (int precision = 0; precision <= 16; ++precision) {
            Layout const layout{1, precision, false, false};
            QString const format = formatFor(layout, "I64d");
            for (qint64 distance = -2000; distance <= 2000; ++distance) {
                qint64 const value = limit + distance;
                ASSERT_EQ(print(format, &value, 8).text, cPrintedScaled(value, layout))
                    << value << ' ' << precision;
            }
        }
    }
}

TEST(ScaledNumber, DoesNotShowMoreDigitsThanTheQuotientHas)
{
    ProcessLocale const plain("C");
    qint64 const value = 5629499534213123; // its tenth has no double: 562949953421312.25 is nearest
    EXPECT_EQ(print(QStringLiteral("%1.1I64d"), &value, 8), (Printed{0, "562949953421312.2", 17}));
}

TEST(ScaledNumber, PrintsEverySmallIntegerAsPrintfDoes)
{
    ProcessLocale const plain("C");
    for (int const precision : {0, 1, 2, 7, 8}) {
        Layout const layout{6, precision, false, false};
        QString const format = formatFor(layout, "d");
        for (int value = -32768; value <= 32767; ++value) {
            auto const raw = static_cast<qint16>(value);
            ASSERT_EQ(print(format, &raw, 2).text, cPrintedScaled(value, layout))
                << value << ' ' << precision;
        }
    }
}
