#include "imagememory.h"

#include "frame.h"

#include <QPixelFormat>

#include <cstdlib>
#include <mutex>
#include <vector>

namespace Viewer::Image {

namespace {

struct CFree
{
    void operator()(uchar *bytes) const { std::free(bytes); }
};

using Bytes = std::unique_ptr<uchar, CFree>;

} // namespace

class CImageMemory::CStore
{
public:
    Bytes take(qint64 size)
    {
        const std::lock_guard lock(m_mutex);
        // Pictures of another size will not come back soon.
        if (m_size != size)
            m_free.clear();
        m_size = size;
        if (m_free.empty())
            return Bytes(static_cast<uchar *>(std::malloc(static_cast<size_t>(size))));
        Bytes bytes = std::move(m_free.back());
        m_free.pop_back();
        return bytes;
    }

    void giveBack(Bytes bytes, qint64 size)
    {
        // One is on the screen, one on the way to it, one being made.
        constexpr size_t MAXIMUM_FREE = 3;
        const std::lock_guard lock(m_mutex);
        if (size == m_size && m_free.size() < MAXIMUM_FREE)
            m_free.push_back(std::move(bytes));
    }

private:
    std::mutex m_mutex;
    std::vector<Bytes> m_free; // each of m_size
    qint64 m_size = 0;
};

CImageMemory::CImageMemory()
    : m_store(std::make_shared<CStore>())
{
}

QImage CImageMemory::makeImage(int width, int height, QImage::Format format)
{
    struct CLease
    {
        std::shared_ptr<CStore> store;
        Bytes bytes;
        qint64 size;
    };
    const int bitsPerPixel = QImage::toPixelFormat(format).bitsPerPixel();
    // As QImage wants it: each line begins at a multiple of four bytes.
    const int stride = (width * (bitsPerPixel / 8) + 3) & ~3;
    const qint64 size = qint64(stride) * height;
    auto lease = std::make_unique<CLease>(CLease{m_store, m_store->take(size), size});
    uchar *bytes = lease->bytes.get();
    if (!bytes)
        return {};
    const auto giveBack = [](void *info) {
        const std::unique_ptr<CLease> ended(static_cast<CLease *>(info));
        ended->store->giveBack(std::move(ended->bytes), ended->size);
    };
    return {bytes, width, height, stride, format, giveBack, lease.release()};
}

QImage wrapFrame(const CFrame &frame, int stride, QImage::Format format)
{
    if (!frame.memory)
        return QImage(frame.data, frame.width, frame.height, stride, format).copy();
    using Memory = std::shared_ptr<const void>;
    return {frame.data,
            frame.width,
            frame.height,
            stride,
            format,
            [](void *info) { delete static_cast<Memory *>(info); },
            new Memory(frame.memory)};
}

} // namespace Viewer::Image
