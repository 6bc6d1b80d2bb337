#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace Viewer::Text {
class CErrorText;
}

namespace Viewer::UpdateFile {
struct CUpdateManifest;
}

namespace Viewer::GufTool {

/// Makes the entry `update.json.p7s` of an update file with this manifest; empty, with a clause in
/// the fault: it cannot be made.
using SignatureMaker
    = std::function<QByteArray(const UpdateFile::CUpdateManifest &, Text::CErrorText &)>;

/// Puts what @p make makes into the faultless update file @p path. Throws CUpdateFileError; the
/// file may then be half written.
void setSignature(const QString &path, const SignatureMaker &make);

/// The same, but the file is replaced in one go; whatever happens, it is the old or the new one.
void replaceSignature(const QString &path, const SignatureMaker &make);

} // namespace Viewer::GufTool
