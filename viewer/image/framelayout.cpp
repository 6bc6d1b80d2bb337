#include "framelayout.h"

#include "frame.h"
#include "pixelformat.h"

namespace Viewer::Image {

using Text::CErrorText;

CFrameLayout::CFrameLayout(const CFrame &frame)
    : m_frame(frame)
    , m_format(CPixelFormat::find(frame.pixelFormat))
    , m_fault(findFault())
{
}

CErrorText CFrameLayout::findFault()
{
    if (!m_format) {
        return CErrorText::tr("the pixel format %1 is unknown")
            .arg(CPixelFormat::getName(m_frame.pixelFormat));
    }
    const int width = m_frame.width;
    const int height = m_frame.height;
    const bool pixelsShareColor = m_format->kind == CPixelFormat::EKind::Uyvy
        || m_format->kind == CPixelFormat::EKind::Yuyv;
    if (width <= 0 || height <= 0 || width > MAXIMUM_SIDE || height > MAXIMUM_SIDE
        || qint64(width) * height > MAXIMUM_PIXELS || (pixelsShareColor && width % 2 != 0)) {
        return CErrorText::tr("an image of %1 x %2 pixels (%3) cannot be shown")
            .arg(QString::number(width), QString::number(height), QLatin1String(m_format->name));
    }
    if (m_frame.linePadding < 0 || m_frame.linePadding > MAXIMUM_PADDING) {
        return CErrorText::tr("%1 bytes behind each line of an image are impossible")
            .arg(QString::number(m_frame.linePadding));
    }
    m_lineSize = (width * m_format->bitsPerPixel + 7) / 8;
    const qint64 needed = getSize();
    const qint64 present = m_frame.data ? m_frame.size : 0;
    if (present < needed) {
        return CErrorText::tr("the image has %1 of the %2 bytes that %3 x %4 pixels (%5) need")
            .arg(QString::number(present), QString::number(needed), QString::number(width),
                 QString::number(height), QLatin1String(m_format->name));
    }
    return {};
}

const CErrorText &CFrameLayout::getFault() const
{
    return m_fault;
}

const CPixelFormat &CFrameLayout::getFormat() const
{
    return *m_format;
}

int CFrameLayout::getStride() const
{
    return m_lineSize + m_frame.linePadding;
}

int CFrameLayout::getLineSize() const
{
    return m_lineSize;
}

qint64 CFrameLayout::getSize() const
{
    return qint64(getStride()) * (m_frame.height - 1) + m_lineSize;
}

const uchar *CFrameLayout::getLine(int y) const
{
    return m_frame.data + qint64(getStride()) * y;
}

} // namespace Viewer::Image
