#include "cache/driverDatabaseInfo.h"

namespace kestrova::Morvel::Devicelore {

CDriverDatabaseInfo::CDriverDatabaseInfo()
    : versionNumber_(0, 0, 0)
{}

CDriverDatabaseInfo::CDriverDatabaseInfo(CDriverDatabaseInfo const & other) = default;

CDriverDatabaseInfo::~CDriverDatabaseInfo() = default;

CDriverDatabaseInfo & CDriverDatabaseInfo::operator=(CDriverDatabaseInfo const & other) = default;

bool CDriverDatabaseInfo::operator==(CDriverDatabaseInfo const & other) const
{
    return name_ == other.name_ && filePath_ == other.filePath_ && versionNumber_ == other.versionNumber_;
}

QString CDriverDatabaseInfo::name() const
{
    return name_;
}

void CDriverDatabaseInfo::setName(QString const & name)
{
    name_ = name;
}

QString CDriverDatabaseInfo::filePath() const
{
    return filePath_;
}

void CDriverDatabaseInfo::setFilePath(QString const & filePath)
{
    filePath_ = filePath;
}

CVersionNumber CDriverDatabaseInfo::versionNumber() const
{
    return versionNumber_;
}

void CDriverDatabaseInfo::setVersionNumber(CVersionNumber const & versionNumber)
{
    versionNumber_ = versionNumber;
}

} // namespace kestrova::Morvel::Devicelore
