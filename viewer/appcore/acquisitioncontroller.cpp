#include "acquisitioncontroller.h"

#include "actioncontainer.h"
#include "menuservice.h"
#include "modaldialogwatcher.h"

#include "viewer/camera/icamerastream.h"
#include "viewer/imageview/imagegrid.h"
#include "viewer/imageview/imagetile.h"
#include "viewer/imageview/imageview.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QMenu>
#include <QSettings>
#include <QStandardPaths>
#include <QToolBar>

namespace Viewer::AppCore {

using Camera::ECameraActivity;

static const QLatin1String RECORDING_FOLDER_KEY("recordingFolder");

CAcquisitionController::CAcquisitionController(CameraPool::CCameraPool &pool,
                                               ImageView::CImageGrid &images, QWidget *window)
    : m_pool(pool)
    , m_images(images)
    , m_window(window)
    , m_startAction(createAction(QStringLiteral("start"), tr("&Start"), Qt::Key_F6))
    , m_stopAction(createAction(QStringLiteral("stop"), tr("S&top"), Qt::Key_F7))
    , m_recordAction(createAction(QStringLiteral("record"), tr("&Record..."), Qt::Key_F8))
    , m_stopRecordingAction(
          createAction(QStringLiteral("stop_record"), tr("Sto&p recording"), Qt::Key_F9))
{
    m_startAction->setToolTip(tr("Start continuous acquisition (F6)"));
    m_stopAction->setToolTip(tr("Stop continuous acquisition (F7)"));
    m_recordAction->setToolTip(tr("Record images into a folder (F8)"));
    m_stopRecordingAction->setToolTip(tr("Stop recording; acquisition goes on (F9)"));
    connect(m_startAction, &QAction::triggered, this, &CAcquisitionController::start);
    connect(m_stopAction, &QAction::triggered, this, &CAcquisitionController::stop);
    connect(m_recordAction, &QAction::triggered, this,
            &CAcquisitionController::chooseRecordingFolder);
    connect(m_stopRecordingAction, &QAction::triggered, this,
            &CAcquisitionController::stopRecording);
    connect(&m_pool, &CameraPool::CCameraPool::activityChanged, this,
            &CAcquisitionController::onActivityChanged);
    connect(&m_pool, &CameraPool::CCameraPool::frameReady, this,
            &CAcquisitionController::onFrameReady);
    connect(&m_pool, &CameraPool::CCameraPool::statisticsChanged, this,
            &CAcquisitionController::onStatisticsChanged);
    connect(&m_pool, &CameraPool::CCameraPool::startsLockedChanged, this, [this] {
        updateActions();
        if (!isShowingImage())
            updatePlaceholder();
    });
    connect(&m_pool, &CameraPool::CCameraPool::streamFailed, this,
            [this](const QString &, const QString &text) { emit message(text); });
    connect(&m_pool, &CameraPool::CCameraPool::recordingEnded, this,
            [this](const QString &, quint64 writtenCount, quint64 lostCount) {
                onRecordingEnded(writtenCount, lostCount);
            });
    updateActions();
    updatePlaceholder();
}

CAcquisitionController::~CAcquisitionController() = default;

QAction *CAcquisitionController::createAction(const QString &name, const QString &text,
                                              const QKeySequence &shortcut)
{
    const QIcon icon(QStringLiteral(":/viewer/icons/%1.png").arg(name));
    auto *const action = new QAction(icon, text, this);
    action->setObjectName(name);
    action->setShortcut(shortcut);
    return action;
}

void CAcquisitionController::addActions(QToolBar *toolBar, QMenu *fileMenu,
                                        CActionContainer &contextMenu)
{
    const QList<QAction *> actions
        = {m_startAction, m_stopAction, m_recordAction, m_stopRecordingAction};
    toolBar->addActions(actions);
    fileMenu->addActions(actions);
    for (QAction *const action : actions)
        contextMenu.addOwnAction(action, Ids::SELECTOR_ACQUISITION_GROUP);
}

void CAcquisitionController::setCamera(const Plugin::CameraPool::CameraInfoPtr &camera)
{
    m_camera = camera;
    if (camera)
        m_images.setSelected(camera->getId(), camera->getDisplayName());
    else
        m_images.setSelected({}, {});
    updateActions();
    if (!isShowingImage())
        updatePlaceholder();
}

void CAcquisitionController::setCamerasAvailable(bool available)
{
    m_camerasAvailable = available;
    if (!isShowingImage())
        updatePlaceholder();
}

void CAcquisitionController::onActivityChanged(const QString &cameraId)
{
    const ECameraActivity activity = m_pool.getActivity(cameraId);
    const bool isAcquiring
        = activity == ECameraActivity::Acquiring || activity == ECameraActivity::Recording;
    m_images.setAcquiring(cameraId, m_pool.getSnapshot(cameraId).displayName, isAcquiring);
    if (!m_camera || m_camera->getId() != cameraId)
        return;
    updateActions();
    if (!isAcquiring)
        updatePlaceholder();
}

void CAcquisitionController::onFrameReady(const QString &cameraId, const Image::CFrame &frame)
{
    if (ImageView::CImageTile *const tile = m_images.findTile(cameraId))
        tile->showFrame(frame);
}

void CAcquisitionController::onStatisticsChanged(const QString &cameraId,
                                                 const Camera::CStreamStatistics &statistics,
                                                 qint64 skippedFrames)
{
    if (ImageView::CImageTile *const tile = m_images.findTile(cameraId))
        tile->addStatistics(statistics, skippedFrames);
}

void CAcquisitionController::onRecordingEnded(quint64 writtenCount, quint64 lostCount)
{
    QString text = tr("%n image(s) recorded.", nullptr, static_cast<int>(writtenCount));
    if (lostCount > 0) {
        text += QLatin1Char(' ')
            + tr("%n image(s) lost, since writing was too slow.", nullptr,
                 static_cast<int>(lostCount));
    }
    emit message(text);
}

void CAcquisitionController::start()
{
    QString error;
    if (m_camera && !m_pool.startAcquisition(m_camera->getId(), &error))
        emit message(error);
}

void CAcquisitionController::stop()
{
    if (m_camera)
        m_pool.stopAcquisition(m_camera->getId());
}

void CAcquisitionController::chooseRecordingFolder()
{
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    auto *const dialog
        = new QFileDialog(m_window, tr("Record into folder"),
                          QSettings().value(RECORDING_FOLDER_KEY, pictures).toString());
    dialog->setObjectName(QStringLiteral("recordingFolderDialog"));
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    CModalDialogWatcher::markAsOwn(dialog);
    connect(dialog, &QFileDialog::fileSelected, this, &CAcquisitionController::startRecording);
    dialog->open();
}

void CAcquisitionController::startRecording(const QString &folder)
{
    if (!m_camera)
        return;
    QSettings().setValue(RECORDING_FOLDER_KEY, folder);
    QString error;
    if (m_pool.startRecording(m_camera->getId(), folder, &error)) {
        emit message(tr("Recording %1 to %2.")
                         .arg(m_camera->getDisplayName(), QDir::toNativeSeparators(folder)));
    } else {
        emit message(error);
    }
}

void CAcquisitionController::stopRecording()
{
    if (m_camera)
        m_pool.stopRecording(m_camera->getId());
}

void CAcquisitionController::updateActions()
{
    const ECameraActivity activity = getActivity();
    const bool idle = m_camera && activity == ECameraActivity::Idle;
    const bool recording = activity == ECameraActivity::Recording;
    const bool acquiring = activity == ECameraActivity::Acquiring || recording;
    const bool canStart = m_camera && m_pool.getStartObstacle(m_camera->getId()).isEmpty();
    m_startAction->setEnabled(idle && canStart);
    m_stopAction->setEnabled(acquiring);
    m_recordAction->setEnabled((idle || activity == ECameraActivity::Acquiring) && canStart);
    m_stopRecordingAction->setEnabled(recording);
}

void CAcquisitionController::updatePlaceholder()
{
    ImageView::CImageTile *const tile = m_images.getSelectedTile();
    if (!tile)
        return;
    if (!m_camera) {
        if (m_camerasAvailable)
            tile->setPlaceholder(tr("No camera selected"), tr("Select a camera in the list."));
        else
            tile->setPlaceholder(tr("No cameras found"), tr("Plug one in and click Refresh."));
        return;
    }
    const QString obstacle = m_pool.getStartObstacle(m_camera->getId());
    tile->setPlaceholder(m_camera->getDisplayName(),
                         obstacle.isEmpty() ? tr("Click Start to see its image.") : obstacle);
}

bool CAcquisitionController::isShowingImage() const
{
    const ImageView::CImageTile *const tile = m_images.getSelectedTile();
    return tile && tile->getView()->hasImage();
}

ECameraActivity CAcquisitionController::getActivity() const
{
    return m_camera ? m_pool.getActivity(m_camera->getId()) : ECameraActivity::Idle;
}

} // namespace Viewer::AppCore
