#pragma once

#include "imagememory.h"
#include "viewer/text/errortext.h"
#include "viewer/text/libraryversion.h"

#include <QImage>
#include <QRgb>

#include <optional>
#include <vector>

namespace Viewer::Image {

class CFrameLayout;

/// How a frame is shown.
struct CDisplayOptions
{
    /// What saturated pixels are painted with; nothing: as they are. A pixel is saturated where the
    /// sensor gave the greatest value that its format has: a sample of one colour for Bayer, any of
    /// the three for RGB, the luma for YUV.
    std::optional<QRgb> saturationColor;
};

/// What became of a frame: an image, or why there is none.
struct CConvertedFrame
{
    QImage image; ///< null where there is a fault
    Text::CErrorText fault; ///< a clause
};

/// Makes images of frames, each on one core: the others have other cameras to serve, or files to
/// write. The images are ordinary values and may outlive the converter.
///
/// An object is for one thread at a time; several objects work side by side.
class CFrameConverter
{
public:
    CFrameConverter();

    /// The library that computes colours.
    [[nodiscard]] static Text::CLibraryVersion getLibrary();

    /// `Format_Grayscale8` for mono, `Format_RGB32` for colours and marks. Deeper samples lose
    /// their lower bits. A Mono8 image without marks is the frame's memory and costs nothing.
    [[nodiscard]] CConvertedFrame toDisplay(const CFrame &frame,
                                            const CDisplayOptions &options = {});

    /// What a recording keeps. Mono and Bayer as the sensor gave them: `Format_Grayscale8` with
    /// eight bits, else `Format_Grayscale16` whose values are the sensor's (right-aligned), so that
    /// a pixel of the file has the number that a program of the camera's maker shows for it; what a
    /// picture viewer shows of 10 or 12 bits is dark. RGB and BGR as `Format_RGB888`, without a
    /// loss. YUV as `Format_RGB888`, converted. Eight bits in the order of `QImage` are the frame's
    /// memory.
    [[nodiscard]] CConvertedFrame toFullDepth(const CFrame &frame);

private:
    QImage makeImage(const CFrame &frame, QImage::Format format);
    QImage makeGray(const CFrame &frame, const CFrameLayout &layout);
    /// `Format_RGB32` of every kind, `Format_RGB888` of BGR and YUV.
    QImage makeColor(const CFrame &frame, const CFrameLayout &layout, QImage::Format format);

    CImageMemory m_memory;
    std::vector<uchar> m_samples; // of a whole frame, on the way to its colours
};

} // namespace Viewer::Image
