#pragma once

#include "records/coreNames.h"
#include "records/deviceloreExport.h"

#include <QString>

namespace kestrova::Morvel::Devicelore {

/// A class of speakers: a row of the table SpeakerClasses.
class KESTROVA_DEVICELORE_EXPORT CDriverCacheSpeakerClassItem {
public:
    /// Class 255 ("no class"), no ways, empty texts.
    CDriverCacheSpeakerClassItem();
    CDriverCacheSpeakerClassItem(unsigned char speakerClass, QString const & className,
                                 QString const & classType, unsigned char ways, QString const & wayNames);
    CDriverCacheSpeakerClassItem(CDriverCacheSpeakerClassItem const & other);
    CDriverCacheSpeakerClassItem(CDriverCacheSpeakerClassItem && other) noexcept;
    ~CDriverCacheSpeakerClassItem();

    CDriverCacheSpeakerClassItem & operator=(CDriverCacheSpeakerClassItem const & other);
    CDriverCacheSpeakerClassItem & operator=(CDriverCacheSpeakerClassItem && other) noexcept;

    /// The number of the class.
    unsigned char speakerClass() const { return speakerClass_; }

    void setSpeakerClass(unsigned char speakerClass) { speakerClass_ = speakerClass; }

    QString className() const { return className_; }

    void setClassName(QString const & className) { className_ = className; }

    QString classType() const { return classType_; }

    void setClassType(QString const & classType) { classType_ = classType; }

    /// Empty unless it was set: no column feeds it.
    QString displayName() const { return displayName_; }

    void setDisplayName(QString const & displayName) { displayName_ = displayName; }

    /// The number of ways.
    unsigned char ways() const { return ways_; }

    void setWays(unsigned char ways) { ways_ = ways; }

    QString wayNames() const { return wayNames_; }

    void setWayNames(QString const & wayNames) { wayNames_ = wayNames; }

    /// Writes number, ways and way names to \a speakerClass.
    void toSpeakerClass(CSpeakerClass & speakerClass) const;

protected:
    unsigned char speakerClass_;
    QString className_;
    QString classType_;
    QString displayName_;
    unsigned char ways_;
    QString wayNames_;
};

} // namespace kestrova::Morvel::Devicelore
