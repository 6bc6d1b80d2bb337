#include "camerastream.h"

#include "framewindow.h"

#include "viewer/camera/cameraerror.h"
#include "viewer/process/cbormessages.h"
#include "viewer/process/workerenvironment.h"

#include <QCborValue>
#include <QDeadlineTimer>
#include <QDir>
#include <QPointer>

#include <functional>
#include <mutex>
#include <utility>

namespace Viewer::Stream {

using Text::CErrorText;

/// Lets other threads release images, also when the stream has gone before the last image.
class CReleases
{
public:
    explicit CReleases(const std::function<void(qint64 start, int slot)> &release)
        : m_release(release)
    {
    }

    void add(qint64 start, int slot)
    {
        const std::lock_guard lock(m_mutex);
        if (m_release)
            m_release(start, slot);
    }

    void end()
    {
        const std::lock_guard lock(m_mutex);
        m_release = nullptr;
    }

private:
    std::mutex m_mutex;
    std::function<void(qint64 start, int slot)> m_release;
};

CCameraStream::CCameraStream(const QString &program, const CStreamTask &task,
                             const QString &cameraName, QObject *parent)
    : QObject(parent)
    , m_cameraName(cameraName)
    , m_releases(std::make_shared<CReleases>([this](qint64 start, int slot) {
        QMetaObject::invokeMethod(
            this, [this, start, slot] { release(start, slot); }, Qt::QueuedConnection);
    }))
{
    m_process.setProgram(program);
    m_process.setArguments({QStringLiteral("stream")});
    m_process.setProcessEnvironment(Process::makeWorkerEnvironment());
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setWorkingDirectory(QDir::rootPath());
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &CCameraStream::onReadable);
    connect(&m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            &CCameraStream::onFinished);
    connect(&m_process, &QProcess::errorOccurred, this, &CCameraStream::onErrorOccurred);
    m_process.start();
    m_process.write(QCborValue(task.toCbor()).toCbor());
}

CCameraStream::~CCameraStream()
{
    m_releases->end();
    m_process.disconnect(this);
    m_process.kill();
    m_process.waitForFinished();
}

qint64 CCameraStream::getProcessId() const
{
    return m_process.processId();
}

void CCameraStream::start()
{
    CStreamCommand command;
    command.type = CStreamCommand::EType::Start;
    send(command);
}

void CCameraStream::stop()
{
    CStreamCommand command;
    command.type = CStreamCommand::EType::Stop;
    send(command);
}

void CCameraStream::readFeatures(const QStringList &names)
{
    CStreamCommand command;
    command.type = CStreamCommand::EType::Read;
    command.names = names;
    send(command);
}

void CCameraStream::writeFeature(const QString &name, const QString &value)
{
    CStreamCommand command;
    command.type = CStreamCommand::EType::Write;
    command.name = name;
    command.value = value;
    send(command);
}

void CCameraStream::executeCommand(const QString &name)
{
    CStreamCommand command;
    command.type = CStreamCommand::EType::Execute;
    command.name = name;
    send(command);
}

void CCameraStream::send(const CStreamCommand &command)
{
    if (!m_isEnding && m_process.state() != QProcess::NotRunning)
        m_process.write(QCborValue(command.toCbor()).toCbor());
}

void CCameraStream::release(qint64 start, int slot)
{
    CStreamCommand command;
    command.start = start;
    command.type = CStreamCommand::EType::Release;
    command.slot = slot;
    send(command);
}

void CCameraStream::end()
{
    m_isEnding = true;
    // The worker gives the camera back when nobody can ask anything of it any more.
    m_process.closeWriteChannel();
}

void CCameraStream::waitForEnd(const QDeadlineTimer &deadline)
{
    const auto remaining = static_cast<int>(deadline.remainingTime());
    if (m_process.state() == QProcess::NotRunning || m_process.waitForFinished(remaining))
        return;
    m_process.kill();
    m_process.waitForFinished();
}

void CCameraStream::onReadable()
{
    m_bytes += m_process.readAllStandardOutput();
    const QPointer<CCameraStream> self(this);
    bool isBroken = false;
    while (const std::optional<QCborMap> message = Process::takeMessage(m_bytes, isBroken)) {
        const std::optional<CStreamEvent> event = CStreamEvent::fromCbor(*message);
        isBroken = !event;
        if (isBroken)
            break;
        take(*event);
        // Who is told may have no use for this object any more.
        if (!self || m_hasEnded)
            return;
    }
    if (isBroken)
        fail(CErrorText::tr("the camera program says something that is not understood; install the "
                            "viewer again"));
}

void CCameraStream::take(const CStreamEvent &event)
{
    switch (event.type) {
    case CStreamEvent::EType::Hello:
        break;
    case CStreamEvent::EType::Opened:
        emit opened();
        break;
    case CStreamEvent::EType::Started: {
        QString fault;
        ++m_startCount;
        m_window = CFrameWindow::open(
            m_process.processId(), event.descriptor, event.slotCount, event.slotSize,
            [releases = m_releases, start = m_startCount](int slot) { releases->add(start, slot); },
            fault);
        if (m_window)
            emit started();
        else
            fail(CErrorText::tr("the memory for its images cannot be used (%1)").arg(fault));
        break;
    }
    case CStreamEvent::EType::Frame: {
        const auto frame = m_window ? m_window->getFrame(event.frame) : std::nullopt;
        if (frame && m_isEnding)
            break;
        if (frame)
            emit frameReady(*frame);
        else
            fail(CErrorText::tr("the camera program says something that is not understood; install "
                                "the viewer again"));
        break;
    }
    case CStreamEvent::EType::Statistics:
        emit statisticsChanged(event.statistics, event.skippedFrames);
        break;
    case CStreamEvent::EType::Features:
        m_features += event.features;
        if (event.isLast)
            emit featuresRead(std::exchange(m_features, {}));
        break;
    case CStreamEvent::EType::Refused:
        emit refused(event.error.getLocalized());
        break;
    case CStreamEvent::EType::Stopped:
        m_window.reset();
        emit stopped();
        break;
    case CStreamEvent::EType::Failed:
        m_error = event.error;
        break;
    }
}

void CCameraStream::onErrorOccurred(QProcess::ProcessError error)
{
    if (error == QProcess::FailedToStart) {
        m_error
            = Camera::CCameraError(
                  m_cameraName,
                  CErrorText::tr("the camera program \"%1\" cannot be started (%2); install "
                                 "the viewer again")
                      .arg(QDir::toNativeSeparators(m_process.program()), m_process.errorString()))
                  .getText();
        announceEnd();
    }
}

void CCameraStream::onFinished(int exitCode, QProcess::ExitStatus status)
{
    const QPointer<CCameraStream> self(this);
    onReadable();
    if (!self)
        return;
    const QString number = QString::number(exitCode);
    if (m_error.isEmpty() && !m_isEnding)
        m_error = Camera::CCameraError(
                      m_cameraName,
                      status == QProcess::CrashExit
                          ? CErrorText::tr("the camera program ended unexpectedly (signal %1)")
                                .arg(number)
                          : CErrorText::tr("the camera program ended unexpectedly (exit code %1)")
                                .arg(number))
                      .getText();
    announceEnd();
}

void CCameraStream::fail(const CErrorText &cause)
{
    m_error = Camera::CCameraError(m_cameraName, cause).getText();
    m_process.kill();
}

void CCameraStream::announceEnd()
{
    if (std::exchange(m_hasEnded, true))
        return;
    m_window.reset();
    emit ended(m_isEnding ? CErrorText() : m_error);
}

} // namespace Viewer::Stream
