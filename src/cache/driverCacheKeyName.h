#pragma once

#include "cache/driverCacheKey.h"

namespace kestrova::Morvel::Devicelore {

/// Key of an object by its name: "C7010205_Config_Filter1".
class KESTROVA_DEVICELORE_EXPORT CDriverCacheKeyName : public CDriverCacheKey {
public:
    CDriverCacheKeyName();
    CDriverCacheKeyName(CDeviceGuid const & guid, QString const & name);
    CDriverCacheKeyName(QString const & guid, QString const & name);
    CDriverCacheKeyName(CDriverCacheKeyName const & other);
    CDriverCacheKeyName(CDriverCacheKeyName && other);
    ~CDriverCacheKeyName() override;

    CDriverCacheKeyName & operator=(CDriverCacheKeyName const & other);
    CDriverCacheKeyName & operator=(CDriverCacheKeyName && other);

    QString const & objectName() const { return objectName_; }

    CDeviceChannelInfo * channelInfo() const override;

protected:
    /// For the channel form, which makes the text itself: leaves it empty.
    struct WithoutText {};

    CDriverCacheKeyName(WithoutText, CDeviceGuid const & guid, QString const & name);
    CDriverCacheKeyName(WithoutText, QString const & guid, QString const & name);

    void initKeyString() override;

    QString objectName_;
};

} // namespace kestrova::Morvel::Devicelore
