#include "pattern.h"

namespace VirtualCamera {

// Up by 64 from one place to the next, from 0 to 65535 and down again.
static quint32 getStripe(int place, int colour)
{
    // Each colour has its stripes a third of a period away from the others.
    const quint32 phase = static_cast<quint32>(place + colour * PATTERN_PERIOD / 3) * 64 & 0x1ffff;
    return phase < 0x10000 ? phase : 0x1ffff - phase;
}

// Which of red, green and blue lies over a pixel.
static int getBayerColour(EColours colours, int x, int y)
{
    const int place = y % 2 * 2 + x % 2;
    switch (colours) {
    case EColours::BayerRg:
        return std::array{0, 1, 1, 2}.at(place);
    case EColours::BayerGr:
        return std::array{1, 0, 2, 1}.at(place);
    case EColours::BayerGb:
        return std::array{1, 2, 0, 1}.at(place);
    case EColours::BayerBg:
        return std::array{2, 1, 1, 0}.at(place);
    case EColours::Grey:
    case EColours::Rgb:
    case EColours::Yuv:
        break;
    }
    return 0;
}

CPixel computePixel(quint32 frame, int x, int y, const CPixelFormat &format, ETestPattern pattern)
{
    const int shift = y * PATTERN_ROW_SHIFT + static_cast<int>(frame) * PATTERN_FRAME_SHIFT;
    const auto getSample = [&](int place, int colour) {
        const quint32 sample = pattern == ETestPattern::Off ? getStripe(place + shift, colour)
            : pattern == ETestPattern::Black                ? 0
                                                            : 0xffff;
        return static_cast<quint16>(sample >> (16 - format.depth));
    };
    // Colours that are pale, around their neutral value, so that most of them exist.
    const auto getDifference = [&](int colour) -> quint16 {
        if (pattern != ETestPattern::Off)
            return 128;
        return static_cast<quint16>(96 + getSample(x - x % 2, colour) / 4);
    };
    switch (format.colours) {
    case EColours::Grey:
        return {getSample(x, 0), 0, 0};
    case EColours::Rgb:
        return {getSample(x, 0), getSample(x, 1), getSample(x, 2)};
    case EColours::Yuv:
        return {getSample(x, 0), getDifference(1), getDifference(2)};
    case EColours::BayerRg:
    case EColours::BayerGr:
    case EColours::BayerGb:
    case EColours::BayerBg:
        break;
    }
    return {getSample(x, getBayerColour(format.colours, x, y)), 0, 0};
}

} // namespace VirtualCamera
