#pragma once

#include "certificate.h"

#include <QJsonObject>

namespace Viewer::Signature {

/// What is known of the maker of an update file.
struct CSignatureVerdict
{
    enum class EState {
        NotSigned,
        Trusted, ///< a trusted maker has signed exactly this manifest
        NotTrusted, ///< nobody is known to have signed it, for the reason that is given
    };

    EState state = EState::NotSigned;
    CCertificate
        signer; ///< Trusted: whose signature it is; NotTrusted: whose it is said to be, or none
    QDateTime signedAt; ///< UTC, at the latest; null: no trusted time stamp says so
    Text::CErrorText reason; ///< NotTrusted: a clause

    /// A clause for whoever wants to know: who has signed, or why that is not known.
    [[nodiscard]] Text::CErrorText describe() const;

    /// "state", which is "trusted", "not-signed" or "not-trusted" in every language, and as far as
    /// they are known "signer", "issuer", "validFrom", "validTo", "fingerprint" and "signedAt".
    [[nodiscard]] QJsonObject toJson() const;
};

} // namespace Viewer::Signature
