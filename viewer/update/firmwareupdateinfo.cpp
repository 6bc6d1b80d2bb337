#include "firmwareupdateinfo.h"

namespace Viewer::Update {

CFirmwareUpdateInfo::CFirmwareUpdateInfo(
    const QSharedPointer<const UpdateFile::CUpdateManifest> &manifest, int index,
    const QString &filePath)
    : m_manifest(manifest)
    , m_index(index)
    , m_filePath(filePath)
{
}

CFirmwareUpdateInfo::~CFirmwareUpdateInfo() = default;

int CFirmwareUpdateInfo::getIndex() const
{
    return m_index;
}

const UpdateFile::CUpdateEntry &CFirmwareUpdateInfo::getEntry() const
{
    return m_manifest->updates.at(m_index);
}

QByteArray CFirmwareUpdateInfo::getManifestDigest() const
{
    return m_manifest->sha256;
}

QString CFirmwareUpdateInfo::getVersion() const
{
    return getEntry().version;
}

QString CFirmwareUpdateInfo::getDescription() const
{
    return getEntry().description;
}

QString CFirmwareUpdateInfo::getReleaseNotes() const
{
    return getEntry().releaseNotes;
}

QString CFirmwareUpdateInfo::getFileName() const
{
    return m_filePath;
}

} // namespace Viewer::Update
