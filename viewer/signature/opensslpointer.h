#pragma once

#include <QByteArray>
#include <QDateTime>

#include <openssl/bio.h>
#include <openssl/evp.h>
#include <openssl/x509.h>

#include <memory>

namespace Viewer::Signature {

template <auto Free>
struct COpenSslDeleter
{
    template <typename T>
    void operator()(T *object) const
    {
        Free(object);
    }
};

using CBioPointer = std::unique_ptr<BIO, COpenSslDeleter<BIO_free>>;
using CKeyPointer = std::unique_ptr<EVP_PKEY, COpenSslDeleter<EVP_PKEY_free>>;
using CDigestPointer = std::unique_ptr<EVP_MD_CTX, COpenSslDeleter<EVP_MD_CTX_free>>;

/// Reads from @p bytes, which have to outlive it; at most 2 GiB, as all byte arrays.
inline CBioPointer makeReader(const QByteArray &bytes)
{
    return CBioPointer(BIO_new_mem_buf(bytes.constData(), bytes.size()));
}

inline const unsigned char *toUnsigned(const QByteArray &bytes)
{
    return reinterpret_cast<const unsigned char *>(bytes.constData());
}

/// What an i2d function of OpenSSL makes of @p object; empty: nothing.
template <typename Encoder, typename T>
QByteArray encode(Encoder encoder, const T *object)
{
    unsigned char *data = nullptr;
    const int size = encoder(object, &data);
    const QByteArray bytes(reinterpret_cast<const char *>(data), size > 0 ? size : 0);
    OPENSSL_free(data);
    return bytes;
}

/// UTC, in whole seconds; null: it is none.
inline QDateTime toDateTime(const ASN1_TIME *time)
{
    tm parts = {};
    if (!time || ASN1_TIME_to_tm(time, &parts) != 1)
        return {};
    return {QDate(parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday),
            QTime(parts.tm_hour, parts.tm_min, parts.tm_sec), Qt::UTC};
}

} // namespace Viewer::Signature
