#include "facade/devicelore.h"
#include "support/messageRecorder.h"
#include "support/print.h"
#include "support/processLocale.h"

#include <gtest/gtest.h>

#include <QPoint>

#include <cmath>
#include <limits>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::MessageRecorder;
using kestrova::test::ProcessLocale;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

CObjectDef objectOf(int type, char const * format)
{
    CObjectDef object;
    object.setObjectType(CObjectDef::ObjectType(type));
    object.setFormat(QString::fromLatin1(format));
    return object;
}

CObjectDef numberWithRange(double minimum, double maximum, double step)
{
    CObjectDef object = objectOf(1, "%5.1d");
    object.setMin(minimum);
    object.setMax(maximum);
    object.setStep(step);
    return object;
}

QVariant bytes(char const * text)
{
    return QVariant(QByteArray(text));
}

/// A list of variants of all kinds that no conversion is made for.
QList<QVariant> oddVariants()
{
    return {QVariant(),
            QVariant(true),
            QVariant(qlonglong(5)),
            QVariant(qulonglong(5)),
            QVariant(5.0F),
            QVariant(QChar('5')),
            QVariant(QPoint(1, 2)),
            QVariant(QVariantList{1}),
            QVariant(QStringList{QStringLiteral("5")})};
}

} // namespace

// --- From the device ---

TEST(DeviceToReal, PrintsTheRawValueByTheFormatAndReadsTheText)
{
    struct Row {
        char const * name;
        int type;
        char const * format;
        QVariant raw;
        bool result;
        QVariant real;
    };

    QString const text = QStringLiteral("text");
    Row const rows[] = {
        {"an int", 1, "%6.2d dB", -1225, true, -12.25},
        {"an unsigned", 1, "%I32u", 4294967295U, true, 4294967295.0},
        {"a double", 1, "%6.1d", 123.0, true, 12.3},
        {"a double is rounded to an integer, up", 1, "%d", 1.5, true, 2.0},
        {"a double is rounded to an integer, down", 1, "%d", 1.4, true, 1.0},
        {"a negative double is rounded too", 1, "%d", -1.6, true, -2.0},
        {"two bytes of the four", 1, "%d", 0x00018000, true, -32768.0},
        {"one byte of the four", 1, "%I8u", 0x1FF, true, 255.0},
        {"on/off", 0, "%I8d", 1, true, 1.0},
        {"a float takes the int's bits", 1, "%6.2f", 0x3FC00000, true, 1.5},
        {"hexadecimal", 3, "%04x", 0xAB, true, 171.0},
        {"hexadecimal of an object type that is decimal", 1, "%04x", 0xAB, true, 0.0},
        {"decimal of an object type that is hexadecimal", 3, "%d", 12, true, 18.0},
        {"no hexadecimal digits", 3, "%c", int('G'), false, 0.0},
        {"a character that is no number", 1, "%c", int('G'), true, 0.0},
        {"a text in the bytes", 2, "%s", 0x00003534, true, 45.0},
        {"a dump reads on into nothing", 4, "%8H", 0x12, true, 0.0},
        {"eight bytes are not there", 1, "%I64d", 5, false, 5},
        {"no format", 1, "", 5, false, 5},
        {"no conversion", 1, "dB", 5, false, 5},
        {"a size that is too large", 1, "%I2064d", 5, false, 5},
        {"a text by a text format", 2, "%5s", text, true, QStringLiteral(" text")},
        {"a text's bytes as a number", 1, "%d", QStringLiteral("AB"), true, QStringLiteral("16961")},
        {"a text that is too short for the number", 1, "%d", QStringLiteral("A"), false, QStringLiteral("A")},
        {"an empty text has no byte", 2, "%s", QString(), false, QString()},
        {"a text up to its NUL", 2, "%3s", QString::fromLatin1("a\0b", 3), true, QStringLiteral("  a")},
        {"a text as a dump reads on", 4, "%4H", QStringLiteral("A"), true, QStringLiteral("41 00 00 00")},
        {"characters beyond Latin-1", 2, "%1s", QString(QChar(0x20AC)), true, QStringLiteral("?")},
        {"bytes of a text object become a text", 2, "%s", bytes("abc"), false, QStringLiteral("abc")},
        {"bytes of another object stay", 1, "%s", bytes("abc"), false, bytes("abc")},
    };
    CDevicelore facade;
    for (Row const & row : rows) {
        QVariant value = row.raw;
        EXPECT_EQ(facade.deviceToReal(objectOf(row.type, row.format), value), row.result) << row.name;
        EXPECT_EQ(value, row.real) << row.name;
        EXPECT_EQ(value.userType(), row.real.userType()) << row.name;
    }
}

