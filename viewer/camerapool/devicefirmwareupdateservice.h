#pragma once

#include "remotecamera.h"

#include "viewer/signature/signaturepolicy.h"
#include "viewer/update/workerrun.h"
#include "viewer/updatefile/updatefilecache.h"

#include "camerapool/idevicefirmwareupdateservice.h"

#include <functional>
#include <memory>
#include <optional>

namespace Viewer::Camera {
class CCameraActivities;
class ICameraDeviceFactory;
} // namespace Viewer::Camera

namespace Viewer::Update {
class CErrorTranslator;
class CFirmwareUpdateInfo;
} // namespace Viewer::Update

namespace Viewer::CameraPool {

/// Reads update files, decides which of their entries fit a camera, and makes update jobs.
class CDeviceFirmwareUpdateService : public Plugin::CameraPool::IDeviceFirmwareUpdateService
{
    Q_OBJECT

public:
    /// The camera as last enumerated, or null.
    using CameraFinder = std::function<Plugin::CameraPool::CameraInfoPtr(const QString &cameraId)>;

    using RemoteCameraFinder = std::function<CRemoteCamera(const QString &cameraId)>;

    /// Each update from now on runs in a process of its own, of the @p program, which speaks the
    /// @p language. Without a call updates run in this process.
    void setWorker(const QString &program, const QString &language,
                   const RemoteCameraFinder &findRemoteCamera);

    /// See CCameraPool::setLogFinder().
    void setLogFinder(const std::function<QString()> &findLog);

    /// Files that @p policy refuses are faulty from now on, also to the workers of updates. Without
    /// a call none are, and nobody is trusted.
    void setSignaturePolicy(const Signature::CSignaturePolicy &policy);

    /// @p factory is borrowed and outlives this object. Jobs keep their journals in
    /// @p journalFolder; empty: nowhere.
    CDeviceFirmwareUpdateService(Camera::ICameraDeviceFactory &factory,
                                 const CameraFinder &findCamera,
                                 const std::shared_ptr<Camera::CCameraActivities> &activities,
                                 const std::shared_ptr<Update::CErrorTranslator> &errors,
                                 const QString &journalFolder = QString(),
                                 QObject *parent = nullptr);
    ~CDeviceFirmwareUpdateService() override;

    QVector<QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>>
    getFirmwareUpdateInfos(const QString &updateFilePath, const QString &entryFilter) override;

    /// An entry fits when it lists the camera's model, lists its device version or none, and the
    /// camera's firmware is not below the entry's minimum. The newest version comes first, so that
    /// who takes the first entry gets the best one.
    bool getCompatibleFirmwareUpdates(
        QSharedPointer<Plugin::CameraPool::ICameraInfo> camera,
        const QVector<QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>> &all,
        QVector<QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>> &compatible,
        bool &updatable) override;

    QSharedPointer<Plugin::CameraPool::IDeviceFirmwareUpdate> createDeviceFirmwareUpdate(
        QSharedPointer<Plugin::CameraPool::ICameraInfo> camera,
        const QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo> &updateInfo) override;

signals:
    /// A faultless update file was read, whether the policy refuses it or not.
    void signatureJudged(const QString &filePath, const Signature::CSignatureVerdict &verdict);

    /// Why a file cannot be used, or has nothing for the camera that was asked for: one sentence
    /// without a full stop, for a user who is only told that the file does not fit.
    void fileRefused(const Text::CErrorText &sentence);

    /// On the thread of this object; one of the jobs has executed.
    void updateEnded(const QString &cameraId, bool isUpdated);

private:
    [[nodiscard]] std::optional<Update::CWorkerStart>
    makeWorkerStart(const QString &cameraId, const Update::CFirmwareUpdateInfo &info) const;

    Camera::ICameraDeviceFactory &m_factory;
    const CameraFinder m_findCamera;
    const std::shared_ptr<Camera::CCameraActivities> m_activities;
    const std::shared_ptr<Update::CErrorTranslator> m_errors;
    const QString m_journalFolder;
    QString m_workerProgram; ///< empty: this process
    QString m_workerLanguage;
    RemoteCameraFinder m_findRemoteCamera;
    std::function<QString()> m_findLog;
    Signature::CSignaturePolicy m_signaturePolicy;
    UpdateFile::CUpdateFileCache m_cache;
};

} // namespace Viewer::CameraPool
