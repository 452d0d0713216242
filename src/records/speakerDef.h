#pragma once

#include "records/coreNames.h"
#include "records/deviceloreExport.h"

#include <QString>

namespace kestrova::Morvel::Devicelore {

/// One way of a speaker. A 2-way speaker has two definitions, under ids that share their low byte.
///
/// -1 stands for "not read" in the numbers that a description may leave out; CSpeakerSetupInfo, which is made
/// from a complete definition, starts them at 0.
class KESTROVA_DEVICELORE_EXPORT CSpeakerDef {
public:
    CSpeakerDef() = default;

    bool operator==(CSpeakerDef const & other) const;

    bool operator!=(CSpeakerDef const & other) const { return !(*this == other); }

    /// Fewer ways come first; among equally many ways, the lower class number. Nothing else counts.
    static bool lessThan(CSpeakerDef const & left, CSpeakerDef const & right);

    unsigned short speakerId() const { return speakerId_; }

    void setSpeakerId(unsigned short speakerId) { speakerId_ = speakerId; }

    QString name() const { return name_; }

    void setName(QString const & name) { name_ = name; }

    QString displayNameShort() const { return displayNameShort_; }

    void setDisplayNameShort(QString const & displayNameShort) { displayNameShort_ = displayNameShort; }

    /// The class comes back in the argument, as it does from CSpeakerSetupInfo.
    void speakerClass(CSpeakerClass & speakerClass) const { speakerClass = speakerClass_; }

    void setSpeakerClass(CSpeakerClass const & speakerClass) { speakerClass_ = speakerClass; }

    /// The names of all ways of the class. One definition is one way: the argument is there for
    /// CSpeakerSetupInfo's sake and changes nothing.
    QString wayNameShort(int way) const;

    int rib() const { return rib_; }

    void setRib(int rib) { rib_ = rib; }

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

protected:
    unsigned short speakerId_ = 0;
    QString name_;
    CSpeakerClass speakerClass_;
    int rib_ = -1;
    QString displayNameShort_;
    int sortOrder_ = -1;
    int cablefitMaxCount_ = -1;
    unsigned char flags_ = 0;
    quint32 reserved = 0; // always 0
};

} // namespace kestrova::Morvel::Devicelore
