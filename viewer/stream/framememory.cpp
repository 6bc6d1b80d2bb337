#include "framememory.h"

#include "core/baseexception.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace Viewer::Stream {

static qint64 roundUp(qint64 size)
{
    const qint64 page = sysconf(_SC_PAGESIZE);
    return (size + page - 1) / page * page;
}

[[noreturn]] static void fail()
{
    throw Core::Exception::BaseException(
        QStringLiteral("there is no memory for images (%1)").arg(qt_error_string(errno)));
}

CFrameMemory::CFrameMemory(int slotCount, qint64 slotSize)
    : m_slotCount(slotCount)
    , m_slotSize(roundUp(slotSize))
{
    m_descriptor = memfd_create("nuvexviewer-frames", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    if (m_descriptor < 0)
        fail();
    const qint64 size = m_slotSize * m_slotCount;
    if (ftruncate(m_descriptor, size) != 0
        || fcntl(m_descriptor, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL) != 0) {
        close(m_descriptor);
        fail();
    }
    void *const data = mmap(nullptr, static_cast<std::size_t>(size), PROT_READ | PROT_WRITE,
                            MAP_SHARED, m_descriptor, 0);
    if (data == MAP_FAILED) {
        close(m_descriptor);
        fail();
    }
    m_data = static_cast<uchar *>(data);
}

CFrameMemory::~CFrameMemory()
{
    munmap(m_data, static_cast<std::size_t>(m_slotSize * m_slotCount));
    close(m_descriptor);
}

uchar *CFrameMemory::getData() const
{
    return m_data;
}

int CFrameMemory::getSlotCount() const
{
    return m_slotCount;
}

qint64 CFrameMemory::getSlotSize() const
{
    return m_slotSize;
}

int CFrameMemory::getDescriptor() const
{
    return m_descriptor;
}

} // namespace Viewer::Stream
