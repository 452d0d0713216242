#include "allocations.h"
#include "world.h"

#include "cache/driverCacheObjectItem.h"
#include "records/deviceProperty.h"
#include "records/driverPropertyTarget.h"
#include "records/speakerSetupInfo.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <random>
#include <vector>

using namespace kestrova::Morvel::Devicelore;
using namespace kestrova::bench;

// Asks the sample world for a long time, at levels that change, and tells how much more memory it takes in
// the end than after the first round.

namespace {

constexpr qint64 toleratedGrowth = 65'536; // what the heap and Qt's pools may settle by

/// Counts, and frees, the objects that a level refused: the cache leaves them to nobody.
class CountingCache : public CDriverCache {
public:
    GetItemReturnValue GetDriverObject(CDriverCacheObjectItem *& item, CDriverCacheKey * key) override
    {
        item = nullptr;
        GetItemReturnValue const result = CDriverCache::GetDriverObject(item, key);
        if (result != GetItemFound && item != nullptr) {
            delete item;
            item = nullptr;
            ++refused;
        }
        return result;
    }

    qint64 refused = 0;
};

struct Question {
    CDeviceGuid guid;
    QString name;
    unsigned short number;
    unsigned short speaker; ///< 0: the device as a whole
};

class Soak {
public:
    Soak()
        : cache(new CountingCache)
        , library(QPointer<CDriverCache>(cache), nullptr)
    {
        cache->closeDatabases(); // those beside the program, which are the same
        cache->openDatabases(folderOf(QCoreApplication::applicationDirPath(), QStringLiteral("*.db3")));
        makeQuestions();
    }

    void changeLevel()
    {
        level = level % 3 + 1;
        library.setDeviceAccessLevel(static_cast<unsigned char>(level));
    }

    void ask(qint64 count)
    {
        std::uniform_int_distribution<std::size_t> any(0, questions.size() - 1);
        for (qint64 i = 0; i < count; ++i)
            ask(questions[any(random)], static_cast<int>(i % 8));
    }

    /// Everything once, so that two measurements see the same catalogues.
    void askAll()
    {
        for (Question const & question : questions) {
            for (int kind = 0; kind < 8; ++kind)
                ask(question, kind);
        }
    }

    void returnToFirstLevel()
    {
        level = 3;
        changeLevel();
    }

    qint64 refusedItems() const { return cache->refused; }

private:
    void makeQuestions()
    {
        library.setDeviceAccessLevel(3);
        QString const sql =
            QStringLiteral("SELECT guid || '/' || BoxNumber || '/' || ObjectNumber || '/' || Name FROM "
                           "guidsandobjects, Objects WHERE id = objectid");
        for (QString const & row : library.devicePropertyFilterByExpression(sql)) {
            QStringList const fields = row.split(QLatin1Char('/'));
            auto const number =
                static_cast<unsigned short>(fields.at(1).toInt() * 256 + fields.at(2).toInt());
            for (int const speaker : {0, 12, 71})
                questions.push_back(
                    {CDeviceGuid(fields.at(0)), fields.at(3), number, static_cast<unsigned short>(speaker)});
            questions.push_back(
                {CDeviceGuid(fields.at(0)), QStringLiteral("Not_") + fields.at(3), 0x1FFF, 0});
        }
        std::shuffle(questions.begin(), questions.end(), random);
        questions.resize(std::min<std::size_t>(questions.size(), 4000));
        returnToFirstLevel();
    }

    void ask(Question const & question, int kind)
    {
        CDeviceChannelInfo speaker;
        speaker.SetSpeakerId(question.speaker);
        CDeviceChannelInfo const * const channel = question.speaker != 0 ? &speaker : nullptr;
        CObjectDef object;
        object.setMask(QFlags<ObjectDefMask>(QFlag(~0U)));
        QVariant value(3.3);
        CDeviceProperty property;
        QList<unsigned short> ids;
        QList<QPair<int, QString>> texts;
        CSpeakerSetupInfo setup;
        switch (kind) {
        case 0:
            library.GetObjectDef(question.guid, question.name, object, channel);
            break;
        case 1:
            library.GetObjectDef(question.guid, question.number, object, channel);
            break;
        case 2:
            property.setPropertyName(question.name, QString());
            library.devicePropertyInfo(question.guid, property, channel);
            break;
        case 3:
            library.AdjustDeviceProperty(question.guid, question.name, value, channel);
            break;
        case 4:
            library.IsObjectSupported(question.guid, question.name, channel);
            break;
        case 5:
            library.listSpeakersForDevice(question.guid, ids);
            library.listValueStrings(question.guid, 30, texts);
            break;
        case 6:
            library.SpeakerSetupInfo(question.speaker, setup);
            library.devicePropertyFilter(QStringLiteral("Equaliser"));
            break;
        default:
            library.defaultSpeakerId({question.guid, question.name, ChannelFirst, 0, channel}, OutputMode(1));
            break;
        }
    }

    CountingCache * cache; ///< the library's
    CDevicelore library;
    std::vector<Question> questions;
    std::mt19937 random{20261121}; // always the same questions
    int level = 1;
};

qint64 numberOf(QCommandLineParser const & parser, QString const & option)
{
    bool isNumber = false;
    qint64 const number = parser.value(option).toLongLong(&isNumber);
    if (!isNumber || number < 1) {
        std::fprintf(stderr, "devicelore-soak: --%s takes a number from 1 on\n", qPrintable(option));
        std::exit(2);
    }
    return number;
}

} // namespace

int main(int argc, char ** argv)
{
    QCoreApplication const application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOption({QStringLiteral("questions"), QStringLiteral("questions in all"), QStringLiteral("N"),
                      QStringLiteral("10000000")});
    parser.addOption({QStringLiteral("changes"), QStringLiteral("changes of the level in all"),
                      QStringLiteral("N"), QStringLiteral("10000")});
    parser.process(application);
    qint64 const questions = numberOf(parser, QStringLiteral("questions"));
    qint64 const changes = numberOf(parser, QStringLiteral("changes"));

    QElapsedTimer timer;
    timer.start();
    Soak soak;
    for (int i = 0; i < 3; ++i) { // every level once
        soak.askAll();
        soak.changeLevel();
    }
    soak.askAll();
    auto const before = static_cast<qint64>(heapBytes());
    for (qint64 change = 0; change < changes; ++change) {
        soak.ask(questions * (change + 1) / changes - questions * change / changes);
        soak.changeLevel();
    }
    soak.returnToFirstLevel();
    soak.askAll();
    qint64 const growth = static_cast<qint64>(heapBytes()) - before;

    std::printf("questions       %lld\nlevel changes   %lld\nrefused objects %lld (the cache leaves them to "
                "nobody; freed "
                "here)\nheap before     %lld bytes\ngrowth          %lld bytes\nseconds         %.1f\n",
                static_cast<long long>(questions), static_cast<long long>(changes),
                static_cast<long long>(soak.refusedItems()), static_cast<long long>(before),
                static_cast<long long>(growth), static_cast<double>(timer.elapsed()) / 1000);
    if (growth > toleratedGrowth) {
        std::fprintf(stderr, "devicelore-soak: the memory has grown\n");
        return 1;
    }
    return 0;
}
