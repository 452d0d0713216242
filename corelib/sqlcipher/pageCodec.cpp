#include "sqlcipher/pageCodec.h"

#include "sqlcipher/databaseHeader.h"

#include <openssl/core_names.h>
#include <openssl/crypto.h>
#include <openssl/params.h>
#include <openssl/rand.h>

#include <QtEndian>

#include <algorithm>

namespace kestrova::sqlcipher {

PageCodec::PageCodec(PageFormat const & format, Key const & key, Salt const & fileSalt)
    : format_(format)
    , salt(fileSalt)
    , encryptor(newCipher(key, true))
    , decryptor(newCipher(key, false))
    , mac(newMac(format, key, fileSalt))
{}

bool PageCodec::encrypt(quint32 number, unsigned char const * plain, unsigned char * stored)
{
    int const start = cipherStart(number);
    unsigned char * const iv = stored + cipherEnd();
    int written = 0;
    std::fill_n(iv, format_.reserve, static_cast<unsigned char>(0));
    if (number == 1)
        std::copy(salt.begin(), salt.end(), stored);
    return encryptor && RAND_bytes(iv, ivSize) == 1 &&
           EVP_CipherInit_ex(encryptor.get(), nullptr, nullptr, nullptr, iv, -1) == 1 &&
           EVP_CipherUpdate(encryptor.get(), stored + start, &written, plain + start, cipherEnd() - start) ==
               1 &&
           computeMac(number, stored, iv + ivSize);
}

bool PageCodec::decrypt(quint32 number, unsigned char const * stored, unsigned char * plain)
{
    int const start = cipherStart(number);
    unsigned char const * const iv = stored + cipherEnd();
    unsigned char expectedMac[EVP_MAX_MD_SIZE];
    if (!decryptor || !computeMac(number, stored, expectedMac) ||
        CRYPTO_memcmp(expectedMac, iv + ivSize, static_cast<std::size_t>(format_.macSize)) != 0)
        return false;

    int written = 0;
    std::fill_n(plain + cipherEnd(), format_.reserve, static_cast<unsigned char>(0));
    if (number == 1)
        std::copy(databaseMagic.begin(), databaseMagic.end(), plain);
    return EVP_CipherInit_ex(decryptor.get(), nullptr, nullptr, nullptr, iv, -1) == 1 &&
           EVP_CipherUpdate(decryptor.get(), plain + start, &written, stored + start, cipherEnd() - start) ==
               1;
}

PageCodec::CipherContext PageCodec::newCipher(Key const & key, bool encrypting)
{
    CipherContext context(EVP_CIPHER_CTX_new());
    if (!context ||
        EVP_CipherInit_ex(context.get(), EVP_aes_256_cbc(), nullptr, key.data(), nullptr,
                          encrypting ? 1 : 0) != 1 ||
        EVP_CIPHER_CTX_set_padding(context.get(), 0) != 1)
        return nullptr;
    return context;
}

PageCodec::MacContext PageCodec::newMac(PageFormat const & format, Key const & key, Salt const & salt)
{
    Salt macSalt = salt;
    for (unsigned char & byte : macSalt)
        byte ^= 0x3a;
    constexpr int iterations = 2; // the key is no password: it has its 256 bits of entropy already
    Key macKey;
    if (PKCS5_PBKDF2_HMAC(reinterpret_cast<char const *>(key.data()), keySize, macSalt.data(), saltSize,
                          iterations, EVP_get_digestbyname(format.keyDigest), keySize, macKey.data()) != 1)
        return nullptr;

    std::unique_ptr<EVP_MAC, Deleter<EVP_MAC_free>> const hmac(
        EVP_MAC_fetch(nullptr, OSSL_MAC_NAME_HMAC, nullptr));
    MacContext context(hmac ? EVP_MAC_CTX_new(hmac.get()) : nullptr);
    OSSL_PARAM const parameters[] = {
        OSSL_PARAM_construct_utf8_string(OSSL_MAC_PARAM_DIGEST, const_cast<char *>(format.digest), 0),
        OSSL_PARAM_construct_end(),
    };
    if (!context || EVP_MAC_init(context.get(), macKey.data(), macKey.size(), parameters) != 1)
        return nullptr;
    return context;
}

int PageCodec::cipherStart(quint32 number) const
{
    return number == 1 ? saltSize : 0;
}

int PageCodec::cipherEnd() const
{
    return format_.pageSize - format_.reserve;
}

/// The HMAC covers ciphertext, IV and page number, so that no page passes in another's place.
bool PageCodec::computeMac(quint32 number, unsigned char const * stored, unsigned char * result)
{
    int const start = cipherStart(number);
    auto const covered = static_cast<std::size_t>(cipherEnd() + ivSize - start);
    quint32 const littleEndianNumber = qToLittleEndian(number);
    std::size_t written = 0;
    return mac && EVP_MAC_init(mac.get(), nullptr, 0, nullptr) == 1 &&
           EVP_MAC_update(mac.get(), stored + start, covered) == 1 &&
           EVP_MAC_update(mac.get(), reinterpret_cast<unsigned char const *>(&littleEndianNumber),
                          sizeof littleEndianNumber) == 1 &&
           EVP_MAC_final(mac.get(), result, &written, static_cast<std::size_t>(format_.macSize)) == 1;
}

} // namespace kestrova::sqlcipher
