#pragma once

#include "der.h"
#include "viewer/text/errortext.h"

namespace Viewer::Signature {

/// One signature of a CMS message, as its bytes have it.
struct CSignerInfo
{
    QByteArray bytes; ///< all of it
    QByteArray signerId; ///< an element: issuer and serial number, or the key's identifier
    QByteArray digestAlgorithm; ///< object ids are elements, too
    QByteArray attributes; ///< the set that is signed, as it is signed
    QByteArray manifestDigest; ///< that of the signed attributes
    QByteArray algorithm; ///< object id
    QByteArray signature;
    QByteArray timeStamp; ///< a token of RFC 3161, of the signature; empty: none

    /// With @p token instead of what stood beside the signature unsigned.
    [[nodiscard]] CSignerInfo withTimeStamp(const QByteArray &token) const;
};

/// A detached CMS signature (RFC 5652) in DER: of a content that is elsewhere, with at least one
/// signer, each of them with signed attributes.
///
/// Read and written element by element here, not by OpenSSL: that one would take whatever sizes and
/// numbers it is told, cannot sign by Ed25519 before its version 3.2, and checks all signatures of
/// a message or none.
struct CSignedData
{
    QVector<QByteArray> digestAlgorithms;
    QVector<QByteArray> certificates;
    QVector<CSignerInfo> signers;

    /// Nothing, with a clause in @p fault: @p der is something else, is followed by something, or
    /// is larger than the limits allow.
    [[nodiscard]] static std::optional<CSignedData> fromDer(const QByteArray &der,
                                                            Text::CErrorText &fault);

    /// Of the signers the bytes alone are looked at.
    [[nodiscard]] QByteArray toDer() const;
};

/// A set of signed attributes: that the content is plain data, and its digest.
[[nodiscard]] QByteArray makeSignedAttributes(const QByteArray &manifestDigest);

/// The element of an object id from its identifier in OpenSSL.
[[nodiscard]] QByteArray makeObjectId(int nid);

/// The identifier in OpenSSL of @p element; 0: unknown there, or no object id.
[[nodiscard]] int toNid(const QByteArray &element);

} // namespace Viewer::Signature
