#include "certificate.h"

#include "opensslpointer.h"
#include "signaturelimits.h"
#include "viewer/text/visibletext.h"

#include <openssl/err.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

namespace Viewer::Signature {

using Text::CErrorText;

static constexpr int NAME_LENGTH = 200;

static QString toText(const X509_NAME *name)
{
    const CBioPointer text(BIO_new(BIO_s_mem()));
    constexpr auto FORMAT = XN_FLAG_RFC2253 & ~static_cast<unsigned long>(ASN1_STRFLGS_ESC_MSB);
    if (!text || !name || X509_NAME_print_ex(text.get(), name, 0, FORMAT) < 0)
        return {};
    const char *data = nullptr;
    const long size = BIO_get_mem_data(text.get(), &data);
    return Text::shorten(QString::fromUtf8(data, static_cast<int>(size)), NAME_LENGTH);
}

CCertificate CCertificate::fromDer(const QByteArray &der)
{
    CCertificate certificate;
    const unsigned char *place = toUnsigned(der);
    x509_st *const read = d2i_X509(nullptr, &place, der.size());
    ERR_clear_error();
    certificate.m_certificate = {read, X509_free};
    return place == toUnsigned(der) + der.size() ? certificate : CCertificate();
}

QVector<CCertificate> CCertificate::fromPem(const QByteArray &pem)
{
    QVector<CCertificate> certificates;
    const CBioPointer reader = makeReader(pem);
    while (reader && certificates.size() < Limits::FILE_CERTIFICATES) {
        x509_st *const read = PEM_read_bio_X509(reader.get(), nullptr, nullptr, nullptr);
        if (!read)
            break;
        CCertificate certificate;
        certificate.m_certificate = {read, X509_free};
        certificates.append(certificate);
    }
    ERR_clear_error();
    return certificates;
}

CCertificate CCertificate::fromOpenSsl(x509_st *certificate)
{
    CCertificate result;
    if (certificate && X509_up_ref(certificate) == 1)
        result.m_certificate = {certificate, X509_free};
    return result;
}

bool CCertificate::isNull() const
{
    return !m_certificate;
}

QString CCertificate::getSubject() const
{
    return isNull() ? QString() : toText(X509_get_subject_name(get()));
}

QString CCertificate::getIssuer() const
{
    return isNull() ? QString() : toText(X509_get_issuer_name(get()));
}

QDateTime CCertificate::getValidFrom() const
{
    return isNull() ? QDateTime() : toDateTime(X509_get0_notBefore(get()));
}

QDateTime CCertificate::getValidTo() const
{
    return isNull() ? QDateTime() : toDateTime(X509_get0_notAfter(get()));
}

QString CCertificate::getFingerprint() const
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int size = 0;
    if (isNull() || X509_digest(get(), EVP_sha256(), digest, &size) != 1)
        return {};
    const QByteArray bytes(reinterpret_cast<const char *>(digest), static_cast<int>(size));
    return QString::fromLatin1(bytes.toHex(':').toUpper());
}

QByteArray CCertificate::toDer() const
{
    return encode(i2d_X509, get());
}

QByteArray CCertificate::toPem() const
{
    const CBioPointer text(BIO_new(BIO_s_mem()));
    if (isNull() || !text || PEM_write_bio_X509(text.get(), get()) != 1)
        return {};
    const char *data = nullptr;
    const long size = BIO_get_mem_data(text.get(), &data);
    return {data, static_cast<int>(size)};
}

CErrorText CCertificate::findKeyFault() const
{
    EVP_PKEY *const key = X509_get0_pubkey(get());
    const int kind = key ? EVP_PKEY_get_base_id(key) : EVP_PKEY_NONE;
    char curve[32] = {};
    switch (kind) {
    case EVP_PKEY_RSA:
        if (EVP_PKEY_get_bits(key) >= Limits::RSA_BITS)
            return {};
        return CErrorText::tr("its RSA key has %1 bits; at least %2 are needed")
            .arg(QString::number(EVP_PKEY_get_bits(key)), QString::number(Limits::RSA_BITS));
    case EVP_PKEY_EC:
        EVP_PKEY_get_group_name(key, curve, sizeof curve, nullptr);
        ERR_clear_error();
        if (qstrcmp(curve, SN_X9_62_prime256v1) == 0 || qstrcmp(curve, SN_secp384r1) == 0)
            return {};
        break;
    case EVP_PKEY_ED25519:
        return {};
    default:
        ERR_clear_error();
        break;
    }
    return CErrorText::tr("its key is of an unknown kind; known are RSA, EC P-256, EC P-384 and "
                          "Ed25519");
}

CErrorText CCertificate::findPurposeFault(EPurpose purpose, ERole role) const
{
    const bool isForCode = purpose == EPurpose::SigningCode;
    const quint32 wanted = isForCode ? XKU_CODE_SIGN : XKU_TIMESTAMP;
    const quint32 flags = X509_get_extension_flags(get());
    const quint32 purposes = X509_get_extended_key_usage(get());
    // An authority's certificate usually does not say for what it may issue others. Where it does,
    // that counts.
    const bool fits = role == ERole::Signer
        ? (flags & EXFLAG_XKUSAGE) && (purposes & wanted)
            && (!(flags & EXFLAG_KUSAGE) || (X509_get_key_usage(get()) & KU_DIGITAL_SIGNATURE))
        : !(flags & EXFLAG_XKUSAGE) || (purposes & (wanted | XKU_ANYEKU));
    if (fits)
        return {};
    return isForCode ? CErrorText::tr("it is not made for signing code")
                     : CErrorText::tr("it is not made for time stamps");
}

x509_st *CCertificate::get() const
{
    return m_certificate.get();
}

} // namespace Viewer::Signature
