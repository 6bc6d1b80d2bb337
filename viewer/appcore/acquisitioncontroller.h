#pragma once

#include "camerapool/icamerainfo.h"
#include "viewer/camerapool/camerapool.h"

#include <QObject>

class QAction;
class QMenu;
class QToolBar;
class QWidget;

namespace Viewer::ImageView {
class CImageGrid;
}

namespace Viewer::AppCore {

class CActionContainer;

/// Starts and stops the selected camera by the actions of menus and tool bar, and shows the images
/// of all that acquire.
class CAcquisitionController : public QObject
{
    Q_OBJECT

public:
    /// All arguments are borrowed and outlive this object; @p window is the parent of dialogs.
    CAcquisitionController(CameraPool::CCameraPool &pool, ImageView::CImageGrid &images,
                           QWidget *window);
    ~CAcquisitionController() override;

    void addActions(QToolBar *toolBar, QMenu *fileMenu, CActionContainer &contextMenu);

    /// Switches actions and image to @p camera; null: none is selected.
    void setCamera(const Plugin::CameraPool::CameraInfoPtr &camera);

    /// Tells whether there is anything to select, for the text in place of an image.
    void setCamerasAvailable(bool available);

signals:
    /// A sentence for the user: what has happened, or what could not be done.
    void message(const QString &text);

private:
    QAction *createAction(const QString &name, const QString &text, const QKeySequence &shortcut);
    void onActivityChanged(const QString &cameraId);
    void onFrameReady(const QString &cameraId, const Image::CFrame &frame);
    void onStatisticsChanged(const QString &cameraId, const Camera::CStreamStatistics &statistics,
                             qint64 skippedFrames);
    void onRecordingEnded(quint64 writtenCount, quint64 lostCount);
    void start();
    void stop();
    void chooseRecordingFolder();
    void startRecording(const QString &folder);
    void stopRecording();
    void updateActions();
    void updatePlaceholder();
    [[nodiscard]] bool isShowingImage() const;
    [[nodiscard]] Camera::ECameraActivity getActivity() const;

    CameraPool::CCameraPool &m_pool;
    ImageView::CImageGrid &m_images;
    QWidget *const m_window;
    QAction *const m_startAction;
    QAction *const m_stopAction;
    QAction *const m_recordAction;
    QAction *const m_stopRecordingAction;
    Plugin::CameraPool::CameraInfoPtr m_camera;
    bool m_camerasAvailable = false;
};

} // namespace Viewer::AppCore
