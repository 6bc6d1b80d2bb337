#include "framestream.h"

#include "testpattern.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTimer>

namespace Viewer::CameraPool {

static QString getFrameFileName(const QString &cameraId, int number)
{
    QString name = cameraId;
    for (QChar &character : name) {
        if (!character.isLetterOrNumber() && character != QLatin1Char('-'))
            character = QLatin1Char('_');
    }
    const QString time
        = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_HHmmss_zzz"));
    return QStringLiteral("%1_%2_%3.png")
        .arg(name.left(100), time, QString::number(number).rightJustified(6, QLatin1Char('0')));
}

CFrameStream::CFrameStream(QObject *parent)
    : QObject(parent)
    , m_timer(new QTimer)
{
    m_timer->setInterval(FRAME_INTERVAL_MS);
    m_timer->moveToThread(&m_thread);
    // The timer is the context, so the frames are made on its thread.
    connect(m_timer, &QTimer::timeout, m_timer, [this] { makeFrames(); });
    connect(&m_thread, &QThread::finished, m_timer, &QObject::deleteLater);
    m_thread.setObjectName(QStringLiteral("frames"));
    m_thread.start();
}

CFrameStream::~CFrameStream()
{
    m_thread.quit();
    m_thread.wait();
}

void CFrameStream::start(const QString &cameraId)
{
    const std::lock_guard lock(m_mutex);
    if (m_cameras.isEmpty())
        QMetaObject::invokeMethod(m_timer, QOverload<>::of(&QTimer::start), Qt::QueuedConnection);
    if (!m_cameras.contains(cameraId))
        m_cameras.insert(cameraId, {});
}

void CFrameStream::stop(const QString &cameraId)
{
    const std::lock_guard workLock(m_workMutex);
    const std::lock_guard lock(m_mutex);
    if (m_cameras.remove(cameraId) > 0 && m_cameras.isEmpty())
        QMetaObject::invokeMethod(m_timer, &QTimer::stop, Qt::QueuedConnection);
}

void CFrameStream::setFolder(const QString &cameraId, const QString &folder)
{
    const std::lock_guard workLock(m_workMutex);
    const std::lock_guard lock(m_mutex);
    const auto camera = m_cameras.find(cameraId);
    if (camera == m_cameras.end())
        return;
    camera->folder = folder;
    camera->savedCount = 0;
}

void CFrameStream::makeFrames()
{
    QStringList cameraIds;
    {
        const std::lock_guard lock(m_mutex);
        cameraIds = m_cameras.keys();
    }
    for (const QString &cameraId : qAsConst(cameraIds)) {
        const std::lock_guard workLock(m_workMutex);
        CCamera camera;
        {
            const std::lock_guard lock(m_mutex);
            const auto it = m_cameras.find(cameraId);
            if (it == m_cameras.end())
                continue;
            ++it->frameNumber;
            if (!it->folder.isEmpty())
                ++it->savedCount;
            camera = *it;
        }
        const QImage frame = makeTestPattern(QSize(FRAME_WIDTH, FRAME_HEIGHT), camera.frameNumber,
                                             static_cast<int>(qHash(cameraId) % 360));
        QString cause;
        if (!camera.folder.isEmpty()) {
            QFile file(QDir(camera.folder).filePath(getFrameFileName(cameraId, camera.savedCount)));
            if (!file.open(QIODevice::WriteOnly) || !frame.save(&file, "PNG") || !file.flush()) {
                cause = tr("the file \"%1\" cannot be written (%2)")
                            .arg(QDir::toNativeSeparators(file.fileName()), file.errorString());
                // Half a picture is of no use.
                file.remove();
            }
        }
        const std::lock_guard lock(m_mutex);
        const auto it = m_cameras.find(cameraId); // stop() waits for the other mutex
        it->newest = frame;
        if (!cause.isEmpty()) {
            it->folder.clear();
            QMetaObject::invokeMethod(
                this, [this, cameraId, cause] { emit recordingFailed(cameraId, cause); },
                Qt::QueuedConnection);
        }
        if (!m_deliveryPosted) {
            m_deliveryPosted = true;
            QMetaObject::invokeMethod(
                this, [this] { deliverFrames(); }, Qt::QueuedConnection);
        }
    }
}

void CFrameStream::deliverFrames()
{
    QHash<QString, QImage> frames;
    {
        const std::lock_guard lock(m_mutex);
        m_deliveryPosted = false;
        for (auto it = m_cameras.begin(); it != m_cameras.end(); ++it) {
            if (!it->newest.isNull())
                frames.insert(it.key(), std::exchange(it->newest, QImage()));
        }
    }
    for (auto it = frames.cbegin(); it != frames.cend(); ++it) {
        {
            // A receiver of the frame before may have stopped this camera.
            const std::lock_guard lock(m_mutex);
            if (!m_cameras.contains(it.key()))
                continue;
        }
        emit frameReady(it.key(), it.value());
    }
}

} // namespace Viewer::CameraPool
