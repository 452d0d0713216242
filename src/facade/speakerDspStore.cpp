#include "facade/devicelore.h"

#include "cache/databaseAccess.h"
#include "core/qt5Conversions.h"

#include <QCoreApplication>
#include <QDir>
#include <QMessageLogger>
#include <QVariant>

namespace kestrova::Morvel::Devicelore {

namespace {

QString const connectionOfDspData = QStringLiteral("DspDataDatabase");

SpeakerDspData dataOfRow(QSqlQuery const & row, CDeviceGuid const & guid, unsigned short speakerId)
{
    SpeakerDspData data;
    data.SetDeviceType(qt5::toText(row.value(0)));
    data.SetSpeakerName(qt5::toText(row.value(1)));
    data.SetSpeakerSetupVersion(qt5::toText(row.value(2)));
    data.SetSpeakerDspData(qt5::toBytes(row.value(3)));
    data.SetMd5(qt5::toText(row.value(4)));
    data.SetSpeakerId(speakerId);
    data.SetDeviceGuid(guid);
    return data;
}

/// All handles of the connection are gone when it returns, as closing the connection demands.
SpeakerDspData readSpeakerData(CDeviceGuid const & guid, unsigned short speakerId)
{
    QString const guidText = guid.toString().toUpper();
    QSqlQuery rows = preparedQuery(
        openConnection(connectionOfDspData),
        QStringLiteral("SELECT DeviceType, SpeakerName, SpeakerVersion, BlobData, BlobDataMD5 FROM "
                       "SpeakerData WHERE GUID = ? AND SpeakerId = ?"));
    rows.bindValue(0, guidText, QSql::In);
    rows.bindValue(1, int(speakerId), QSql::In);
    rows.exec();
    if (rows.next())
        return dataOfRow(rows, guid, speakerId);
    QMessageLogger(nullptr, 0, nullptr)
        .warning("Entry not found for device guid = %s and speaker id = %d", guidText.toLatin1().constData(),
                 int(speakerId));
    return SpeakerDspData();
}

} // namespace

SpeakerDspData CDevicelore::GetConfigSpeakerData(CDeviceGuid const & guid, unsigned short speakerId)
{
    if (!OpenDspDataDatabase(connectionOfDspData))
        return SpeakerDspData();
    SpeakerDspData data = readSpeakerData(guid, speakerId);
    CloseDspDataDatabase(connectionOfDspData);
    return data;
}

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
    list.append(databaseInfoOf(openConnection(connectionOfDspData)));
    CloseDspDataDatabase(connectionOfDspData);
}

} // namespace kestrova::Morvel::Devicelore
