#pragma once

#include "records/coreNames.h"
#include "records/deviceloreExport.h"

#include <QString>

namespace kestrova::Morvel::Devicelore {

/// Describes one open database: the connection's name, the file, and the content's version.
/// A default one has empty texts and version 0.0.0.
class KESTROVA_DEVICELORE_EXPORT CDriverDatabaseInfo {
public:
    CDriverDatabaseInfo();
    CDriverDatabaseInfo(CDriverDatabaseInfo const & other);
    ~CDriverDatabaseInfo();

    CDriverDatabaseInfo & operator=(CDriverDatabaseInfo const & other);

    /// Equal when all three fields are.
    bool operator==(CDriverDatabaseInfo const & other) const;

    bool operator!=(CDriverDatabaseInfo const & other) const { return !(*this == other); }

    /// The name of the Qt SQL connection: the file's name, or "DspDataDatabase" for the speaker DSP database.
    QString name() const;
    void setName(QString const & name);

    /// The absolute path of the file.
    QString filePath() const;
    void setFilePath(QString const & filePath);

    /// The version that the database states of its own content; 0.0.0 when it states none.
    CVersionNumber versionNumber() const;
    void setVersionNumber(CVersionNumber const & versionNumber);

protected:
    QString name_;
    QString filePath_;
    CVersionNumber versionNumber_;
};

} // namespace kestrova::Morvel::Devicelore
