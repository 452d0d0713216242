#include "printedParameter.h"

#include "support/processLocale.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <random>
#include <string>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::print;
using kestrova::test::Printed;
using kestrova::test::ProcessLocale;

// Formats come from databases. Whatever stands in one, the answer is one of the documented ones and nothing
// is read or written out of bounds; the latter is seen when these tests run under the address sanitizer.

namespace {

class RandomFormats {
public:
    explicit RandomFormats(unsigned seed)
        : random(seed)
    {}

    /// Mostly pieces of the language in any order, sometimes any bytes.
    QString next()
    {
        static char const * const pieces[] = {
            "%",   "-",   "+",    "0",    "6",    ".",  "2",  "L",    "l",           "I",  "I8", "I16",
            "i24", "I64", "I128", "I999", "I-16", "D",  "H",  "T",    "U",           "X",  "b",  "c",
            "d",   "f",   "s",    "u",    "x",    " V", "%%", "\x81", "99999999999", "300"};
        QString format = below(4) != 0 ? QStringLiteral("%") : QString();
        for (int count = below(8); count > 0; --count) {
            if (below(12) == 0)
                format += QChar(static_cast<ushort>(below(0x180)));
            else
                format += QString::fromLatin1(pieces[below(std::size(pieces))]);
        }
        return format;
    }

    int below(std::size_t limit) { return static_cast<int>(random() % limit); }

private:
    std::mt19937_64 random;
};

bool isAnyOf(int result, std::initializer_list<int> allowed)
{
    return std::find(allowed.begin(), allowed.end(), result) != allowed.end();
}

} // namespace

TEST(UntrustedFormat, GivesOneOfThePrintingAnswers)
{
    ProcessLocale const plain("C");
    RandomFormats formats(3);
    for (int i = 0; i < 200000; ++i) {
        QString const format = formats.next();
        // Exactly as much as is asked for: the text ends with the block, the largest dump fits, and no byte
        // more.
        std::unique_ptr<unsigned char[]> const data(new unsigned char[85]());
        for (int byte = 0; byte < 84; ++byte)
            data[static_cast<std::size_t>(byte)] = static_cast<unsigned char>(formats.below(256));
        int const length = formats.below(86);
        Printed const printed = print(format, formats.below(10) == 0 ? nullptr : data.get(), length, true);
        ASSERT_TRUE(isAnyOf(printed.result, {0, -3, -4, -5, -6, -13})) << format.toStdString();
        if (printed.result == 0) {
            ASSERT_GE(printed.length, 0) << format.toStdString();
            ASSERT_LE(printed.length, 255) << format.toStdString();
        }
    }
}

TEST(UntrustedFormat, ReadsANumberOnlyWithinItsSize)
{
    ProcessLocale const plain("C");
    for (int size = 1; size <= 8; ++size) {
        for (char const * conversion : {"d", "u", "x", "b", "c", "f"}) {
            std::unique_ptr<unsigned char[]> const data(new unsigned char[static_cast<std::size_t>(size)]());
            std::string const format = "%I" + std::to_string(size * 8) + conversion;
            EXPECT_EQ(print(QString::fromStdString(format), data.get(), size).result, 0) << format;
        }
    }
}

TEST(UntrustedFormat, GivesOneOfTheParsingAnswers)
{
    ProcessLocale const plain("C");
    RandomFormats formats(4);
    for (int i = 0; i < 200000; ++i) {
        QString const format = formats.next();
        QString const text =
            formats.below(10) == 0 ? QString(formats.below(600), QLatin1Char('7')) : formats.next();
        QVariant value;
        int const result = CObjectDef::strToPara(text, format, value);
        ASSERT_TRUE(isAnyOf(result, {0, -3, -6, -10, -11}))
            << text.toStdString() << " by " << format.toStdString();
    }
}

TEST(UntrustedFormat, IsSurvivedByTheQuestionsAboutIt)
{
    RandomFormats formats(5);
    for (int i = 0; i < 200000; ++i) {
        QString const format = formats.next();
        CObjectDef object;
        object.setMask(ObjectDefMask(0xFFFFFFFF));
        object.setFormat(format);
        object.determineObjectType();
        object.isNumeric();
        ASSERT_GE(CObjectDef::decimals(format), 0) << format.toStdString();
        ASSERT_LE(CObjectDef::unit(format).size(), format.size() + 3) << format.toStdString();
    }
}
