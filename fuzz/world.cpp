#include "world.h"

#include <QFile>

#include <sqlite3.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace kestrova::fuzz {

namespace {

struct Column {
    char const * name;
    std::vector<char const *> likelyValues;
};

struct Table {
    char const * name;
    std::vector<Column> columns;
    char const * newerColumn = nullptr; ///< which databases of the old form lack
};

/// How a table departs from a sound one. All other numbers below 16 are sound.
enum Form { BesideAnotherTable = 11, OldForm = 12, WithAnotherColumn = 13, WithoutAColumn = 14, Absent = 15 };

std::vector<char const *> const guids{"C7000012", "C7000112", "C7010112", "C7000005", "c7000012", "C70000A0"};
std::vector<char const *> const models{"Hesko", "Talvo", "Vesni", "Tovian", "Zerin", "hesko"};
std::vector<char const *> const small{"0", "1", "2", "5", "12", "31", "255", "256"};
std::vector<char const *> const texts{"", "On", "---", "a;b", "1.2.3", "7"};
std::vector<char const *> const speakers{"5", "12", "71", "261", "267"};

Table const versionTable{"Version", {{"Major", small}, {"Minor", small}, {"Bugfix", small}}};

std::vector<Table> const & tablesOfDevices()
{
    static std::vector<char const *> const names{"Gain",
                                                 "Config_Filter1",
                                                 "Config_Filter12",
                                                 "Config_CablefitSpeakerCount",
                                                 "ChStatus_MsDelay",
                                                 "Config_SpeakerId",
                                                 "Wavefold_Width"};
    static std::vector<char const *> const reals{"0", "1", "-1", "0.5", "10", "2147483647"};
    static std::vector<char const *> const formats{"%5.1f dB", "%1U",    "%3u",    "%1s",   "%04X",
                                                   "%6H",      "%+9I8b", "%-6d V", "%I64u", "%T"};
    static std::vector<char const *> const filters{"10", "11", "21", "27", "-5", "---"};
    static std::vector<char const *> const statements{"SELECT Name FROM Objects", "SELECT 1", "SELEC", "",
                                                      "PRAGMA table_info(Objects)"};
    static std::vector<Table> const all{
        versionTable,
        {"Guids",
         {{"GUID", guids}, {"DeviceType", models}, {"Version", texts}, {"Access", small}, {"OnoType", small}},
         "OnoType"},
        {"Hardwaretypes", {{"Type", small}, {"DeviceType", models}}},
        {"Objects",
         {{"id", small},           {"Name", names},        {"BoxNumber", small},  {"ObjectNumber", small},
          {"ChannelCount", small}, {"RecordCount", small}, {"Min", reals},        {"Max", reals},
          {"Step", reals},         {"Format", formats},    {"Flags", small},      {"Access", small},
          {"DefaultValue", reals}, {"Size", small},        {"TextOffset", small}, {"Description", texts},
          {"Comment", texts},      {"ClassId", small},     {"WaitTime", small},   {"WaitStates", small}},
         "BoxNumber"},
        {"guidsandobjects", {{"objectid", small}, {"guid", guids}}},
        {"ObjectClasses", {{"Id", small}, {"OcaClassId", texts}, {"Description", texts}}},
        {"SpeakerClasses",
         {{"Class", small}, {"Name", texts}, {"Type", texts}, {"Ways", small}, {"WayNames", texts}}},
        {"Speakers",
         {{"SpeakerId", speakers},
          {"Name", texts},
          {"Class", small},
          {"Rib", small},
          {"DisplayNameShort", texts},
          {"SortOrder", small},
          {"CablefitMaxCount", small},
          {"WfActive", small}}},
        {"GuidsSpeakersFilters",
         {{"GUID", guids}, {"SpeakerId", speakers}, {"FilterId", filters}, {"Access", small}}},
        {"Filters",
         {{"Id", filters},
          {"Number", small},
          {"Type", small},
          {"Min", reals},
          {"Max", reals},
          {"DisplayNameShort", texts},
          {"TextOffset", small},
          {"StateTexts", texts}}},
        {"TextsObjectValues",
         {{"TextOffset", small}, {"Value", small}, {"TextShort_en_US", texts}, {"TextShort_de_DE", texts}}},
        {"DevicePropertyFilter",
         {{"FilterName", texts}, {"Expression", statements}, {"Access", small}},
         "Access"},
    };
    return all;
}

std::vector<Table> const & tablesOfSpeakerDsp()
{
    static std::vector<Table> const all{
        versionTable,
        {"SpeakerData",
         {{"GUID", guids},
          {"SpeakerId", speakers},
          {"DeviceType", models},
          {"SpeakerName", texts},
          {"SpeakerVersion", texts},
          {"BlobData", texts},
          {"BlobDataMD5", texts}}},
    };
    return all;
}

struct Close {
    void operator()(sqlite3 * database) const { sqlite3_close(database); }

    void operator()(sqlite3_stmt * statement) const { sqlite3_finalize(statement); }

