#pragma once

#include "exposedCache.h"
#include "records/driverPropertyTarget.h"
#include "support/databaseFolder.h"

#include <QStringList>
#include <QVariant>

#include <string>
#include <vector>

namespace kestrova::test {

/// A cache that tells which objects it was asked for.
class AskedCache : public ExposedCache {
public:
    using ExposedCache::GetDriverObject;

    Morvel::Devicelore::GetItemReturnValue
    GetDriverObject(Morvel::Devicelore::CDriverCacheObjectItem *& item,
                    Morvel::Devicelore::CDriverCacheKey * key) override;

    QStringList askedKeys;
};

struct Model {
    char const * name;
    quint32 guid; ///< version 0
};

/// All models, in the order in which they are registered.
extern std::vector<Model> const models;

/// A database of all models, and of one device whose model is not known. Each device has the same few
/// objects: Config_SpeakerId (default 500), Volume (default -20), Eq_Fg (default 50) and Eq_Order (default
/// 3); and the same speakers, by their ids: 1 for a first channel, 2 for a second, 3 for a first in mode 0
/// only, 4 a 2-way speaker.
class ModelWorld {
public:
    ModelWorld();

    AskedCache cache;

private:
    DatabaseFolder folder;
};

constexpr quint32 deviceOfUnknownModel = 0xC7000077;

/// Type and value of an answer: "int 71", "double 0.7", "invalid".
std::string said(QVariant const & answer);

} // namespace kestrova::test
