#include "timestamp.h"

#include "digest.h"
#include "opensslpointer.h"
#include "opensslstack.h"
#include "signaturelimits.h"
#include "signeddata.h"
#include "truststore.h"

#include <openssl/err.h>
#include <openssl/ts.h>

namespace Viewer::Signature {

using Text::CErrorText;

namespace {

using CMessagePointer = std::unique_ptr<PKCS7, COpenSslDeleter<PKCS7_free>>;
using CInfoPointer = std::unique_ptr<TS_TST_INFO, COpenSslDeleter<TS_TST_INFO_free>>;
using CRequestPointer = std::unique_ptr<TS_REQ, COpenSslDeleter<TS_REQ_free>>;
using CImprintPointer = std::unique_ptr<TS_MSG_IMPRINT, COpenSslDeleter<TS_MSG_IMPRINT_free>>;
using CAlgorithmPointer = std::unique_ptr<X509_ALGOR, COpenSslDeleter<X509_ALGOR_free>>;
using CResponsePointer = std::unique_ptr<TS_RESP, COpenSslDeleter<TS_RESP_free>>;

int getNid(const X509_ALGOR *algorithm)
{
    const ASN1_OBJECT *object = nullptr;
    X509_ALGOR_get0(&object, nullptr, nullptr, algorithm);
    return OBJ_obj2nid(object);
}

bool isOf(TS_TST_INFO *info, const QByteArray &stamped)
{
    TS_MSG_IMPRINT *const imprint = TS_TST_INFO_get_msg_imprint(info);
    const EVP_MD *const digest = findDigest(getNid(TS_MSG_IMPRINT_get_algo(imprint)));
    ASN1_OCTET_STRING *const stampedDigest = TS_MSG_IMPRINT_get_msg(imprint);
    return digest
        && computeDigest(stamped, digest)
        == QByteArray(reinterpret_cast<const char *>(ASN1_STRING_get0_data(stampedDigest)),
                      ASN1_STRING_length(stampedDigest));
}

/// Null: @p token is no time stamp.
CMessagePointer readToken(const QByteArray &token)
{
    const unsigned char *place = toUnsigned(token);
    CMessagePointer message(d2i_PKCS7(nullptr, &place, token.size()));
    const bool isWhole = message && place == toUnsigned(token) + token.size()
        && PKCS7_type_is_signed(message.get());
    return isWhole ? std::move(message) : nullptr;
}

/// Whose it is, if all of it was signed by that one; nobody is trusted in vain.
CCertificate findAuthority(PKCS7 *message, const CTrustStore &store, const QDateTime &time)
{
    STACK_OF(PKCS7_SIGNER_INFO) *const signers = PKCS7_get_signer_info(message);
    if (sk_PKCS7_SIGNER_INFO_num(signers) != 1
        || !findDigest(getNid(sk_PKCS7_SIGNER_INFO_value(signers, 0)->digest_alg)))
        return {};
    X509 *signer = nullptr;
    const auto openSslStore = store.makeOpenSslStore(time);
    if (!openSslStore
        || TS_RESP_verify_signature(message, nullptr, openSslStore.get(), &signer) != 1)
        return {};
    const std::unique_ptr<X509, COpenSslDeleter<X509_free>> owner(signer);
    return CCertificate::fromOpenSsl(signer);
}

/// Empty: there is no memory.
QByteArray makeQuery(const QByteArray &stamped)
{
    const CRequestPointer request(TS_REQ_new());
    const CImprintPointer imprint(TS_MSG_IMPRINT_new());
    const CAlgorithmPointer algorithm(X509_ALGOR_new());
    QByteArray digest = computeDigest(stamped, EVP_sha256());
    if (!request || !imprint || !algorithm || digest.isEmpty())
        return {};
    X509_ALGOR_set_md(algorithm.get(), EVP_sha256());
    const bool isMade = TS_MSG_IMPRINT_set_algo(imprint.get(), algorithm.get()) == 1
        && TS_MSG_IMPRINT_set_msg(imprint.get(), reinterpret_cast<unsigned char *>(digest.data()),
                                  digest.size())
            == 1
        && TS_REQ_set_version(request.get(), 1) == 1
        && TS_REQ_set_msg_imprint(request.get(), imprint.get()) == 1
        && TS_REQ_set_cert_req(request.get(), 1) == 1;
    return isMade ? encode(i2d_TS_REQ, request.get()) : QByteArray();
}

} // namespace

CTimeStamp CTimeStamp::fromToken(const QByteArray &token, const QByteArray &stamped,
                                 const CTrustStore &store, const QDateTime &now)
{
    CTimeStamp stamp;
    const auto fail = [](const CErrorText &fault) {
        ERR_clear_error();
        return CTimeStamp{{}, fault};
    };
    if (token.size() > Limits::TIME_STAMP_SIZE)
        return fail(
            CErrorText::tr("it has %1 bytes; at most %2 are allowed")
                .arg(QString::number(token.size()), QString::number(Limits::TIME_STAMP_SIZE)));
    const CMessagePointer message = readToken(token);
    const CInfoPointer info(message ? PKCS7_to_TS_TST_INFO(message.get()) : nullptr);
    if (info)
        stamp.time = toDateTime(TS_TST_INFO_get_time(info.get()));
    if (!stamp.time.isValid())
        return fail(CErrorText::tr("it is none that is understood"));
    if (!isOf(info.get(), stamped))
        return fail(CErrorText::tr("it is of another signature, or its digest is weak"));
    if (stamp.time > now)
        return fail(CErrorText::tr("it is from the future; check this computer's clock"));
    const CCertificate authority = findAuthority(message.get(), store, stamp.time);
    if (authority.isNull())
        return fail(CErrorText::tr("it is not signed by an authority for time stamps that is "
                                   "trusted"));
    const CErrorText fault = store.findFault(authority, toCertificates(message->d.sign->cert),
                                             CCertificate::EPurpose::StampingTime, stamp.time, now);
    if (!fault.isEmpty())
        return fail(fault);
    ERR_clear_error();
    return stamp;
}

QByteArray makeTimeStampQuery(const QByteArray &signature, CErrorText &fault)
{
    const auto data = CSignedData::fromDer(signature, fault);
    if (!data)
        return {};
    for (const CSignerInfo &signer : data->signers) {
        if (!signer.timeStamp.isEmpty())
            continue;
        const QByteArray query = makeQuery(signer.signature);
        if (query.isEmpty())
            fault = CErrorText::tr("out of memory");
        return query;
    }
    fault = CErrorText::tr("all its signatures have time stamps");
    return {};
}

QByteArray addTimeStamp(const QByteArray &signature, const QByteArray &response, CErrorText &fault)
{
    auto data = CSignedData::fromDer(signature, fault);
    if (!data)
        return {};
    const unsigned char *place = toUnsigned(response);
    const CResponsePointer answer(d2i_TS_RESP(nullptr, &place, response.size()));
    TS_TST_INFO *const info = answer ? TS_RESP_get_tst_info(answer.get()) : nullptr;
    ERR_clear_error();
    if (!info) {
        fault = CErrorText::tr("the answer has no time stamp");
        return {};
    }
    for (CSignerInfo &signer : data->signers) {
        if (!isOf(info, signer.signature))
            continue;
        signer = signer.withTimeStamp(encode(i2d_PKCS7, TS_RESP_get_token(answer.get())));
        return data->toDer();
    }
    fault = CErrorText::tr("the time stamp in the answer is of another signature");
    return {};
}

} // namespace Viewer::Signature
