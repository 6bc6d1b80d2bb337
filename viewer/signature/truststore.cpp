#include "truststore.h"

#include "opensslpointer.h"
#include "opensslstack.h"
#include "signaturelimits.h"
#include "viewer/files/pathtrust.h"
#include "viewer/text/visibletext.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <openssl/crypto.h>
#include <openssl/err.h>
#include <openssl/opensslv.h>
#include <openssl/pem.h>
#include <openssl/x509_vfy.h>
#include <openssl/x509v3.h>

namespace Viewer::Signature {

using Text::CErrorText;

namespace {

/// Of the 128 bits that the weakest allowed key has.
constexpr int SECURITY_LEVEL = 3;

using CContextPointer = std::unique_ptr<X509_STORE_CTX, COpenSslDeleter<X509_STORE_CTX_free>>;

struct CStackDeleter
{
    void operator()(STACK_OF(X509) * stack) const { sk_X509_free(stack); }
};
using CStackPointer = std::unique_ptr<STACK_OF(X509), CStackDeleter>;

QString toText(const QDateTime &time)
{
    return time.toString(QStringLiteral("yyyy-MM-dd"));
}

QString toText(const QString &path)
{
    return Text::shorten(QDir::toNativeSeparators(path), 200);
}

CErrorText describeChainFault(X509_STORE_CTX &context)
{
    const int error = X509_STORE_CTX_get_error(&context);
    const CCertificate certificate
        = CCertificate::fromOpenSsl(X509_STORE_CTX_get_current_cert(&context));
    switch (error) {
    case X509_V_ERR_CERT_NOT_YET_VALID:
        return CErrorText::tr("the certificate of %1 is not valid before %2")
            .arg(certificate.getSubject(), toText(certificate.getValidFrom()));
    case X509_V_ERR_CERT_HAS_EXPIRED:
        return CErrorText::tr("the certificate of %1 has expired on %2")
            .arg(certificate.getSubject(), toText(certificate.getValidTo()));
    case X509_V_ERR_UNABLE_TO_GET_ISSUER_CERT:
    case X509_V_ERR_UNABLE_TO_GET_ISSUER_CERT_LOCALLY:
    case X509_V_ERR_UNABLE_TO_VERIFY_LEAF_SIGNATURE:
    case X509_V_ERR_DEPTH_ZERO_SELF_SIGNED_CERT:
    case X509_V_ERR_SELF_SIGNED_CERT_IN_CHAIN:
        return CErrorText::tr("%1 is not among the trusted makers").arg(certificate.getSubject());
    case X509_V_ERR_CERT_CHAIN_TOO_LONG:
        return CErrorText::tr("more than %1 certificates lead to a trusted maker")
            .arg(QString::number(Limits::CHAIN_DEPTH));
    case X509_V_ERR_EE_KEY_TOO_SMALL:
    case X509_V_ERR_CA_KEY_TOO_SMALL:
    case X509_V_ERR_CA_MD_TOO_WEAK:
        return CErrorText::tr("the certificate of %1 has a weak key, or is signed by a weak method")
            .arg(certificate.getSubject());
    default:
        return CErrorText::tr("the certificate of %1 cannot be used (%2)")
            .arg(certificate.getSubject(), QString::fromUtf8(X509_verify_cert_error_string(error)));
    }
}

/// Whether @p list is one by the issuer of the certificate at @p index of @p chain. Where that
/// issuer is not known, its name is enough: nobody else could have put the list there.
bool isListFor(X509_CRL *list, const QVector<CCertificate> &chain, int index)
{
    x509_st *const certificate = chain.at(index).get();
    const X509_NAME *const issuer = X509_get_issuer_name(certificate);
    if (X509_NAME_cmp(X509_CRL_get_issuer(list), issuer) != 0)
        return false;
    x509_st *signer = index + 1 < chain.size() ? chain.at(index + 1).get() : nullptr;
    if (!signer && X509_NAME_cmp(X509_get_subject_name(certificate), issuer) == 0)
        signer = certificate;
    EVP_PKEY *const key = signer ? X509_get0_pubkey(signer) : nullptr;
    const bool fits = !signer || (key && X509_CRL_verify(list, key) == 1);
    ERR_clear_error();
    return fits;
}

} // namespace

Text::CLibraryVersion CTrustStore::getLibrary()
{
    return {QStringLiteral("OpenSSL"), QStringLiteral(OPENSSL_VERSION_STR),
            QString::fromLatin1(OpenSSL_version(OPENSSL_VERSION_STRING))};
}

CTrustStore::CTrustStore(const CCertificate &certificate)
    : m_makers{{QString(), certificate}}
{
}

CTrustStore::CTrustStore(const QStringList &folders)
{
    for (const QString &folder : folders)
        readFolder(folder);
}

void CTrustStore::readFolder(const QString &folder)
{
    if (!QFileInfo::exists(folder))
        return;
    const CErrorText fault = Files::findPathFault(folder);
    if (!fault.isEmpty()) {
        m_faults.append(CErrorText::tr("the folder \"%1\" is not read: %2")
                            .arg(toText(folder), fault.toClause()));
        return;
    }
    const QStringList names = QDir(folder).entryList(QDir::Files | QDir::System, QDir::Name);
    if (names.size() > Limits::FILES)
        m_faults.append(CErrorText::tr("of the folder \"%1\" only the first %2 files are read")
                            .arg(toText(folder), QString::number(Limits::FILES)));
    for (const QString &name : names.mid(0, Limits::FILES))
        readFile(QDir(folder).filePath(name));
}

void CTrustStore::readFile(const QString &path)
{
    CErrorText fault = Files::findPathFault(path);
    const QFileInfo info(path);
    QByteArray pem;
    if (fault.isEmpty()) {
        QFile file(path);
        // A pipe or a device could block for ever.
        if (!info.isFile() || info.size() > Limits::FILE_SIZE)
            fault = CErrorText::tr("it is no regular file, or has more than %1 bytes")
                        .arg(QString::number(Limits::FILE_SIZE));
        else if (!file.open(QIODevice::ReadOnly))
            fault = CErrorText(file.errorString());
        else
            pem = file.read(Limits::FILE_SIZE);
    }
    const QVector<CCertificate> certificates = CCertificate::fromPem(pem);
    for (const CCertificate &certificate : certificates)
        m_makers.append({path, certificate});
    int listCount = 0;
    const CBioPointer reader = makeReader(pem);
    while (reader && listCount < Limits::FILE_CERTIFICATES) {
        X509_CRL *const list = PEM_read_bio_X509_CRL(reader.get(), nullptr, nullptr, nullptr);
        if (!list)
            break;
        m_revocations.append({list, X509_CRL_free});
        ++listCount;
    }
    ERR_clear_error();
    if (fault.isEmpty() && certificates.isEmpty() && listCount == 0)
        fault = CErrorText::tr("it has no certificate and no revocation list in PEM");
    if (!fault.isEmpty())
        m_faults.append(
            CErrorText::tr("the file \"%1\" is not read: %2").arg(toText(path), fault.toClause()));
}

const QVector<CTrustStore::CMaker> &CTrustStore::getMakers() const
{
    return m_makers;
}

const QVector<CErrorText> &CTrustStore::getFaults() const
{
    return m_faults;
}

std::shared_ptr<X509_STORE> CTrustStore::makeOpenSslStore(const QDateTime &time) const
{
    std::shared_ptr<X509_STORE> store(X509_STORE_new(), X509_STORE_free);
    if (!store)
        return nullptr;
    for (const CMaker &maker : m_makers)
        X509_STORE_add_cert(store.get(), maker.certificate.get());
    X509_VERIFY_PARAM *const parameters = X509_STORE_get0_param(store.get());
    X509_VERIFY_PARAM_set_flags(parameters, X509_V_FLAG_PARTIAL_CHAIN);
    X509_VERIFY_PARAM_set_time(parameters, time.toSecsSinceEpoch());
    X509_VERIFY_PARAM_set_depth(parameters, Limits::CHAIN_DEPTH);
    X509_VERIFY_PARAM_set_auth_level(parameters, SECURITY_LEVEL);
    return store;
}

CErrorText CTrustStore::findFault(const CCertificate &signer, const QVector<CCertificate> &others,
                                  CCertificate::EPurpose purpose, const QDateTime &time,
                                  const QDateTime &now) const
{
    const auto store = makeOpenSslStore(time);
    const CStackPointer untrusted(sk_X509_new_null());
    const CContextPointer context(X509_STORE_CTX_new());
    if (!store || !untrusted || !context)
        return CErrorText::tr("out of memory");
    for (const CCertificate &other : others)
        sk_X509_push(untrusted.get(), other.get());
    if (X509_STORE_CTX_init(context.get(), store.get(), signer.get(), untrusted.get()) != 1)
        return CErrorText::tr("out of memory");
    const bool isVerified = X509_verify_cert(context.get()) == 1;
    ERR_clear_error();
    if (!isVerified)
        return describeChainFault(*context);

    const QVector<CCertificate> chain = toCertificates(X509_STORE_CTX_get0_chain(context.get()));
    for (const CCertificate &certificate : chain) {
        using ERole = CCertificate::ERole;
        const bool isFirst = &certificate == &chain.constFirst();
        CErrorText fault = certificate.findKeyFault();
        if (fault.isEmpty())
            fault
                = certificate.findPurposeFault(purpose, isFirst ? ERole::Signer : ERole::Authority);
        if (!fault.isEmpty())
            return CErrorText::tr("the certificate of %1: %2").arg(certificate.getSubject(), fault);
    }
    return findRevocation(chain, now);
}

CErrorText CTrustStore::findRevocation(const QVector<CCertificate> &chain,
                                       const QDateTime &now) const
{
    time_t time = now.toSecsSinceEpoch();
    for (int i = 0; i < chain.size(); ++i) {
        bool hasCurrent = false;
        bool hasOutdated = false;
        for (const auto &list : m_revocations) {
            if (!isListFor(list.get(), chain, i))
                continue;
            X509_REVOKED *entry = nullptr;
            // 2 takes a certificate from a list.
            if (X509_CRL_get0_by_cert(list.get(), &entry, chain.at(i).get()) == 1)
                return CErrorText::tr("the certificate of %1 was revoked")
                    .arg(chain.at(i).getSubject());
            const ASN1_TIME *const end = X509_CRL_get0_nextUpdate(list.get());
            const bool isCurrent = !end || X509_cmp_time(end, &time) > 0;
            hasCurrent = hasCurrent || isCurrent;
            hasOutdated = hasOutdated || !isCurrent;
        }
        if (hasOutdated && !hasCurrent)
            return CErrorText::tr("the revocation list of %1 is out of date; put the current one "
                                  "beside the certificates")
                .arg(chain.at(i).getIssuer());
    }
    return {};
}

} // namespace Viewer::Signature
