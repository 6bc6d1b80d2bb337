#include "signer.h"

#include "digest.h"
#include "opensslpointer.h"
#include "signaturelimits.h"
#include "signatureverifier.h"
#include "signeddata.h"
#include "truststore.h"
#include "viewer/text/visibletext.h"

#include <QDir>
#include <QFile>

#include <openssl/err.h>
#include <openssl/objects.h>
#include <openssl/pem.h>

#include <algorithm>

namespace Viewer::Signature {

using Text::CErrorText;

static QString toText(const QString &path)
{
    return Text::shorten(QDir::toNativeSeparators(path), 200);
}

static CErrorText describeNoCertificate(const QString &path)
{
    return CErrorText::tr("the file \"%1\" has no certificate in PEM").arg(toText(path));
}

static QByteArray readFile(const QString &path, CErrorText &fault)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fault = CErrorText::tr("the file \"%1\" cannot be read: %2")
                    .arg(toText(path), CErrorText(file.errorString()).toClause());
    return file.isOpen() ? file.read(Limits::FILE_SIZE) : QByteArray();
}

static int givePassphrase(char *buffer, int size, int, void *source)
{
    const auto &ask = *static_cast<const CSigner::PassphraseSource *>(source);
    const std::optional<QByteArray> passphrase = ask();
    if (!passphrase || passphrase->size() > size)
        return -1;
    std::copy(passphrase->cbegin(), passphrase->cend(), buffer);
    return passphrase->size();
}

/// The digest that goes with @p key.
static int chooseDigest(const EVP_PKEY *key)
{
    if (EVP_PKEY_get_base_id(key) == EVP_PKEY_ED25519)
        return NID_sha512;
    return EVP_PKEY_get_base_id(key) == EVP_PKEY_EC && EVP_PKEY_get_bits(key) > 256 ? NID_sha384
                                                                                    : NID_sha256;
}

/// The identifier of the algorithm by which @p key signs what has the digest @p digestNid.
static QByteArray makeAlgorithm(const EVP_PKEY *key, int digestNid)
{
    int nid = NID_ED25519;
    QByteArray parameters;
    if (EVP_PKEY_get_base_id(key) == EVP_PKEY_RSA) {
        nid = NID_rsaEncryption;
        parameters = QByteArray("\x05\x00", 2); // NULL
    } else if (EVP_PKEY_get_base_id(key) == EVP_PKEY_EC) {
        OBJ_find_sigid_by_algs(&nid, digestNid, NID_X9_62_id_ecPublicKey);
    }
    return makeDer(CDerElement::Sequence, makeObjectId(nid) + parameters);
}

std::optional<CSigner> CSigner::fromFiles(const QString &certificate, const QString &key,
                                          const QString &chain,
                                          const PassphraseSource &askPassphrase, CErrorText &fault)
{
    CSigner signer;
    const QVector<CCertificate> own = CCertificate::fromPem(readFile(certificate, fault));
    const QByteArray keyPem = fault.isEmpty() ? readFile(key, fault) : QByteArray();
    const QByteArray chainPem
        = fault.isEmpty() && !chain.isEmpty() ? readFile(chain, fault) : QByteArray();
    if (!fault.isEmpty())
        return std::nullopt;
    if (own.isEmpty()) {
        fault = describeNoCertificate(certificate);
        return std::nullopt;
    }
    signer.m_certificate = own.constFirst();
    signer.m_chain = own.mid(1) + CCertificate::fromPem(chainPem);
    if (!chain.isEmpty() && CCertificate::fromPem(chainPem).isEmpty()) {
        fault = describeNoCertificate(chain);
        return std::nullopt;
    }
    const CBioPointer reader = makeReader(keyPem);
    PassphraseSource ask = askPassphrase;
    signer.m_key
        = {PEM_read_bio_PrivateKey(reader.get(), nullptr, givePassphrase, &ask), EVP_PKEY_free};
    if (!signer.m_key)
        fault = CErrorText::tr("the file \"%1\" has no key in PEM, or its passphrase is wrong or "
                               "missing")
                    .arg(toText(key));
    else if (X509_check_private_key(signer.m_certificate.get(), signer.m_key.get()) != 1)
        fault = CErrorText::tr("the key in \"%1\" is not that of the certificate").arg(toText(key));
    ERR_clear_error();
    return fault.isEmpty() ? std::make_optional(signer) : std::nullopt;
}

