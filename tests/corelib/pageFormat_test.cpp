#include "connectionFixture.h"
#include "sampleDatabase.h"

#include "sqlcipher/bytes.h"
#include "sqlcipher/databaseFile.h"
#include "sqlcipher/pageCodec.h"

#include <openssl/evp.h>
#include <openssl/hmac.h>

#include <QFile>
#include <QSqlDatabase>

#include <algorithm>

namespace kestrova::test {

namespace {

/// Version 4 of the page format once more, from its published description and with OpenSSL's one-shot calls:
/// what the library reads and writes is held against this.
class Version4Pages {
public:
    explicit Version4Pages(QByteArray const & salt)
    {
        QByteArray macSalt = salt;
        for (char & byte : macSalt)
            byte = static_cast<char>(byte ^ 0x3a);
        PKCS5_PBKDF2_HMAC(reinterpret_cast<char const *>(sqlcipher::databaseKey.data()), 32, bytes(macSalt),
                          16, 2, EVP_sha512(), 32, macKey);
    }

    /// The numbers of the sample's pages fit into two bytes.
    QByteArray mac(QByteArray const & cipherTextAndIv, int number) const
    {
        QByteArray const covered = cipherTextAndIv + QByteArray(1, char(number & 0xFF)) +
                                   QByteArray(1, char(number >> 8)) + QByteArray(2, '\0');
        QByteArray result(64, '\0');
        HMAC(EVP_sha512(), macKey, 32, bytes(covered), static_cast<std::size_t>(covered.size()),
             reinterpret_cast<unsigned char *>(result.data()), nullptr);
        return result;
    }

    static QByteArray crypt(QByteArray const & text, QByteArray const & iv, bool encrypting)
    {
        QByteArray result(text.size(), '\0');
        int written = 0;
        EVP_CIPHER_CTX * const context = EVP_CIPHER_CTX_new();
        EVP_CipherInit_ex(context, EVP_aes_256_cbc(), nullptr, sqlcipher::databaseKey.data(), bytes(iv),
                          encrypting);
        EVP_CIPHER_CTX_set_padding(context, 0);
        EVP_CipherUpdate(context, reinterpret_cast<unsigned char *>(result.data()), &written, bytes(text),
                         static_cast<int>(text.size()));
        EVP_CIPHER_CTX_free(context);
        return result;
    }

private:
    static unsigned char const * bytes(QByteArray const & array)
    {
        return reinterpret_cast<unsigned char const *>(array.constData());
    }

    unsigned char macKey[32];
};

class Version4Format : public ConnectionFixture {
protected:
    QString const encrypted = path(QStringLiteral("sample.db3"));
    QString const plain = path(QStringLiteral("plain.sqlite"));
};

TEST_F(Version4Format, IsWrittenAsPublished)
{
    makeEncryptedSample(encrypted);
    QByteArray const content = contentOf(encrypted);
    Version4Pages const pages(content.left(16));
    QByteArray decrypted;
    ASSERT_EQ(content.size() % 4096, 0);
    for (int number = 1; number <= content.size() / 4096; ++number) {
        QByteArray const page = content.mid((number - 1) * 4096, 4096);
        int const start = number == 1 ? 16 : 0;
        QByteArray const iv = page.mid(4016, 16);
        ASSERT_EQ(page.mid(4032, 64), pages.mac(page.mid(start, 4032 - start), number)) << "page " << number;
        decrypted += (number == 1 ? QByteArray("SQLite format 3\0", 16) : QByteArray()) +
                     Version4Pages::crypt(page.mid(start, 4016 - start), iv, false) + QByteArray(80, '\0');
    }
    EXPECT_EQ(decrypted.mid(16, 2).toHex().toStdString(), "1000"); // page size
    EXPECT_EQ(decrypted.mid(20, 1).toHex().toStdString(), "50");   // reserved bytes

    writeContent(plain, decrypted);
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("test"));
    database.setDatabaseName(plain);
    ASSERT_TRUE(database.open());
    EXPECT_EQ(ask(QStringLiteral("PRAGMA integrity_check")), "ok");
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*), sum(id) FROM Names WHERE name = 'name of ' || id")),
              "3000|4501500");
}

TEST_F(Version4Format, TakesASaltAndIvsOfItsOwnForEachFileAndPage)
{
    makeEncryptedSample(encrypted);
    QByteArray const first = contentOf(encrypted);
    makeEncryptedSample(encrypted);
    QByteArray const second = contentOf(encrypted);
    EXPECT_NE(first.left(16), second.left(16));
    EXPECT_NE(first.mid(4016, 16), second.mid(4016, 16));
    EXPECT_NE(first.mid(4016, 16), first.mid(8112, 16));
    EXPECT_FALSE(first.contains("name of"));
    EXPECT_FALSE(first.contains("CREATE TABLE"));
}

TEST_F(Version4Format, IsReadAsPublished)
{
    makeReservedSample(plain, 4096, 80);
    QByteArray const content = contentOf(plain);
    QByteArray const salt("0123456789abcdef");
    Version4Pages const pages(salt);
    QByteArray file;
    for (int number = 1; number <= content.size() / 4096; ++number) {
        QByteArray const iv(16, char(number));
        int const start = number == 1 ? 16 : 0;
        QByteArray const text = content.mid((number - 1) * 4096 + start, 4016 - start);
        QByteArray const covered = Version4Pages::crypt(text, iv, true) + iv;
        file += (number == 1 ? salt : QByteArray()) + covered + pages.mac(covered, number);
    }
    writeContent(encrypted, file);
    ASSERT_TRUE(open(encrypted));
    EXPECT_EQ(ask(QStringLiteral("PRAGMA integrity_check")), "ok");
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*), sum(id) FROM Names WHERE name = 'name of ' || id")),
              "3000|4501500");
}

TEST_F(Version4Format, IsDecryptedWithZerosInTheReservedBytesWhateverTheBufferHeld)
{
    makeReservedSample(plain, 4096, 80);
    encryptPages(encrypted, contentOf(plain), sqlcipher::version4);
    QByteArray const stored = contentOf(encrypted);
    sqlcipher::Salt salt;
    std::copy_n(stored.constBegin(), salt.size(), salt.begin());
    sqlcipher::PageCodec codec(sqlcipher::version4, sqlcipher::databaseKey, salt);
    for (int number : {1, 2}) {
        SCOPED_TRACE(number);
        QByteArray const storedPage = stored.mid((number - 1) * 4096, 4096);
        QByteArray page(4096, '\xFF');
        ASSERT_TRUE(codec.decrypt(static_cast<quint32>(number), sqlcipher::bytesOf(storedPage),
                                  reinterpret_cast<unsigned char *>(page.data())));
        EXPECT_EQ(page.left(4016), contentOf(plain).mid((number - 1) * 4096, 4016));
        EXPECT_EQ(page.mid(4016), QByteArray(80, '\0'));
    }
}

} // namespace

} // namespace kestrova::test