TEST(DeviceToReal, GivesTheSameUnderADecimalComma)
{
    ProcessLocale const german("de_DE.UTF-8");
    if (!german.isAvailable())
        GTEST_SKIP() << "the system has no locale de_DE.UTF-8";
    CDevicelore facade;
    QVariant value(-1225);
    EXPECT_TRUE(facade.deviceToReal(objectOf(1, "%6.2d dB"), value));
    EXPECT_EQ(value, QVariant(-12.25));
    EXPECT_TRUE(facade.realToDevice(objectOf(1, "%6.2d dB"), value));
    EXPECT_EQ(value, QVariant(-1225));
}

TEST(DeviceToReal, LeavesATextOfAnObjectWithTextsOfItsOwn)
{
    struct Row {
        char const * name;
        quint32 mask;
        unsigned short flags;
        bool result;
    };

    Row const rows[] = {
        {"the flag is known and set", 0x100, 0x400, false},
        {"the flag is not known", 0x80, 0x400, true},
        {"the flag is not set", 0x100, 0xFBFF, true},
    };
    CDevicelore facade;
    for (Row const & row : rows) {
        CObjectDef object = objectOf(2, "%6s");
        object.setMask(QFlags<ObjectDefMask>(QFlag(row.mask)));
        object.setFlags(row.flags);
        QVariant value(QStringLiteral("text"));
        EXPECT_EQ(facade.deviceToReal(object, value), row.result) << row.name;
        EXPECT_EQ(value.toString(), row.result ? QStringLiteral("  text") : QStringLiteral("text"))
            << row.name;
    }
}

TEST(DeviceToReal, LeavesAllOtherKindsOfValues)
{
    CDevicelore facade;
    for (int const type : {0, 1, 2, 3, 4, 255}) {
        for (QVariant const & odd : oddVariants()) {
            QVariant value = odd;
            EXPECT_FALSE(facade.deviceToReal(objectOf(type, "%d"), value)) << odd.typeName();
            EXPECT_EQ(value, odd) << odd.typeName();
        }
    }
}

TEST(DeviceToReal, SurvivesNumbersThatAreNoInts)
{
    CDevicelore facade;
    for (double const number : {notANumber, infinite, -infinite, 1e300, -1e300, 4294967296.0}) {
        QVariant value(number);
        EXPECT_TRUE(facade.deviceToReal(objectOf(1, "%I32d"), value)) << number;
        EXPECT_EQ(value.userType(), int(QMetaType::Double));
    }
}

TEST(DeviceToReal, SurvivesLongTexts)
{
    CDevicelore facade;
    QVariant value(QString(100000, QLatin1Char('x')));
    EXPECT_TRUE(facade.deviceToReal(objectOf(2, "%s"), value));
    EXPECT_EQ(value.toString(), QString(255, QLatin1Char('x')));
}

TEST(DeviceToReal, OfARecordConvertsItsRange)
{
    CDevicelore facade;
    CObjectDef object = numberWithRange(-1225.0, 600.0, 5.0);
    object.setFormat(QStringLiteral("%6.2d dB"));
    EXPECT_TRUE(facade.deviceToReal(object));
    EXPECT_EQ(object.minValue(), -12.25);
    EXPECT_EQ(object.maxValue(), 6.0);
    EXPECT_EQ(object.step(), 0.05);
}

