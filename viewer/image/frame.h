#pragma once

#include <QtGlobal>

#include <memory>

namespace Viewer::Image {

/// One image as a camera gave it. Whatever its numbers say, they are believed by nobody: a camera
/// may be damaged, another process may have written them. `CFrameLayout` judges them.
struct CFrame
{
    std::shared_ptr<const void> memory; ///< keeps the bytes alive; null: they live for a call only
    const uchar *data = nullptr; ///< the first byte of the first line
    qint64 size = 0; ///< bytes that are there
    quint32 pixelFormat = 0; ///< code of the pixel format naming convention (PFNC)
    int width = 0; ///< pixels
    int height = 0; ///< lines
    int linePadding = 0; ///< bytes behind each line
    quint64 number = 0; ///< as the camera counts
    qint64 timestamp = 0; ///< ns, the camera's clock
};

} // namespace Viewer::Image
