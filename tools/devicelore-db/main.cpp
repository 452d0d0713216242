#include "command.h"
#include "commandLine.h"

#include "common/program.h"
#include "sqlcipher/databaseFile.h"

using namespace kestrova::authoring;

namespace {

int run(QStringList const & arguments)
{
    CommandLine const line = readCommandLine(arguments);
    if (line.text) {
        print(stdout, *line.text);
        return ExitOk;
    }
    try {
        return printAnswer(line.command->run(line), line.json);
    } catch (kestrova::sqlcipher::DatabaseFileError const & error) {
        throw Failure(ExitDatabase, QString::fromUtf8(error.what()));
    }
}

} // namespace

std::vector<Command> const & kestrova::authoring::commands()
{
    static std::vector<Command> const all{
        {"new",
         {QStringLiteral("FILE")},
         {QStringLiteral("sql"), QStringLiteral("force")},
         "make a plain database",
         "Makes a plain database with all tables, empty, and the indexes for the questions of the library; "
         "or, with\n"
         "--sql, the database that a text of SQL statements makes. docs/database-format.md explains the "
         "tables.\n",
         newDatabase},
        {"encrypt",
         {QStringLiteral("PLAIN"), QStringLiteral("OUT")},
         {QStringLiteral("force"), QStringLiteral("format")},
         "make an encrypted database of a plain one",
         "Makes the encrypted database OUT from the database PLAIN, which is not changed. OUT is compact and "
         "carries\n"
         "statistics, which make the questions of the library fast.\n",
         encrypt},
        {"decrypt",
         {QStringLiteral("IN"), QStringLiteral("PLAIN")},
         {QStringLiteral("force")},
         "make a plain database of an encrypted one",
         "Makes the plain database PLAIN from the encrypted database IN, which is not changed.\n",
         decrypt},
        {"info",
         {QStringLiteral("FILE")},
         {QStringLiteral("json")},
         "what is in a database, or why it does not open",
         "Tells whether the database is plain or encrypted, its format, its version, the rows of each table "
         "that the\n"
         "library knows, and which columns of newer databases it has. Every page is checked. Of a database "
         "that is no\n"
         "good it tells why, as far as that can be told, and ends with exit code 4.\n",
         info},
    };
    return all;
}

int main(int argc, char ** argv)
{
    return runTool("devicelore-db", argc, argv, run);
}
