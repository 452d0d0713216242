#include "check/check.h"

#include "core/qt5Conversions.h"

#include <QCryptographicHash>
#include <QSet>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::authoring {

namespace {

void checkDspRow(Inspected const & inspected, Table const & data, int row)
{
    QString const guid = data.text(row, "GUID");
    int const speaker = data.number(row, "SpeakerId") & 0xFFFF;
    QString const subject = QStringLiteral("%1, speaker %2").arg(guid).arg(speaker);
    if (!isGuidText(guid))
        inspected.report("guid-text", data, row, "GUID", subject,
                         QStringLiteral("\"%1\" is no GUID in upper case").arg(guid));
    else if (inspected.set.cache().connectionName(CDeviceGuid(guid)).isEmpty())
        inspected.report("dsp-unknown-device", data, row, "GUID", subject,
                         QStringLiteral("no database describes %1").arg(guid));
    if (!inspected.set.hasSpeaker(speaker))
        inspected.report("dsp-unknown-speaker", data, row, "SpeakerId", subject,
                         QStringLiteral("no database defines the speaker %1").arg(speaker));

    for (char const * const column :
         {"DeviceType", "SpeakerName", "SpeakerVersion", "BlobData", "BlobDataMD5"}) {
        if (qt5::toBytes(data.value(row, column)).isEmpty())
            inspected.report("dsp-incomplete", data, row, column, subject,
                             QStringLiteral("%1 is empty").arg(QLatin1String(column)));
    }
    QByteArray const bytes = qt5::toBytes(data.value(row, "BlobData"));
    QString const md5 = QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex());
    QString const stated = data.text(row, "BlobDataMD5");
    if (!bytes.isEmpty() && !stated.isEmpty() && stated.compare(md5, Qt::CaseInsensitive) != 0)
        inspected.report("dsp-md5", data, row, "BlobDataMD5", subject,
                         QStringLiteral("the MD5 of the data is %1").arg(md5));
}

} // namespace

void checkDspData(Inspected const & inspected)
{
    Table const & data = inspected.database.table("SpeakerData");
    QSet<QString> seen;
    for (int row = 0; row < data.rowCount(); ++row) {
        checkDspRow(inspected, data, row);
        QString const key = data.text(row, "GUID") + QLatin1Char('/') + data.text(row, "SpeakerId");
        if (seen.contains(key))
            inspected.report(
                "dsp-twice", data, row, "SpeakerId",
                QStringLiteral("%1, speaker %2").arg(data.text(row, "GUID"), data.text(row, "SpeakerId")),
                QStringLiteral("it stands in an earlier row already"));
        seen.insert(key);
    }
}

} // namespace kestrova::authoring
