#include "sqlcipher/otherSettings.h"

#include "sqlcipher/bytes.h"
#include "sqlcipher/databaseHeader.h"
#include "sqlcipher/pageCodec.h"

#include <QStringList>
#include <QtEndian>

#include <openssl/evp.h>

#include <algorithm>
#include <optional>

namespace kestrova::sqlcipher {

namespace {

constexpr int smallestPageSizeOfAnySettings = 512;
constexpr int plainHeaderSize = 32;

struct Digest {
    char const * name;
    int size;
    int reserve; ///< bytes that IV and HMAC take at the end of a page, in whole blocks of the cipher
};

constexpr Digest digests[] = {
    {"SHA512", 64, 80},
    {"SHA256", 32, 48},
    {"SHA1", 20, 48},
};

QString pageSizeSetting(int pageSize)
{
    return QStringLiteral("cipher_page_size = %1").arg(pageSize);
}

QString hmacSetting(char const * digest)
{
    return QStringLiteral("cipher_hmac_algorithm = HMAC_%1").arg(QLatin1String(digest));
}

QString noHmacSetting()
{
    return QStringLiteral("cipher_use_hmac = OFF");
}

/// \a count bytes of page 1 from \a from on; \a reserve bytes before the end of the page lies the IV.
QByteArray decrypted(QByteArray const & page, int from, int count, int reserve, Key const & key)
{
    QByteArray plain(count, '\0');
    EVP_CIPHER_CTX * const context = EVP_CIPHER_CTX_new();
    int written = 0;
    bool const isDone = EVP_CipherInit_ex(context, EVP_aes_256_cbc(), nullptr, key.data(),
                                          bytesOf(page) + page.size() - reserve, 0) == 1 &&
                        EVP_CIPHER_CTX_set_padding(context, 0) == 1 &&
                        EVP_CipherUpdate(context, reinterpret_cast<unsigned char *>(plain.data()), &written,
                                         bytesOf(page) + from, count) == 1;
    EVP_CIPHER_CTX_free(context);
    return isDone ? plain : QByteArray();
}

/// The header of page 1, of which \a plainBytes are not encrypted, if it makes sense all over: nothing else
/// shows that it was decrypted rightly.
std::optional<DatabaseHeader> headerWithoutHmac(QByteArray const & page, int plainBytes, int reserve,
                                                Key const & key)
{
    constexpr int wholeBlocks = 112; // that hold the header
    QByteArray header =
        QByteArray(reinterpret_cast<char const *>(databaseMagic.data()), databaseMagic.size());
    header += page.mid(saltSize, plainBytes - saltSize);
    header += decrypted(page, plainBytes, wholeBlocks - plainBytes, reserve, key);
    constexpr int payloadFractionsOffset = 21;
    constexpr int schemaFormatOffset = 44;
    constexpr int zerosOffset = 72;
    constexpr int zeros = 20;
    constexpr quint32 newestSchemaFormat = 4;
    if (header.size() != wholeBlocks ||
        header.mid(payloadFractionsOffset, 3) != QByteArray::fromHex("402020") ||
        qFromBigEndian<quint32>(header.constData() + schemaFormatOffset) > newestSchemaFormat ||
        header.mid(zerosOffset, zeros) != QByteArray(zeros, '\0'))
        return {};
    return readDatabaseHeader(bytesOf(header));
}

bool fits(std::optional<DatabaseHeader> const & header, int pageSize, int reserve)
{
    return header && header->pageSize == pageSize && header->reserve >= reserve;
}

bool isAuthentic(QByteArray const & page, PageFormat const & format, Key const & key)
{
    Salt salt;
    std::copy_n(bytesOf(page), saltSize, salt.begin());
    QByteArray plain(format.pageSize, '\0');
    return PageCodec(format, key, salt)
               .decrypt(1, bytesOf(page), reinterpret_cast<unsigned char *>(plain.data())) &&
           fits(readDatabaseHeader(bytesOf(plain)), format.pageSize, format.reserve);
}

QStringList settingsWithHmac(QByteArray const & page, Key const & key)
{
    auto const pageSize = static_cast<int>(page.size());
    for (Digest const & hmac : digests) {
        for (Digest const & derivation : digests) {
            PageFormat const format{0, pageSize, hmac.reserve, hmac.size, hmac.name, derivation.name};
            if (isAuthentic(page, format, key))
                return {pageSizeSetting(pageSize), hmacSetting(hmac.name),
                        QStringLiteral("cipher_kdf_algorithm = PBKDF2_HMAC_%1")
                            .arg(QLatin1String(derivation.name))};
        }
    }
    return {};
}

QStringList settingsWithoutHmac(QByteArray const & page, Key const & key)
{
    auto const pageSize = static_cast<int>(page.size());
    if (!fits(headerWithoutHmac(page, saltSize, ivSize, key), pageSize, ivSize))
        return {};
    return {pageSizeSetting(pageSize), noHmacSetting()};
}

/// Where the IV lies says how long the HMAC behind it is.
QStringList settingsOfPlainHeader(QByteArray const & page, Key const & key)
{
    struct Row {
        int reserve;
        QString hmac;
    };

    Row const rows[] = {
        {80, hmacSetting("SHA512")},
        {48, QStringLiteral("cipher_hmac_algorithm = HMAC_SHA256 or HMAC_SHA1")},
        {ivSize, noHmacSetting()},
    };
    auto const pageSize = static_cast<int>(page.size());
    for (Row const & row : rows) {
        if (fits(headerWithoutHmac(page, plainHeaderSize, row.reserve, key), pageSize, row.reserve))
            return {QStringLiteral("cipher_plaintext_header_size = 32 (the salt is not in the file)"),
                    pageSizeSetting(pageSize), row.hmac};
    }
    return {};
}

} // namespace

QString otherSettings(QByteArray const & start, Key const & key)
{
    for (int pageSize = smallestPageSizeOfAnySettings;
         pageSize <= std::min(static_cast<int>(start.size()), largestPageSizeOfAnySettings); pageSize *= 2) {
        QByteArray const page = start.left(pageSize);
        for (auto const settingsOf : {settingsWithHmac, settingsWithoutHmac, settingsOfPlainHeader}) {
            QStringList const settings = settingsOf(page, key);
            if (!settings.isEmpty())
                return settings.join(QLatin1String(", "));
        }
    }
    return {};
}

} // namespace kestrova::sqlcipher
