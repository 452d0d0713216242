#include "connectionFixture.h"
#include "sampleDatabase.h"

namespace kestrova::test {

namespace {

class BoundedFunctions : public ConnectionFixture {
protected:
    void openSample()
    {
        QString const file = path(QStringLiteral("sample.db3"));
        makeEncryptedDatabase(
            file,
            sampleSql() + QStringLiteral("CREATE VIEW Numbers AS SELECT replace(name, 'name of ', '') AS n "
                                         "FROM Names WHERE instr(name, '299') > 0;"));
        ASSERT_TRUE(open(file));
    }
};

struct Call {
    char const * expression;
    char const * answer;
};

TEST_F(BoundedFunctions, AnswerAsSqlitesOwn)
{
    static constexpr Call rows[] = {
        {"instr('ChStatus_Gain', '_')", "9"},
        {"instr('äöü', 'ü')", "3"},
        {"instr(x'C3A4C3B6', x'B6')", "4"},
        {"instr('abc', 'd')", "0"},
        {"instr('abc', '')", "1"},
        {"instr(NULL, 'a') IS NULL", "1"},
        {"instr('a', NULL) IS NULL", "1"},
        {"instr(1234, 34)", "3"},
        {"typeof(instr('a', 'a'))", "integer"},
        {"replace('a_b_c', '_', '--')", "a--b--c"},
        {"replace('abc', '', 'x')", "abc"},
        {"replace('abc', 'b', NULL) IS NULL", "1"},
        {"replace(1213, 1, 0)", "0203"},
        {"trim('xxaxbxx', 'x')", "axb"},
        {"ltrim('xyxax', 'xy')", "ax"},
        {"rtrim('axüü', 'üx')", "a"},
        {"trim('  a  ')", "a"},
        {"'Gain' LIKE 'g_I%'", "1"},
        {"'Gain' NOT LIKE 'g_I'", "1"},
        {"'a_b' LIKE 'a!_b' ESCAPE '!'", "1"},
        {"'axb' LIKE 'a!_b' ESCAPE '!'", "0"},
        {"'Ä' LIKE 'ä'", "0"},
        {"12 LIKE '1%'", "1"},
        {"(NULL LIKE 'a') IS NULL", "1"},
        {"'Gain' GLOB 'G[a-c]*'", "1"},
        {"'Gain' GLOB 'g*'", "0"},
        {R"(json_patch('{"a":1,"b":2}', '{"a":null}'))", R"({"b":2})"},
    };
    openSample();
    for (Call const & row : rows)
        EXPECT_EQ(ask(QStringLiteral("SELECT ") + QString::fromUtf8(row.expression)), row.answer)
            << row.expression;
    EXPECT_EQ(ask(QStringLiteral("SELECT json_patch('{', '{}')")), "error");
    EXPECT_EQ(ask(QStringLiteral("SELECT 'a' LIKE 'b' ESCAPE 'cd'")), "error");
    EXPECT_EQ(ask(QStringLiteral("SELECT 'a' LIKE '%1'").arg(QString(50000, QLatin1Char('a')))), "0");
    EXPECT_EQ(ask(QStringLiteral("SELECT 'a' LIKE '%1'").arg(QString(50001, QLatin1Char('a')))), "error");
    EXPECT_EQ(ask(QStringLiteral("SELECT trim('a')")), "a");
    EXPECT_EQ(ask(QStringLiteral("SELECT trim()")), "error");
}

TEST_F(BoundedFunctions, CountRowsAsSqlitesOwn)
{
    openSample();
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*), count() FROM Names")), "3000|3000");
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*) FROM Names WHERE 0")), "0");
    EXPECT_EQ(ask(QStringLiteral("SELECT typeof(count(*)) FROM Names WHERE 0")), "integer");
    EXPECT_EQ(ask(QStringLiteral("SELECT id % 2, count(*) FROM Names WHERE id < 6 GROUP BY 1")), "0|2\n1|3");
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*) FILTER (WHERE id < 6) FROM Names")), "5");
    EXPECT_EQ(
        ask(QStringLiteral("SELECT count(*) OVER (ORDER BY id ROWS BETWEEN 1 PRECEDING AND 1 FOLLOWING) "
                           "FROM Names WHERE id < 5")),
        "2\n3\n3\n2");
    EXPECT_EQ(ask(QStringLiteral("SELECT count(nullif(id, 7)) FROM Names")), "2999");
}

TEST_F(BoundedFunctions, CanBeCalledByViews)
{
    openSample();
    EXPECT_EQ(ask(QStringLiteral("SELECT n FROM Numbers LIMIT 3")), "299\n1299\n2299");
}

TEST_F(BoundedFunctions, FailWhereTheyWouldTakeHours)
{
    static constexpr char const * calls[] = {
        "instr(zeroblob(8000000), CAST(zeroblob(4000000) || 'x' AS BLOB))",
        "instr(printf('%.*c', 8000000, 'a'), printf('%.*c', 4000000, 'a') || 'b')",
        "replace(printf('%.*c', 8000000, 'a'), printf('%.*c', 4000000, 'a') || 'b', '')",
        "trim(printf('%.*c', 8000000, 'a'), printf('%.*c', 4000000, 'b') || 'a')",
        "ltrim(printf('%.*c', 8000000, 'a'), printf('%.*c', 4000000, 'b') || 'a')",
        "rtrim(printf('%.*c', 8000000, 'a'), printf('%.*c', 4000000, 'b') || 'a')",
        "printf('%.*c', 8000000, 'a') LIKE printf('%%%.*c%%', 190, 'a') || 'b'",
        "like(printf('%.*c', 190, 'a'), printf('%.*c', 8000000, 'a'), '!')",
        "printf('%.*c', 8000000, 'a') LIKE replace(printf('%.*c', 25000, 'a'), 'a', '%a') || 'b'",
        "printf('%.*c', 8000000, 'a') GLOB printf('*%.*c*', 190, 'a') || 'b'",
        "json_patch(printf('%.*c', 8000000, '['), printf('%.*c', 4000000, '['))",
    };
    openSample();
    for (char const * const call : calls) {
        EXPECT_EQ(ask(QStringLiteral("SELECT length(%1)").arg(QLatin1String(call))), "error") << call;
        EXPECT_EQ(ask(QStringLiteral("SELECT instr('abc', 'c')")), "3");
    }
    EXPECT_EQ(messages(), "");
}

TEST_F(BoundedFunctions, KeepToTheLongestValue)
{
    openSample();
    EXPECT_EQ(ask(QStringLiteral(
                  "SELECT length(replace(printf('%.*c', 1000000, 'a'), 'a', printf('%.*c', 16, 'b')))")),
              "16000000");
    sqlite3_memory_highwater(1);
    EXPECT_EQ(ask(QStringLiteral( // 1 GB
                  "SELECT length(replace(printf('%.*c', 1000000, 'a'), 'a', printf('%.*c', 1000, 'b')))")),
              "error");
    EXPECT_LT(sqlite3_memory_highwater(0), 128 * 1024 * 1024);
}

} // namespace

} // namespace kestrova::test
