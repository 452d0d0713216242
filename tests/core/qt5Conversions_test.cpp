#include "core/qt5Conversions.h"

#include "support/qtPrint.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

// What Qt 5.15 makes of odd values. The same tests run with Qt 6, which makes something else of many of them.

namespace qt5 = kestrova::qt5;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr qint64 lowest = std::numeric_limits<qint64>::min();

QString const nullText;
QString const emptyText(QLatin1String(""));
QString const textWithNul(QStringLiteral("5") + QChar(QChar::Null));

QVariant bytes(char const * content, int size)
{
    return QVariant(QByteArray(content, size));
}

QVariant text(char const * utf8)
{
    return QVariant(QString::fromUtf8(utf8));
}

} // namespace

TEST(Qt5Conversions, RoundsFractionsWithHalvesTowardsPositiveInfinity)
{
    struct Row {
        double number;
        qint64 whole;
    };

    constexpr Row rows[] = {
        {0.5, 1},
        {1.5, 2},
        {2.5, 3},
        {2.4999999999999996, 2},
        {-0.5, 0},
        {-0.6, -1},
        {-1.5, -1},
        {-2.5, -2},
        {-2.5000000000000004, -3},
        {-3.5, -3},
        {2147483647.4, 2147483647},
        {4294967294.5, 4294967295},
        {9007199254740992.0, 9007199254740992},
        {9223372036854775808.0, lowest},
        {-9223372036854775808.0, lowest},
        {1e22, lowest},
        {-1e22, 0},
        {infinity, lowest},
        {-infinity, 0},
        {std::numeric_limits<double>::quiet_NaN(), 0},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.number);
        EXPECT_EQ(qt5::toInt64(QVariant(row.number)), row.whole);
    }
    EXPECT_EQ(qt5::toInt(QVariant(-2.5)), -2);
    EXPECT_EQ(qt5::toInt(QVariant(-2.5F)), -2);
    EXPECT_EQ(qt5::toUInt(QVariant(-2.5)), 4294967294U);
    EXPECT_EQ(qt5::toInt(QVariant(2147483647.5)), -2147483647 - 1) << "what does not fit loses its high bits";
    EXPECT_EQ(qt5::toInt(QVariant(4294967297.0)), 1);
}

TEST(Qt5Conversions, ReadsWholeNumbersFromTextsAndBytes)
{
    struct Row {
        QVariant value;
        int number;
        bool isNumber;
    };

    Row const rows[] = {
        {text("5"), 5, true},
        {text(" 5\t\n"), 5, true},
        {text("\u00A05\u2003"), 5, true}, // a no-break space, an em space
        {text("\u22125"), -5, true},      // a minus sign
        {text("+5"), 5, true},
        {text("--5"), 0, false},
        {text("5.0"), 0, false},
        {text("5x"), 0, false},
        {text("0x5"), 0, false},
        {text("1,000"), 0, false},
        {text("\u0665"), 0, false}, // an Arabic digit
        {text(""), 0, false},
        {text(" "), 0, false},
        {QVariant(nullText), 0, false},
        {QVariant(textWithNul), 0, false},
        {bytes("5", 1), 5, true},
        {bytes(" 5 ", 3), 5, true},
        {bytes("\xC2\xA0"
               "5",
               3),
         0, false},
        {bytes("", 0), 0, false},
        {QVariant(), 0, false},
        {QVariant(true), 1, true},
        {QVariant(qlonglong(4294967297)), 1, true},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.value.toString().toStdString());
        bool isNumber = !row.isNumber;
        EXPECT_EQ(qt5::toInt(row.value, &isNumber), row.number);
        EXPECT_EQ(isNumber, row.isNumber);
    }
}

TEST(Qt5Conversions, ReadsTextsInABase)
{
    bool isNumber = false;
    EXPECT_EQ(qt5::toInt(QStringLiteral("\u00A0-7 "), &isNumber), -7);
    EXPECT_TRUE(isNumber);
    EXPECT_EQ(qt5::toUInt(QStringLiteral("\u00A0C7000212"), &isNumber, 16), 0xC7000212U);
    EXPECT_TRUE(isNumber);
    EXPECT_EQ(qt5::toUInt(QStringLiteral("0xff"), &isNumber, 16), 255U);
    EXPECT_TRUE(isNumber);
    EXPECT_EQ(qt5::toUInt(QStringLiteral("1C7000212"), &isNumber, 16), 0U) << "more than 32 bits";
    EXPECT_FALSE(isNumber);
    EXPECT_EQ(qt5::toUShort(QStringLiteral("\u20036"), &isNumber), 6);
    EXPECT_TRUE(isNumber);
    EXPECT_EQ(qt5::toUShort(QStringLiteral("65536"), &isNumber), 0);
    EXPECT_FALSE(isNumber);
    EXPECT_EQ(qt5::toUShort(textWithNul, &isNumber), 0);
    EXPECT_FALSE(isNumber);
}

