#include "updatefilesigner.h"

#include "ziparchive.h"

#include "viewer/files/replacefile.h"
#include "viewer/updatefile/entryname.h"
#include "viewer/updatefile/updatefileerror.h"
#include "viewer/updatefile/updatefilereader.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace Viewer::GufTool {

using Text::CErrorText;
using UpdateFile::CUpdateFileError;
using UpdateFile::CUpdateFileReader;
using UpdateFile::CUpdateManifest;

void setSignature(const QString &path, const SignatureMaker &make)
{
    const CUpdateManifest manifest = CUpdateFileReader::read(path);
    CErrorText fault;
    const QByteArray signature = make(manifest, fault);
    if (signature.isEmpty())
        throw CUpdateFileError(path, fault);
    int zipError = ZIP_ER_OK;
    CZipPointer archive(zip_open(QFile::encodeName(path).constData(), 0, &zipError));
    if (!archive)
        throw CUpdateFileError(path, CErrorText::tr("the archive cannot be created"));
    const bool isAdded = addFile(archive.get(), UpdateFile::getSignatureName(),
                                 zip_source_buffer(archive.get(), signature.constData(),
                                                   static_cast<zip_uint64_t>(signature.size()), 0));
    fault = finishArchive(std::move(archive), isAdded);
    if (!fault.isEmpty())
        throw CUpdateFileError(path, fault);
}

void replaceSignature(const QString &path, const SignatureMaker &make)
{
    // Tells what is wrong with it by its own name.
    static_cast<void>(CUpdateFileReader::read(QFileInfo(path).absoluteFilePath()));
    const QTemporaryDir workFolder;
    const QString draftPath = workFolder.filePath(QStringLiteral("draft.guf"));
    if (!workFolder.isValid() || !QFile::copy(path, draftPath)
        || !QFile::setPermissions(draftPath, QFile::ReadOwner | QFile::WriteOwner))
        throw CUpdateFileError(path,
                               CErrorText::tr("it cannot be copied into the temporary folder"));
    try {
        setSignature(draftPath, make);
        static_cast<void>(CUpdateFileReader::read(draftPath));
    } catch (const CUpdateFileError &error) {
        throw CUpdateFileError(path, error.getCause());
    }
    QFile draft(draftPath);
    const uchar *const bytes
        = draft.open(QIODevice::ReadOnly) ? draft.map(0, draft.size()) : nullptr;
    if (!bytes)
        throw CUpdateFileError(path, CErrorText::tr("the file cannot be read from the disk"));
    const CErrorText fault
        = Files::replaceFile(path,
                             QByteArray::fromRawData(reinterpret_cast<const char *>(bytes),
                                                     static_cast<int>(draft.size())));
    if (!fault.isEmpty())
        throw CUpdateFileError(path, fault.toClause());
}

} // namespace Viewer::GufTool
