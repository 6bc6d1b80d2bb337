#pragma once

#include "updatefilesigner.h"
#include "viewer/text/errortext.h"

#include "viewer/updatefile/updatemanifest.h"

#include <QJsonObject>
#include <QString>

namespace Viewer::GufTool {

/// Makes an update file from a folder that holds update.json and the payloads that it names. The
/// same sources give the same bytes.
class CUpdateFilePacker
{
public:
    explicit CUpdateFilePacker(const QString &folder);

    /// Writes the update file and returns what it says. The file takes its place only when it is
    /// whole and has been read back without a fault; until then one that is there already stays as
    /// it is. With what @p sign makes, or not signed. Throws CUpdateFileError.
    UpdateFile::CUpdateManifest pack(const QString &file,
                                     const SignatureMaker &sign = nullptr) const;

private:
    [[nodiscard]] QByteArray readSource() const;
    /// Each is there, and together they are not too large.
    void checkPayloads(const QStringList &names) const;
    [[nodiscard]] QByteArray completeManifest(const QByteArray &source) const;
    [[nodiscard]] QJsonObject completeStep(QJsonObject step) const;
    [[noreturn]] void fail(const Text::CErrorText &cause) const;

    const QString m_folder;
};

} // namespace Viewer::GufTool
