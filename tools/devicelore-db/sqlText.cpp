#include "sqlText.h"

#include "sqlite.h"

#include "common/failure.h"

#include <algorithm>
#include <cctype>
#include <cstring>

using namespace kestrova::tools;

namespace kestrova::authoring {

namespace {

/// Where the first statement at or behind \a text starts, or the end: behind white space and comments.
char const * statementStart(char const * text)
{
    while (true) {
        if (std::isspace(static_cast<unsigned char>(*text))) {
            ++text;
        } else if (std::strncmp(text, "--", 2) == 0) {
            text += std::strcspn(text, "\n");
        } else if (std::strncmp(text, "/*", 2) == 0) {
            char const * const end = std::strstr(text + 2, "*/");
            text = end ? end + 2 : text + std::strlen(text);
        } else {
            return text;
        }
    }
}

/// The statements of one text, run one after the other in a database in memory.
class SqlText {
public:
    SqlText(QByteArray const & content, QString const & fileName)
        : text(content)
        , name(fileName)
    {}

    /// SQLite takes both without a word: the rest behind a NUL is lost, and other encodings give wrong
    /// letters.
    void checkCharacters() const
    {
        if (auto const nul = text.indexOf('\0'); nul >= 0)
            throw failure(text.constData() + nul, QStringLiteral("there is a NUL character in the text"));
        for (decltype(text.size()) start = 0, end = 0; start < text.size(); start = end + 1) {
            end = text.indexOf('\n', start);
            if (end < 0)
                end = text.size();
            QByteArray const line = QByteArray::fromRawData(text.constData() + start, end - start);
            if (QString::fromUtf8(line).toUtf8() != line)
                throw failure(text.constData() + start, QStringLiteral("the text is not in UTF-8"));
        }
    }

    void run(DatabaseHandle const & database) const
    {
        char const * statement = statementStart(text.constData());
        while (*statement)
            statement = statementStart(runStatement(database, statement));
        if (!sqlite3_get_autocommit(database.get()))
            throw failure(statement, QStringLiteral("a transaction is still open; end it with COMMIT"));
    }

    Failure failure(char const * position, QString const & message) const
    {
        auto const line = std::count(text.constData(), position, '\n') + 1;
        return {ExitDatabase, QStringLiteral("%1:%2: %3").arg(name, QString::number(line), message)};
    }

private:
    /// Gives the end of the statement.
    char const * runStatement(DatabaseHandle const & database, char const * start) const
    {
        sqlite3_stmt * handle = nullptr;
        char const * end = nullptr;
        int code = sqlite3_prepare_v2(database.get(), start, -1, &handle, &end);
        StatementHandle const statement(handle);
        if (code != SQLITE_OK)
            throw failure(start + std::max(0, sqlite3_error_offset(database.get())), errorText(database));
        if (!handle) // a lone semicolon
            return end;
        do
            code = sqlite3_step(handle);
        while (code == SQLITE_ROW);
        if (code != SQLITE_DONE)
            throw failure(start, errorText(database));
        return end;
    }

    QByteArray const & text;
    QString const & name;
};

QByteArray withoutByteOrderMark(QByteArray const & sql)
{
    return sql.startsWith("\xEF\xBB\xBF") ? sql.mid(3) : sql;
}

QByteArray fileContent(DatabaseHandle const & database, QString const & name)
{
    sqlite3_int64 size = 0;
    std::unique_ptr<unsigned char, SqliteFree> const content(
        sqlite3_serialize(database.get(), "main", &size, 0));
    if (size == 0)
        throw Failure(ExitDatabase, QStringLiteral("%1: the text makes no table").arg(name));
    if (!content)
        throw Failure(ExitDatabase, QStringLiteral("%1: the database becomes too large").arg(name));
    return {reinterpret_cast<char const *>(content.get()), static_cast<int>(size)};
}

} // namespace

QByteArray databaseFromSql(QByteArray const & sql, QString const & name)
{
    QByteArray const text = withoutByteOrderMark(sql);
    SqlText const statements(text, name);
    statements.checkCharacters();

    DatabaseHandle const database = openDatabase(":memory:", SQLITE_OPEN_READWRITE);
    sqlite3_limit(database.get(), SQLITE_LIMIT_ATTACHED, 0); // no other file comes to be
    statements.run(database);
    return fileContent(database, name);
}

} // namespace kestrova::authoring
