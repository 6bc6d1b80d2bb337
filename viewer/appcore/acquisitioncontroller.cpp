#include "acquisitioncontroller.h"

#include "actioncontainer.h"
#include "imageview.h"
#include "menuservice.h"
#include "modaldialogwatcher.h"

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

CAcquisitionController::CAcquisitionController(CameraPool::CCameraPool &pool, CImageView &view,
                                               QWidget *window)
    : m_pool(pool)
    , m_view(view)
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
    const bool sameCamera = camera && m_camera && camera->getId() == m_camera->getId();
    m_camera = camera;
    updateActions();
    if (!sameCamera || !m_view.hasImage())
        updatePlaceholder();
}

void CAcquisitionController::setCamerasAvailable(bool available)
{
    m_camerasAvailable = available;
    if (!m_view.hasImage())
        updatePlaceholder();
}

void CAcquisitionController::onActivityChanged(const QString &cameraId)
{
    if (!m_camera || m_camera->getId() != cameraId)
        return;
    updateActions();
    const ECameraActivity activity = getActivity();
    if (activity != ECameraActivity::Acquiring && activity != ECameraActivity::Recording)
        updatePlaceholder();
}

void CAcquisitionController::onFrameReady(const QString &cameraId, const Image::CFrame &frame)
{
    if (!m_camera || m_camera->getId() != cameraId)
        return;
    const Image::CConvertedFrame converted = m_converter.toDisplay(frame);
    if (!converted.image.isNull())
        m_view.setImage(converted.image);
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
    m_startAction->setEnabled(idle);
    m_stopAction->setEnabled(acquiring);
    m_recordAction->setEnabled(idle || activity == ECameraActivity::Acquiring);
    m_stopRecordingAction->setEnabled(recording);
}

void CAcquisitionController::updatePlaceholder()
{
    if (!m_camera) {
        if (m_camerasAvailable)
            m_view.setPlaceholder(tr("No camera selected"), tr("Select a camera in the list."));
        else
            m_view.setPlaceholder(tr("No cameras found"), tr("Plug one in and click Refresh."));
        return;
    }
    QString hint = tr("Click Start to see its image.");
    if (getActivity() == ECameraActivity::Updating)
        hint = tr("Its firmware is being updated.");
    else if (getActivity() == ECameraActivity::InUseElsewhere)
        hint = tr("It is in use by another application.");
    m_view.setPlaceholder(m_camera->getDisplayName(), hint);
}

ECameraActivity CAcquisitionController::getActivity() const
{
    return m_camera ? m_pool.getActivity(m_camera->getId()) : ECameraActivity::Idle;
}

} // namespace Viewer::AppCore
