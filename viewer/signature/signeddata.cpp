#include "signeddata.h"

#include "opensslpointer.h"
#include "signaturelimits.h"

#include <openssl/err.h>
#include <openssl/objects.h>

#include <algorithm>

namespace Viewer::Signature {

using Text::CErrorText;
using ETag = CDerElement::ETag;

namespace {

/// No object id that is of interest is longer; long ones take OpenSSL time.
constexpr int OBJECT_ID_SIZE = 32;

using CElements = QVector<CDerElement>;

/// At most @p maximum elements, the first of which have @p tags; empty: there are others.
CElements readElements(const QByteArray &bytes, const QVector<int> &tags, int maximum)
{
    const std::optional<CElements> elements = readDer(bytes, maximum);
    if (!elements || elements->size() > maximum || elements->size() < tags.size())
        return {};
    for (int i = 0; i < tags.size(); ++i) {
        if (elements->at(i).tag != tags.at(i))
            return {};
    }
    return *elements;
}

CElements readElements(const QByteArray &bytes, const QVector<int> &tags)
{
    return readElements(bytes, tags, tags.size());
}

/// The first element of an algorithm's identifier, which may have parameters.
QByteArray readAlgorithm(const CDerElement &element)
{
    const CElements parts = readElements(element.content, {ETag::ObjectId}, 2);
    return parts.isEmpty() ? QByteArray() : parts.constFirst().bytes;
}

/// The only value of the attribute @p nid, which has to be there exactly once; a null element: it
/// is not.
CDerElement findAttribute(const CElements &attributes, int nid)
{
    CDerElement value;
    int count = 0;
    for (const CDerElement &attribute : attributes) {
        const CElements parts = readElements(attribute.content, {ETag::ObjectId, ETag::Set});
        if (parts.isEmpty() || toNid(parts.constFirst().bytes) != nid)
            continue;
        const std::optional<CElements> values = readDer(parts.at(1).content, 1);
        if (++count > 1 || !values || values->size() != 1)
            return {};
        value = values->constFirst();
    }
    return value;
}

/// Nothing: it is none, or one without signed attributes.
std::optional<CSignerInfo> readSigner(const CDerElement &element)
{
    const std::optional<CElements> parts = readDer(element.content, 7);
    if (element.tag != ETag::Sequence || !parts || parts->size() < 6 || parts->size() > 7)
        return std::nullopt;
    const CElements &fields = *parts;
    const bool hasTags = fields.at(0).tag == ETag::Integer
        && (fields.at(1).tag == ETag::Sequence || fields.at(1).tag == ETag::Context0Primitive)
        && fields.at(2).tag == ETag::Sequence && fields.at(3).tag == ETag::Context0
        && fields.at(4).tag == ETag::Sequence && fields.at(5).tag == ETag::OctetString
        && (fields.size() == 6 || fields.at(6).tag == ETag::Context1);
    const CElements attributes
        = readElements(fields.at(3).content, {ETag::Sequence}, Limits::ATTRIBUTES);
    const CDerElement digest = findAttribute(attributes, NID_pkcs9_messageDigest);
    if (!hasTags
        || findAttribute(attributes, NID_pkcs9_contentType).bytes != makeObjectId(NID_pkcs7_data)
        || digest.tag != ETag::OctetString)
        return std::nullopt;
    CSignerInfo signer;
    signer.bytes = element.bytes;
    signer.signerId = fields.at(1).bytes;
    signer.digestAlgorithm = readAlgorithm(fields.at(2));
    // In the message they have a tag of their place, but are signed as the set that they are.
    signer.attributes = fields.at(3).bytes;
    signer.attributes[0] = static_cast<char>(ETag::Set);
    signer.manifestDigest = digest.content;
    signer.algorithm = readAlgorithm(fields.at(4));
    signer.signature = fields.at(5).content;
    // What is not signed may be anything, and counts only where it proves itself.
    if (fields.size() == 7)
        signer.timeStamp = findAttribute(readElements(fields.at(6).content, {ETag::Sequence},
                                                      Limits::ATTRIBUTES),
                                         NID_id_smime_aa_timeStampToken)
                               .bytes;
    return signer;
}

QByteArray join(const QVector<QByteArray> &elements)
{
    QByteArray bytes;
    for (const QByteArray &element : elements)
        bytes += element;
    return bytes;
}

/// Of a set, whose elements have an order in DER.
QByteArray makeSet(QVector<QByteArray> elements)
{
    std::sort(elements.begin(), elements.end());
    return makeDer(ETag::Set, join(elements));
}

QByteArray makeAttribute(int nid, const QByteArray &value)
{
    return makeDer(ETag::Sequence, makeObjectId(nid) + makeDer(ETag::Set, value));
}

/// The fields of the message itself; empty: @p der is none, or none whose content is elsewhere.
CElements readMessage(const QByteArray &der)
{
    const CElements outer = readElements(der, {ETag::Sequence});
    const CElements typed = outer.isEmpty()
        ? outer
        : readElements(outer.constFirst().content, {ETag::ObjectId, ETag::Context0});
    if (typed.isEmpty() || toNid(typed.constFirst().bytes) != NID_pkcs7_signed)
        return {};
    const CElements message = readElements(typed.at(1).content, {ETag::Sequence});
    if (message.isEmpty())
        return {};
    const CElements fields
        = readElements(message.constFirst().content, {ETag::Integer, ETag::Set, ETag::Sequence}, 6);
    const bool isDetached = fields.size() > 3 && fields.constLast().tag == ETag::Set
        && fields.at(2).content == makeObjectId(NID_pkcs7_data);
    return isDetached ? fields : CElements();
}

} // namespace

QByteArray makeObjectId(int nid)
{
    const ASN1_OBJECT *const object = OBJ_nid2obj(nid);
    return makeDer(ETag::ObjectId,
                   QByteArray(reinterpret_cast<const char *>(OBJ_get0_data(object)),
                              static_cast<int>(OBJ_length(object))));
}

int toNid(const QByteArray &element)
{
    if (element.size() > OBJECT_ID_SIZE)
        return NID_undef;
    const unsigned char *place = toUnsigned(element);
    const std::unique_ptr<ASN1_OBJECT, COpenSslDeleter<ASN1_OBJECT_free>> object(
        d2i_ASN1_OBJECT(nullptr, &place, element.size()));
    ERR_clear_error();
    return object ? OBJ_obj2nid(object.get()) : NID_undef;
}

QByteArray makeSignedAttributes(const QByteArray &manifestDigest)
{
    return makeSet(
        {makeAttribute(NID_pkcs9_contentType, makeObjectId(NID_pkcs7_data)),
         makeAttribute(NID_pkcs9_messageDigest, makeDer(ETag::OctetString, manifestDigest))});
}

CSignerInfo CSignerInfo::withTimeStamp(const QByteArray &token) const
{
    const auto outer = readDer(bytes, 1).value_or(CElements());
    const auto fields = readDer(outer.value(0).content, 7).value_or(CElements());
    QByteArray content;
    for (const CDerElement &field : fields.mid(0, 6))
        content += field.bytes;
    content += makeDer(ETag::Context1, makeAttribute(NID_id_smime_aa_timeStampToken, token));
    CSignerInfo stamped = *this;
    stamped.bytes = makeDer(ETag::Sequence, content);
    stamped.timeStamp = token;
    return stamped;
}

std::optional<CSignedData> CSignedData::fromDer(const QByteArray &der, CErrorText &fault)
{
    if (der.size() > Limits::SIGNATURE_SIZE) {
        fault = CErrorText::tr("it has %1 bytes; at most %2 are allowed")
                    .arg(QString::number(der.size()), QString::number(Limits::SIGNATURE_SIZE));
        return std::nullopt;
    }
    const CErrorText other = CErrorText::tr("it is not a detached CMS signature in DER");
    const CElements fields = readMessage(der);
    const auto digests
        = fields.isEmpty() ? std::nullopt : readDer(fields.at(1).content, Limits::SIGNERS);
    const auto signers
        = fields.isEmpty() ? std::nullopt : readDer(fields.constLast().content, Limits::SIGNERS);
    std::optional<CElements> certificates = CElements();
    if (!fields.isEmpty() && fields.at(3).tag == ETag::Context0)
        certificates = readDer(fields.at(3).content, Limits::CERTIFICATES);
    if (!digests || !signers || !certificates || signers->isEmpty()) {
        fault = other;
        return std::nullopt;
    }
    if (certificates->size() > Limits::CERTIFICATES) {
        fault = CErrorText::tr("it has more than %1 certificates")
                    .arg(QString::number(Limits::CERTIFICATES));
        return std::nullopt;
    }
    if (signers->size() > Limits::SIGNERS || digests->size() > Limits::SIGNERS) {
        fault = CErrorText::tr("it has more than %1 signers").arg(QString::number(Limits::SIGNERS));
        return std::nullopt;
    }
    CSignedData data;
    for (const CDerElement &digest : *digests)
        data.digestAlgorithms.append(digest.bytes);
    for (const CDerElement &certificate : qAsConst(*certificates)) {
        if (certificate.bytes.size() > Limits::CERTIFICATE_SIZE) {
            fault = CErrorText::tr("it has a certificate of %1 bytes; at most %2 are allowed")
                        .arg(QString::number(certificate.bytes.size()),
                             QString::number(Limits::CERTIFICATE_SIZE));
            return std::nullopt;
        }
        data.certificates.append(certificate.bytes);
    }
    for (const CDerElement &element : *signers) {
        const std::optional<CSignerInfo> signer = readSigner(element);
        if (!signer) {
            fault = other;
            return std::nullopt;
        }
        data.signers.append(*signer);
    }
    return data;
}

QByteArray CSignedData::toDer() const
{
    QVector<QByteArray> signerElements;
    for (const CSignerInfo &signer : signers)
        signerElements.append(signer.bytes);
    const QByteArray version = makeDer(ETag::Integer, QByteArray(1, '\1'));
    const QByteArray message = makeDer(
        ETag::Sequence,
        version + makeSet(digestAlgorithms) + makeDer(ETag::Sequence, makeObjectId(NID_pkcs7_data))
            + makeDer(ETag::Context0, join(certificates)) + makeSet(signerElements));
    return makeDer(ETag::Sequence,
                   makeObjectId(NID_pkcs7_signed) + makeDer(ETag::Context0, message));
}

} // namespace Viewer::Signature