TEST(DeviceToReal, OfARecordTakesTheNumbersOfAFloatForItsBits)
{
    CDevicelore facade;
    CObjectDef object = numberWithRange(-57.5, 6.0, 0.5);
    object.setFormat(QStringLiteral("%5.1f dB"));
    EXPECT_TRUE(facade.deviceToReal(object));
    EXPECT_EQ(object.minValue(), 0.0) << "the int -57 has the bits of no number";
    EXPECT_EQ(object.maxValue(), 0.0) << "the int 6 has those of 8.4e-45";
    EXPECT_EQ(object.step(), 0.0);
}

TEST(DeviceToReal, OfARecordKeepsTheMembersThatFail)
{
    CDevicelore facade;
    CObjectDef object = numberWithRange(1.0, 2.0, 3.0);
    object.setFormat(QStringLiteral("%I64d"));
    EXPECT_FALSE(facade.deviceToReal(object));
    EXPECT_EQ(object.minValue(), 1.0);
    EXPECT_EQ(object.maxValue(), 2.0);
    EXPECT_EQ(object.step(), 3.0);
}

// --- To the device ---

TEST(RealToDevice, PrintsTheRealValueAndParsesItByTheFormat)
{
    struct Row {
        char const * name;
        int type;
        char const * format;
        QVariant real;
        bool result;
        QVariant raw;
    };

    Row const rows[] = {
        {"a number", 1, "%6.2d dB", -12.25, true, -1225},
        {"on/off", 0, "%I8d", 1.0, true, 1},
        {"on/off of a boolean", 0, "%I8d", true, true, 1},
        {"a text that is a number", 1, "%d", QStringLiteral("12"), true, 12},
        {"a text that is none", 1, "%d", QStringLiteral("abc"), true, 0},
        {"decimals that the text lacks are not made up", 1, "%8.6I32d", 1.23456, true, 123460},
        {"a float", 1, "%6.2f", 1.5, true, QVariant(1.5F)},
        {"a text", 2, "%s", QStringLiteral("abc"), true, QStringLiteral("abc")},
        {"a text of a number", 2, "%s", 5, true, QStringLiteral("5")},
        {"hexadecimal", 3, "%04x", 171.9, true, 171},
        {"hexadecimal digits read as decimal", 3, "%d", 18.0, true, 12},
        {"bytes", 4, "%H", 18.0, false, 18.0},
        {"unknown", 255, "%d", 18.0, false, 18.0},
        {"no format", 1, "", 18.0, false, 18.0},
        {"a character is left as it is", 1, "%c", 18.0, true, 18.0},
        {"a number too large for two bytes", 1, "%6.2d", 400.0, true, -25536},
        {"a number too large for one byte", 1, "%U", 200.0, true, -56},
        {"a text that the format cannot read", 2, "%d", QStringLiteral("abc"), false, QStringLiteral("abc")},
        {"a text that a float's format cannot read", 2, "%f", QStringLiteral("abc"), false, QVariant(0.0F)},
    };
    CDevicelore facade;
    for (Row const & row : rows) {
        QVariant value = row.real;
        EXPECT_EQ(facade.realToDevice(objectOf(row.type, row.format), value), row.result) << row.name;
        EXPECT_EQ(value, row.raw) << row.name;
        EXPECT_EQ(value.userType(), row.raw.userType()) << row.name;
    }
}

TEST(RealToDevice, HandsFourDecimalsOn)
{
    CDevicelore facade;
    QVariant value(1.23456);
    EXPECT_TRUE(facade.realToDevice(objectOf(1, "%6.4d"), value));
    EXPECT_EQ(value, QVariant(12346));
}

