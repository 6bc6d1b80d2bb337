#pragma once

#include <QtGlobal>

namespace Viewer::Stream {

/// Memory for images that another process can look into: slots of equal size, one behind the other.
/// Its length can never change, so that nobody who looks into it can fall off its end.
class CFrameMemory
{
public:
    /// Both at least 1. Throws `Core::Exception::BaseException` when there is not so much memory.
    CFrameMemory(int slotCount, qint64 slotSize);
    ~CFrameMemory();
    Q_DISABLE_COPY(CFrameMemory)

    [[nodiscard]] uchar *getData() const;
    [[nodiscard]] int getSlotCount() const;

    /// Rounded up, so that each slot begins on a page.
    [[nodiscard]] qint64 getSlotSize() const;

    /// For the other process, which finds it under /proc.
    [[nodiscard]] int getDescriptor() const;

private:
    const int m_slotCount;
    const qint64 m_slotSize;
    int m_descriptor = -1;
    uchar *m_data = nullptr;
};

} // namespace Viewer::Stream
