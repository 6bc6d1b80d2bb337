#include "cameraenumerationservice.h"

#include "camerainfo.h"
#include "enumerationworker.h"
#include "transportlayerinfo.h"
#include "viewer/camera/cameraactivities.h"
#include "viewer/camera/icameraenumerator.h"
#include "viewer/update/updatejournal.h"

#include <algorithm>

namespace Viewer::CameraPool {

/// Another process updates the camera; the kinds of cameras use other codes.
static constexpr qint32 UPDATED_ELSEWHERE_STATUS = 1002;
static constexpr int JOURNAL_INTERVAL = 2000; // milliseconds

using Plugin::CameraPool::CameraInfoPtr;
using Plugin::CameraPool::TransportLayerInfoPtr;

CCameraEnumerationService::CCameraEnumerationService(
    Camera::ICameraEnumerator &enumerator,
    const std::shared_ptr<const Camera::CCameraActivities> &activities,
    const QString &journalFolder, QObject *parent)
    : ICameraEnumerationService(parent)
    , m_enumerator(enumerator)
    , m_activities(activities)
    , m_journalFolder(journalFolder)
    , m_worker(new CEnumerationWorker(enumerator))
{
    m_worker->moveToThread(&m_thread);
    connect(&m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    connect(this, &CCameraEnumerationService::requested, m_worker,
            &CEnumerationWorker::onRequested);
    connect(m_worker, &CEnumerationWorker::enumerated, this,
            &CCameraEnumerationService::onEnumerated);
    m_journalTimer.setSingleShot(true);
    m_journalTimer.setInterval(JOURNAL_INTERVAL);
    connect(&m_journalTimer, &QTimer::timeout, this, &CCameraEnumerationService::onJournalTimeout);
    m_thread.setObjectName(QStringLiteral("enumeration"));
    m_thread.start();
}

CCameraEnumerationService::~CCameraEnumerationService()
{
    m_enumerator.cancel();
    m_thread.quit();
    m_thread.wait();
}

CameraInfoPtr CCameraEnumerationService::findCamera(const QString &cameraId) const
{
    return m_cameras.value(cameraId);
}

std::optional<int> CCameraEnumerationService::getProgressElsewhere(const QString &cameraId) const
{
    const auto progress = m_updatedElsewhere.constFind(cameraId);
    return progress == m_updatedElsewhere.constEnd() ? std::nullopt : std::optional(*progress);
}

QVector<QSharedPointer<Plugin::CameraPool::ITransportLayerInfo>>
CCameraEnumerationService::getTransportLayerInfoVector() const
{
    return m_layers;
}

void CCameraEnumerationService::refreshEnumeration()
{
    m_wantedAnnounced = true;
    request();
}

void CCameraEnumerationService::onCamerasChanged()
{
    request();
}

void CCameraEnumerationService::onUpdatesEnded()
{
    request();
}

void CCameraEnumerationService::request()
{
    m_wanted = true;
    // Otherwise the end of the one or the other comes back here.
    if (m_running || m_activities->isUpdateRunning())
        return;
    m_running = true;
    m_runningAnnounced = m_wantedAnnounced;
    m_wanted = false;
    m_wantedAnnounced = false;
    m_updateCountAtRequest = m_activities->getUpdateCount();
    m_updatedElsewhere = findUpdatedElsewhere();
    emit requested();
}

static bool hasSameCameras(const QHash<QString, int> &left, const QHash<QString, int> &right)
{
    return left.size() == right.size()
        && std::all_of(left.keyBegin(), left.keyEnd(),
                       [&right](const QString &id) { return right.contains(id); });
}

void CCameraEnumerationService::onEnumerated()
{
    QVector<Camera::CTransportLayerSnapshot> layers = m_worker->takeResult();
    m_running = false;
    if (m_activities->isUpdateRunning() || m_activities->getUpdateCount() != m_updateCountAtRequest
        || !hasSameCameras(findUpdatedElsewhere(), m_updatedElsewhere)) {
        // The result may show a camera in the middle of its restart, or as it was before.
        m_wantedAnnounced = m_wantedAnnounced || m_runningAnnounced;
        request();
        return;
    }
    markUpdatedElsewhere(layers);
    const bool changed = replaceResult(layers);
    const bool announced = changed || m_runningAnnounced;
    if (m_wanted)
        request();
    if (announced)
        emit enumerationChanged();
}

QHash<QString, int> CCameraEnumerationService::findUpdatedElsewhere() const
{
    QHash<QString, int> progress;
    const QVector<Update::CJournalEntry> entries = Update::readJournals(m_journalFolder).entries;
    for (const Update::CJournalEntry &entry : entries) {
        const QString &id = entry.record.cameraId;
        if (entry.isRunning && m_activities->get(id) != Camera::ECameraActivity::Updating)
            progress.insert(id, Update::getTotalPercent(entry.record));
    }
    return progress;
}

void CCameraEnumerationService::markUpdatedElsewhere(
    QVector<Camera::CTransportLayerSnapshot> &layers)
{
    for (Camera::CTransportLayerSnapshot &layer : layers) {
        for (Camera::CCameraSnapshot &camera : layer.cameras) {
            if (!m_updatedElsewhere.contains(camera.id))
                continue;
            camera.statusCode = UPDATED_ELSEWHERE_STATUS;
            camera.statusReason = tr("being updated");
        }
    }
    if (!m_updatedElsewhere.isEmpty())
        m_journalTimer.start();
}

void CCameraEnumerationService::onJournalTimeout()
{
    const QHash<QString, int> before = m_updatedElsewhere;
    const QHash<QString, int> now = findUpdatedElsewhere();
    if (!hasSameCameras(now, before)) {
        request();
        return;
    }
    m_updatedElsewhere = now;
    m_journalTimer.start();
    for (auto camera = now.begin(); camera != now.end(); ++camera) {
        if (camera.value() != before.value(camera.key()))
            emit progressElsewhereChanged(camera.key());
    }
}

bool CCameraEnumerationService::replaceResult(
    const QVector<Camera::CTransportLayerSnapshot> &layers)
{
    QVector<TransportLayerInfoPtr> newLayers;
    QHash<QString, CameraInfoPtr> newCameras;
    newCameras.reserve(m_cameras.size());
    bool changed = layers.size() != m_layers.size();
    for (int i = 0; i < layers.size(); ++i) {
        const Camera::CTransportLayerSnapshot &layer = layers.at(i);
        QVector<CameraInfoPtr> cameras;
        cameras.reserve(layer.cameras.size());
        for (const Camera::CCameraSnapshot &snapshot : layer.cameras) {
            // What has not changed stays the same object, which plug-ins may hold and compare.
            CameraInfoPtr camera = m_cameras.value(snapshot.id);
            const auto *const known = static_cast<const CCameraInfo *>(camera.data());
            if (!known || known->getSnapshot() != snapshot
                || known->getTransportLayerId() != layer.id)
                camera.reset(new CCameraInfo(snapshot, layer.id));
            cameras.append(camera);
            newCameras.insert(snapshot.id, camera);
        }
        const TransportLayerInfoPtr known = i < m_layers.size() ? m_layers.at(i) : nullptr;
        if (known && known->getId() == layer.id && known->getDisplayName() == layer.displayName
            && known->getCameraInfoList() == cameras) {
            newLayers.append(known);
        } else {
            newLayers.append(TransportLayerInfoPtr(
                new CTransportLayerInfo(layer.id, layer.displayName, cameras)));
            changed = true;
        }
    }
    m_layers = newLayers;
    m_cameras = newCameras;
    return changed;
}

} // namespace Viewer::CameraPool