    void operator()(unsigned char * bytes) const { sqlite3_free(bytes); }
};

using Database = std::unique_ptr<sqlite3, Close>;
using Statement = std::unique_ptr<sqlite3_stmt, Close>;

void bindAnything(sqlite3_stmt * statement, int index, ByteReader & reader)
{
    switch (reader.choice(6)) {
    case 0:
        sqlite3_bind_null(statement, index);
        break;
    case 1:
        sqlite3_bind_int64(statement, index, static_cast<sqlite3_int64>(reader.longNumber()));
        break;
    case 2:
        sqlite3_bind_double(statement, index, reader.real());
        break;
    case 3: {
        QByteArray const text = reader.bytes();
        sqlite3_bind_text(statement, index, text.constData(), static_cast<int>(text.size()),
                          SQLITE_TRANSIENT);
        break;
    }
    case 4: {
        QByteArray const blob = reader.bytes();
        sqlite3_bind_blob(statement, index, blob.constData(), static_cast<int>(blob.size()),
                          SQLITE_TRANSIENT);
        break;
    }
    default:
        sqlite3_bind_int(statement, index, static_cast<signed char>(reader.byte()));
        break;
    }
}

/// Most values are likely ones, so that tables fit together; any value may be anything.
void bindValue(sqlite3_stmt * statement, int index, Column const & column, ByteReader & reader)
{
    if (reader.choice(8) == 7) {
        bindAnything(statement, index, reader);
        return;
    }
    auto const choice = static_cast<std::size_t>(reader.choice(static_cast<int>(column.likelyValues.size())));
    sqlite3_bind_text(statement, index, column.likelyValues.at(choice), -1, SQLITE_STATIC);
}

Statement prepared(Database const & database, QByteArray const & sql)
{
    sqlite3_stmt * handle = nullptr;
    sqlite3_prepare_v2(database.get(), sql.constData(), -1, &handle, nullptr);
    return Statement(handle);
}

std::vector<Column> columnsOf(Table const & table, int form, ByteReader & reader)
{
    std::vector<Column> columns = table.columns;
    auto const anyColumn = [&] { return columns.begin() + reader.choice(static_cast<int>(columns.size())); };
    auto const isNewer = [&](Column const & column) { return column.name == QByteArray(table.newerColumn); };
    if (form == WithoutAColumn)
        columns.erase(anyColumn());
    if (form == WithAnotherColumn)
        columns.insert(anyColumn(), {"Extra", {"x"}});
    if (form == OldForm)
        columns.erase(std::remove_if(columns.begin(), columns.end(), isNewer), columns.end());
    return columns;
}

void createTable(Database const & database, QByteArray const & name, QByteArray const & definition)
{
    sqlite3_exec(database.get(), ("CREATE TABLE " + name + " (" + definition + ")").constData(), nullptr,
                 nullptr, nullptr);
}

void writeTable(Database const & database, Table const & table, ByteReader & reader)
{
    static char const * const affinities[] = {"", " TEXT", " INTEGER", " REAL", " BLOB", " NUMERIC"};
    quint8 const decision = reader.byte();
    int const form = decision % 16;
    if (form == Absent)
        return;
    std::vector<Column> const columns = columnsOf(table, form, reader);
    QByteArray definition;
    QByteArray marks;
    for (Column const & column : columns) {
        definition += definition.isEmpty() ? "" : ", ";
        definition += QByteArray(column.name) + affinities[(decision / 16) % 6];
        marks += marks.isEmpty() ? "?" : ", ?";
    }
    if (form == BesideAnotherTable)
        createTable(database, "Extra" + QByteArray(table.name), definition);
    createTable(database, table.name, definition);
    Statement const insert =
        prepared(database, "INSERT INTO " + QByteArray(table.name) + " VALUES (" + marks + ")");
    int const rows = reader.choice(5);
    for (int row = 0; insert && row < rows; ++row) {
        int index = 1;
        for (Column const & column : columns)
            bindValue(insert.get(), index++, column, reader);
        sqlite3_step(insert.get());
        sqlite3_reset(insert.get());
    }
}

void writeDatabase(QString const & path, std::vector<Table> const & tables, ByteReader & reader)
{
    sqlite3 * handle = nullptr;
    sqlite3_open(":memory:", &handle);
    Database const database(handle);
    for (Table const & table : tables)
        writeTable(database, table, reader);
    sqlite3_int64 size = 0;
    std::unique_ptr<unsigned char, Close> const bytes(sqlite3_serialize(handle, "main", &size, 0));
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(reinterpret_cast<char const *>(bytes.get()), size);
}

} // namespace

void writeRandomDatabase(QString const & path, ByteReader & reader)
{
    writeDatabase(path, tablesOfDevices(), reader);
}

void writeRandomSpeakerDspDatabase(QString const & path, ByteReader & reader)
{
    writeDatabase(path, tablesOfSpeakerDsp(), reader);
}

QStringList const & objectNames()
{
    static QStringList const names{QStringLiteral("Gain"),
                                   QStringLiteral("Config_Filter1"),
                                   QStringLiteral("Config_Filter12"),
                                   QStringLiteral("Config_CablefitSpeakerCount"),
                                   QStringLiteral("ChStatus_MsDelay"),
                                   QStringLiteral("Config_SpeakerId"),
                                   QStringLiteral("Wavefold_Width")};
    return names;
}

QStringList const & deviceGuids()
{
    static QStringList const guids{QStringLiteral("C7000012"), QStringLiteral("C7000212"),
                                   QStringLiteral("C7000005"), QStringLiteral("00000000")};
    return guids;
}

} // namespace kestrova::fuzz
