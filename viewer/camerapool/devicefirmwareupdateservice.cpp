#include "devicefirmwareupdateservice.h"

#include "camerainfo.h"
#include "cameraverdict.h"
#include "viewer/camera/icameradevice.h"
#include "viewer/camera/icameradevicefactory.h"
#include "viewer/camera/icamerahandle.h"
#include "viewer/update/devicefirmwareupdate.h"
#include "viewer/update/firmwareupdateinfo.h"
#include "viewer/updatefile/updatefileerror.h"

#include "core/baseexception.h"

#include <QDir>
#include <QFileInfo>

namespace Viewer::CameraPool {

using Core::Exception::BaseException;
using Plugin::CameraPool::ICameraInfo;
using Plugin::CameraPool::IDeviceFirmwareUpdate;
using Plugin::CameraPool::IFirmwareUpdateInfo;

CDeviceFirmwareUpdateService::CDeviceFirmwareUpdateService(
    Camera::ICameraDeviceFactory &factory, const CameraFinder &findCamera,
    const std::shared_ptr<Camera::CCameraActivities> &activities,
    const std::shared_ptr<Update::CErrorTranslator> &errors, const QString &journalFolder,
    QObject *parent)
    : IDeviceFirmwareUpdateService(parent)
    , m_factory(factory)
    , m_findCamera(findCamera)
    , m_activities(activities)
    , m_errors(errors)
    , m_journalFolder(journalFolder)
{
}

CDeviceFirmwareUpdateService::~CDeviceFirmwareUpdateService() = default;

QVector<QSharedPointer<IFirmwareUpdateInfo>>
CDeviceFirmwareUpdateService::getFirmwareUpdateInfos(const QString &updateFilePath,
                                                     const QString &entryFilter)
{
    Q_UNUSED(entryFilter)
    try {
        const QSharedPointer<const UpdateFile::CUpdateManifest> manifest
            = m_cache.read(updateFilePath);
        const QString path = QDir::fromNativeSeparators(updateFilePath);
        const Signature::CSignatureVerdict verdict
            = m_signaturePolicy.judge(manifest->json, manifest->signature);
        emit signatureJudged(path, verdict);
        const Text::CErrorText refusal = m_signaturePolicy.findRefusal(verdict);
        if (!refusal.isEmpty())
            throw UpdateFile::CUpdateFileError(path, refusal);
        QVector<QSharedPointer<IFirmwareUpdateInfo>> infos;
        for (int i = 0; i < manifest->updates.size(); ++i)
            infos.append(QSharedPointer<IFirmwareUpdateInfo>(
                new Update::CFirmwareUpdateInfo(manifest, i, path)));
        return infos;
    } catch (const UpdateFile::CUpdateFileError &error) {
        emit fileRefused(error.getText());
        throw;
    } catch (const BaseException &) {
        throw;
    } catch (const std::exception &exception) {
        // The contract knows one type of exception.
        throw BaseException(
            QStringLiteral("Update file %1: cannot be read (%2)")
                .arg(updateFilePath, QString::fromLocal8Bit(exception.what()).simplified()));
    }
}

bool CDeviceFirmwareUpdateService::getCompatibleFirmwareUpdates(
    QSharedPointer<ICameraInfo> camera, const QVector<QSharedPointer<IFirmwareUpdateInfo>> &all,
    QVector<QSharedPointer<IFirmwareUpdateInfo>> &compatible, bool &updatable)
{
    compatible.clear();
    updatable = false;
    if (!camera)
        return false;
    updatable = camera->getCameraStatusCode() == 0;
    if (!updatable)
        return true;
    compatible = findFitting(*camera, all);
    const Text::CErrorText misfit = findMisfit(*camera, all);
    if (!misfit.isEmpty())
        emit fileRefused(UpdateFile::CUpdateFileError(
                             QFileInfo(all.constFirst()->getFileName()).fileName(), misfit)
                             .getText());
    return true;
}

void CDeviceFirmwareUpdateService::setWorker(const QString &program, const QString &language,
                                             const RemoteCameraFinder &findRemoteCamera)
{
    m_workerProgram = program;
    m_workerLanguage = language;
    m_findRemoteCamera = findRemoteCamera;
}

void CDeviceFirmwareUpdateService::setSignaturePolicy(const Signature::CSignaturePolicy &policy)
{
    m_signaturePolicy = policy;
}

void CDeviceFirmwareUpdateService::setLogFinder(const std::function<QString()> &findLog)
{
    m_findLog = findLog;
}

std::optional<Update::CWorkerStart>
CDeviceFirmwareUpdateService::makeWorkerStart(const QString &cameraId,
                                              const Update::CFirmwareUpdateInfo &info) const
{
    if (m_workerProgram.isEmpty())
        return std::nullopt;
    const CRemoteCamera camera = m_findRemoteCamera(cameraId);
    if (!camera.handle)
        return std::nullopt;
    Update::CWorkerTask task;
    task.kind = camera.kind;
    task.filePath = QFileInfo(info.getFileName()).absoluteFilePath();
    task.manifestDigest = info.getManifestDigest();
    task.entry = info.getIndex();
    task.language = m_workerLanguage;
    task.requiresSignature = m_signaturePolicy.isRequired();
    task.trustFolders = m_signaturePolicy.getTrustFolders();
    return Update::CWorkerStart{m_workerProgram, task, camera.handle};
}

QSharedPointer<IDeviceFirmwareUpdate> CDeviceFirmwareUpdateService::createDeviceFirmwareUpdate(
    QSharedPointer<ICameraInfo> camera, const QSharedPointer<IFirmwareUpdateInfo> &updateInfo)
{
    const auto info = updateInfo.dynamicCast<Update::CFirmwareUpdateInfo>();
    if (!camera || !info)
        return {};
    std::unique_ptr<Camera::ICameraDevice> device = m_factory.createDevice(camera->getId());
    if (!device)
        return {};
    // The caller may hold an information object from before an update. A camera that has just been
    // unplugged gets its job too; that one can say what is wrong.
    const QSharedPointer<ICameraInfo> found = m_findCamera(camera->getId());
    const QSharedPointer<ICameraInfo> current = found ? found : camera;
    const auto *const own = dynamic_cast<const CCameraInfo *>(current.data());
    const Update::CDeviceFirmwareUpdate::CCamera description{camera->getId(),
                                                             device->getName(),
                                                             current->getFirmwareVersion(),
                                                             current->getModelName(),
                                                             current->getSerialNumber(),
                                                             own ? own->getSnapshot().ipAddress
                                                                 : QString()};
    const auto job = QSharedPointer<Update::CDeviceFirmwareUpdate>::create(
        description, info, std::move(device), m_activities, m_errors, m_journalFolder,
        makeWorkerStart(camera->getId(), *info));
    job->setLogFinder(m_findLog);
    connect(job.data(), &Update::CDeviceFirmwareUpdate::executed, this,
            &CDeviceFirmwareUpdateService::updateEnded);
    return job;
}

} // namespace Viewer::CameraPool
