#pragma once

#include "records/convertResult.h"
#include "records/deviceloreExport.h"
#include "records/objectDefMask.h"

#include <QString>
#include <QVariant>

namespace kestrova::Morvel::Devicelore {

/// Everything that a description says about one object (parameter) of a device.
///
/// A caller sets the mask to the members it wants, hands the record to a lookup, and gets these members
/// filled. The others stay as they are, so that a default may mean "not asked for" as well as "the
/// description does not say".
///
/// Range, step and default value are in the unit of the description's own numbers: raw values of the device,
/// which the format turns into real ones.
class KESTROVA_DEVICELORE_EXPORT CObjectDef {
public:
    /// How an object is to be shown.
    enum ObjectType : qint32 {
        ObjectTypeToggle = 0, ///< a number with exactly the two states 0 and 1
        ObjectTypeNumber = 1, ///< any other number
        ObjectTypeString = 2,
        ObjectTypeHex = 3,
        ObjectTypeHexDump = 4,
        ObjectTypeUnknown = 255, ///< not determined, or a bit pattern
    };

    /// Everything empty or 0, but for the step of 1.0, the type ObjectTypeUnknown, and the flags as given.
    CObjectDef(unsigned short flags = 0);

    // --- Which members a lookup shall fill ---

    QFlags<ObjectDefMask> mask() const { return mask_; }

    void setMask(QFlags<ObjectDefMask> mask) { mask_ = mask; }

    // --- Names ---

    /// The name by which objects are looked up, such as "ChStatus_MsDelay".
    QString name() const { return name_; }

    void setName(QString const & name) { name_ = name; }

    QString displayName() const { return displayName_; }

    void setDisplayName(QString const & displayName) { displayName_ = displayName; }

    /// What a speaker makes of the object, for example the name of its filter; "---" for "not used". Empty
    /// without a speaker.
    QString displaySubName() const { return displaySubName_; }

    void setDisplaySubName(QString const & displaySubName) { displaySubName_ = displaySubName; }

    QString comment() const { return comment_; }

    void setComment(QString const & comment) { comment_ = comment; }

    /// Solvane::StringToHash() of the name.
    quint32 propertyHash() const { return propertyHash_; }

    void setPropertyHash(quint32 propertyHash) { propertyHash_ = propertyHash; }

    // --- Address ---

    unsigned short BoxNumber() const { return boxNumber; }

    void SetBoxNumber(unsigned short newNumber) { boxNumber = newNumber; }

    /// The number within the box.
    unsigned short ObjectNumber() const { return objectNumber; }

    void SetObjectNumber(unsigned short newNumber) { objectNumber = newNumber; }

    /// Box and object in the layout of CObjectNumber, without a channel. Nothing is masked: an object number
    /// above 255 runs into the box.
    unsigned short FullObjectNumber() const;

    /// One description stands for all channels and all records of an object.
    unsigned char channelCount() const { return channelCount_; }

    void setChannelCount(unsigned char channelCount) { channelCount_ = channelCount; }

    unsigned short recordCount() const { return recordCount_; }

    void setRecordCount(unsigned short recordCount) { recordCount_ = recordCount; }

    // --- Values ---

    double minValue() const { return minValue_; }

    void setMin(double minimum) { minValue_ = minimum; }

    double maxValue() const { return maxValue_; }

    void setMax(double maximum) { maxValue_ = maximum; }

    double step() const { return step_; }

    void setStep(double step) { step_ = step; }

    /// Invalid when nothing was read. A text for text objects, a double for all others once the lookup is
    /// complete.
    QVariant defaultValue() const { return defaultValue_; }

    void setDefaultValue(QVariant const & defaultValue) { defaultValue_ = defaultValue; }

    /// Bytes on the device; for a text with its terminator.
    unsigned short size() const { return size_; }

    void setSize(unsigned short size) { size_ = size; }

    /// The group of texts for the object's values; 0 and 1 stand for "none".
    quint32 textOffset() const { return textOffset_; }

    void setTextOffset(quint32 textOffset) { textOffset_ = textOffset; }

    // --- Rights ---

    unsigned short flags() const { return flags_; }

    void setFlags(unsigned short flags) { flags_ = flags; }

    bool isReadable() const { return (flags_ & 0x1) != 0; }

    bool isWriteable() const { return (flags_ & 0x2) != 0; }

    bool isNoCan() const { return (flags_ & 0x2000) != 0; }

    /// Two decimal digits: the tens digit is the level needed to read, the units digit the one needed to
    /// write.
    unsigned char access() const { return access_; }

    void setAccess(unsigned char access) { access_ = access; }

