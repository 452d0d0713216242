#include "support/databaseFolder.h"

#include "support/sqlFile.h"

#include <QFile>

#include <stdexcept>

namespace kestrova::test {

DatabaseFolder::DatabaseFolder()
{
    if (!folder.isValid())
        throw std::runtime_error(folder.errorString().toStdString());
}

DatabaseFolder & DatabaseFolder::add(QString const & fileName, QString const & sql)
{
    makeSqlFile(path(fileName), sql);
    return *this;
}

DatabaseFolder & DatabaseFolder::addFile(QString const & fileName, QByteArray const & content)
{
    QFile file(path(fileName));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        throw std::runtime_error(file.errorString().toStdString());
    return *this;
}

QString DatabaseFolder::path(QString const & fileName) const
{
    return folder.filePath(fileName);
}

QDir DatabaseFolder::dir() const
{
    QDir dir(folder.path());
    dir.setNameFilters({QStringLiteral("*.db3")});
    dir.setFilter(QDir::Files | QDir::Readable);
    return dir;
}

} // namespace kestrova::test
