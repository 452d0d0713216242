#include "inspector.h"

#include "common/failure.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSqlDatabase>

using namespace kestrova::Morvel::Devicelore;
using namespace kestrova::tools;

namespace kestrova::inspector {

namespace {

/// A folder seen as the library sees the application's own.
QDir databaseFolder(QString const & path)
{
    QDir folder(path);
    folder.setNameFilters({QStringLiteral("*.db3")});
    folder.setFilter(QDir::Files | QDir::Readable);
    return folder;
}

/// The library says that a folder did not open, not which of its files.
QString firstUnreadableFile(QDir const & folder)
{
    QString const connectionName = QStringLiteral("devicelore-inspector-probe");
    for (QFileInfo const & file : folder.entryInfoList()) {
        if (!OpenEncryptedSqliteDatabase(file.absoluteFilePath(), connectionName))
            return file.absoluteFilePath();
        QSqlDatabase::removeDatabase(connectionName);
    }
    return folder.absolutePath();
}

Failure openFailure(QDir const & folder)
{
    QString const file = firstUnreadableFile(folder);
    return {ExitDatabase, QStringLiteral("cannot open the database '%1'; unless a message above tells why, "
                                         "`devicelore-db info '%1'` does")
                              .arg(file)};
}

} // namespace

Inspector::Inspector(QStringList const & databaseFolders, unsigned char accessLevel)
    : ownedByLibrary(new InspectorCache)
    , library(std::make_unique<CDevicelore>(QPointer<CDriverCache>(ownedByLibrary), nullptr))
{
    QDir const ownFolder = databaseFolder(QCoreApplication::applicationDirPath());
    rememberFiles(ownFolder);
    QList<CDriverDatabaseInfo> open;
    ownedByLibrary->databaseInfos(open);
    if (open.size() != fileNames.size())
        throw openFailure(ownFolder);

    for (QString const & folder : databaseFolders)
        openFolder(folder);
    if (fileNames.isEmpty())
        throw Failure(ExitDatabase,
                      QStringLiteral("there are no databases (*.db3) in '%1'; name a folder with "
                                     "--databases DIR")
                          .arg(ownFolder.absolutePath()));
    library->setDeviceAccessLevel(accessLevel);
}

void Inspector::openFolder(QString const & path)
{
    QDir const folder = databaseFolder(path);
    if (!folder.exists())
        throw Failure(ExitDatabase, QStringLiteral("there is no folder '%1'").arg(path));
    rememberFiles(folder);
    int const opened = ownedByLibrary->openDatabases(folder);
    if (opened == 0)
        throw Failure(ExitDatabase,
                      QStringLiteral("there are no readable databases (*.db3) in '%1'").arg(path));
    if (opened < 0)
        throw openFailure(folder);
}

void Inspector::rememberFiles(QDir const & folder)
{
    for (QString const & name : folder.entryList()) {
        if (fileNames.contains(name))
            throw Failure(ExitDatabase,
                          QStringLiteral("two of the databases are named '%1', and a name can be open "
                                         "only once; rename the one in '%2'")
                              .arg(name, folder.absolutePath()));
        fileNames.append(name);
    }
}

} // namespace kestrova::inspector