    // --- Timing, in the units of the device's own protocol ---

    unsigned short waitTime() const { return waitTime_; }

    void setWaitTime(unsigned short waitTime) { waitTime_ = waitTime; }

    unsigned short waitStates() const { return waitStates_; }

    void setWaitStates(unsigned short waitStates) { waitStates_ = waitStates; }

    // --- Classes ---

    unsigned short classId() const { return classId_; }

    void setClassId(unsigned short classId) { classId_ = classId; }

    /// 16 entries. The first ocaClassIdSize() of them, at most all, mean something; the others are 0.
    unsigned short const * ocaClassId() const { return ocaClassId_; }

    /// As given to setOcaClassId(), also when it was more than fits.
    unsigned char ocaClassIdSize() const { return ocaClassIdSize_; }

    /// Copies at most 16 entries. A null pointer empties the array and leaves the size. The number of bytes
    /// to copy is counted in 8 bits, as the devices count it: 128 entries copy nothing.
    void setOcaClassId(unsigned short const * ids, unsigned char count);

    unsigned char GetOnoType() const { return onoType; }

    void SetOnoType(unsigned char newType) { onoType = newType; }

    // --- Presentation ---

    /// The format language is told in docs/format-language.md.
    QString format() const { return format_; }

    void setFormat(QString const & format) { format_ = format; }

    ObjectType objectType() const { return objectType_; }

    void setObjectType(ObjectType objectType) { objectType_ = objectType; }

    /// The unit of real values, with the blank that stands in front of it.
    QString unit() const { return unit_; }

    void setUnit(QString const & unit) { unit_ = unit; }

    /// Sets object type and unit by the format, as far as the mask says that format, minimum and maximum are
    /// known. The step is not asked for: one that was not requested stands at 1.0.
    void determineObjectType();

    /// False for a format of a text only; true also for an empty format and for a byte dump.
    bool isNumeric() const;

    // --- Conversion by a format, which is read as Latin-1 ---

    /// Prints a raw value of a device.
    ///
    /// \a data holds \a length bytes, lowest first, at least as many as the format's size. The conversions
    /// "s" and "H" do not look at the length: for "s" there must be a 0 byte at the end, for "H" as many
    /// bytes as its width says. A null \a data prints fifteen hyphens.
    ///
    /// \a text gets the field, and with \a withUnit the unit behind it; at most 255 bytes, read as UTF-8, so
    /// that a byte above 0x7F becomes a replacement character. \a textLength, which may be null, gets the
    /// length of the field alone. On failure both stay as they are. Results: 0, -3, -4, -5, -6, -13.
    static ConvertResult paraToStr(QString const & format, void const * data, int length, QString & text,
                                   int * textLength, bool withUnit);

    /// Parses a text into a raw value. Mind the order: the text comes before the format.
    ///
    /// \a value becomes an int for "d", "u" and "x" in all their sizes, signed even for "u"; a float for "f";
    /// a text for "s"; an unsigned or signed integer by size for "b" and "H". It stays as it is for "c", and
    /// on failure, but for "f", which stores what the reading of a float left: 0, or infinity for "1e39".
    /// Only the first 255 characters of the text count, but for "f" all. Results: 0, -3, -6, -10, -11.
    static ConvertResult strToPara(QString const & text, QString const & format, QVariant & value);

    /// The digits behind the last "." of the whole text; 0 without. It is no parser: a "." in the unit counts
    /// as well.
    static int decimals(QString const & format);

    /// What stands behind the conversion, which need not start with "%"; the byte 0x81 stands for "Ohm".
    static QString unit(QString const & format);

protected:
    QString name_;
    QString displayName_;
    unsigned short boxNumber = 0;
    unsigned short objectNumber = 0;
    unsigned char channelCount_ = 0;
    unsigned short recordCount_ = 0;
    double minValue_ = 0.0;
    double maxValue_ = 0.0;
    double step_ = 1.0;
    QString format_;
    unsigned short flags_;
    unsigned char access_ = 0;
    QVariant defaultValue_;
    unsigned short size_ = 0;
    quint32 textOffset_ = 0;
    QString comment_;
    unsigned short waitTime_ = 0;
    unsigned short waitStates_ = 0;
    unsigned short ocaClassId_[16] = {};
    unsigned char ocaClassIdSize_ = 0;
    unsigned short classId_ = 0;
    QFlags<ObjectDefMask> mask_;
    ObjectType objectType_ = ObjectTypeUnknown;
    QString unit_;
    QString displaySubName_;
    unsigned char onoType = 0;
    quint32 propertyHash_ = 0;
};

} // namespace kestrova::Morvel::Devicelore
