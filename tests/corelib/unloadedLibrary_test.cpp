#include "sampleDatabase.h"

#include <QLibrary>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QVariant>

#include <gtest/gtest.h>

namespace kestrova::test {

namespace {

using OpenFunction = bool (*)(QString const &, QString const &);

OpenFunction openFunctionOf(QLibrary & library)
{
    return reinterpret_cast<OpenFunction>(
        library.resolve("_ZN8kestrova7Solvane27OpenEncryptedSqliteDatabaseERK7QStringS3_"));
}

int countNames(QString const & connectionName)
{
    QSqlQuery query(QStringLiteral("SELECT count(*) FROM Names"), QSqlDatabase::database(connectionName));
    return query.next() ? query.value(0).toInt() : -1;
}

TEST(UnloadedLibrary, LeavesItsConnectionsUsable)
{
    QTemporaryDir const folder;
    QString const file = folder.filePath(QStringLiteral("sample.db3"));
    makeEncryptedSample(file);

    QLibrary library(QStringLiteral(KESTROVA_CORE_FILE));
    OpenFunction const open = openFunctionOf(library);
    ASSERT_NE(open, nullptr) << library.errorString().toStdString();
    ASSERT_TRUE(open(file, QStringLiteral("before")));
    ASSERT_TRUE(library.unload());
    EXPECT_EQ(countNames(QStringLiteral("before")), 3000);

    QLibrary reloaded(QStringLiteral(KESTROVA_CORE_FILE));
    OpenFunction const openAgain = openFunctionOf(reloaded);
    ASSERT_NE(openAgain, nullptr) << reloaded.errorString().toStdString();
    ASSERT_TRUE(openAgain(file, QStringLiteral("after")));
    EXPECT_EQ(countNames(QStringLiteral("after")), 3000);
    ASSERT_TRUE(reloaded.unload());
    QSqlDatabase::removeDatabase(QStringLiteral("before"));
    EXPECT_EQ(countNames(QStringLiteral("after")), 3000);
    QSqlDatabase::removeDatabase(QStringLiteral("after"));
}

} // namespace

} // namespace kestrova::test
