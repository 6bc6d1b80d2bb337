#pragma once

#include <QByteArray>

struct evp_md_st;

namespace Viewer::Signature {

/// SHA-256, SHA-384 or SHA-512; null: @p nid is none of these, so nothing that it proves counts.
[[nodiscard]] const evp_md_st *findDigest(int nid);

/// Empty: it cannot be computed.
[[nodiscard]] QByteArray computeDigest(const QByteArray &bytes, const evp_md_st *digest);

} // namespace Viewer::Signature
