#include "signatureverifier.h"

#include "digest.h"
#include "opensslpointer.h"
#include "signeddata.h"
#include "timestamp.h"
#include "truststore.h"

#include <openssl/err.h>
#include <openssl/objects.h>
#include <openssl/x509v3.h>

namespace Viewer::Signature {

using Text::CErrorText;

namespace {

bool isOf(const CCertificate &certificate, const CSignerInfo &signer)
{
    const ASN1_OCTET_STRING *const keyId = X509_get0_subject_key_id(certificate.get());
    if (keyId
        && signer.signerId
            == makeDer(CDerElement::Context0Primitive,
                       QByteArray(reinterpret_cast<const char *>(ASN1_STRING_get0_data(keyId)),
                                  ASN1_STRING_length(keyId))))
        return true;
    const QByteArray issuer = encode(i2d_X509_NAME, X509_get_issuer_name(certificate.get()));
    const QByteArray number = encode(i2d_ASN1_INTEGER, X509_get0_serialNumber(certificate.get()));
    return signer.signerId == makeDer(CDerElement::Sequence, issuer + number);
}

/// Whether the key of @p certificate has signed the attributes.
bool hasSigned(const CCertificate &certificate, const CSignerInfo &signer, int digestNid)
{
    EVP_PKEY *const key = X509_get0_pubkey(certificate.get());
    const int algorithm = toNid(signer.algorithm);
    int signedDigest = digestNid;
    int kind = NID_rsaEncryption;
    // An algorithm may be that of a key alone, or of a key and a digest.
    if (algorithm != NID_rsaEncryption && OBJ_find_sigid_algs(algorithm, &signedDigest, &kind) != 1)
        return false;
    const bool hasOwnDigest = kind == NID_ED25519;
    if (!key || EVP_PKEY_get_base_id(key) != kind || (!hasOwnDigest && signedDigest != digestNid))
        return false;
    const CDigestPointer context(EVP_MD_CTX_new());
    const EVP_MD *const digest = hasOwnDigest ? nullptr : findDigest(digestNid);
    const bool isRight = context
        && EVP_DigestVerifyInit(context.get(), nullptr, digest, nullptr, key) == 1
        && EVP_DigestVerify(context.get(), toUnsigned(signer.signature),
                            static_cast<size_t>(signer.signature.size()),
                            toUnsigned(signer.attributes),
                            static_cast<size_t>(signer.attributes.size()))
            == 1;
    ERR_clear_error();
    return isRight;
}

/// The certificate of @p signer and, as far as nobody has to be trusted for that, what is wrong.
CSignatureVerdict verifySigner(const QByteArray &manifest, const CSignerInfo &signer,
                               const QVector<CCertificate> &certificates)
{
    CSignatureVerdict verdict;
    verdict.state = CSignatureVerdict::EState::NotTrusted;
    const int digestNid = toNid(signer.digestAlgorithm);
    const EVP_MD *const digest = findDigest(digestNid);
    bool isSigned = false;
    for (const CCertificate &certificate : certificates) {
        if (isSigned || !isOf(certificate, signer))
            continue;
        verdict.signer = certificate;
        isSigned = digest && hasSigned(certificate, signer, digestNid);
    }
    if (verdict.signer.isNull())
        verdict.reason = CErrorText::tr("the certificate of its signer is missing");
    else if (!digest)
        verdict.reason
            = CErrorText::tr("its digest is none that is known and strong enough; it has to be "
                             "SHA-256, SHA-384 or SHA-512");
    else if (computeDigest(manifest, digest) != signer.manifestDigest)
        verdict.reason = CErrorText::tr("it is the signature of another update.json");
    else
        verdict.reason = verdict.signer.findKeyFault();
    if (verdict.reason.isEmpty() && !isSigned)
        verdict.reason = CErrorText::tr("it was not made with the key of %1, or by an unknown "
                                        "method")
                             .arg(verdict.signer.getSubject());
    return verdict;
}

/// Whether the signer of @p verdict, who has signed, is trusted.
void judgeSigner(const CSignerInfo &signer, const QVector<CCertificate> &others,
                 const CTrustStore &store, const QDateTime &now, CSignatureVerdict &verdict)
{
    CTimeStamp stamp;
    if (!signer.timeStamp.isEmpty())
        stamp = CTimeStamp::fromToken(signer.timeStamp, signer.signature, store, now);
    verdict.signedAt = stamp.time;
    verdict.reason = store.findFault(verdict.signer, others, CCertificate::EPurpose::SigningCode,
                                     stamp.time.isValid() ? stamp.time : now, now);
    if (!verdict.reason.isEmpty() && !stamp.fault.isEmpty())
        verdict.reason = CErrorText::tr("%1; its time stamp is not trusted: %2")
                             .arg(verdict.reason, stamp.fault);
}

} // namespace

CSignatureVerdict verifySignature(const QByteArray &manifest,
                                  const std::optional<QByteArray> &signature,
                                  const CTrustStore &store, const QDateTime &now)
{
    CSignatureVerdict first;
    if (!signature)
        return first;
    first.state = CSignatureVerdict::EState::NotTrusted;
    const std::optional<CSignedData> data = CSignedData::fromDer(*signature, first.reason);
    if (!data)
        return first;
    QVector<CCertificate> others;
    for (const QByteArray &der : data->certificates) {
        const CCertificate certificate = CCertificate::fromDer(der);
        // Of other kinds than X.509 may be there, too.
        if (!certificate.isNull())
            others.append(certificate);
    }
    QVector<CCertificate> known = others;
    for (const CTrustStore::CMaker &maker : store.getMakers())
        known.append(maker.certificate);
    for (const CSignerInfo &signer : data->signers) {
        CSignatureVerdict verdict = verifySigner(manifest, signer, known);
        if (verdict.reason.isEmpty())
            judgeSigner(signer, others, store, now, verdict);
        if (verdict.reason.isEmpty()) {
            verdict.state = CSignatureVerdict::EState::Trusted;
            return verdict;
        }
        if (first.reason.isEmpty())
            first = verdict;
    }
    return first;
}

} // namespace Viewer::Signature
