#include "connectionFixture.h"
#include "sampleDatabase.h"

#include <QFile>
#include <QSqlDatabase>

#include <random>

namespace kestrova::test {

namespace {

class DamagedDatabase : public ConnectionFixture {
protected:
    QString const file = path(QStringLiteral("sample.db3"));

    /// Opens the sample with one byte changed.
    bool openChanged(QByteArray content, int offset, int change)
    {
        content[offset] = static_cast<char>(content.at(offset) ^ change);
        writeContent(file, content);
        return open(file);
    }
};

std::string allNames()
{
    std::string lines;
    for (int id = 1; id <= 3000; ++id)
        lines += (id == 1 ? "" : "\n") + std::to_string(id) + "|name of " + std::to_string(id);
    return lines;
}

TEST_F(DamagedDatabase, FailsOrAnswersRightWhicheverByteIsChanged)
{
    makeEncryptedSample(file);
    QByteArray const content = contentOf(file);
    std::string const names = allNames();
    std::mt19937 random(20240229); // NOLINT(cert-msc51-cpp): the same bytes in every run
    std::uniform_int_distribution<int> anyOffset(0, static_cast<int>(content.size()) - 1);
    std::uniform_int_distribution<int> anyChange(1, 255);

    int failures = 0;
    for (int i = 0; i < 200; ++i) {
        int const offset = anyOffset(random);
        SCOPED_TRACE(offset);
        if (!openChanged(content, offset, anyChange(random))) {
            EXPECT_LT(offset, 4096);
            ++failures;
            continue;
        }
        EXPECT_GE(offset, 4096);
        std::string const answers[] = {
            ask(QStringLiteral("SELECT id, name FROM Names ORDER BY id")),
            ask(QStringLiteral("SELECT count(name) FROM Names WHERE name BETWEEN 'name' AND 'namf'")),
            ask(QStringLiteral("SELECT count(*) FROM Blobs WHERE data = CAST(replace(hex(zeroblob(10000)), "
                               "'00', 'AB') AS BLOB)")),
        };
        std::string const rightAnswers[] = {names, "3000", "1"};
        bool failed = false;
        for (int answer = 0; answer < 3; ++answer) {
            if (answers[answer] == "error")
                failed = true;
            else
                EXPECT_EQ(answers[answer], rightAnswers[answer]);
        }
        failures += failed ? 1 : 0;
    }
    EXPECT_GE(failures, 190); // what remains lies in the pages of the statistics, which no query here reads
    EXPECT_EQ(messages(), "");
}

TEST_F(DamagedDatabase, FailsOnlyWhereAStatementTouchesTheDamage)
{
    makeEncryptedSample(file);
    QByteArray const content = contentOf(file);
    int const inTheLastPageOfTheBlob = static_cast<int>(content.size()) - 2000;
    ASSERT_TRUE(openChanged(content, inTheLastPageOfTheBlob, 1));
    EXPECT_EQ(ask(QStringLiteral("SELECT name FROM Names WHERE id = 1")), "name of 1");
    EXPECT_EQ(ask(QStringLiteral("SELECT hex(data) FROM Blobs")), "error");
    EXPECT_EQ(ask(QStringLiteral("SELECT id, name FROM Names ORDER BY id")), allNames());
}

TEST_F(DamagedDatabase, FailsWhenPagesHaveChangedPlaces)
{
    makeEncryptedSample(file);
    QByteArray const content = contentOf(file);
    int const page10 = 9 * 4096; // this one and the next hold rows of Names
    writeContent(file, content.left(page10) + content.mid(page10 + 4096, 4096) + content.mid(page10, 4096) +
                           content.mid(page10 + 8192));
    ASSERT_TRUE(open(file));
    EXPECT_EQ(ask(QStringLiteral("SELECT id, name FROM Names ORDER BY id")), "error");
}

TEST_F(DamagedDatabase, FailsWhenTheFileIsCutWhileItIsOpen)
{
    makeEncryptedSample(file);
    ASSERT_TRUE(open(file));
    ASSERT_TRUE(QFile::resize(file, QFile(file).size() - 4096)); // the end of the blob
    EXPECT_EQ(ask(QStringLiteral("SELECT hex(data) FROM Blobs")), "error");
}

TEST_F(DamagedDatabase, IsUnharmedByChangesInThePaddingOfVersion3)
{
    makeEncryptedSample(file, sqlcipher::version3);
    constexpr int lastPaddingByteOfPage2 = 2047;
    ASSERT_TRUE(openChanged(contentOf(file), lastPaddingByteOfPage2, 0xFF));
    EXPECT_EQ(ask(QStringLiteral("SELECT id, name FROM Names ORDER BY id")), allNames());
    EXPECT_EQ(ask(QStringLiteral("PRAGMA integrity_check")), "ok");
}

} // namespace

} // namespace kestrova::test
