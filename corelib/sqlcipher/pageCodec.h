#pragma once

#include "sqlcipher/pageFormat.h"

#include <QtGlobal>

#include <openssl/evp.h>

#include <memory>

namespace kestrova::sqlcipher {

/// Encrypts and decrypts the pages of one file.
class PageCodec {
public:
    PageCodec(PageFormat const & format, Key const & key, Salt const & fileSalt);

    PageFormat const & format() const { return format_; }

    /// Turns the page \a number (from 1) of a plain database into the page of an encrypted file, with an IV
    /// of its own. The plain database must reserve format().reserve bytes a page. False when OpenSSL fails.
    bool encrypt(quint32 number, unsigned char const * plain, unsigned char * stored);

    /// Turns a page of an encrypted file back into the page of a plain database, with zeros in the reserved
    /// bytes. False when the page is not authentic: damaged, of another place, or encrypted with another key
    /// or format.
    bool decrypt(quint32 number, unsigned char const * stored, unsigned char * plain);

private:
    template <auto Free>
    struct Deleter {
        template <typename Context>
        void operator()(Context * context) const
        {
            Free(context);
        }
    };

    using CipherContext = std::unique_ptr<EVP_CIPHER_CTX, Deleter<EVP_CIPHER_CTX_free>>;
    using MacContext = std::unique_ptr<EVP_MAC_CTX, Deleter<EVP_MAC_CTX_free>>;

    static CipherContext newCipher(Key const & key, bool encrypting);
    static MacContext newMac(PageFormat const & format, Key const & key, Salt const & salt);

    int cipherStart(quint32 number) const;
    int cipherEnd() const;
    bool computeMac(quint32 number, unsigned char const * stored, unsigned char * result);

    PageFormat const & format_;
    Salt salt;
    // Set up once for a file: for a page only IV and HMAC start afresh, which is what makes reading cheap.
    CipherContext encryptor;
    CipherContext decryptor;
    MacContext mac;
};

} // namespace kestrova::sqlcipher
