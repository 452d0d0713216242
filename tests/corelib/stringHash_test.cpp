#include "core/stringHash.h"

#include <gtest/gtest.h>

namespace kestrova::Solvane {

namespace {

struct HashedText {
    char const * name;
    QString text;
    unsigned int hash;
};

class StringHash : public ::testing::TestWithParam<HashedText> {};

TEST_P(StringHash, IsTheKnownOne)
{
    EXPECT_EQ(StringToHash(GetParam().text), GetParam().hash);
}

INSTANTIATE_TEST_SUITE_P(
    KnownTexts, StringHash,
    ::testing::Values(HashedText{"FirstFilter", QStringLiteral("Config_Filter1"), 10110129U},
                      HashedText{"SeventhFilter", QStringLiteral("Config_Filter7"), 10110135U},
                      HashedText{"SpeakerId", QStringLiteral("Config_SpeakerId"), 44682004U},
                      HashedText{"EmptyText", QStringLiteral(""), 0U}, //
                      HashedText{"NullText", QString(), 0U},           //
                      HashedText{"OneUnit", QStringLiteral("A"), 0x41U},
                      HashedText{"TwoUnits", QStringLiteral("AB"), 0x452U},
                      HashedText{"UnitAboveLatin1", QString(QChar(0x20AC)), 0x20ACU},
                      HashedText{"SurrogatesCountAsTwoUnits", QString::fromUtf8("\xF0\x9F\x98\x80"),
                                 0xE61D0U},
                      HashedText{"UnitsBehindAZero", QStringLiteral("\0A"), 0x41U}),
    [](auto const & row) { return row.param.name; });

TEST(StringHash, StaysBelowTwoToThe28)
{
    QString const highestUnits(100, QChar(0xFFFF));
    EXPECT_LT(StringToHash(highestUnits), 1U << 28);
}

} // namespace

} // namespace kestrova::Solvane
