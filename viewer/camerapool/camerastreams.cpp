#include "camerastreams.h"

#include "viewer/image/framerecorder.h"
#include "viewer/stream/camerastream.h"

#include <QDeadlineTimer>

#include <utility>

namespace Viewer::CameraPool {

using Stream::CCameraStream;
using Text::CErrorText;

struct CCameraStreams::CEntry
{
    CRemoteCamera camera;
    std::unique_ptr<CCameraStream> stream;
    std::unique_ptr<Image::CFrameRecorder> recorder; ///< null: nothing is recorded
};

CCameraStreams::CCameraStreams(QObject *parent)
    : QObject(parent)
{
}

CCameraStreams::~CCameraStreams()
{
    for (const auto &[cameraId, entry] : m_entries)
        finishRecording(cameraId, std::move(entry->recorder));
    m_threads.waitForDone();
}

void CCameraStreams::setWorker(const QString &program, const QString &language)
{
    m_program = program;
    m_language = language;
}

void CCameraStreams::start(const QString &cameraId, const CRemoteCamera &camera)
{
    if (m_entries.count(cameraId) > 0)
        return;
    auto entry = std::make_unique<CEntry>();
    entry->camera = camera;
    camera.handle->begin();
    entry->stream = std::make_unique<CCameraStream>(
        m_program, Stream::CStreamTask{camera.kind, camera.handle->describe(), m_language},
        camera.name);
    CCameraStream *const stream = entry->stream.get();
    connect(stream, &CCameraStream::opened, stream, &CCameraStream::start);
    connect(stream, &CCameraStream::frameReady, this,
            [this, cameraId](const Image::CFrame &frame) { onFrameReady(cameraId, frame); });
    connect(stream, &CCameraStream::statisticsChanged, this,
            [this, cameraId](const Camera::CStreamStatistics &statistics, qint64 skipped) {
                emit statisticsChanged(cameraId, statistics, skipped);
            });
    connect(stream, &CCameraStream::ended, this,
            [this, cameraId](const CErrorText &error) { onEnded(cameraId, error); });
    m_entries.emplace(cameraId, std::move(entry));
}

void CCameraStreams::end(const QString &cameraId)
{
    const auto entry = m_entries.find(cameraId);
    if (entry != m_entries.end())
        entry->second->stream->end();
}

void CCameraStreams::endAll(const QDeadlineTimer &deadline)
{
    for (const auto &[cameraId, entry] : m_entries)
        entry->stream->end();
    // Each one takes its entry away when it has ended.
    while (!m_entries.empty()) {
        const QString cameraId = m_entries.begin()->first;
        m_entries.begin()->second->stream->waitForEnd(deadline);
        // Its process cannot have told.
        if (m_entries.count(cameraId) > 0)
            onEnded(cameraId, {});
    }
}

Stream::CCameraStream *CCameraStreams::findStream(const QString &cameraId) const
{
    const auto entry = m_entries.find(cameraId);
    return entry == m_entries.end() ? nullptr : entry->second->stream.get();
}

void CCameraStreams::setFolder(const QString &cameraId, const QString &folder)
{
    const auto found = m_entries.find(cameraId);
    if (found == m_entries.end())
        return;
    CEntry &entry = *found->second;
    finishRecording(cameraId, std::move(entry.recorder));
    if (folder.isEmpty())
        return;
    Image::CRecording recording;
    recording.camera = entry.camera.name;
    recording.folder = folder;
    entry.recorder = std::make_unique<Image::CFrameRecorder>(recording);
    connect(
        entry.recorder.get(), &Image::CFrameRecorder::failed, this,
        [this, cameraId](const QString &cause) { emit recordingFailed(cameraId, cause); },
        Qt::QueuedConnection);
}

/// What waits to be written still is, while others go on.
void CCameraStreams::finishRecording(const QString &cameraId,
                                     std::unique_ptr<Image::CFrameRecorder> recorder)
{
    if (!recorder)
        return;
    Image::CFrameRecorder *const ending = recorder.release();
    m_threads.start([this, cameraId, ending] {
        ending->stop();
        const quint64 written = ending->getWrittenCount();
        const quint64 lost = ending->getLostCount();
        ending->deleteLater();
        QMetaObject::invokeMethod(
            this, [this, cameraId, written, lost] { emit recordingEnded(cameraId, written, lost); },
            Qt::QueuedConnection);
    });
}

void CCameraStreams::onFrameReady(const QString &cameraId, const Image::CFrame &frame)
{
    const auto entry = m_entries.find(cameraId);
    if (entry != m_entries.end() && entry->second->recorder)
        entry->second->recorder->record(frame);
    emit frameReady(cameraId, frame);
}

void CCameraStreams::onEnded(const QString &cameraId, const CErrorText &error)
{
    const auto found = m_entries.find(cameraId);
    if (found == m_entries.end())
        return;
    const std::unique_ptr<CEntry> entry = std::move(found->second);
    m_entries.erase(found);
    finishRecording(cameraId, std::move(entry->recorder));
    entry->camera.handle->end({});
    // This may be called by a signal of the stream.
    entry->stream.release()->deleteLater();
    emit ended(cameraId, error);
}

} // namespace Viewer::CameraPool
