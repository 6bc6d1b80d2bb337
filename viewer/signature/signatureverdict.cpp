#include "signatureverdict.h"

namespace Viewer::Signature {

using Text::CErrorText;

CErrorText CSignatureVerdict::describe() const
{
    switch (state) {
    case EState::NotSigned:
        return CErrorText::tr("it is not signed");
    case EState::Trusted:
        return CErrorText::tr("it is signed by %1").arg(signer.getSubject());
    case EState::NotTrusted:
        return CErrorText::tr("its signature is not trusted: %1").arg(reason);
    }
    return {};
}

static QString getName(CSignatureVerdict::EState state)
{
    using EState = CSignatureVerdict::EState;
    switch (state) {
    case EState::NotSigned:
        return QStringLiteral("not-signed");
    case EState::Trusted:
        return QStringLiteral("trusted");
    case EState::NotTrusted:
        return QStringLiteral("not-trusted");
    }
    return {};
}

QJsonObject CSignatureVerdict::toJson() const
{
    QJsonObject object{{QStringLiteral("state"), getName(state)}};
    if (signer.isNull())
        return object;
    object.insert(QStringLiteral("signer"), signer.getSubject());
    object.insert(QStringLiteral("issuer"), signer.getIssuer());
    object.insert(QStringLiteral("validFrom"), signer.getValidFrom().toString(Qt::ISODate));
    object.insert(QStringLiteral("validTo"), signer.getValidTo().toString(Qt::ISODate));
    object.insert(QStringLiteral("fingerprint"), signer.getFingerprint());
    if (signedAt.isValid())
        object.insert(QStringLiteral("signedAt"), signedAt.toString(Qt::ISODate));
    return object;
}

} // namespace Viewer::Signature
