#include "cache/driverDatabaseInfo.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace kestrova::Morvel::Devicelore;

namespace {

CDriverDatabaseInfo filledInfo()
{
    CDriverDatabaseInfo info;
    info.setName(QStringLiteral("a.db3"));
    info.setFilePath(QStringLiteral("/data/a.db3"));
    info.setVersionNumber(CVersionNumber(1, 2, 300));
    return info;
}

} // namespace

TEST(DatabaseInfo, StartsEmptyWithVersionZero)
{
    CDriverDatabaseInfo const info;
    EXPECT_EQ(info.name(), QString());
    EXPECT_EQ(info.filePath(), QString());
    EXPECT_EQ(info.versionNumber(), CVersionNumber(0, 0, 0));
}

TEST(DatabaseInfo, CopiesAndAssignsAllFields)
{
    CDriverDatabaseInfo const info = filledInfo();
    CDriverDatabaseInfo const copy(info);
    CDriverDatabaseInfo assigned;
    assigned = info;
    for (CDriverDatabaseInfo const & other : {copy, assigned}) {
        EXPECT_EQ(other.name(), QStringLiteral("a.db3"));
        EXPECT_EQ(other.filePath(), QStringLiteral("/data/a.db3"));
        EXPECT_EQ(other.versionNumber(), CVersionNumber(1, 2, 300));
    }
}

TEST(DatabaseInfo, IsEqualWhenAllThreeFieldsAre)
{
    EXPECT_TRUE(filledInfo() == filledInfo());

    CDriverDatabaseInfo otherName = filledInfo();
    otherName.setName(QStringLiteral("b.db3"));
    EXPECT_FALSE(filledInfo() == otherName);

    CDriverDatabaseInfo otherPath = filledInfo();
    otherPath.setFilePath(QStringLiteral("/data/b.db3"));
    EXPECT_FALSE(filledInfo() == otherPath);

    CDriverDatabaseInfo otherVersion = filledInfo();
    otherVersion.setVersionNumber(CVersionNumber(1, 2, 301));
    EXPECT_FALSE(filledInfo() == otherVersion);
}
