#include "command.h"
#include "commandLine.h"
#include "common/program.h"
#include "inspector.h"
#include "optionValue.h"

using namespace kestrova::inspector;

namespace {

int run(QStringList const & arguments)
{
    CommandLine const line = readCommandLine(arguments);
    if (line.text) {
        print(*line.text);
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
        {"explain",
         {QStringLiteral("GUID|MODEL"), QStringLiteral("[PROPERTY]")},
         "why an application gets what it gets",
         "Tells the whole story of an answer: which description stands for the device and from which "
         "database, or of a\n"
         "property, by its name or its number, which row answers, how it stands there, what becomes of it on "
         "the way, which\n"
         "level refuses it, and which rows come close when none answers.\n",
         explainAnswer,
         channelOptions()},
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
        {"objects",
         {QStringLiteral("GUID|MODEL")},
         "the objects of a device",
         "Lists the objects of a device that the access level shows, by their numbers. ACCESS shows r for "
         "readable, w for\n"
         "writeable, and the levels needed to read and to write.\n",
         objectsAnswer,
         {{"like", "PATTERN", "only names like this: % stands for any text, _ for any character"}}},
        {"object",
         {QStringLiteral("GUID|MODEL"), QStringLiteral("NAME|NUMBER")},
         "everything that is known of an object",
         "Tells all that the description says of an object, by its name or its number (decimal, or 0x and "
         "hexadecimal\n"
         "digits). With a speaker, also which limits the speaker changes.\n",
         objectAnswer,
         channelOptions()},
        {"describe",
         {QStringLiteral("GUID|MODEL"), QStringLiteral("PROPERTY")},
         "a property as an application shows it",
         "Tells range, unit, decimals and kind of control of a property, whether it can be edited at the "
         "access level, and\n"
         "whether device and speaker support it.\n",
         describeAnswer,
         channelOptions()},
        {"convert",
         {QStringLiteral("GUID|MODEL"), QStringLiteral("PROPERTY")},
         "a raw value made a real one, or a real one raw",
         "Converts between the raw value of a device and the real one of a user, by the object's format.\n",
         convertAnswer,
         {{"to-real", "RAW", "an integer, decimal or 0x and hexadecimal digits; or a text"},
          {"to-device", "REAL", "a number or a text"}}},
        {"check",
         {QStringLiteral("GUID|MODEL"), QStringLiteral("PROPERTY"), QStringLiteral("VALUE")},
         "whether a value is legal, and what it becomes",
         "Checks a value against the range and the step of an object, as an application would before it sets "
         "it, and tells\n"
         "what it becomes and which limit decided.\n",
         checkAnswer,
         channelOptions()},
        {"speakers",
         {QStringLiteral("GUID|MODEL")},
         "the speakers of a device",
         "Lists the speakers that a device can drive, in display order; with --mode or --type only those "
         "that "
         "fit.\n",
         speakersAnswer,
         {{"mode", "M", "the output mode, -1 (no mode) to 8; 0 if not given"},
          {"type", "FLAGS", "the sum of 1 first channel, 2 second channel, 4 2-way; 7 if not given"}}},
        {"speaker",
         {QStringLiteral("ID")},
         "the definitions of a speaker",
         "Lists the definitions of a speaker, one for each way. Ids that agree in their low byte are one "
         "speaker.\n",
         speakerAnswer},
        {"filter",
         {QStringLiteral("GUID|MODEL"), QStringLiteral("N")},
         "a filter of a speaker",
         "Tells name and limits of the filter number N that a device has for a speaker.\n",
         filterAnswer,
         {channelOptions().front()}},
        {"text",
         {QStringLiteral("GUID|MODEL"), QStringLiteral("OFFSET"), QStringLiteral("[VALUE]")},
         "the texts of values",
         "Lists the texts of the values at a text offset, or tells that of one value.\n",
         textAnswer,
         {{"language", "L", "the column that has them; TextShort_en_US if not given"}}},
        {"groups",
         {QStringLiteral("[NAME]")},
         "the property groups, or the properties of one",
         "Lists the property groups that the access level shows, or the properties of one of them.\n",
         groupsAnswer},
        {"query",
         {QStringLiteral("SQL")},
         "what a statement gives in all databases",
         "Runs an SQL statement in every database and lists what its first column gives, without "
         "duplicates.\n",
         queryAnswer},
        {"dsp",
         {QStringLiteral("GUID|MODEL"), QStringLiteral("SPEAKER")},
         "the DSP setup of a speaker",
         "Tells which DSP setup that very GUID has for a speaker, and compares the data with its MD5, which "
         "the library does\n"
         "not. Damaged data ends with exit code 4.\n",
         dspAnswer,
         {{"out", "FILE", "write the data to this file"}}},
        {"version",
         {},
         "the versions of the library and of Qt",
         "Tells the versions of the library and of Qt.\n",
         versionAnswer},
    };
    return all;
}

int main(int argc, char ** argv)
{
    return runTool("devicelore", argc, argv, run);
}
