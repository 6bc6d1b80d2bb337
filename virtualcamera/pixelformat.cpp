#include "pixelformat.h"

namespace VirtualCamera {

const CPixelFormat *findPixelFormat(quint32 code)
{
    for (const CPixelFormat &format : PIXEL_FORMATS) {
        if (format.code == code)
            return &format;
    }
    return nullptr;
}

const CPixelFormat *findPixelFormat(const QByteArray &name)
{
    for (const CPixelFormat &format : PIXEL_FORMATS) {
        if (name == format.name)
            return &format;
    }
    return nullptr;
}

} // namespace VirtualCamera
