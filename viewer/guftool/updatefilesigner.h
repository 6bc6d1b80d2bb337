#pragma once

#include <QString>

namespace Viewer::Signature {
class CSigner;
}

namespace Viewer::GufTool {

/// Puts the signature of @p signer into the faultless update file @p path, whose other signatures
/// stay. Throws CUpdateFileError; the file may then be half written.
void addSignature(const QString &path, const Signature::CSigner &signer);

/// The same, but the file is replaced in one go; whatever happens, it is the old or the new one.
void signUpdateFile(const QString &path, const Signature::CSigner &signer);

} // namespace Viewer::GufTool
