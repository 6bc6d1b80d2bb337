#pragma once

#include "streamcommand.h"
#include "streamevent.h"
#include "streamtask.h"

#include "viewer/image/frame.h"
#include "viewer/text/errortext.h"

#include <QObject>
#include <QProcess>
#include <QVector>

#include <memory>

class QDeadlineTimer;

namespace Viewer::Stream {

class CFrameWindow;
class CReleases;

/// The images and settings of one camera, which a process of its own gets from it. Whatever happens
/// to that process is the end of this stream and of nothing else. One thread, which never waits but
/// in waitForEnd(); images may be released on any.
class CCameraStream : public QObject
{
    Q_OBJECT

public:
    /// Starts nuvexcameraworker at the absolute path @p program and has it open the camera.
    /// @p cameraName is what messages call that.
    CCameraStream(const QString &program, const CStreamTask &task, const QString &cameraName,
                  QObject *parent = nullptr);

    /// Ends the process, by force if need be.
    ~CCameraStream() override;

    /// Of the process; 0: it does not run.
    [[nodiscard]] qint64 getProcessId() const;

    /// Once the camera is open, images come.
    void start();
    void stop();

    void readFeatures(const QStringList &names);

    /// Stops and starts images where the camera would not let itself be set otherwise, or they need
    /// more memory afterwards.
    void writeFeature(const QString &name, const QString &value);
    void executeCommand(const QString &name);

    /// Asks the process to give the camera back and end.
    void end();

    /// Waits until the process has ended after end(), and kills it at the @p deadline.
    void waitForEnd(const QDeadlineTimer &deadline);

signals:
    void opened();
    void started();

    /// An image has come. Who keeps too many of them gets no more.
    void frameReady(const Viewer::Image::CFrame &frame);

    /// @p skippedFrames: those that nobody here had room for.
    void statisticsChanged(const Viewer::Camera::CStreamStatistics &statistics,
                           qint64 skippedFrames);

    /// An answer to readFeatures(), as a whole.
    void featuresRead(const QVector<Viewer::Camera::CFeatureInfo> &features);

    /// The camera has refused a setting. @p text is one line in the user's language.
    void refused(const QString &text);
    void stopped();

    /// The last signal: the process has ended. @p error is empty after end().
    void ended(const Viewer::Text::CErrorText &error);

private:
    void onReadable();
    void onFinished(int exitCode, QProcess::ExitStatus status);
    void onErrorOccurred(QProcess::ProcessError error);
    void take(const CStreamEvent &event);
    void send(const CStreamCommand &command);
    void release(qint64 start, int slot);
    void fail(const Text::CErrorText &cause);
    void announceEnd();

    const QString m_cameraName;
    QProcess m_process;
    QByteArray m_bytes; ///< that are no whole event yet
    std::shared_ptr<CFrameWindow> m_window;
    qint64 m_startCount = 0;
    const std::shared_ptr<CReleases> m_releases;
    QVector<Camera::CFeatureInfo> m_features; ///< of an answer that is not whole yet
    Text::CErrorText m_error;
    bool m_isEnding = false;
    bool m_hasEnded = false;
};

} // namespace Viewer::Stream
