#include "folderSnapshot.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>

namespace kestrova::test {

namespace {

QString hashOf(QFileInfo const & entry)
{
    QFile file(entry.filePath());
    if (!entry.isFile() || !file.open(QIODevice::ReadOnly))
        return QStringLiteral("-");
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(file.readAll());
    return QString::fromLatin1(hash.result().toHex());
}

} // namespace

std::string snapshotOf(QString const & folder)
{
    QStringList lines;
    auto const filters = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    auto const entries = QDir(folder).entryInfoList(filters, QDir::Name);
    for (QFileInfo const & entry : entries)
        lines += QStringList({entry.fileName(), QString::number(entry.size()),
                              QString::number(entry.lastModified().toMSecsSinceEpoch()), hashOf(entry)})
                     .join(QLatin1Char(' '));
    return lines.join(QLatin1Char('\n')).toStdString();
}

} // namespace kestrova::test
