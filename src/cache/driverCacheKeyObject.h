#pragma once

#include "cache/driverCacheKey.h"

namespace kestrova::Morvel::Devicelore {

/// Key of an object by its number: "C7010205_0123". The number is the full one, with any channel bits: two
/// numbers that differ in them are two keys.
class KESTROVA_DEVICELORE_EXPORT CDriverCacheKeyObject : public CDriverCacheKey {
public:
    CDriverCacheKeyObject();
    CDriverCacheKeyObject(CDeviceGuid const & guid, unsigned short number);
    CDriverCacheKeyObject(QString const & guid, unsigned short number);
    CDriverCacheKeyObject(CDriverCacheKeyObject const & other);
    CDriverCacheKeyObject(CDriverCacheKeyObject && other);
    ~CDriverCacheKeyObject() override;

    CDriverCacheKeyObject & operator=(CDriverCacheKeyObject const & other);
    CDriverCacheKeyObject & operator=(CDriverCacheKeyObject && other);

    unsigned short objectNumber() const { return objectNumber_; }

    /// Four hexadecimal digits in lower case, unlike those of the GUID: "001a".
    QString objectNumberString() const;

    CDeviceChannelInfo * channelInfo() const override;

protected:
    /// For the channel form, which makes the text itself: leaves it empty.
    struct WithoutText {};

    CDriverCacheKeyObject(WithoutText, CDeviceGuid const & guid, unsigned short number);
    CDriverCacheKeyObject(WithoutText, QString const & guid, unsigned short number);

    void initObjectnumberString();
    void initKeyString() override;

    static constexpr int numberBytes = 2;

    unsigned short objectNumber_ = 0;
    bool hasNumberString = false; ///< objectNumberString() spells the number, and is not empty
};

} // namespace kestrova::Morvel::Devicelore
