#pragma once

#include "viewer/signature/signatureverdict.h"
#include "viewer/updatefile/updatemanifest.h"

#include <QCoreApplication>
#include <QString>

namespace Viewer::GufTool {

/// Shows what an update file holds.
class CManifestPrinter
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::GufTool::CManifestPrinter)

public:
    /// @p file is the update file's path, for display.
    CManifestPrinter(const QString &file, const UpdateFile::CUpdateManifest &manifest,
                     const Signature::CSignatureVerdict &verdict);

    /// Lines of text for people, in their language.
    [[nodiscard]] QString toText() const;

    /// A JSON object: "file", "formatVersion", "signature" and "updates" with the fields of the
    /// manifest; fields that the manifest may leave out are there, except the estimate of an
    /// upload.
    [[nodiscard]] QString toJson() const;

private:
    [[nodiscard]] QString describeSignature() const;
    [[nodiscard]] static QString describeUpdate(int number, const UpdateFile::CUpdateEntry &update);
    [[nodiscard]] static QString formatStep(int number, const UpdateFile::CUpdateStep &step);
    [[nodiscard]] static QString describeStep(const UpdateFile::CUpdateStep &step);

    const QString m_file;
    const UpdateFile::CUpdateManifest m_manifest;
    const Signature::CSignatureVerdict m_verdict;
};

} // namespace Viewer::GufTool
