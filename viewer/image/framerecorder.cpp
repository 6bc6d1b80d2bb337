#include "framerecorder.h"

#include "frame.h"
#include "frameconverter.h"
#include "framelayout.h"
#include "pixelformat.h"
#include "pngencoder.h"
#include "viewer/files/replacefile.h"
#include "viewer/text/visibletext.h"

#include <QDir>
#include <QThread>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstring>
#include <deque>
#include <mutex>
#include <new>

namespace Viewer::Image {

using Text::CErrorText;

namespace {

struct CQueuedFrame
{
    CFrame frame;
    QDateTime time;
};

} // namespace

struct CFrameRecorder::CState
{
    void fail(const CErrorText &cause);

    CRecording recording;

    std::mutex mutex; // guards what follows, for moments only
    std::condition_variable changed;
    CFrameRecorder *recorder = nullptr; // null once it is gone
    std::deque<CQueuedFrame> queue;
    qint64 waiting = 0; // bytes in the queue, on the way to it, and being written
    quint64 writing = 0; // frames
    bool hasEnded = false;
    bool hasFailed = false;
    bool isAbandoned = false; // what is being written has been counted
    QDateTime lastTime;
    quint64 written = 0;
    quint64 lost = 0;
};

QString getFrameFileName(const QString &camera, const QDateTime &time, quint64 number)
{
    constexpr int MAXIMUM_NAME = 100;
    QString name = camera;
    for (QChar &character : name) {
        if (!character.isLetterOrNumber() && character != QLatin1Char('-'))
            character = QLatin1Char('_');
    }
    return QStringLiteral("%1_%2_%3.png")
        .arg(name.left(MAXIMUM_NAME), time.toString(QStringLiteral("yyyyMMdd_HHmmss_zzz")),
             QString::number(number).rightJustified(6, QLatin1Char('0')));
}

QByteArray encodeFrame(CFrameConverter &converter, const QString &camera, const CFrame &frame)
{
    const QImage image = converter.toFullDepth(frame).image;
    if (image.isNull())
        return {};
    const int bits = CPixelFormat::find(frame.pixelFormat)->significantBits;
    return encodePng(image,
                     {{"Camera", Text::toSingleLine(camera)},
                      {"FrameNumber", QString::number(frame.number)},
                      {"Timestamp", QString::number(frame.timestamp)},
                      {"PixelFormat", CPixelFormat::getName(frame.pixelFormat)},
                      {"SignificantBits", QString::number(bits)}});
}

static CErrorText writeFrame(CFrameConverter &converter, const CRecording &recording,
                             const CQueuedFrame &queued)
{
    const QString path
        = QDir(recording.folder)
              .filePath(getFrameFileName(recording.camera, queued.time, queued.frame.number));
    const QByteArray bytes = encodeFrame(converter, recording.camera, queued.frame);
    const CErrorText cause
        = bytes.isEmpty() ? CErrorText::tr("out of memory") : recording.writer(path, bytes);
    if (cause.isEmpty())
        return {};
    return CErrorText::tr("the file \"%1\" cannot be written (%2)")
        .arg(QDir::toNativeSeparators(path), cause);
}

/// The frame with a copy of its @p size bytes; without data where there is no memory.
static CFrame copyFrame(const CFrame &frame, qint64 size)
{
    CFrame copy = frame;
    const std::shared_ptr<uchar[]> bytes(new (std::nothrow) uchar[static_cast<size_t>(size)]);
    if (bytes)
        std::memcpy(bytes.get(), frame.data, static_cast<size_t>(size));
    copy.data = bytes.get();
    copy.size = size;
    copy.memory = bytes;
    return copy;
}

// Under the mutex.
void CFrameRecorder::CState::fail(const CErrorText &cause)
{
    lost += queue.size();
    queue.clear();
    hasEnded = true;
    if (std::exchange(hasFailed, true) || !recorder)
        return;
    QMetaObject::invokeMethod(
        recorder, [target = recorder, text = cause.getLocalized()] { emit target->failed(text); },
        Qt::QueuedConnection);
}

CFrameRecorder::CFrameRecorder(const CRecording &recording, QObject *parent)
    : QObject(parent)
    , m_state(std::make_shared<CState>())
{
    m_state->recording = recording;
    if (!recording.writer)
        m_state->recording.writer = &Files::replaceFile;
    m_state->recorder = this;
    // One more than there are cores, as one or the other waits for the disk.
    const int threadCount = std::clamp(QThread::idealThreadCount(), 1, 7) + 1;
    for (int i = 0; i < threadCount; ++i)
        m_threads.emplace_back(&CFrameRecorder::run, m_state);
}

CFrameRecorder::~CFrameRecorder()
{
    stop();
    const std::lock_guard lock(m_state->mutex);
    m_state->recorder = nullptr;
}

void CFrameRecorder::record(const CFrame &frame)
{
    const CFrameLayout layout(frame);
    const bool isReadable = layout.getFault().isEmpty();
    const qint64 size = isReadable ? layout.getSize() : 0;
    CQueuedFrame queued;
    {
        const std::lock_guard lock(m_state->mutex);
        if (m_state->hasEnded)
            return;
        const bool isFull
            = m_state->waiting > 0 && m_state->waiting + size > m_state->recording.maximumWaiting;
        if (!isReadable || isFull) {
            ++m_state->lost;
            return;
        }
        m_state->waiting += size;
        // No two files of a recording have the same name, whatever number the camera gives them.
        queued.time = QDateTime::currentDateTime();
        if (m_state->lastTime.isValid())
            queued.time = std::max(queued.time, m_state->lastTime.addMSecs(1));
        m_state->lastTime = queued.time;
    }
    queued.frame = copyFrame(frame, size);
    const std::lock_guard lock(m_state->mutex);
    if (m_state->hasEnded || !queued.frame.data) {
        ++m_state->lost;
        m_state->waiting -= size;
        return;
    }
    m_state->queue.push_back(std::move(queued));
    m_state->changed.notify_all();
}

void CFrameRecorder::run(const std::shared_ptr<CState> &state)
{
    CFrameConverter converter;
    std::unique_lock lock(state->mutex);
    for (;;) {
        state->changed.wait(lock, [&state] { return state->hasEnded || !state->queue.empty(); });
        if (state->queue.empty())
            return;
        CQueuedFrame queued = std::move(state->queue.front());
        state->queue.pop_front();
        ++state->writing;
        lock.unlock();
        const CErrorText fault = writeFrame(converter, state->recording, queued);
        const qint64 size = queued.frame.size;
        queued = {};
        lock.lock();
        if (state->isAbandoned)
            return;
        --state->writing;
        state->waiting -= size;
        ++(fault.isEmpty() ? state->written : state->lost);
        if (!fault.isEmpty())
            state->fail(fault);
        state->changed.notify_all();
    }
}

void CFrameRecorder::stop()
{
    std::unique_lock lock(m_state->mutex);
    m_state->hasEnded = true;
    m_state->changed.notify_all();
    const auto waitForEnd = [this, &lock] {
        return m_state->changed.wait_for(
            lock, std::chrono::milliseconds(m_state->recording.stopTimeMs),
            [this] { return m_state->queue.empty() && m_state->writing == 0; });
    };
    bool isDone = waitForEnd();
    if (!isDone) {
        m_state->lost += m_state->queue.size();
        m_state->queue.clear();
        isDone = waitForEnd();
    }
    if (!isDone) {
        m_state->isAbandoned = true;
        m_state->lost += std::exchange(m_state->writing, 0);
    }
    lock.unlock();
    for (std::thread &thread : m_threads) {
        if (isDone)
            thread.join();
        else
            thread.detach();
    }
    m_threads.clear();
}

quint64 CFrameRecorder::getWrittenCount() const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->written;
}

quint64 CFrameRecorder::getLostCount() const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->lost;
}

} // namespace Viewer::Image
