#include "byteReader.h"
#include "library.h"

#include "sqlcipher/bytes.h"
#include "sqlcipher/databaseKey.h"
#include "sqlcipher/pageCodec.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstring>

using namespace kestrova::sqlcipher;

// Any bytes as a plain database, or, encrypted with the right key and every HMAC in order, as an encrypted
// one: so the damage reaches SQLite.

namespace {

QByteArray encrypted(QByteArray plain, PageFormat const & format)
{
    Salt salt{};
    std::memset(salt.data(), 7, salt.size());
    plain.append(QByteArray((format.pageSize - plain.size() % format.pageSize) % format.pageSize, '\0'));
    // What the file says of itself has to agree with the format, or it would not even be tried.
    plain[16] = static_cast<char>(format.pageSize / 256);
    plain[17] = static_cast<char>(format.pageSize % 256);
    plain[20] = static_cast<char>(format.reserve);
    PageCodec codec(format, databaseKey, salt);
    QByteArray result(plain.size(), '\0');
    for (int offset = 0; offset < plain.size(); offset += format.pageSize)
        codec.encrypt(static_cast<quint32>(offset / format.pageSize + 1), bytesOf(plain) + offset,
                      reinterpret_cast<unsigned char *>(result.data()) + offset);
    return result;
}

void writeTo(QString const & path, QByteArray const & content)
{
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(content);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(quint8 const * data, std::size_t size)
{
    static QTemporaryDir const folder;
    if (size < 100)
        return 0;
    kestrova::fuzz::ByteReader reader(data, size);
    int const kind = reader.choice(3);
    QByteArray const bytes = reader.rest();
    QString const path = folder.filePath(QStringLiteral("a.db3"));
    writeTo(path, kind == 0 ? bytes : encrypted(bytes, pageFormats.at(static_cast<std::size_t>(kind - 1))));
    kestrova::fuzz::askEverything(folder.path(), {QStringLiteral("Gain"), QStringLiteral("Config_Filter1")},
                                  {QStringLiteral("C7000012"), QStringLiteral("C7000505")}, 255);
    return 0;
}
