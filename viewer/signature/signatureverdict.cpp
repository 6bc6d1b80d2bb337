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

QString CSignatureVerdict::getStateName() const
{
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

} // namespace Viewer::Signature
