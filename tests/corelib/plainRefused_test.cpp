#include "connectionFixture.h"
#include "sampleDatabase.h"

#include <QSqlDatabase>

namespace kestrova::test {

namespace {

class PlainDatabaseRefused : public ConnectionFixture {};

TEST_F(PlainDatabaseRefused, LeavesNoConnectionAndNoMessage)
{
    makePlainSample(path(QStringLiteral("plain.db3")));
    EXPECT_FALSE(open(path(QStringLiteral("plain.db3"))));
    EXPECT_FALSE(QSqlDatabase::contains(QStringLiteral("test")));
    EXPECT_EQ(messages(), "");
}

TEST_F(PlainDatabaseRefused, LeavesEncryptedOnesAccepted)
{
    makeEncryptedSample(path(QStringLiteral("encrypted.db3")));
    EXPECT_TRUE(open(path(QStringLiteral("encrypted.db3"))));
}

} // namespace

} // namespace kestrova::test
