#pragma once

#include <QtGlobal>

/// What signatures and folders of certificates may at most hold: far more than anybody needs, and
/// so little that the worst of it is judged in a moment. Kept before OpenSSL sees anything.
namespace Viewer::Signature::Limits {

constexpr qint64 SIGNATURE_SIZE = 1024 * 1024; ///< of the entry in the archive
constexpr int SIGNERS = 8;
constexpr int CERTIFICATES = 16; ///< in one signature
constexpr int CERTIFICATE_SIZE = 64 * 1024;
constexpr int ATTRIBUTES = 32; ///< of one signer
constexpr int TIME_STAMP_SIZE = 64 * 1024;
constexpr int CHAIN_DEPTH = 8; ///< certificates between a signer's and a trusted one

constexpr qint64 FILE_SIZE = 4 * 1024 * 1024; ///< of certificates, keys, revocation lists
constexpr int FILES = 256; ///< of one folder
constexpr int FILE_CERTIFICATES = 256; ///< in one file, and so many revocation lists

constexpr int RSA_BITS = 3072; ///< at least

} // namespace Viewer::Signature::Limits
