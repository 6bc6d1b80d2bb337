#pragma once

#include "viewer/updatefile/updatemanifest.h"

#include "camerapool/ifirmwareupdateinfo.h"

namespace Viewer::Update {

/// One entry of an update file, as plug-ins see it.
class CFirmwareUpdateInfo : public Plugin::CameraPool::IFirmwareUpdateInfo
{
    Q_OBJECT

public:
    /// @p manifest holds the entry at @p index; @p filePath is the file it was read from.
    CFirmwareUpdateInfo(const QSharedPointer<const UpdateFile::CUpdateManifest> &manifest,
                        int index, const QString &filePath);
    ~CFirmwareUpdateInfo() override;

    [[nodiscard]] const UpdateFile::CUpdateEntry &getEntry() const;

    /// Of the entry among the manifest's, from 0.
    [[nodiscard]] int getIndex() const;

    /// See UpdateFile::CUpdateManifest.
    [[nodiscard]] QByteArray getManifestDigest() const;

    [[nodiscard]] QString getVersion() const override;
    [[nodiscard]] QString getDescription() const override;
    [[nodiscard]] QString getReleaseNotes() const override;
    [[nodiscard]] QString getFileName() const override;

private:
    const QSharedPointer<const UpdateFile::CUpdateManifest> m_manifest;
    const int m_index;
    const QString m_filePath;
};

} // namespace Viewer::Update
