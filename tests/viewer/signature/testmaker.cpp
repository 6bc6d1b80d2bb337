#include "testmaker.h"

#include "viewer/signature/timestamp.h"

#include <QFile>

#include <openssl/cms.h>
#include <openssl/err.h>
#include <openssl/pem.h>
#include <openssl/ts.h>
#include <openssl/x509v3.h>

namespace TestSupport {

static void require(bool condition, const char *what)
{
    if (!condition) {
        ERR_print_errors_fp(stderr);
        qFatal("The test's maker cannot be made: %s", what);
    }
}

template <typename Write>
static QByteArray collect(Write write)
{
    BIO *const bio = BIO_new(BIO_s_mem());
    require(write(bio) == 1, "write");
    char *data = nullptr;
    const long size = BIO_get_mem_data(bio, &data);
    const QByteArray bytes(data, static_cast<int>(size));
    BIO_free(bio);
    return bytes;
}

static EVP_PKEY *makeKey(const QByteArray &kind)
{
    if (kind.startsWith("RSA"))
        return EVP_RSA_gen(kind.mid(3).toUInt());
    if (kind == "Ed25519")
        return EVP_PKEY_Q_keygen(nullptr, nullptr, "ED25519");
    return EVP_EC_gen(kind.constData());
}

static void addExtension(X509 *certificate, int nid, const QByteArray &value)
{
    X509V3_CTX context;
    X509V3_set_ctx(&context, certificate, certificate, nullptr, nullptr, 0);
    X509_EXTENSION *const extension
        = X509V3_EXT_conf_nid(nullptr, &context, nid, value.constData());
    require(extension && X509_add_ext(certificate, extension, -1) == 1, "extension");
    X509_EXTENSION_free(extension);
}

static const EVP_MD *getDigest(const EVP_PKEY *key)
{
    return EVP_PKEY_get_base_id(key) == EVP_PKEY_ED25519 ? nullptr : EVP_sha256();
}

CTestMaker::CTestMaker(const QByteArray &name)
    : CTestMaker(name, COptions())
{
}

CTestMaker::CTestMaker(const QByteArray &name, const COptions &options)
    : m_key(options.sameAs ? options.sameAs->m_key
                           : std::shared_ptr<evp_pkey_st>(makeKey(options.key), EVP_PKEY_free))
    , m_certificate(X509_new(), X509_free)
{
    static long number = 0;
    X509 *const certificate = m_certificate.get();
    const CTestMaker &issuer = options.issuer ? *options.issuer : *this;
    require(m_key != nullptr, "key");
    X509_set_version(certificate, X509_VERSION_3);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate), ++number);
    X509_gmtime_adj(X509_getm_notBefore(certificate), options.validFrom * 86400L);
    X509_gmtime_adj(X509_getm_notAfter(certificate), options.validTo * 86400L);
    X509_set_pubkey(certificate, m_key.get());
    X509_NAME_add_entry_by_txt(X509_get_subject_name(certificate), "CN", MBSTRING_UTF8,
                               reinterpret_cast<const unsigned char *>(name.constData()), -1, -1,
                               0);
    X509_set_issuer_name(certificate, X509_get_subject_name(issuer.m_certificate.get()));
    addExtension(certificate, NID_basic_constraints,
                 options.purpose.isEmpty() ? "critical,CA:TRUE" : "CA:FALSE");
    addExtension(certificate, NID_subject_key_identifier, "hash");
    if (!options.purpose.isEmpty())
        addExtension(certificate, NID_ext_key_usage, options.purpose);
    require(X509_sign(certificate, issuer.m_key.get(), getDigest(issuer.m_key.get())) > 0, "sign");
}

CTestMaker::~CTestMaker() = default;

QByteArray CTestMaker::getCertificate() const
{
    return collect([this](BIO *bio) { return PEM_write_bio_X509(bio, m_certificate.get()); });
}

QByteArray CTestMaker::getKey(const QByteArray &passphrase) const
{
    return collect([&](BIO *bio) {
        return PEM_write_bio_PKCS8PrivateKey(
            bio, m_key.get(), passphrase.isEmpty() ? nullptr : EVP_aes_128_cbc(),
            passphrase.constData(), passphrase.size(), nullptr, nullptr);
    });
}

