#pragma once

#include "remotecamera.h"

#include "viewer/camera/icamerastream.h"
#include "viewer/image/frame.h"
#include "viewer/text/errortext.h"

#include <QObject>
#include <QString>
#include <QThreadPool>

#include <map>
#include <memory>

class QDeadlineTimer;

namespace Viewer::Image {
class CFrameRecorder;
}

namespace Viewer::Stream {
class CCameraStream;
}

namespace Viewer::CameraPool {

/// The images of all acquiring cameras, each from a process of its own, and those that are
/// recorded. GUI thread, which never waits but in endAll().
class CCameraStreams : public QObject
{
    Q_OBJECT

public:
    explicit CCameraStreams(QObject *parent = nullptr);
    ~CCameraStreams() override;

    /// The program of the processes, and the language of what they say.
    void setWorker(const QString &program, const QString &language);

    /// Opens the camera and begins. Does nothing for one that streams already.
    void start(const QString &cameraId, const CRemoteCamera &camera);

    /// Gives the camera back; ended() follows.
    void end(const QString &cameraId);

    /// Gives all cameras back, and returns when that is done or, at the @p deadline, the rest has
    /// been ended by force; ended() has come for each.
    void endAll(const QDeadlineTimer &deadline);

    /// Writes the camera's frames into @p folder; an empty one ends that. Does nothing for a camera
    /// that does not stream.
    void setFolder(const QString &cameraId, const QString &folder);

    /// For reading and changing the settings of a camera that streams; null: it does not.
    [[nodiscard]] Stream::CCameraStream *findStream(const QString &cameraId) const;

signals:
    void frameReady(const QString &cameraId, const Viewer::Image::CFrame &frame);
    void statisticsChanged(const QString &cameraId,
                           const Viewer::Camera::CStreamStatistics &statistics,
                           qint64 skippedFrames);

    /// The camera has been given back, or has gone; @p error is empty after end().
    void ended(const QString &cameraId, const Viewer::Text::CErrorText &error);

    /// Nothing of the recording is to be written any more. @p lostCount: frames for which there was
    /// no time.
    void recordingEnded(const QString &cameraId, quint64 writtenCount, quint64 lostCount);

    /// @p cause is a clause in the user's language; acquisition goes on.
    void recordingFailed(const QString &cameraId, const QString &cause);

private:
    struct CEntry;

    void finishRecording(const QString &cameraId, std::unique_ptr<Image::CFrameRecorder> recorder);
    void onFrameReady(const QString &cameraId, const Image::CFrame &frame);
    void onEnded(const QString &cameraId, const Text::CErrorText &error);

    QString m_program; ///< empty: there is none
    QString m_language;
    QThreadPool m_threads; ///< wait for the ends of recordings
    std::map<QString, std::unique_ptr<CEntry>> m_entries; ///< by the id of the camera
};

} // namespace Viewer::CameraPool
