#include "modelWorld.h"
#include "support/messageRecorder.h"
#include "support/qtPrint.h"

#include <gtest/gtest.h>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::AskedCache;
using kestrova::test::MessageRecorder;
using kestrova::test::ModelWorld;
using kestrova::test::said;

namespace kestrova::test::defaultValues {

namespace {

CDeviceGuid const hesko(0xC7000012);

std::string defaultOf(AskedCache & cache, quint32 guid, char const * property, int record = 0)
{
    CDriverPropertyTarget target(guid, QLatin1String(property));
    target.setRecordNumber(static_cast<unsigned short>(record));
    return said(cache.defaultPropertyValue(target));
}

struct Row {
    char const * property;
    char const * legacy;
    char const * fourChannels;
    char const * matrix;
    char const * databaseOnly;
};

// The database has Eq_Fg, Eq_Order and Volume.
Row const rows[] = {
    {"Eq_Fg", "double 1000", "double 1000", "double 50", "double 50"},
    {"Eq_Q", "double 0.7", "double 0.7", "invalid", "invalid"},
    {"Eq_Vdb", "double 0", "double 0", "invalid", "invalid"},
    {"Eq_Order", "double 3", "int 1", "double 3", "double 3"},
    {"Eq_Fg2", "invalid", "double 2000", "invalid", "invalid"},
    {"Eq_Q2", "invalid", "double 0.7", "invalid", "invalid"},
    {"Eq_Vdb2", "invalid", "double 0", "invalid", "invalid"},
    {"Eq_Order2", "invalid", "int 1", "invalid", "invalid"},
    {"MatrixInputEq_Fg", "invalid", "invalid", "double 1000", "invalid"},
    {"MatrixInputEq_Q", "invalid", "invalid", "double 0.7", "invalid"},
    {"MatrixInputEq_Vdb", "invalid", "invalid", "double 0", "invalid"},
    {"MatrixInputEq_Order", "invalid", "invalid", "int 1", "invalid"},
    {"MatrixInputEq_Fg2", "invalid", "invalid", "double 2000", "invalid"},
    {"MatrixInputEq_Q2", "invalid", "invalid", "double 0.7", "invalid"},
    {"MatrixInputEq_Vdb2", "invalid", "invalid", "double 0", "invalid"},
    {"MatrixInputEq_Order2", "invalid", "invalid", "int 1", "invalid"},
    {"MatrixOutputEq_Fg", "invalid", "invalid", "double 1000", "invalid"},
    {"MatrixOutputEq_Q", "invalid", "invalid", "double 0.7", "invalid"},
    {"MatrixOutputEq_Vdb", "invalid", "invalid", "double 0", "invalid"},
    {"MatrixOutputEq_Order", "invalid", "invalid", "int 1", "invalid"},
    {"MatrixOutputEq_Fg2", "invalid", "invalid", "double 2000", "invalid"},
    {"MatrixOutputEq_Q2", "invalid", "invalid", "double 0.7", "invalid"},
    {"MatrixOutputEq_Vdb2", "invalid", "invalid", "double 0", "invalid"},
    {"MatrixOutputEq_Order2", "invalid", "invalid", "int 1", "invalid"},
    {"ReverbInputProcessingEq_Fg", "invalid", "invalid", "double 1000", "invalid"},
    {"ReverbInputProcessingEq_Q", "invalid", "invalid", "double 0.7", "invalid"},
    {"ReverbInputProcessingEq_Vdb", "invalid", "invalid", "double 0", "invalid"},
    {"ReverbInputProcessingEq_Order", "invalid", "invalid", "int 1", "invalid"},
    {"ReverbInputProcessingEq_Fg2", "invalid", "invalid", "double 2000", "invalid"},
    {"ReverbInputProcessingEq_Q2", "invalid", "invalid", "double 0.7", "invalid"},
    {"ReverbInputProcessingEq_Vdb2", "invalid", "invalid", "double 0", "invalid"},
    {"ReverbInputProcessingEq_Order2", "invalid", "invalid", "int 1", "invalid"},
    {"Volume", "double -20", "double -20", "double -20", "double -20"},
    {"Absent", "invalid", "invalid", "invalid", "invalid"},
    {"eq_fg2", "invalid", "invalid", "invalid", "invalid"},
    {"", "invalid", "invalid", "invalid", "invalid"},
    // The key of the table as a name: no object is called that.
    {"$P/Eq_Fg", "double 1000", "double 1000", "invalid", "invalid"},
    {"$P/Eq_Order2", "invalid", "int 1", "invalid", "invalid"},
    {"$P/MatrixOutputEq_Order", "invalid", "invalid", "int 1", "invalid"},
    {"$P/$P/Eq_Fg", "invalid", "invalid", "invalid", "invalid"},
    {"$P/Volume", "invalid", "invalid", "invalid", "invalid"},
};

struct ModelColumn {
    char const * model;
    quint32 guid;
    char const * Row::*column;
};

ModelColumn const modelColumns[] = {
    {"Talvo", 0xC7000005, &Row::legacy},       {"Hesko", 0xC7000012, &Row::fourChannels},
    {"Zerin", 0xC7000006, &Row::legacy},       {"Yolsa", 0xC7000007, &Row::legacy},
    {"Murel", 0xC7000011, &Row::fourChannels}, {"Vesni", 0xC7000013, &Row::fourChannels},
    {"Kalom", 0xC7000014, &Row::fourChannels}, {"Nurix", 0xC7000015, &Row::fourChannels},
    {"Orvan", 0xC7000016, &Row::fourChannels}, {"Tovian", 0xC7000030, &Row::databaseOnly},
    {"Rabel", 0xC7000040, &Row::matrix},       {"Quimo", 0xC7000031, &Row::databaseOnly},
    {"Fenra", 0xC7000020, &Row::databaseOnly}, {"Sarni", 0xC7000010, &Row::fourChannels},
    {"Lumbo", 0xC7000017, &Row::fourChannels},
};

} // namespace

TEST(DefaultValues, OfEveryModelWhateverTheRecord)
{
    ModelWorld world;
    for (ModelColumn const & model : modelColumns) {
        for (Row const & row : rows) {
            for (int const record : {0, 1, 7, 65535})
                EXPECT_EQ(defaultOf(world.cache, model.guid, row.property, record), row.*model.column)
                    << model.model << ' ' << row.property << ", record " << record;
        }
    }
}

TEST(DefaultValues, OfTheModelNeedNoDatabase)
{
    ModelWorld world;
    world.cache.closeDatabases();
    MessageRecorder const recorder;
    EXPECT_EQ(defaultOf(world.cache, 0xC7000012, "Eq_Fg2"), "double 2000");
    EXPECT_EQ(world.cache.askedKeys, QStringList());
    EXPECT_EQ(defaultOf(world.cache, 0xC7000012, "Volume"), "invalid");
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(DefaultValues, OfTheDatabaseAreThoseOfTheObjectOnTheChannel)
{
    ModelWorld world;
    world.cache.defaultPropertyValue(CDriverPropertyTarget(hesko, QStringLiteral("Volume")));
    world.cache.defaultPropertyValue(
        CDriverPropertyTarget(hesko, QStringLiteral("Volume"), DeviceChannel(2), 3, 1));
    CDeviceChannelInfo const input(ChannelTypeInput);
    world.cache.defaultPropertyValue(
        CDriverPropertyTarget(hesko, QStringLiteral("Volume"), DeviceChannel(2), 3, &input));
    EXPECT_EQ(world.cache.askedKeys,
              (QStringList{QStringLiteral("C7000012_000__Volume"), QStringLiteral("C7000012_001_0001_Volume"),
                           QStringLiteral("C7000012_002_IN_Volume")}));
}

TEST(DefaultValues, OfAnUnknownDeviceAreInvalidAndNoObjectIsAskedFor)
{
    ModelWorld world;
    for (quint32 const guid : {0xC7000099U, 0U, kestrova::test::deviceOfUnknownModel}) {
        EXPECT_EQ(defaultOf(world.cache, guid, "Volume"), "invalid");
        EXPECT_EQ(defaultOf(world.cache, guid, "Eq_Fg"), "invalid");
    }
    EXPECT_EQ(world.cache.askedKeys, QStringList());
}

TEST(DefaultValues, OfAVersionThatIsNotDescribedComeFromTheModelOnly)
{
    ModelWorld world;
    EXPECT_EQ(defaultOf(world.cache, 0xC7000912, "Eq_Fg2"), "double 2000");
    EXPECT_EQ(defaultOf(world.cache, 0xC7000912, "Volume"), "invalid") << "the GUID is used as it is";
}

} // namespace kestrova::test::defaultValues
