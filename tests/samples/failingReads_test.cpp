#include "facade/devicelore.h"
#include "records/deviceProperty.h"
#include "records/driverPropertyTarget.h"
#include "records/speakerSetupInfo.h"
#include "sqlcipher/databaseFile.h"
#include "sqlcipher/databaseKey.h"
#include "support/faultyReads.h"
#include "support/messageRecorder.h"
#include "support/print.h"
#include "support/sqlFile.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <vector>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::FaultyReads;
using kestrova::test::makeSqlFile;
using kestrova::test::MessageRecorder;
using kestrova::test::ReadFault;

// The disk fails at each read that a tour through the library makes. A statement that fails counts as one
// without rows; so an answer is right, or what it would be if a table had no rows.

namespace {

using Facade = std::unique_ptr<CDevicelore>;

QString textOf(QVariant const & value)
{
    return value.isValid() ? value.toString() : QStringLiteral("invalid");
}

QString objectText(CDevicelore const & facade, quint32 guid, QString const & name, unsigned short speakerId)
{
    CDeviceChannelInfo channel;
    channel.SetSpeakerId(speakerId);
    CObjectDef object;
    object.setMask(QFlags<ObjectDefMask>(QFlag(~0U)));
    TharnError const error =
        facade.GetObjectDef(CDeviceGuid(guid), name, object, speakerId != 0 ? &channel : nullptr);
    return QStringLiteral("%1 %2 %3 %4..%5 %6 %7 %8")
        .arg(error)
        .arg(object.name())
        .arg(object.FullObjectNumber())
        .arg(object.minValue())
        .arg(object.maxValue())
        .arg(object.format(), object.displayName(), object.displaySubName());
}

QString speakerText(CDevicelore & facade, quint32 guid)
{
    QList<QPair<unsigned short, QString>> speakers;
    QString text = QString::number(facade.listSpeakersForDevice(CDeviceGuid(guid), speakers));
    for (auto const & speaker : std::as_const(speakers))
        text += QStringLiteral(" %1 %2").arg(speaker.first).arg(speaker.second);
    return text;
}

/// Each asks about something that the others leave alone, as far as the library remembers what it has found.
using Question = QString (*)(CDevicelore & facade);

Question const questions[] = {
    [](CDevicelore & facade) {
        QList<CDriverDatabaseInfo> infos;
        facade.databaseInfos(infos);
        QStringList versions;
        for (CDriverDatabaseInfo const & info : std::as_const(infos)) {
            CVersionNumber const version = info.versionNumber();
            versions += QStringLiteral("%1 %2.%3.%4")
                            .arg(info.name())
                            .arg(version.major())
                            .arg(version.minor())
                            .arg(version.bugfix());
        }
        return versions.join(QLatin1Char(' '));
    },
    [](CDevicelore & facade) {
        QStringList models = facade.deviceModels();
        models.sort();
        return models.join(QLatin1Char(' '));
    },
    [](CDevicelore & facade) { return facade.deviceModelOnGuid(CDeviceGuid(0xC7000116)); },
    [](CDevicelore & facade) {
        QStringList models;
        for (int type = 0; type < 256; ++type) {
            QString model;
            facade.deviceTypeOnHardwaretype(static_cast<unsigned char>(type), model);
            models += model;
        }
        return models.join(QLatin1Char(','));
    },
    [](CDevicelore & facade) {
        QStringList setups;
        for (unsigned short const id : {quint16(5), quint16(6), quint16(11), quint16(37), quint16(71)}) {
            CSpeakerSetupInfo setup;
            facade.SpeakerSetupInfo(id, setup);
            setups += QStringLiteral("%1 %2").arg(setup.displayNameShort()).arg(setup.numWays());
        }
        return setups.join(QLatin1Char(','));
    },
    [](CDevicelore & facade) {
        return objectText(facade, 0xC7000312, QStringLiteral("ChStatus_MsDelay"), 0);
    },
    [](CDevicelore & facade) { return objectText(facade, 0xC7000213, QStringLiteral("Config_Filter3"), 12); },
    [](CDevicelore & facade) { return objectText(facade, 0xC7000006, QStringLiteral("ChStatus_Gain"), 0); },
    [](CDevicelore & facade) { return facade.objectName(CDeviceGuid(0xC7000012), 0x0101); },
    [](CDevicelore & facade) { return facade.objectName(CDeviceGuid(0xC7000005), 0x0101); },
    [](CDevicelore & facade) {
        CDeviceProperty property;
        property.setPropertyName(QStringLiteral("ChStatus_Gain"), QString());
        bool const known = facade.devicePropertyInfo(CDeviceGuid(0xC7000116), property, nullptr);
        return QStringLiteral("%1 %2 %3 %4")
            .arg(known)
            .arg(textOf(property.minValue()), textOf(property.maxValue()), property.unit());
    },
    [](CDevicelore & facade) {
        QVariant value = 12;
        CDeviceGuid const guid(0xC7000020);
        int const state =
            facade.AdjustDeviceProperty(guid, QStringLiteral("ChStatus_MsDelay"), value, nullptr);
        return QStringLiteral("%1 %2").arg(state).arg(textOf(value));
    },
    [](CDevicelore & facade) { return speakerText(facade, 0xC7000005); },
    [](CDevicelore & facade) { return speakerText(facade, 0xC7000112); },
    [](CDevicelore & facade) {
        CDriverPropertyTarget const target(CDeviceGuid(0xC7000010), QStringLiteral("Config_SpeakerId"),
                                           ChannelFirst, 0, 12);
        return textOf(facade.defaultSpeakerId(target, OutputMode(2))) + QLatin1Char(' ') +
               textOf(facade.validateSpeakerId(target, OutputMode(0)));
    },
    [](CDevicelore & facade) {
        CDeviceChannelInfo channel;
        channel.SetSpeakerId(12);
        return facade.GetFilterName(CDeviceGuid(0xC7000312), 3, &channel);
    },
    [](CDevicelore & facade) { return facade.objectValueString(CDeviceGuid(0xC7000312), 30, 1); },
    [](CDevicelore & facade) { return facade.objectValueString(CDeviceGuid(0xC7000006), 30, 1); },
    [](CDevicelore & facade) {
        QStringList groups;
        for (QString const & name : facade.enumDevicePropertyFilter())
            groups += name + QLatin1Char(':') + facade.devicePropertyFilter(name).join(QLatin1Char(' '));
        groups.sort();
        return groups.join(QLatin1Char('/'));
    },
    [](CDevicelore & facade) {
        return facade.devicePropertyFilterByExpression(QStringLiteral("SELECT Description FROM Objects"))
            .join(QLatin1Char(','));
    },
    [](CDevicelore & facade) {
        SpeakerDspData const data = facade.GetConfigSpeakerData(CDeviceGuid(0xC7000312), 12);
        return data.GetSpeakerName() + QLatin1Char(' ') + QLatin1String(data.GetSpeakerDspData().toHex());
    },
};

/// Fails the test if anything is logged while it lives. Nothing but a question may log.
class Silence {
public:
    Silence() = default;

