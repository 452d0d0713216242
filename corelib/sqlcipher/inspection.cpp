#include "sqlcipher/inspection.h"

#include "sqlcipher/bytes.h"
#include "sqlcipher/firstPage.h"
#include "sqlcipher/otherSettings.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <bitset>

namespace kestrova::sqlcipher {

namespace {

Inspection finding(FileState state, QString const & message)
{
    Inspection result{};
    result.state = state;
    result.message = message;
    return result;
}

Inspection damaged(QFile const & file, qint64 page)
{
    Inspection result =
        finding(FileState::DamagedPage, QStringLiteral("%1 is damaged in page %2; make it anew.")
                                            .arg(file.fileName(), QString::number(page)));
    result.damagedPage = page;
    return result;
}

Inspection unreadable(QFile const & file)
{
    return finding(FileState::Unreadable, QStringLiteral("%1 cannot be read (%2); check its permissions.")
                                              .arg(file.fileName(), file.errorString()));
}

/// Whether the page \a number is authentic; nothing when it cannot be read.
std::optional<bool> isPageAuthentic(QFile & file, quint32 number, PageCodec & codec)
{
    int const pageSize = codec.format().pageSize;
    std::array<unsigned char, largestPageSize> plain;
    if (!file.seek(qint64(number - 1) * pageSize))
        return {};
    QByteArray const stored = file.read(pageSize);
    if (stored.size() != pageSize)
        return {};
    return codec.decrypt(number, bytesOf(stored), plain.data());
}

/// 1024 encrypted bytes show about 251 of the 256 values, and never as few as 200; text and tables show far
/// fewer.
bool looksEncrypted(QByteArray const & start)
{
    std::bitset<256> seen;
    for (char const byte : start)
        seen.set(static_cast<unsigned char>(byte));
    return start.size() >= smallestPageSize && seen.count() >= 200;
}

/// The version in which page 2 opens with \a key, 0 if it opens in none.
int versionOfSecondPage(QFile & file, QByteArray const & start, Key const & key)
{
    if (start.size() < smallestPageSize)
        return 0;
    Salt salt;
    std::copy_n(bytesOf(start), saltSize, salt.begin());
    for (PageFormat const & format : pageFormats) {
        PageCodec codec(format, key, salt);
        if (isPageAuthentic(file, 2, codec).value_or(false))
            return format.version;
    }
    return 0;
}

Inspection inspectWithoutFirstPage(QFile & file, QByteArray const & start, Key const & key)
{
    if (int const version = versionOfSecondPage(file, start, key)) {
        Inspection result = damaged(file, 1);
        result.version = version;
        return result;
    }
    if (!looksEncrypted(start))
        return finding(FileState::NotADatabase,
                       QStringLiteral("%1 is not a database, neither plain nor encrypted; check the path.")
                           .arg(file.fileName()));
    if (file.size() % smallestPageSize != 0)
        return finding(
            FileState::CutShort,
            QStringLiteral("%1 is cut short: its %2 bytes are no whole number of pages; copy it again.")
                .arg(file.fileName(), QString::number(file.size())));
    return finding(
        FileState::WrongKey,
        QStringLiteral("%1 does not open with the key of this build; encrypt it with that key, or check "
                       "that it is a database at all.")
            .arg(file.fileName()));
}

QString otherSettingsOf(QFile & file, Key const & key)
{
    return file.seek(0) ? otherSettings(file.read(largestPageSizeOfAnySettings), key) : QString();
}

Inspection inspectPages(QFile & file, FirstPage const & firstPage, Progress const & progress)
{
    qint64 const pageCount = firstPage.header.pageCount(file.size());
    for (qint64 number = 1; number <= pageCount; ++number) {
        auto const authentic = isPageAuthentic(file, static_cast<quint32>(number), *firstPage.codec);
        if (!authentic)
            return unreadable(file);
        if (!*authentic)
            return damaged(file, number);
        if (progress)
            progress(number, pageCount);
    }
    return finding(FileState::Encrypted, QStringLiteral("%1 is an encrypted database.").arg(file.fileName()));
}

Inspection inspectLayout(QFile & file, FirstPage const & firstPage, Progress const & progress)
{
    if (firstPage.header.isCutShort(file.size()))
        return finding(
            FileState::CutShort,
            QStringLiteral("%1 is cut short: %2 bytes instead of %3; copy it again.")
                .arg(file.fileName(), QString::number(file.size()),
                     QString::number(firstPage.header.pageCount(file.size()) * firstPage.header.pageSize)));
    if (!firstPage.codec)
        return finding(FileState::Plain, QStringLiteral("%1 is a plain database.").arg(file.fileName()));
    return inspectPages(file, firstPage, progress);
}

} // namespace

Inspection inspectDatabase(QString const & path, Key const & key, Progress const & progress)
{
    QFileInfo const info(path);
    if (!info.exists())
        return finding(FileState::Missing, QStringLiteral("%1 does not exist; check the path.").arg(path));
    // Opening a pipe would wait for a writer, perhaps for ever.
    if (!info.isFile())
        return finding(FileState::NotAFile,
                       QStringLiteral("%1 is no regular file; name a database file.").arg(path));

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return unreadable(file);
    if (file.size() == 0)
        return finding(FileState::Empty, QStringLiteral("%1 is empty; make it anew.").arg(path));
    QByteArray const start = file.read(largestPageSize);
    if (start.isEmpty())
        return unreadable(file);
    auto const firstPage = readFirstPage(bytesOf(start), start.size(), key);
    if (!firstPage || !firstPage->codec) {
        QString const settings = otherSettingsOf(file, key);
        if (!settings.isEmpty())
            return finding(FileState::OtherSettings,
                           QStringLiteral("%1 opens with the key of this build, but with settings of "
                                          "SQLCipher that are not supported: %2; export it anew with the "
                                          "default settings of version 4 or 3.")
                               .arg(path, settings));
    }
    if (!firstPage)
        return inspectWithoutFirstPage(file, start, key);
    Inspection result = inspectLayout(file, *firstPage, progress);
    result.version = firstPage->codec ? firstPage->codec->format().version : 0;
    result.reserve = firstPage->header.reserve;
    result.pageCount = firstPage->header.pageCount(file.size());
    return result;
}

} // namespace kestrova::sqlcipher