QByteArray CTestMaker::revoke(const CTestMaker &other, int validTo) const
{
    X509_CRL *const list = X509_CRL_new();
    ASN1_TIME *const time = X509_gmtime_adj(nullptr, -2 * 86400L);
    X509_CRL_set_version(list, X509_CRL_VERSION_2);
    X509_CRL_set_issuer_name(list, X509_get_subject_name(m_certificate.get()));
    X509_CRL_set1_lastUpdate(list, time);
    X509_REVOKED *const entry = X509_REVOKED_new();
    X509_REVOKED_set_serialNumber(entry, X509_get_serialNumber(other.m_certificate.get()));
    X509_REVOKED_set_revocationDate(entry, time);
    require(X509_CRL_add0_revoked(list, entry) == 1, "entry");
    X509_gmtime_adj(time, validTo * 86400L);
    X509_CRL_set1_nextUpdate(list, time);
    require(X509_CRL_sign(list, m_key.get(), getDigest(m_key.get())) > 0, "list");
    const QByteArray pem = collect([list](BIO *bio) { return PEM_write_bio_X509_CRL(bio, list); });
    ASN1_TIME_free(time);
    X509_CRL_free(list);
    return pem;
}

QByteArray CTestMaker::sign(const QByteArray &manifest, const char *digest,
                            const QVector<const CTestMaker *> &others, EForm form) const
{
    unsigned int flags = CMS_BINARY | CMS_PARTIAL | CMS_NOSMIMECAP;
    if (form != EForm::Attached)
        flags |= CMS_DETACHED;
    if (form == EForm::WithoutCertificate)
        flags |= CMS_NOCERTS;
    if (form == EForm::WithoutAttributes)
        flags |= CMS_NOATTR;
    BIO *const content = BIO_new_mem_buf(manifest.constData(), manifest.size());
    CMS_ContentInfo *const cms = CMS_sign(nullptr, nullptr, nullptr, content, flags);
    require(cms
                && CMS_add1_signer(cms, m_certificate.get(), m_key.get(),
                                   EVP_get_digestbyname(digest), flags),
            "signer");
    for (const CTestMaker *const other : others)
        require(CMS_add1_cert(cms, other->m_certificate.get()) == 1, "certificate");
    require(CMS_final(cms, content, nullptr, flags) == 1, "final");
    const QByteArray der = collect([cms](BIO *bio) { return i2d_CMS_bio(bio, cms); });
    CMS_ContentInfo_free(cms);
    BIO_free(content);
    return der;
}

QByteArray CTestMaker::stamp(const QByteArray &signature, int day) const
{
    Viewer::Text::CErrorText fault;
    const QByteArray query = Viewer::Signature::makeTimeStampQuery(signature, fault);
    BIO *const reader = BIO_new_mem_buf(query.constData(), query.size());
    TS_RESP_CTX *const context = TS_RESP_CTX_new();
    ASN1_OBJECT *const policy = OBJ_txt2obj("1.2.3.4", 1);
    const auto number = [](TS_RESP_CTX *, void *) {
        ASN1_INTEGER *const serial = ASN1_INTEGER_new();
        ASN1_INTEGER_set(serial, 1);
        return serial;
    };
    const auto tellTime = [](TS_RESP_CTX *, void *days, long *seconds, long *microseconds) {
        *seconds = time(nullptr) + *static_cast<int *>(days) * 86400L;
        *microseconds = 0;
        return 1;
    };
    TS_RESP_CTX_set_serial_cb(context, number, nullptr);
    TS_RESP_CTX_set_time_cb(context, tellTime, &day);
    require(TS_RESP_CTX_set_signer_cert(context, m_certificate.get()) == 1
                && TS_RESP_CTX_set_signer_key(context, m_key.get()) == 1
                && TS_RESP_CTX_set_signer_digest(context, EVP_sha256()) == 1
                && TS_RESP_CTX_add_md(context, EVP_sha256()) == 1
                && TS_RESP_CTX_set_def_policy(context, policy) == 1,
            "authority for time stamps");
    TS_RESP *const answer = TS_RESP_create_response(context, reader);
    const QByteArray der = collect([answer](BIO *bio) { return i2d_TS_RESP_bio(bio, answer); });
    TS_RESP_free(answer);
    ASN1_OBJECT_free(policy);
    TS_RESP_CTX_free(context);
    BIO_free(reader);
    const QByteArray stamped = Viewer::Signature::addTimeStamp(signature, der, fault);
    require(!stamped.isEmpty(), "time stamp");
    return stamped;
}

void CTestMaker::write(const QString &path) const
{
    for (const auto &[ending, bytes] : {std::pair(".pem", getCertificate()), {".key", getKey()}}) {
        QFile file(path + ending);
        require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "file");
    }
}

} // namespace TestSupport