    ~Silence() { EXPECT_EQ(recorder.messages(), QStringList()); }

    Silence(Silence const &) = delete;
    Silence & operator=(Silence const &) = delete;

private:
    MessageRecorder recorder;
};

/// The answers to all questions, each with what was logged.
QStringList tourOf(CDevicelore & facade)
{
    QStringList answers;
    for (Question const question : questions) {
        MessageRecorder const recorder;
        QString answer = question(facade);
        answers += answer + recorder.messages().join(QLatin1Char(' '));
    }
    return answers;
}

/// The sample world in files of small pages, so that its tables span many of them.
class World {
public:
    World()
    {
        FaultyReads::install();
        QDir().mkpath(dspFolder());
    }

    ~World() { QDir(dspFolder()).removeRecursively(); }

    World(World const &) = delete;
    World & operator=(World const &) = delete;

    /// Makes a database. One of the tables can be emptied.
    void make(QString const & name, QString const & emptyTable = QString()) const
    {
        QFile text(QStringLiteral(KESTROVA_SAMPLE_TEXTS) + QLatin1Char('/') + name + QStringLiteral(".sql"));
        ASSERT_TRUE(text.open(QIODevice::ReadOnly));
        QString sql = QString::fromUtf8(text.readAll());
        if (!emptyTable.isEmpty())
            sql += QStringLiteral(";CREATE TABLE IF NOT EXISTS %1 (none);DELETE FROM %1;").arg(emptyTable);
        QString const plain = folder.filePath(name + QStringLiteral(".plain"));
        QFile::remove(plain);
        makeSqlFile(plain, sql);
        kestrova::sqlcipher::encryptDatabase(plain, pathOf(name), kestrova::sqlcipher::version3,
                                             kestrova::sqlcipher::databaseKey);
    }

