#pragma once

#include "core/coreExport.h"
#include "core/keyType.h"

#include <QString>

namespace kestrova::Solvane {
namespace DataTypes {

/// Identity of a property on a device: device id, channel number, record number and property name.
/// All numbers start at 0, the name starts empty.
class KESTROVA_CORE_EXPORT CKey {
public:
    CKey() = default;
    CKey(CKey const &) = default;

    CKey & operator=(CKey const & other);

    /// Equal when all four parts are.
    bool operator==(CKey const & other) const;

    bool operator!=(CKey const & other) const { return !(*this == other); }

    unsigned short deviceId() const;
    void setDeviceId(unsigned short deviceId);

    /// Signed: -1 stands for "no channel chosen yet".
    int channelNumber() const;
    void setChannelNumber(int channelNumber);

    unsigned short recordNumber() const;
    void setRecordNumber(unsigned short recordNumber);

    QString propertyName() const;
    void setPropertyName(QString const & propertyName);

    /// The key's text of that form. Form 0 names the property alone, whatever device, channel and record are.
    /// There are no other forms; any other number gives an empty text.
    QString toString(KeyType type) const;

private:
    unsigned short deviceId_ = 0;
    int channelNumber_ = 0;
    unsigned short recordNumber_ = 0;
    QString propertyName_;
};

} // namespace DataTypes

using DataTypes::CKey;

} // namespace kestrova::Solvane
