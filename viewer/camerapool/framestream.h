#pragma once

#include <QHash>
#include <QImage>
#include <QObject>
#include <QString>
#include <QThread>

#include <mutex>

class QTimer;

namespace Viewer::CameraPool {

/// Makes the pictures of all acquiring cameras, and writes those of the recording ones, on a thread
/// of its own. All public functions on the GUI thread.
class CFrameStream : public QObject
{
    Q_OBJECT

public:
    static constexpr int FRAME_WIDTH = 640;
    static constexpr int FRAME_HEIGHT = 480;
    static constexpr int FRAME_INTERVAL_MS = 40;

    explicit CFrameStream(QObject *parent = nullptr);
    ~CFrameStream() override;

    /// Does nothing for a camera that streams already.
    void start(const QString &cameraId);

    /// When it returns, no frame of the camera is made, written or announced any more.
    void stop(const QString &cameraId);

    /// Writes the camera's frames into @p folder; an empty one ends that, completely when it
    /// returns. Does nothing for a camera that does not stream.
    void setFolder(const QString &cameraId, const QString &folder);

signals:
    /// GUI thread; of frames that come faster than they can be shown only the newest one.
    void frameReady(const QString &cameraId, const QImage &frame);

    /// GUI thread; the camera's frames are not written any more, @p cause says why.
    void recordingFailed(const QString &cameraId, const QString &cause);

private:
    struct CCamera
    {
        int frameNumber = 0;
        QString folder; // empty: not recording
        int savedCount = 0;
        QImage newest; // null once delivered
    };

    void makeFrames();
    void deliverFrames();

    QThread m_thread;
    QTimer *m_timer; // lives in the thread and is deleted with it

    std::mutex m_workMutex; // held while a frame is made and written; taken before the other one
    std::mutex m_mutex; // guards what follows, for moments only
    QHash<QString, CCamera> m_cameras;
    bool m_deliveryPosted = false;
};

} // namespace Viewer::CameraPool