    void remove(QString const & name) const { QFile::remove(pathOf(name)); }

    /// Null when a database does not open.
    Facade open() const
    {
        Silence const silence; // also while a database that has failed is closed again
        QDir dir(folder.path());
        dir.setNameFilters({QStringLiteral("*.db3")});
        auto cache = std::make_unique<CDriverCache>();
        // Before anything is read: a change reads the start catalogues once more.
        cache->setGuidSupportedLevel(1);
        cache->setDevicePropertyFilterAccessLevel(1);
        if (cache->openDatabases(dir) != 4)
            return nullptr;
        return std::make_unique<CDevicelore>(QPointer<CDriverCache>(cache.release()), nullptr);
    }

private:
    QString pathOf(QString const & name) const
    {
        return name == QLatin1String("DspData") ? dspFolder() + QStringLiteral("/DspData.sqlite")
                                                : folder.filePath(name + QStringLiteral(".db3"));
    }

    static QString dspFolder() { return QCoreApplication::applicationDirPath() + QStringLiteral("/DspData"); }

    QTemporaryDir folder;
};

char const * const databases[] = {"amplifiers", "classics", "processors", "updates"};
char const * const startTables[] = {"Guids", "Hardwaretypes", "SpeakerClasses", "Speakers", "ObjectClasses"};
char const * const laterTables[] = {
    "Version", "Objects",           "guidsandobjects",     "GuidsSpeakersFilters",
    "Filters", "TextsObjectValues", "DevicePropertyFilter"};

class FailingReads : public ::testing::TestWithParam<ReadFault> {
protected:
    FailingReads()
    {
        for (char const * const name : databases)
            world.make(QLatin1String(name));
        world.make(dspData);
        FaultyReads::arm(0, GetParam());
        Facade const facade = world.open();
        readsToOpen = FaultyReads::count();
        right = tourOf(*facade);
        readsInAll = FaultyReads::count();

        for (char const * const name : databases) {
            for (char const * const table : startTables)
                withoutStartTable += answersWithout(QLatin1String(name), table);
            for (char const * const table : laterTables)
                withoutLaterTable += answersWithout(QLatin1String(name), table);
        }
        withoutLaterTable += answersWithout(dspData, "Version");
        withoutLaterTable += answersWithout(dspData, "SpeakerData");
        world.remove(dspData);
        withoutLaterTable += tourOf(*world.open());
        world.make(dspData);
    }

    QStringList answersWithout(QString const & name, char const * table)
    {
        world.make(name, QLatin1String(table));
        QStringList const answers = tourOf(*world.open());
        world.make(name);
        return answers;
    }

    bool isKnownFailure(int question, QString const & answer) const
    {
        // The one failure of a statement that the library is to report.
        QString silent = answer;
        silent.remove(QRegularExpression(QStringLiteral("critical: Error .*(I/O error|malformed).* \\(type: "
                                                        "1\\) accessing project database in \\S+ \\d+")));
        if (std::any_of(withoutLaterTable.begin(), withoutLaterTable.end(),
                        [&](QStringList const & answers) { return answers.at(question) == silent; }))
            return true;
        // Each group is a statement of its own.
        QStringList const groups = silent.split(QLatin1Char('/'));
        QStringList known = right.at(question).split(QLatin1Char('/'));
        bool const isComplete = groups.size() > 1 && groups.size() == known.size();
        for (QStringList const & answers : withoutLaterTable)
            known += answers.at(question).split(QLatin1Char('/'));
        return isComplete && std::all_of(groups.begin(), groups.end(),
                                         [&](QString const & group) { return known.contains(group); });
    }

