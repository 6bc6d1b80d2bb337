#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace VirtualCamera {

/// What the samples of a pixel are, and for one sample per pixel which colours lie over the sensor:
/// the first two letters are those of even rows, from even columns on.
enum class EColours {
    Grey,
    BayerRg,
    BayerGr,
    BayerGb,
    BayerBg,
    Rgb, ///< red, green, blue
    Yuv, ///< brightness of each pixel; both differences of colour of each two, from an even one on
};

/// How samples become bytes.
enum class ELayout {
    Whole, ///< each sample in one byte, or in two, the lower one first
    Packed, ///< two samples in three bytes: upper 8 bits, the rest of both, upper 8 bits
    Stream, ///< bit behind bit, from the lowest one on
    Bgr, ///< Whole, last sample first
    Uyvy, ///< of two pixels
    Yuyv,
};

/// A pixel format by the naming convention of GenICam (PFNC).
struct CPixelFormat
{
    const char *name;
    quint32 code;
    int depth; ///< bits of a sample, 8 to 16
    EColours colours;
    ELayout layout;

    /// Bits that a pixel takes in an image: 8, 10, 12, 16 or 24.
    [[nodiscard]] constexpr int getPixelSize() const { return code >> 16 & 0xff; }
};

/// All formats that the camera has: those of one grey sample, of Bayer patterns, of three colours.
inline constexpr CPixelFormat PIXEL_FORMATS[] = {
    {"Mono8", 0x01080001, 8, EColours::Grey, ELayout::Whole},
    {"Mono10", 0x01100003, 10, EColours::Grey, ELayout::Whole},
    {"Mono10Packed", 0x010C0004, 10, EColours::Grey, ELayout::Packed},
    {"Mono10p", 0x010A0046, 10, EColours::Grey, ELayout::Stream},
    {"Mono12", 0x01100005, 12, EColours::Grey, ELayout::Whole},
    {"Mono12Packed", 0x010C0006, 12, EColours::Grey, ELayout::Packed},
    {"Mono12p", 0x010C0047, 12, EColours::Grey, ELayout::Stream},
    {"Mono14", 0x01100025, 14, EColours::Grey, ELayout::Whole},
    {"Mono16", 0x01100007, 16, EColours::Grey, ELayout::Whole},
    {"BayerGR8", 0x01080008, 8, EColours::BayerGr, ELayout::Whole},
    {"BayerRG8", 0x01080009, 8, EColours::BayerRg, ELayout::Whole},
    {"BayerGB8", 0x0108000A, 8, EColours::BayerGb, ELayout::Whole},
    {"BayerBG8", 0x0108000B, 8, EColours::BayerBg, ELayout::Whole},
    {"BayerGR10", 0x0110000C, 10, EColours::BayerGr, ELayout::Whole},
    {"BayerRG10", 0x0110000D, 10, EColours::BayerRg, ELayout::Whole},
    {"BayerGB10", 0x0110000E, 10, EColours::BayerGb, ELayout::Whole},
    {"BayerBG10", 0x0110000F, 10, EColours::BayerBg, ELayout::Whole},
    {"BayerGR10Packed", 0x010C0026, 10, EColours::BayerGr, ELayout::Packed},
    {"BayerRG10Packed", 0x010C0027, 10, EColours::BayerRg, ELayout::Packed},
    {"BayerGB10Packed", 0x010C0028, 10, EColours::BayerGb, ELayout::Packed},
    {"BayerBG10Packed", 0x010C0029, 10, EColours::BayerBg, ELayout::Packed},
    {"BayerGR10p", 0x010A0056, 10, EColours::BayerGr, ELayout::Stream},
    {"BayerRG10p", 0x010A0058, 10, EColours::BayerRg, ELayout::Stream},
    {"BayerGB10p", 0x010A0054, 10, EColours::BayerGb, ELayout::Stream},
    {"BayerBG10p", 0x010A0052, 10, EColours::BayerBg, ELayout::Stream},
    {"BayerGR12", 0x01100010, 12, EColours::BayerGr, ELayout::Whole},
    {"BayerRG12", 0x01100011, 12, EColours::BayerRg, ELayout::Whole},
    {"BayerGB12", 0x01100012, 12, EColours::BayerGb, ELayout::Whole},
    {"BayerBG12", 0x01100013, 12, EColours::BayerBg, ELayout::Whole},
    {"BayerGR12Packed", 0x010C002A, 12, EColours::BayerGr, ELayout::Packed},
    {"BayerRG12Packed", 0x010C002B, 12, EColours::BayerRg, ELayout::Packed},
    {"BayerGB12Packed", 0x010C002C, 12, EColours::BayerGb, ELayout::Packed},
    {"BayerBG12Packed", 0x010C002D, 12, EColours::BayerBg, ELayout::Packed},
    {"BayerGR12p", 0x010C0057, 12, EColours::BayerGr, ELayout::Stream},
    {"BayerRG12p", 0x010C0059, 12, EColours::BayerRg, ELayout::Stream},
    {"BayerGB12p", 0x010C0055, 12, EColours::BayerGb, ELayout::Stream},
    {"BayerBG12p", 0x010C0053, 12, EColours::BayerBg, ELayout::Stream},
    {"BayerGR16", 0x0110002E, 16, EColours::BayerGr, ELayout::Whole},
    {"BayerRG16", 0x0110002F, 16, EColours::BayerRg, ELayout::Whole},
    {"BayerGB16", 0x01100030, 16, EColours::BayerGb, ELayout::Whole},
    {"BayerBG16", 0x01100031, 16, EColours::BayerBg, ELayout::Whole},
    {"RGB8", 0x02180014, 8, EColours::Rgb, ELayout::Whole},
    {"BGR8", 0x02180015, 8, EColours::Rgb, ELayout::Bgr},
    {"YUV422_8_UYVY", 0x0210001F, 8, EColours::Yuv, ELayout::Uyvy},
    {"YUV422_8", 0x02100032, 8, EColours::Yuv, ELayout::Yuyv},
};

/// The format with this code, or with this name; null when the camera has none.
[[nodiscard]] const CPixelFormat *findPixelFormat(quint32 code);
[[nodiscard]] const CPixelFormat *findPixelFormat(const QByteArray &name);

} // namespace VirtualCamera
