#pragma once

#include <QImage>

#include <memory>

namespace Viewer::Image {

struct CFrame;

/// Images in memory that is used again once they are gone. Above 32 MiB the C library fetches each
/// block anew from the system, which then takes several times as long to hand out its pages as an
/// image takes to be converted.
///
/// One thread at a time; the images may be used, and end, on any thread, also after this.
class CImageMemory
{
public:
    CImageMemory();

    /// Its pixels are anything. Null where there is no memory.
    [[nodiscard]] QImage makeImage(int width, int height, QImage::Format format);

private:
    class CStore;

    std::shared_ptr<CStore> m_store;
};

/// An image of the frame's own bytes, kept alive by it, if the frame can keep them alive; a copy of
/// them otherwise. A line has @p stride bytes; whoever changes the image changes a copy.
[[nodiscard]] QImage wrapFrame(const CFrame &frame, int stride, QImage::Format format);

} // namespace Viewer::Image