    /// Only the question during which the read fails may be answered otherwise than right.
    void expectFailureOfOneQuestionAtMost(QStringList const & answers) const
    {
        int failures = 0;
        for (int i = 0; i < answers.size(); ++i) {
            if (answers.at(i) == right.at(i))
                continue;
            ++failures;
            EXPECT_TRUE(isKnownFailure(i, answers.at(i))) << i << ": " << answers.at(i).toStdString();
        }
        EXPECT_LE(failures, 1);
    }

    World world;
    QString const dspData = QStringLiteral("DspData");
    int readsToOpen = 0;
    int readsInAll = 0;
    QStringList right;
    QList<QStringList> withoutStartTable; ///< the answers where one of these tables has no rows
    QList<QStringList> withoutLaterTable;
};

TEST_P(FailingReads, GiveAnswersThatAreRightOrThoseOfATableWithoutRows)
{
    int refusals = 0;
    int failures = 0;
    for (int number = 1; number <= readsInAll; ++number) {
        SCOPED_TRACE(number);
        FaultyReads::arm(number, GetParam());
        Facade facade = world.open();
        if (facade == nullptr) {
            EXPECT_LE(number, readsToOpen);
            ++refusals;
            continue;
        }
        QStringList const answers = tourOf(*facade);
        failures += answers == right ? 0 : 1;
        if (number > readsToOpen)
            expectFailureOfOneQuestionAtMost(answers);
        else
            EXPECT_TRUE(answers == right || withoutStartTable.contains(answers))
                << answers.join(QLatin1Char('\n')).toStdString();

        {
            Silence const silence;
            facade->setDeviceAccessLevel(2);
            facade->setDeviceAccessLevel(1);
        }
        EXPECT_EQ(tourOf(*facade), right);
        Silence const silence;
        facade.reset();
    }
    // Nearly every read matters, or the tour would show nothing.
    EXPECT_GT(refusals, 20);
    EXPECT_GT(failures, 70);
}

INSTANTIATE_TEST_SUITE_P(OfEachKind, FailingReads,
                         ::testing::Values(ReadFault::Error, ReadFault::Short, ReadFault::Damage),
                         [](auto const & row) {
                             return row.param == ReadFault::Error   ? "Error"
                                    : row.param == ReadFault::Short ? "Short"
                                                                    : "Damage";
                         });

TEST(FailingReadsTour, FindsSomethingWithEveryQuestion)
{
    World world;
    for (char const * const name : databases)
        world.make(QLatin1String(name));
    world.make(QStringLiteral("DspData"));
    QStringList const answers = tourOf(*world.open());
    ASSERT_EQ(answers.size(), 21);
    EXPECT_EQ(answers.at(0), QStringLiteral("amplifiers.db3 3.2.17 classics.db3 2.9.4 processors.db3 1.0.250 "
                                            "updates.db3 3.2.18 DspDataDatabase 1.4.2"));
    EXPECT_EQ(answers.at(1),
              QStringLiteral("Fenra Hesko Kalom Lumbo Murel Orvan Rabel Sarni Talvo Tovian Vesni "
                             "Yolsa Zerin"));
    EXPECT_EQ(answers.at(5), QStringLiteral("0 ChStatus_MsDelay 259 0.3..500 %5.1f ms Delay "));
    EXPECT_EQ(answers.at(6), QStringLiteral("0 Config_Filter3 525 0..5 %1U Filter 3 Stack trim"));
    EXPECT_EQ(answers.at(12), QStringLiteral("0 71 Linear 11 Ostel 12 7 Dorra 10 25 Dorra 18 42 Dorra 6"));
    EXPECT_EQ(answers.at(14), QStringLiteral("11 12"));
    EXPECT_EQ(answers.at(16), QStringLiteral("Inverted"));
    EXPECT_TRUE(answers.at(20).startsWith(QStringLiteral("Varn 3 line 5344")));
    QRegularExpression const message(QStringLiteral("(debug|info|warning|critical|fatal): "));
    for (QString const & answer : answers) {
        EXPECT_FALSE(answer.isEmpty());
        EXPECT_FALSE(answer.contains(message)) << answer.toStdString();
    }
}

} // namespace
