#pragma once

#include "facade/devicelore.h"

#include <QDir>

namespace kestrova::bench {

/// The files of \a path that match \a pattern, as the facade looks at the application's own folder.
QDir folderOf(QString const & path, QString const & pattern);

/// A cache whose objects can be forgotten, so that they are read anew.
class SampleCache : public Morvel::Devicelore::CDriverCache {
public:
    void forgetObjects();
};

/// The sample world, which lies beside this program, open once for all benchmarks that ask it, and a facade
/// on it. Never destroyed: Qt's connections would be gone before.
SampleCache & samples();
Morvel::Devicelore::CDevicelore const & facade();

/// A GUID of a sample model; throws std::runtime_error when there is none.
Morvel::Devicelore::CDeviceGuid guidOf(char const * model);

/// The file of the sample database of the model Hesko without its encryption, made when first asked for.
QString plainSamples();

/// Eight databases with 10,000 devices, 5,000 speakers and 500 objects in all, made when first asked for and
/// deleted with the process: encrypted ("*.db3") and plain ("*.plain") files of the same rows.
QString largeWorld();

} // namespace kestrova::bench
