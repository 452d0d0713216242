#include "facade/devicelore.h"

#include "cache/databaseAccess.h"

#include <QCoreApplication>
#include <QDir>

namespace kestrova::Morvel::Devicelore {

namespace {

QString const connectionOfDspData = QStringLiteral("DspDataDatabase");

} // namespace

QString CDevicelore::GetDspDataDatabasePath() const
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/DspData"));
}

bool CDevicelore::OpenDspDataDatabase(QString const & connectionName) const
{
    QString const path = QDir::cleanPath(GetDspDataDatabasePath() + QStringLiteral("/DspData.sqlite"));
    return OpenEncryptedSqliteDatabase(path, connectionName);
}

void CDevicelore::CloseDspDataDatabase(QString const & connectionName) const
{
    {
        QSqlDatabase db = QSqlDatabase::database(connectionName, false);
        if (db.isOpen())
            db.close();
    } // the handle must be gone before the connection can be removed
    QSqlDatabase::removeDatabase(connectionName);
}

void CDevicelore::GetDspDataDatabaseInfos(QList<CDriverDatabaseInfo> & list) const
{
    if (!OpenDspDataDatabase(connectionOfDspData))
        return;
    list.append(databaseInfoOf(connectionOfDspData));
    CloseDspDataDatabase(connectionOfDspData);
}

} // namespace kestrova::Morvel::Devicelore
