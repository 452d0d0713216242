#pragma once

#include "records/coreNames.h"
#include "records/deviceloreExport.h"
#include "records/speakerDef.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QVector>

namespace kestrova::Morvel::Devicelore {

/// A whole speaker: what its ways have in common, and the setup name and class of each way in two parallel
/// lists.
///
/// Ways are counted from 0. Access by way goes by numWays(), which can fall out of step with the lists when
/// it is set as a number; use setNumWays(QList<CSpeakerDef> const &) to set all three.
///
/// Copied by value; the QObject parent is never copied.
class KESTROVA_DEVICELORE_EXPORT CSpeakerSetupInfo : public QObject {
public:
    /// One way, empty lists, all else 0 or empty.
    CSpeakerSetupInfo(QObject * parent = nullptr);

    /// One way, of that setup name and class.
    CSpeakerSetupInfo(unsigned short speakerId, QString const & setupName, QString const & displayNameShort,
                      CSpeakerClass const & speakerClass, QObject * parent = nullptr);

    CSpeakerSetupInfo(CSpeakerSetupInfo const & other);
    ~CSpeakerSetupInfo() override;

    CSpeakerSetupInfo & operator=(CSpeakerSetupInfo const & other);

    bool operator==(CSpeakerSetupInfo const & other) const;

    bool operator!=(CSpeakerSetupInfo const & other) const { return !(*this == other); }

    /// Back to the state of a new record, with one way and not with none.
    void clear();

    // --- The whole speaker ---

    unsigned short speakerId() const { return speakerId_; }

    void setSpeakerId(unsigned short speakerId) { speakerId_ = speakerId; }

    QString displayNameShort() const { return displayNameShort_; }

    void setDisplayNameShort(QString const & displayNameShort) { displayNameShort_ = displayNameShort; }

    int sortOrder() const { return sortOrder_; }

    void setSortOrder(int sortOrder) { sortOrder_ = sortOrder; }

    /// How large a Cablefit count the speaker allows; 0 for a speaker without that feature.
    int cablefitMaxCount() const { return cablefitMaxCount_; }

    void setCablefitMaxCount(int count) { cablefitMaxCount_ = count; }

    /// Bit 0 is isWFSetup(). The others are kept and have no meaning here.
    unsigned char flags() const { return flags_; }

    void setFlags(unsigned char flags) { flags_ = flags; }

    /// Whether the speaker is a Wavefold setup.
    bool isWFSetup() const;
    void setIsWFSetup(bool isWFSetup);

    // --- Its ways ---

    int numWays() const { return numWays_; }

    /// Only the number; the lists stay.
    void setNumWays(int numWays);

    /// One way for each definition, in their order, with the definition's name and class.
    void setNumWays(QList<CSpeakerDef> const & definitions);

    /// Empty when there is no such way or nothing was set for it.
    QString setupName(int way) const;

    /// Does nothing when there is no such way. A way that has no entry yet is appended at the end of the
    /// list, wherever that is: setting way 2 of an empty list fills way 0.
    void setSetupName(QString const & setupName, int way);

    /// Leaves the argument when there is no such way or nothing was set for it.
    void speakerClass(CSpeakerClass & speakerClass, int way) const;

    /// As setSetupName().
    void setSpeakerClass(CSpeakerClass const & speakerClass, int way);

    /// The names of all ways of that way's class. Empty when there is no such way or nothing was set for it.
    QString wayNameShort(int way) const;

protected:
    QString displayNameShort_;
    unsigned char flags_ = 0;
    int cablefitMaxCount_ = 0;
    int numWays_ = 1;
    QVector<QString> setupNames;
    int sortOrder_ = 0;
    QVector<CSpeakerClass> wayClasses;
    unsigned short speakerId_ = 0;

private:
    bool isWay(int way) const { return way >= 0 && way < numWays_; }
};

} // namespace kestrova::Morvel::Devicelore