QByteArray CSigner::sign(const QByteArray &manifest, const std::optional<QByteArray> &former,
                         CErrorText &fault) const
{
    CSignedData data;
    CErrorText formerFault;
    // What is none is worth nothing, and is replaced.
    if (former)
        data = CSignedData::fromDer(*former, formerFault).value_or(CSignedData());

    const int digestNid = chooseDigest(m_key.get());
    const bool hasOwnDigest = EVP_PKEY_get_base_id(m_key.get()) == EVP_PKEY_ED25519;
    const EVP_MD *const digest = EVP_get_digestbynid(digestNid);
    const QByteArray manifestDigest = computeDigest(manifest, digest);
    const CDigestPointer context(EVP_MD_CTX_new());
    bool isDone = context && !manifestDigest.isEmpty()
        && EVP_DigestSignInit(context.get(), nullptr, hasOwnDigest ? nullptr : digest, nullptr,
                              m_key.get())
            == 1;
    CSignerInfo signer;
    signer.attributes = makeSignedAttributes(manifestDigest);
    size_t size = isDone ? static_cast<size_t>(EVP_PKEY_get_size(m_key.get())) : 0;
    signer.signature.resize(static_cast<int>(size));
    isDone = isDone
        && EVP_DigestSign(context.get(), reinterpret_cast<unsigned char *>(signer.signature.data()),
                          &size, toUnsigned(signer.attributes),
                          static_cast<size_t>(signer.attributes.size()))
            == 1;
    ERR_clear_error();
    if (!isDone) {
        fault = CErrorText::tr("OpenSSL cannot sign with this key");
        return {};
    }
    signer.signature.truncate(static_cast<int>(size));
    signer.signerId
        = makeDer(CDerElement::Sequence,
                  encode(i2d_X509_NAME, X509_get_issuer_name(m_certificate.get()))
                      + encode(i2d_ASN1_INTEGER, X509_get0_serialNumber(m_certificate.get())));
    const QByteArray digestAlgorithm = makeDer(CDerElement::Sequence, makeObjectId(digestNid));
    QByteArray attributes = signer.attributes;
    attributes[0] = static_cast<char>(CDerElement::Context0);
    signer.bytes
        = makeDer(CDerElement::Sequence,
                  makeDer(CDerElement::Integer, QByteArray(1, '\1')) + signer.signerId
                      + digestAlgorithm + attributes + makeAlgorithm(m_key.get(), digestNid)
                      + makeDer(CDerElement::OctetString, signer.signature));

    const auto isReplaced
        = [&signer](const CSignerInfo &other) { return other.signerId == signer.signerId; };
    data.signers.erase(std::remove_if(data.signers.begin(), data.signers.end(), isReplaced),
                       data.signers.end());
    data.signers.append(signer);
    if (!data.digestAlgorithms.contains(digestAlgorithm))
        data.digestAlgorithms.append(digestAlgorithm);
    for (const CCertificate &certificate : QVector<CCertificate>{m_certificate} + m_chain) {
        if (!data.certificates.contains(certificate.toDer()))
            data.certificates.append(certificate.toDer());
    }
    const QByteArray der = data.toDer();
    const CSignatureVerdict verdict = verifySignature(manifest, der, CTrustStore(m_certificate),
                                                      QDateTime::currentDateTimeUtc());
    fault = verdict.reason;
    return verdict.state == CSignatureVerdict::EState::Trusted ? der : QByteArray();
}

} // namespace Viewer::Signature
