#include "common/toolDocuments.h"

#include "support/program.h"
#include "support/qtPrint.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

using namespace kestrova::tools;
using namespace kestrova::test;

namespace {

ToolInterface exampleTool()
{
    return {"lore-tool",
            QStringLiteral("2.5"),
            "looks at things",
            {{"look",
              {QStringLiteral("THING"), QStringLiteral("[MORE...]")},
              "a look",
              "Looks at a thing.\n.And at what begins with a point, \\ and all.\n",
              {{"from", "PLACE", "where it lies"}, {"twice", nullptr, "look again"}}},
             {"leave", {}, "no look", "Does nothing.\n", {}}},
            {{"json", nullptr, "print JSON"}},
            "Exit codes: 0 ok.\n"};
}

/// What a bash with the completion offers for the last word.
QString offered(QString const & completion, QStringList const & words)
{
    QTemporaryDir const folder;
    QFile file(folder.filePath(QStringLiteral("completion")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(completion.toUtf8());
    file.close();
    QString const script =
        QStringLiteral(". %1; COMP_WORDS=(%2); COMP_CWORD=%3; _lore_tool; echo ${COMPREPLY[@]}")
            .arg(file.fileName(), words.join(QLatin1Char(' ')))
            .arg(words.size() - 1);
    ProgramResult const result = runProgram(QStringLiteral("bash"), {QStringLiteral("-c"), script});
    EXPECT_EQ(result.messages, QString());
    return result.output.trimmed();
}

} // namespace

TEST(ToolHelp, ListsCommandsAndOptions)
{
    EXPECT_EQ(toolHelp(exampleTool()).toStdString(),
              "usage: lore-tool COMMAND [ARGUMENT...] [OPTION...]\n"
              "\n"
              "Looks at things.\n"
              "\n"
              "Commands:\n"
              "  look THING [MORE...]  a look\n"
              "  leave                 no look\n"
              "\n"
              "Options:\n"
              "  --json                   print JSON\n"
              "  --help                   print this text, or that of a command\n"
              "  --version                print the version\n"
              "\n"
              "Exit codes: 0 ok.\n");
}

TEST(ToolHelp, ExplainsACommand)
{
    ToolInterface const tool = exampleTool();
    EXPECT_EQ(commandHelp(tool, tool.commands.front()).toStdString(),
              "usage: lore-tool look THING [MORE...] [OPTION...]\n"
              "\n"
              "Looks at a thing.\n.And at what begins with a point, \\ and all.\n"
              "\n"
              "Options of this command:\n"
              "  --from PLACE             where it lies\n"
              "  --twice                  look again\n"
              "\n"
              "Options:\n"
              "  --json                   print JSON\n"
              "  --help                   print this text, or that of a command\n"
              "  --version                print the version\n"
              "\n"
              "Exit codes: 0 ok.\n");
}

TEST(ManualPage, TellsAllThatTheHelpTells)
{
    EXPECT_EQ(manualPage(exampleTool()).toStdString(),
              ".TH LORE\\-TOOL 1 \"\" \"lore\\-tool 2.5\" \"User Commands\"\n"
              ".SH NAME\n"
              "lore\\-tool \\- looks at things\n"
              ".SH SYNOPSIS\n"
              ".B lore\\-tool\n"
              ".I COMMAND\n"
              "[\\fIARGUMENT\\fR...] [\\fIOPTION\\fR...]\n"
              ".SH COMMANDS\n"
              ".SS look THING [MORE...]\n"
              "Looks at a thing.\n"
              "\\&.And at what begins with a point, \\e and all.\n"
              ".TP\n"
              ".B \\-\\-from PLACE\n"
              "where it lies\n"
              ".TP\n"
              ".B \\-\\-twice\n"
              "look again\n"
              ".SS leave\n"
              "Does nothing.\n"
              ".SH OPTIONS\n"
              ".TP\n"
              ".B \\-\\-json\n"
              "print JSON\n"
              ".TP\n"
              ".B \\-\\-help\n"
              "print this text, or that of a command\n"
              ".TP\n"
              ".B \\-\\-version\n"
              "print the version\n"
              ".SH EXIT STATUS\n"
              "Exit codes: 0 ok.\n");
}

TEST(BashCompletion, OffersCommandsAndOptions)
{
    QString const completion = bashCompletion(exampleTool());
    EXPECT_EQ(offered(completion, {QStringLiteral("lore-tool"), QStringLiteral("l")}),
              QStringLiteral("look leave"));
    EXPECT_EQ(offered(completion, {QStringLiteral("lore-tool"), QStringLiteral("--h")}),
              QStringLiteral("--help"));
    EXPECT_EQ(
        offered(completion, {QStringLiteral("lore-tool"), QStringLiteral("look"), QStringLiteral("--")}),
        QStringLiteral("--from --twice --json --help --version"));
    EXPECT_EQ(
        offered(completion, {QStringLiteral("lore-tool"), QStringLiteral("leave"), QStringLiteral("--")}),
        QStringLiteral("--json --help --version"));
    EXPECT_EQ(
        offered(completion, {QStringLiteral("lore-tool"), QStringLiteral("look"), QStringLiteral("fi")}),
        QString()); // file names are offered by bash itself
}

TEST(ParsedCommandLine, TakesWhatTheInterfaceSays)
{
    ParsedArguments const parsed =
        parseArguments(exampleTool(), {QStringLiteral("look"), QStringLiteral("-5"), QStringLiteral("--from"),
                                       QStringLiteral("-.5"), QStringLiteral("--json"), QStringLiteral("b"),
                                       QStringLiteral("--from"), QStringLiteral("here")});
    EXPECT_EQ(parsed.command, 0);
    EXPECT_EQ(parsed.words, QStringList({QStringLiteral("-5"), QStringLiteral("b")}));
    EXPECT_EQ(parsed.values("from"), QStringList({QStringLiteral("-.5"), QStringLiteral("here")}));
    EXPECT_EQ(parsed.value("from"), QStringLiteral("here"));
    EXPECT_TRUE(parsed.isSet("json"));
    EXPECT_FALSE(parsed.isSet("twice"));
    EXPECT_TRUE(parsed.value("twice").isNull());
    EXPECT_FALSE(parsed.text.has_value());
}
