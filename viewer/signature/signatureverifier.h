#pragma once

#include "signatureverdict.h"

#include <optional>

namespace Viewer::Signature {

class CTrustStore;

/// Judges @p signature, the entry `update.json.p7s`, of the bytes of @p manifest at the time
/// @p now. One trusted signer is enough; where there is none, the first one is told of. Any thread.
[[nodiscard]] CSignatureVerdict verifySignature(const QByteArray &manifest,
                                                const std::optional<QByteArray> &signature,
                                                const CTrustStore &store, const QDateTime &now);

} // namespace Viewer::Signature
