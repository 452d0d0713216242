#pragma once

#include "records/coreNames.h"
#include "records/deviceloreExport.h"

#include <QFlags>
#include <QObject>
#include <QString>
#include <QVariant>

namespace kestrova::Morvel::Devicelore {

/// One property of one device as an application shows it: its key, range, unit, and how to draw it.
///
/// The record remembers which members were ever set: each setter raises its bit in validMembers(). A getter
/// returns what is there, set or not.
///
/// Copied by value; the QObject parent is never copied.
class KESTROVA_DEVICELORE_EXPORT CDeviceProperty : public QObject {
public:
    /// The numbers of CObjectDef::ObjectType.
    enum PropertyType : qint32 {
        PropertyTypeToggle = 0,
        PropertyTypeNumber = 1,
        PropertyTypeString = 2,
        PropertyTypeHex = 3,
        PropertyTypeHexDump = 4,
        PropertyTypeUnknown = 255,
    };

    /// The low 16 bits are the flags of the object's description as they stand; of these three have a name.
    enum PropertyFlag : quint32 {
        PropertyReadable = 0x1,
        PropertyWriteable = 0x2,
        PropertyNoCan = 0x2000,
        PropertyUndescribed = 0x10000, ///< cleared by every successful description
        PropertyEditable = 0x20000,    ///< may be edited at the present access level
        PropertyFilterSlot = 0x40000,  ///< one of the slots "Config_Filter1" and so on
    };

    enum ValidMember : quint32 {
        ValidValue = 0x1,
        ValidMinValue = 0x2,
        ValidMaxValue = 0x4,
        ValidStep = 0x8,
        ValidDevice = 0x10,
        ValidPropertyName = 0x20,
        ValidDisplayName = 0x40,
        ValidDeviceChannel = 0x80,
        ValidRecord = 0x100, ///< from the start: record 0 is a record
        ValidFlags = 0x200,
        ValidPropertyType = 0x400,
        ValidUnit = 0x800,
        ValidSubName = 0x1000,
        ValidSimpleControlType = 0x2000,
        ValidDecimals = 0x4000,
    };

    /// The kind of control, by the numbers of BasicControlType. To this record they are just numbers.
    enum SimpleControlType : qint32 {};

    CDeviceProperty(QObject * parent = nullptr);

    /// Of the key, only the CKey part is copied, as in assignment and setKey().
    CDeviceProperty(CDeviceProperty const & other);
    ~CDeviceProperty() override;

    /// Copies the valid bits as well. Of the key, only the CKey part: the device's own key, GetDevice(),
    /// belongs to the record that it was set on.
    CDeviceProperty & operator=(CDeviceProperty const & other);

    /// Compares all members, set or not, and the valid bits; of the key the CKey part.
    bool operator==(CDeviceProperty const & other) const;

    bool operator!=(CDeviceProperty const & other) const { return !(*this == other); }

    // --- Which members were set ---

    QFlags<ValidMember> validMembers() const;

    /// Overwrites the bits and touches no member.
    void setValidMembers(QFlags<ValidMember> members);

    /// True when all these bits are set; for no bits too.
    bool CheckValidMembers(QFlags<ValidMember> members) const;

    // --- Key ---

    CDevicePropertyKey key() const;

    /// Sets device, property name, channel and record at once. The display name is not part of a key.
    void setKey(CDevicePropertyKey const & key);

    CDeviceKey GetDevice() const;
    void SetDevice(CDeviceKey const & device);

    unsigned short deviceId() const;
    void setDeviceId(unsigned short deviceId);

    /// -1 stands for "no channel chosen yet".
    int deviceChannel() const;
    void setDeviceChannel(int channel);

    /// 0 to 65535; a number set is cut to 16 bits.
    int record() const;
    void setRecord(int record);

    /// The name by which the property is looked up.
    QString uniquePropertyName() const;

    QString displayName() const;

    /// Both names together: the display name has no other setter.
    void setPropertyName(QString const & name, QString const & displayName);

    /// What a speaker makes of the property, for example the name of its filter.
    QString subName() const;
    void setSubName(QString const & subName);

    // --- Value ---

    QVariant value() const;
    void setValue(QVariant const & value);

    QVariant minValue() const;
    void setMinValue(QVariant const & minimum);

    QVariant maxValue() const;
    void setMaxValue(QVariant const & maximum);

    QVariant step() const;
    void setStep(QVariant const & step);

    void setRange(QVariant const & minimum, QVariant const & maximum, QVariant const & step);

    // --- Presentation and rights ---

    /// Digits behind the decimal point.
    int decimals() const;
    void setDecimals(int decimals);

    /// With the blank that stands in front of it.
    QString unit() const;
    void setUnit(QString const & unit);

    PropertyType propertyType() const;
    void setPropertyType(PropertyType type);

    /// Logs a warning while its valid bit is not set, and returns what is there all the same: 0 when it was
    /// never set. No other getter warns.
    SimpleControlType simpleControlType() const;
    void setSimpleControlType(SimpleControlType type);

    QFlags<PropertyFlag> flags() const;
    void setFlags(QFlags<PropertyFlag> flags);

    /// Sets and then clears, so that \a clear wins. Raises no valid bit, unlike setFlags(): flags that were
    /// never set are not known because one of them was changed.
    void modifyFlags(QFlags<PropertyFlag> set, QFlags<PropertyFlag> clear);

protected:
    int decimals_ = 0;
    QString displayName_;
    QFlags<PropertyFlag> flags_;
    CDevicePropertyKey key_;
    QVariant maxValue_;
    QVariant minValue_;
    PropertyType propertyType_ = PropertyTypeUnknown;
    SimpleControlType simpleControlType_ = SimpleControlType(0);
    QVariant step_;
    QString subName_;
    QString unit_;
    QFlags<ValidMember> validMembers_ = ValidRecord;
    QVariant value_;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(QFlags<CDeviceProperty::PropertyFlag>)
Q_DECLARE_OPERATORS_FOR_FLAGS(QFlags<CDeviceProperty::ValidMember>)

} // namespace kestrova::Morvel::Devicelore