TEST(RealToDevice, SurvivesAnyValue)
{
    CDevicelore facade;
    QList<QVariant> values = oddVariants();
    values << notANumber << infinite << -infinite << 1e300 << -1e19 << 9223372036854775808.0
           << QString(100000, QLatin1Char('9')) << QByteArray(100000, '\xff');
    for (int const type : {0, 1, 2, 3, 4, 255}) {
        for (char const * format :
             {"%d", "%I64d", "%f", "%s", "%x", "%I64x", "%b", "%H", "%c", "", "\xff%"}) {
            for (QVariant const & odd : values) {
                QVariant value = odd;
                bool const isConverted = facade.realToDevice(objectOf(type, format), value);
                if (!isConverted && format != QByteArray("%f")) {
                    EXPECT_EQ(value.userType(), odd.userType()) << type << format << odd.typeName();
                }
            }
        }
    }
}

TEST(RealToDevice, MakesNumbersThatFitNoIntegerTheLowestOne)
{
    CDevicelore facade;
    for (double const number : {notANumber, infinite, 1e19}) {
        QVariant value(number);
        EXPECT_TRUE(facade.realToDevice(objectOf(3, "%s"), value));
        EXPECT_EQ(value, QVariant(QStringLiteral("8000000000000000"))) << number;
    }
    QVariant large(6917529027641081856.0);
    EXPECT_TRUE(facade.realToDevice(objectOf(3, "%s"), large));
    EXPECT_EQ(large, QVariant(QStringLiteral("6000000000000000")));
    QVariant negative(-1.5);
    EXPECT_TRUE(facade.realToDevice(objectOf(3, "%s"), negative));
    EXPECT_EQ(negative, QVariant(QStringLiteral("ffffffffffffffff")));
    QVariant lowerCase(171.0);
    EXPECT_TRUE(facade.realToDevice(objectOf(3, "%s"), lowerCase));
    EXPECT_EQ(lowerCase, QVariant(QStringLiteral("ab")));
}

TEST(RealToDevice, OfARecordConvertsItsRange)
{
    CDevicelore facade;
    CObjectDef object = numberWithRange(-12.25, 6.0, 0.05);
    object.setFormat(QStringLiteral("%6.2d dB"));
    EXPECT_TRUE(facade.realToDevice(object));
    EXPECT_EQ(object.minValue(), -1225.0);
    EXPECT_EQ(object.maxValue(), 600.0);
    EXPECT_EQ(object.step(), 5.0);
}

TEST(Records, OfTextsAreConvertedOnTheWayToTheDeviceOnly)
{
    CDevicelore facade;
    CObjectDef object = objectOf(2, "%d");
    object.setMin(1.0);
    object.setMax(2.0);
    object.setStep(3.0);
    EXPECT_TRUE(facade.deviceToReal(object));
    EXPECT_EQ(object.minValue(), 1.0);

    object.setFormat(QString());
    EXPECT_TRUE(facade.deviceToReal(object)) << "the format does not matter";
    EXPECT_FALSE(facade.realToDevice(object)) << "here it does";
    EXPECT_EQ(object.minValue(), 1.0);
    EXPECT_EQ(object.maxValue(), 2.0);
    EXPECT_EQ(object.step(), 3.0);
}

namespace {

/// Fails at one of the three members, and counts.
class Failing : public CDevicelore {
public:
    bool realToDevice(CObjectDef const &, QVariant & value) override { return convert(value); }

    bool deviceToReal(CObjectDef const &, QVariant & value) override { return convert(value); }

    using CDevicelore::deviceToReal;
    using CDevicelore::realToDevice;

    int failAt = 0;
    int calls = 0;

private:
    bool convert(QVariant & value)
    {
        value = QVariant(value.toDouble() * 10.0);
        return ++calls != failAt;
    }
};

} // namespace

