#include "records/speakerSetupInfo.h"

#include "records/speakerFlags.h"

namespace kestrova::Morvel::Devicelore {

namespace {

template <typename Entry>
void replaceOrAppend(QVector<Entry> & list, Entry const & entry, int way)
{
    if (way < list.size())
        list[way] = entry;
    else
        list.append(entry);
}

} // namespace

CSpeakerSetupInfo::CSpeakerSetupInfo(QObject * parent)
    : QObject(parent)
{}

CSpeakerSetupInfo::CSpeakerSetupInfo(unsigned short speakerId, QString const & setupName,
                                     QString const & displayNameShort, CSpeakerClass const & speakerClass,
                                     QObject * parent)
    : QObject(parent)
    , displayNameShort_(displayNameShort)
    , setupNames{setupName}
    , wayClasses{speakerClass}
    , speakerId_(speakerId)
{}

CSpeakerSetupInfo::CSpeakerSetupInfo(CSpeakerSetupInfo const & other)
    : QObject()
{
    *this = other;
}

CSpeakerSetupInfo::~CSpeakerSetupInfo() = default;

CSpeakerSetupInfo & CSpeakerSetupInfo::operator=(CSpeakerSetupInfo const & other)
{
    displayNameShort_ = other.displayNameShort_;
    flags_ = other.flags_;
    cablefitMaxCount_ = other.cablefitMaxCount_;
    numWays_ = other.numWays_;
    setupNames = other.setupNames;
    sortOrder_ = other.sortOrder_;
    wayClasses = other.wayClasses;
    speakerId_ = other.speakerId_;
    return *this;
}

bool CSpeakerSetupInfo::operator==(CSpeakerSetupInfo const & other) const
{
    return speakerId_ == other.speakerId_ && displayNameShort_ == other.displayNameShort_ &&
           sortOrder_ == other.sortOrder_ && cablefitMaxCount_ == other.cablefitMaxCount_ &&
           flags_ == other.flags_ && numWays_ == other.numWays_ && wayClasses == other.wayClasses &&
           setupNames == other.setupNames;
}

void CSpeakerSetupInfo::clear()
{
    *this = CSpeakerSetupInfo();
}

bool CSpeakerSetupInfo::isWFSetup() const
{
    return hasWavefoldFlag(flags_);
}

void CSpeakerSetupInfo::setIsWFSetup(bool isWFSetup)
{
    flags_ = withWavefoldFlag(flags_, isWFSetup);
}

void CSpeakerSetupInfo::setNumWays(int numWays)
{
    numWays_ = numWays;
}

void CSpeakerSetupInfo::setNumWays(QList<CSpeakerDef> const & definitions)
{
    numWays_ = static_cast<int>(definitions.size());
    setupNames.resize(numWays_);
    wayClasses.resize(numWays_);
    for (int way = 0; way < numWays_; ++way) {
        definitions[way].speakerClass(wayClasses[way]);
        setupNames[way] = definitions[way].name();
    }
}

QString CSpeakerSetupInfo::setupName(int way) const
{
    return isWay(way) ? setupNames.value(way) : QString();
}

void CSpeakerSetupInfo::setSetupName(QString const & setupName, int way)
{
    if (isWay(way))
        replaceOrAppend(setupNames, setupName, way);
}

void CSpeakerSetupInfo::speakerClass(CSpeakerClass & speakerClass, int way) const
{
    if (isWay(way))
        speakerClass = wayClasses.value(way, speakerClass);
}

void CSpeakerSetupInfo::setSpeakerClass(CSpeakerClass const & speakerClass, int way)
{
    if (isWay(way))
        replaceOrAppend(wayClasses, speakerClass, way);
}

QString CSpeakerSetupInfo::wayNameShort(int way) const
{
    return isWay(way) ? wayClasses.value(way).wayNames() : QString();
}

} // namespace kestrova::Morvel::Devicelore
