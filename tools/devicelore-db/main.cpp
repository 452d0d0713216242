#include "command.h"

#include "common/program.h"
#include "sqlcipher/databaseFile.h"

using namespace kestrova::authoring;

namespace {

constexpr Option forceOption{"force", nullptr, "replace the file if it is there already"};
constexpr Option jsonOption{"json", nullptr, "print JSON; docs/database-format.md explains its keys"};

ToolInterface toolInterface()
{
    ToolInterface tool{
        "devicelore-db",
        QStringLiteral(KESTROVA_VERSION),
        "makes and examines the database files that describe devices",
        {},
        {},
        "Exit codes: 0 ok, 1 errors or breaking changes found, 2 wrong use, 3 not found, 4 trouble with a "
        "database or in writing.\n"};
    for (Command const & command : commands())
        tool.commands.push_back(command.interface);
    return tool;
}

int run(QStringList const & arguments)
{
    ParsedArguments const parsed = parseArguments(toolInterface(), arguments);
    if (parsed.text) {
        print(*parsed.text);
        return ExitOk;
    }
    Command const & command = commands().at(static_cast<std::size_t>(parsed.command));
    try {
        return printAnswer(command.run(parsed), parsed.isSet("json"));
    } catch (kestrova::sqlcipher::DatabaseFileError const & error) {
        throw Failure(ExitDatabase, QString::fromUtf8(error.what()));
    }
}

} // namespace

std::vector<Command> const & kestrova::authoring::commands()
{
    static std::vector<Command> const all{
        {{"new",
          {QStringLiteral("FILE")},
          "make a plain database",
          "Makes a plain database with all tables, empty, and the indexes for the questions of the library; "
          "or, with\n"
          "--sql, the database that a text of SQL statements makes. docs/database-format.md explains the "
          "tables.\n",
          {{"sql", "TEXT.sql", "make the database that the statements of this text make"}, forceOption}},
         newDatabase},
        {{"encrypt",
          {QStringLiteral("PLAIN"), QStringLiteral("OUT")},
          "make an encrypted database of a plain one",
          "Makes the encrypted database OUT from the database PLAIN, which is not changed. OUT is compact "
          "and "
          "carries\n"
          "statistics, which make the questions of the library fast. Cipher and key are those of the core "
          "library that\n"
          "comes with this project, the stand-in: OUT is not for an application with another core library.\n",
          {forceOption, {"format", "4|3", "the version of the page format (4 if not given)"}}},
         encrypt},
        {{"decrypt",
          {QStringLiteral("IN"), QStringLiteral("PLAIN")},
          "make a plain database of an encrypted one",
          "Makes the plain database PLAIN from the encrypted database IN, which is not changed. Cipher and "
          "key "
          "are those\n"
          "of the core library that comes with this project, the stand-in: IN is not one for another core "
          "library.\n",
          {forceOption}},
         decrypt},
        {{"info",
          {QStringLiteral("FILE")},
          "what is in a database, or why it does not open",
          "Tells whether the database is plain or encrypted, its format, its version, the rows of each table "
          "that the\n"
          "library knows, and which columns of newer databases it has. Every page is checked. Of a database "
          "that is no\n"
          "good it tells why, as far as that can be told, and ends with exit code 4. What is encrypted for "
          "another core\n"
          "library than the stand-in that comes with this project cannot be told from a wrong key.\n",
          {jsonOption}},
         info},
        {{"check",
          {QStringLiteral("[FILE|DIR...]")},
          "everything that is wrong with databases",
          "Reads databases as the library does, those of a folder in its order, and tells everything that is "
          "wrong with\n"
          "them: where it stands, what the library does with it, and what to do. docs/database-format.md "
          "explains how to\n"
          "accept findings. Ends with exit code 1 when there are errors.\n",
          {{"strict", nullptr, "end with exit code 1 for warnings too"},
           {"ignore", "RULE", "leave out the findings of a rule; may be given several times"},
           {"baseline", "FILE", "leave out the findings that this file accepts"},
           {"write-baseline", "FILE", "accept all present findings in this file"},
           {"rules", nullptr, "explain all rules, and check nothing"},
           {"sarif", nullptr, "print SARIF, for code review tools"},
           jsonOption}},
         check},
        {{"diff",
          {QStringLiteral("A"), QStringLiteral("B")},
          "what an application would see change between two databases or sets",
          "Compares what an application sees of the databases A and B, two files or two folders: devices, "
          "objects,\n"
          "ranges, formats, access, texts, speakers, defaults. What worked with A and may fail with B is "
          "breaking; with\n"
          "breaking changes the exit code is 1. With --device GUID, A is another GUID, and the two "
          "descriptions in the\n"
          "database or set B are compared.\n",
          {{"device", "GUID", "compare this description with the description A, both in B"}, jsonOption}},
         diff},
    };
    return all;
}

int main(int argc, char ** argv)
{
    return runTool("devicelore-db", argc, argv, run);
}