TEST(Records, AreConvertedMemberByMemberThroughTheVirtualForm)
{
    struct Row {
        int failAt;
        bool result;
        double minimum;
        double maximum;
        double step;
    };

    Row const rows[] = {
        {0, true, 10.0, 20.0, 30.0},
        {1, false, 1.0, 20.0, 30.0},
        {2, false, 10.0, 2.0, 30.0},
        {3, false, 10.0, 20.0, 3.0},
    };
    for (Row const & row : rows) {
        for (bool const toReal : {true, false}) {
            Failing facade;
            facade.failAt = row.failAt;
            CObjectDef object = numberWithRange(1.0, 2.0, 3.0);
            CDevicelore & base = facade;
            EXPECT_EQ(toReal ? base.deviceToReal(object) : base.realToDevice(object), row.result)
                << row.failAt;
            EXPECT_EQ(object.minValue(), row.minimum) << row.failAt;
            EXPECT_EQ(object.maxValue(), row.maximum) << row.failAt;
            EXPECT_EQ(object.step(), row.step) << row.failAt;
            EXPECT_EQ(facade.calls, 3) << "all three, whatever becomes of the others";
        }
    }
}

// --- Validation ---

TEST(Validation, OfOnOffValues)
{
    struct Row {
        char const * name;
        QVariant value;
        CDevicelore::ValidationState state;
        QVariant after;
    };

    Row const rows[] = {
        {"off", 0, CDevicelore::Valid, 0},
        {"on", 1, CDevicelore::Valid, 1},
        {"on, as it stands", QStringLiteral("1"), CDevicelore::Valid, QStringLiteral("1")},
        {"a boolean stays one", true, CDevicelore::Valid, true},
        {"a text that is no number counts as 0", QStringLiteral("abc"), CDevicelore::Valid,
         QStringLiteral("abc")},
        {"below", -1, CDevicelore::AdjustedToMin, 0},
        {"far below", -1e9, CDevicelore::AdjustedToMin, 0},
        {"above", 2, CDevicelore::AdjustedToMax, 1},
        {"above, as a text", QStringLiteral("2"), CDevicelore::AdjustedToMax, 1},
        {"no integer", QPoint(1, 2), CDevicelore::Invalid, QPoint(1, 2)},
        {"nothing", QVariant(), CDevicelore::Invalid, QVariant()},
        {"a list", QVariantList{1}, CDevicelore::Invalid, QVariantList{1}},
        {"a fraction that is nearer to on", 1.4, CDevicelore::Valid, 1.4},
        {"a fraction that is nearer to 2", 1.5, CDevicelore::AdjustedToMax, 1},
    };
    CDevicelore const facade;
    for (Row const & row : rows) {
        MessageRecorder const recorder;
        QVariant value = row.value;
        EXPECT_EQ(facade.validateValue(value, objectOf(0, "%d"), true), row.state) << row.name;
        EXPECT_EQ(value, row.after) << row.name;
        EXPECT_EQ(value.userType(), row.after.userType()) << row.name;
        EXPECT_EQ(recorder.messages(), row.state == CDevicelore::Invalid
                                           ? QStringList{QStringLiteral("warning: Invalid value or type")}
                                           : QStringList())
            << row.name;
    }
}

TEST(Validation, LogsWithoutSayingWhere)
{
    CDevicelore const facade;
    MessageRecorder const recorder;
    QVariant value;
    EXPECT_EQ(facade.validateValue(value, objectOf(0, "%d"), true), CDevicelore::Invalid);
    EXPECT_EQ(recorder.sources(), QStringList{QString()});
}