TEST(Qt5Conversions, ReadsRealNumbers)
{
    struct Row {
        QVariant value;
        double number;
        bool isNumber;
    };

    Row const rows[] = {
        {text("-2.5"), -2.5, true},
        {text(" 1e3 "), 1000.0, true},
        {text("\u00A05"), 5.0, true},
        {text("1e400"), infinity, false},
        {text("inf"), infinity, true},
        {text("1,5"), 0.0, false},
        {text(""), 0.0, false},
        {QVariant(textWithNul), 0.0, false},
        {bytes("2.5", 3), 2.5, true},
        {bytes("1e400", 5), infinity, false},
        {bytes("-1e400", 6), -infinity, false},
        {bytes("x", 1), 0.0, false},
        {QVariant(qlonglong(-3)), -3.0, true},
        {QVariant(), 0.0, false},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.value.toString().toStdString());
        bool isNumber = !row.isNumber;
        EXPECT_EQ(qt5::toDouble(row.value, &isNumber), row.number);
        EXPECT_EQ(isNumber, row.isNumber);
        EXPECT_EQ(qt5::toDouble(row.value), row.number);
    }
}

TEST(Qt5Conversions, WritesRealNumbersInTheShorterForm)
{
    struct Row {
        double number;
        char const * text;
    };

    constexpr Row rows[] = {
        {0.0, "0"},
        {-0.0, "0"},
        {-2.5, "-2.5"},
        {0.1, "0.1"},
        {0.0001, "0.0001"},
        {0.00001, "1e-05"},
        {10000, "10000"},
        {100000, "100000"},
        {-300000, "-300000"},
        {1000000, "1e+06"},
        {1200000, "1200000"},
        {12000000, "1.2e+07"},
        {123456789.125, "123456789.125"},
        {1e15, "1e+15"},
        {1.5e300, "1.5e+300"},
        {infinity, "inf"},
        {-infinity, "-inf"},
        {std::numeric_limits<double>::quiet_NaN(), "nan"},
    };
    for (Row const & row : rows) {
        EXPECT_EQ(qt5::toText(QVariant(row.number)), QLatin1String(row.text));
        EXPECT_EQ(qt5::toBytes(QVariant(row.number)), QByteArray(row.text));
    }
    EXPECT_EQ(qt5::toText(QVariant(100000.0F)), QStringLiteral("100000"));
}

TEST(Qt5Conversions, EndsBytesAtTheFirstNulWhenTheyBecomeAText)
{
    EXPECT_EQ(qt5::toText(bytes("ab\0cd", 5)), QStringLiteral("ab"));
    EXPECT_EQ(qt5::toText(bytes("\xC3\xA4", 2)), QStringLiteral("\u00E4"));
    EXPECT_EQ(qt5::toText(bytes("\xFF", 1)), QStringLiteral("\uFFFD"));
    EXPECT_EQ(qt5::toText(QVariant(textWithNul)).size(), 2) << "a text keeps its U+0000";
    EXPECT_EQ(qt5::toBytes(bytes("ab\0cd", 5)), QByteArray("ab\0cd", 5));
}

TEST(Qt5Conversions, TellsNullTextsFromEmptyOnes)
{
    EXPECT_TRUE(qt5::toText(QVariant(nullText)).isNull());
    EXPECT_TRUE(qt5::toText(QVariant()).isNull());
    EXPECT_FALSE(qt5::toText(QVariant(emptyText)).isNull());
    EXPECT_FALSE(qt5::toText(QVariant(QByteArray())).isNull());
    EXPECT_FALSE(qt5::toText(QVariant(QByteArray(""))).isNull());

    EXPECT_TRUE(qt5::isNull(QVariant()));
    EXPECT_TRUE(qt5::isNull(QVariant(nullText)));
    EXPECT_TRUE(qt5::isNull(QVariant(QByteArray())));
    EXPECT_FALSE(qt5::isNull(QVariant(emptyText)));
    EXPECT_FALSE(qt5::isNull(QVariant(QByteArray(""))));
    EXPECT_FALSE(qt5::isNull(QVariant(0)));
}

TEST(Qt5Conversions, ComparesAcrossKinds)
{
    struct Row {
        QVariant left;
        QVariant right;
        bool isEqual;
    };

    Row const rows[] = {
        {QVariant(5.0), QVariant(5.0), true},
        {QVariant(5.0), QVariant(5.000000000000001), true}, // about twelve digits
        {QVariant(5.0), QVariant(5.00000000001), false},
        {QVariant(0.0), QVariant(1e-300), false},
        {QVariant(5.0), QVariant(5), true},
        {QVariant(5), QVariant(5.000000000000001), true},
        {QVariant(5), QVariant(qlonglong(5)), true},
        {QVariant(5), QVariant(qlonglong(4294967301)), false},
        {QVariant(infinity), QVariant(infinity), true},
        {QVariant(infinity), QVariant(-infinity), false},
        {text("5.0"), QVariant(5.0), false}, // as texts
        {QVariant(5.0), text("5.0"), true},  // as numbers
        {QVariant(5.000000000000001), text("5"), false},
        {QVariant(5), text("\u00A05"), true},
        {QVariant(5), text("x"), false},
        {QVariant(true), text(" 0 "), true}, // any text but "0", "false" and none is true, blanks included
        {QVariant(true), text("0"), false},
        {QVariant(true), text("False"), false},
        {text("100000"), QVariant(100000.0), true},
        {text("5"), bytes("5", 1), true},
        {bytes("5", 1), QVariant(5.0), true},
        {text("a"), text("A"), false},
        {QVariant(nullText), QVariant(emptyText), true},
        {QVariant(nullText), QVariant(QByteArray()), true},
        {QVariant(), QVariant(), true},
        {QVariant(), QVariant(nullText), false},
        {QVariant(nullText), QVariant(), false},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.left.toString().toStdString() + " and " + row.right.toString().toStdString());
        EXPECT_EQ(qt5::equal(row.left, row.right), row.isEqual);
    }
}
