#include "command.h"
#include "commandLine.h"
#include "common/program.h"
#include "inspector.h"

using namespace kestrova::inspector;

namespace {

int run(QStringList const & arguments)
{
    CommandLine const line = readCommandLine(arguments);
    if (line.text) {
        print(stdout, *line.text);
        return ExitOk;
    }
    Inspector inspector(line.databaseFolders, line.accessLevel);
    return printAnswer(line.command->run(inspector, line.arguments), line.json);
}

} // namespace

std::vector<Command> const & kestrova::inspector::commands()
{
    static std::vector<Command> const all{
        {"databases",
         {},
         "the open databases, with their versions",
         "Lists the open databases in the order in which they are asked, and the speaker DSP database behind "
         "them.\n",
         databasesAnswer},
        {"devices",
         {},
         "all descriptions of devices",
         "Lists every description: its GUID, model, version, access level and database. A description above "
         "the access\n"
         "level is marked as hidden. A model is known by its description of version 0; where that is missing "
         "or hidden,\n"
         "the model reads \"-\".\n",
         devicesAnswer},
        {"device",
         {QStringLiteral("GUID|MODEL")},
         "which description stands for a device, and why",
         "Tells which description stands for the GUID (eight hexadecimal digits), or which is the newest of "
         "the model:\n"
         "the one asked for (exact), else the newest that the access level lets through (newest visible), or "
         "none.\n",
         deviceAnswer},
        {"modes",
         {},
         "the output modes: which channels drive a speaker together",
         "Lists the output modes. Channels joined by \"+\" drive one 2-way speaker, any other a speaker of "
         "its "
         "own. The counts\n"
         "are of the speakers on a device of four channels, and on one of two.\n",
         modesAnswer},
        {"defaults",
         {QStringLiteral("GUID|MODEL"), QStringLiteral("[PROPERTY...]")},
         "default speaker, stored speaker and default values, and where they come from",
         "Tells which speaker each channel takes in an output mode, what becomes there of a stored speaker, "
         "and the default\n"
         "value of each property, each with where it comes from: the table of the mode, that of the model, "
         "or the database.\n",
         defaultsAnswer,
         {{"mode", "M", "the output mode, -1 (no mode) to 8; 0 if not given"},
          {"channel", "N", "the channel, 0 to 7; if not given, all that take speakers"},
          {"speaker", "ID", "the stored speaker, 0 (none) to 65535; 0 if not given"}}},
    };
    return all;
}

int main(int argc, char ** argv)
{
    return runTool("devicelore", argc, argv, run);
}