TEST(Validation, OfNumbers)
{
    struct Row {
        char const * name;
        QVariant value;
        double minimum, maximum, step;
        bool roundToStep;
        CDevicelore::ValidationState state;
        double after;
    };

    Row const rows[] = {
        {"above", 12, 0, 10, 0.5, true, CDevicelore::AdjustedToMax, 10},
        {"below", -1, 0, 10, 0.5, true, CDevicelore::AdjustedToMin, 0},
        {"at the top", 10, 0, 10, 0.5, true, CDevicelore::Valid, 10},
        {"at the bottom", 0, 0, 10, 0.5, true, CDevicelore::Valid, 0},
        {"on the grid", 3.5, 0, 10, 0.5, true, CDevicelore::Valid, 3.5},
        {"off the grid, rounded up", 3.3, 0, 10, 0.5, true, CDevicelore::RoundedUp, 3.5},
        {"off the grid, rounded down", 3.2, 0, 10, 0.5, true, CDevicelore::RoundedDown, 3.0},
        {"off the grid, left alone", 3.3, 0, 10, 0.5, false, CDevicelore::Valid, 3.3},
        {"limited even if not rounded", 12, 0, 10, 0.5, false, CDevicelore::AdjustedToMax, 10},
        {"what is limited is not rounded", 12, 0, 9.7, 0.5, true, CDevicelore::AdjustedToMax, 9.7},
        {"what is rounded is not limited", 9.3, 0, 9.4, 0.5, true, CDevicelore::RoundedUp, 9.5},
        {"a step of 0", 3.3, 0, 10, 0, true, CDevicelore::Valid, 3.3},
        {"a text", QStringLiteral("3.5"), 0, 10, 0.5, true, CDevicelore::Valid, 3.5},
        {"a text that is no number", QStringLiteral("abc"), 1, 10, 0.5, true, CDevicelore::AdjustedToMin, 1},
        {"a text that is no number, legal", QStringLiteral("abc"), 0, 10, 0.5, true, CDevicelore::Valid, 0},
        {"an odd type", QPoint(1, 2), 0, 10, 0.5, true, CDevicelore::Valid, 0},
        {"nothing", QVariant(), 0, 10, 0.5, true, CDevicelore::Valid, 0},
        {"infinite", infinite, 0, 10, 0.5, true, CDevicelore::AdjustedToMax, 10},
        {"negative infinite", -infinite, 0, 10, 0.5, true, CDevicelore::AdjustedToMin, 0},
        {"a range upside down: the minimum comes first", 5, 10, 0, 1, true, CDevicelore::AdjustedToMin, 10},
        {"a range upside down, above", 11, 10, 0, 1, true, CDevicelore::AdjustedToMax, 0},
        {"limits that are none", 5, notANumber, notANumber, 1, true, CDevicelore::Valid, 5},
    };
    CDevicelore const facade;
    MessageRecorder const recorder;
    for (Row const & row : rows) {
        QVariant value = row.value;
        CObjectDef const object = numberWithRange(row.minimum, row.maximum, row.step);
        EXPECT_EQ(facade.validateValue(value, object, row.roundToStep), row.state) << row.name;
        EXPECT_EQ(value, QVariant(row.after)) << row.name;
        EXPECT_EQ(value.userType(), int(QMetaType::Double)) << row.name;
    }
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(Validation, LetsWhatIsNoNumberPassTheLimits)
{
    CDevicelore const facade;
    QVariant value(notANumber);
    EXPECT_EQ(facade.validateValue(value, numberWithRange(0, 10, 0.5), true), CDevicelore::RoundedDown);
    EXPECT_TRUE(std::isnan(value.toDouble()));
    EXPECT_EQ(facade.validateValue(value, numberWithRange(0, 10, 0.5), false), CDevicelore::Valid);
}

TEST(Validation, OfTexts)
{
    struct Row {
        char const * name;
        QVariant value;
        unsigned short size;
        CDevicelore::ValidationState state;
        QVariant after;
    };

    Row const rows[] = {
        {"with place for the terminator", QStringLiteral("abcd"), 5, CDevicelore::Valid,
         QStringLiteral("abcd")},
        {"as long as the size", QStringLiteral("abcde"), 5, CDevicelore::Truncated, QStringLiteral("abcd")},
        {"place for the terminator only", QStringLiteral("a"), 1, CDevicelore::Truncated, QStringLiteral("")},
        {"an empty text there", QString(), 1, CDevicelore::Valid, QString()},
        {"no place at all", QStringLiteral("a"), 0, CDevicelore::Truncated, QStringLiteral("")},
        {"an empty text without any place", QStringLiteral(""), 0, CDevicelore::Truncated,
         QStringLiteral("")},
        {"a number that fits stays one", 123, 4, CDevicelore::Valid, 123},
        {"a number that does not", 1234, 4, CDevicelore::Truncated, QStringLiteral("123")},
        {"characters count, not bytes", QString(3, QChar(0x20AC)), 4, CDevicelore::Valid,
         QString(3, QChar(0x20AC))},
        {"a long text", QString(100000, QLatin1Char('x')), 65535, CDevicelore::Truncated,
         QString(65534, QLatin1Char('x'))},
    };
    CDevicelore const facade;
    for (Row const & row : rows) {
        CObjectDef object = objectOf(2, "%s");
        object.setSize(row.size);
        QVariant value = row.value;
        EXPECT_EQ(facade.validateValue(value, object, true), row.state) << row.name;
        EXPECT_EQ(value, row.after) << row.name;
        EXPECT_EQ(value.userType(), row.after.userType()) << row.name;
    }
}

TEST(Validation, TakesAnythingForOtherObjects)
{
    CDevicelore const facade;
    for (int const type : {3, 4, 255, 77}) {
        CObjectDef object = numberWithRange(0, 1, 1);
        object.setObjectType(CObjectDef::ObjectType(type));
        for (QVariant const & given :
             QList<QVariant>{1000, QStringLiteral("abc"), QVariant(), QPoint(1, 2)}) {
            QVariant value = given;
            EXPECT_EQ(facade.validateValue(value, object, true), CDevicelore::Valid) << type;
            EXPECT_EQ(value, given) << type;
        }
    }
}

// --- Texts from a device ---

TEST(OhmText, IsDecoded)
{
    struct Row {
        char const * name;
        QByteArray bytes;
        bool result;
        QString text;
        QByteArray bytesAfter;
    };

    QString const ohm(QChar(0x03A9));
    Row const rows[] = {
        {"one at the end", QByteArray("10\x81"), true, QStringLiteral("10") + ohm, QByteArray("10\0", 3)},
        {"none", QByteArray("1"), false, QStringLiteral("1"), QByteArray("1")},
        {"nothing", QByteArray(""), false, QString(), QByteArray("")},
        {"only one", QByteArray("\x81"), true, ohm, QByteArray("\0", 1)},
        {"two and a rest", QByteArray("4\x81/8\x81 load"), true,
         QStringLiteral("4") + ohm + QStringLiteral("/8") + ohm + QStringLiteral(" load"),
         QByteArray("4\0/8\0 load", 10)},
        {"side by side", QByteArray("\x81\x81"), true, ohm + ohm, QByteArray("\0\0", 2)},
        {"UTF-8 beside it", QByteArray("\xC2\xB5\x81"), true, QString(QChar(0xB5)) + ohm,
         QByteArray("\xC2\xB5\0", 3)},
    };
    for (Row const & row : rows) {
        QByteArray buffer = row.bytes;
        QVariant value(5);
        EXPECT_EQ(CDevicelore::parseVokraAscii(reinterpret_cast<unsigned char *>(buffer.data()), value),
                  row.result)
            << row.name;
        EXPECT_EQ(value.userType(), int(QMetaType::QString)) << row.name;
        EXPECT_EQ(value.toString(), row.text) << row.name;
        EXPECT_EQ(buffer, row.bytesAfter) << row.name;
    }
}

TEST(OhmText, OfNothingLeavesTheValue)
{
    QVariant value(5);
    EXPECT_FALSE(CDevicelore::parseVokraAscii(nullptr, value));
    EXPECT_EQ(value, QVariant(5));
}

TEST(OhmText, EndsAtBytesThatAreNoText)
{
    QByteArray buffer("\xFF\x81\xFE");
    QVariant value;
    EXPECT_TRUE(CDevicelore::parseVokraAscii(reinterpret_cast<unsigned char *>(buffer.data()), value));
    EXPECT_EQ(value.toString(), QString(QChar(QChar::ReplacementCharacter)) + QChar(0x03A9) +
                                    QChar(QChar::ReplacementCharacter));
}
