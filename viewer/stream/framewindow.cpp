#include "framewindow.h"

#include <QFile>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Viewer::Stream {

/// More than a worker can have.
static constexpr qint64 MAXIMUM_SIZE = qint64(1) << 30;
static constexpr int MAXIMUM_SLOTS = 1000;

std::shared_ptr<CFrameWindow> CFrameWindow::open(qint64 process, int descriptor, int slotCount,
                                                 qint64 slotSize, const Listener &listener,
                                                 QString &fault)
{
    if (slotCount < 1 || slotCount > MAXIMUM_SLOTS || slotSize < 1
        || slotSize > MAXIMUM_SIZE / slotCount) {
        fault = QStringLiteral("%1 slots of %2 bytes").arg(slotCount).arg(slotSize);
        return nullptr;
    }
    const QByteArray path
        = QFile::encodeName(QStringLiteral("/proc/%1/fd/%2").arg(process).arg(descriptor));
    // Never blocks, whatever it is.
    const int file = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (file < 0) {
        fault = qt_error_string(errno);
        return nullptr;
    }
    const auto size = static_cast<std::size_t>(slotCount * slotSize);
    struct stat info = {};
    // What shrinks below who reads it ends the reader.
    const bool isFixed
        = (fcntl(file, F_GET_SEALS) & F_SEAL_SHRINK) != 0 && fcntl(file, F_GET_SEALS) >= 0;
    void *data = MAP_FAILED;
    if (fstat(file, &info) == 0 && isFixed && static_cast<std::size_t>(info.st_size) >= size)
        data = mmap(nullptr, size, PROT_READ, MAP_SHARED, file, 0);
    else
        errno = EINVAL;
    if (data == MAP_FAILED)
        fault = qt_error_string(errno);
    close(file);
    if (data == MAP_FAILED)
        return nullptr;
    return std::shared_ptr<CFrameWindow>(
        new CFrameWindow(static_cast<const uchar *>(data), slotCount, slotSize, listener));
}

CFrameWindow::CFrameWindow(const uchar *data, int slotCount, qint64 slotSize,
                           const Listener &listener)
    : m_data(data)
    , m_slotCount(slotCount)
    , m_slotSize(slotSize)
    , m_listener(listener)
{
}

CFrameWindow::~CFrameWindow()
{
    munmap(const_cast<uchar *>(m_data), static_cast<std::size_t>(m_slotCount * m_slotSize));
}

std::optional<Image::CFrame> CFrameWindow::getFrame(const Camera::CFrameInfo &info)
{
    if (info.slot < 0 || info.slot >= m_slotCount || info.size < 0 || info.size > m_slotSize)
        return std::nullopt;
    Image::CFrame frame;
    frame.data = m_data + info.slot * m_slotSize;
    frame.memory = std::shared_ptr<const void>(
        frame.data,
        [self = shared_from_this(), slot = info.slot](const void *) { self->m_listener(slot); });
    frame.size = info.size;
    frame.pixelFormat = info.pixelFormat;
    frame.width = info.width;
    frame.height = info.height;
    frame.linePadding = info.linePadding;
    frame.number = info.number;
    frame.timestamp = info.timestamp;
    return frame;
}

} // namespace Viewer::Stream
