#include "pixelformat.h"

#include <algorithm>
#include <iterator>

namespace Viewer::Image {

using EKind = CPixelFormat::EKind;
using EPacking = CPixelFormat::EPacking;
using EPattern = CPixelFormat::EPattern;

// Bits 16 to 23 of a code are the bits that a pixel takes in memory.
static constexpr CPixelFormat makeMono(quint32 code, const char *name, EPacking packing, int bits)
{
    return {code, name, EKind::Mono, EPattern::None, packing, static_cast<int>(code >> 16 & 0xff),
            bits};
}

static constexpr CPixelFormat makeBayer(quint32 code, const char *name, EPattern pattern,
                                        EPacking packing, int bits)
{
    return {code, name, EKind::Bayer, pattern, packing, static_cast<int>(code >> 16 & 0xff), bits};
}

static constexpr CPixelFormat makeColor(quint32 code, const char *name, EKind kind)
{
    return {code, name, kind, EPattern::None, EPacking::Bytes, static_cast<int>(code >> 16 & 0xff),
            8};
}

static constexpr CPixelFormat FORMATS[] = {
    makeMono(0x01080001, "Mono8", EPacking::Bytes, 8),
    makeMono(0x01100003, "Mono10", EPacking::Words, 10),
    makeMono(0x010c0004, "Mono10Packed", EPacking::GigE10, 10),
    makeMono(0x010a0046, "Mono10p", EPacking::Lsb10, 10),
    makeMono(0x01100005, "Mono12", EPacking::Words, 12),
    makeMono(0x010c0006, "Mono12Packed", EPacking::GigE12, 12),
    makeMono(0x010c0047, "Mono12p", EPacking::Lsb12, 12),
    makeMono(0x01100025, "Mono14", EPacking::Words, 14),
    makeMono(0x01100007, "Mono16", EPacking::Words, 16),

    makeBayer(0x01080008, "BayerGR8", EPattern::GR, EPacking::Bytes, 8),
    makeBayer(0x01080009, "BayerRG8", EPattern::RG, EPacking::Bytes, 8),
    makeBayer(0x0108000a, "BayerGB8", EPattern::GB, EPacking::Bytes, 8),
    makeBayer(0x0108000b, "BayerBG8", EPattern::BG, EPacking::Bytes, 8),
    makeBayer(0x0110000c, "BayerGR10", EPattern::GR, EPacking::Words, 10),
    makeBayer(0x0110000d, "BayerRG10", EPattern::RG, EPacking::Words, 10),
    makeBayer(0x0110000e, "BayerGB10", EPattern::GB, EPacking::Words, 10),
    makeBayer(0x0110000f, "BayerBG10", EPattern::BG, EPacking::Words, 10),
    makeBayer(0x01100010, "BayerGR12", EPattern::GR, EPacking::Words, 12),
    makeBayer(0x01100011, "BayerRG12", EPattern::RG, EPacking::Words, 12),
    makeBayer(0x01100012, "BayerGB12", EPattern::GB, EPacking::Words, 12),
    makeBayer(0x01100013, "BayerBG12", EPattern::BG, EPacking::Words, 12),
    makeBayer(0x0110002e, "BayerGR16", EPattern::GR, EPacking::Words, 16),
    makeBayer(0x0110002f, "BayerRG16", EPattern::RG, EPacking::Words, 16),
    makeBayer(0x01100030, "BayerGB16", EPattern::GB, EPacking::Words, 16),
    makeBayer(0x01100031, "BayerBG16", EPattern::BG, EPacking::Words, 16),
    makeBayer(0x010c0026, "BayerGR10Packed", EPattern::GR, EPacking::GigE10, 10),
    makeBayer(0x010c0027, "BayerRG10Packed", EPattern::RG, EPacking::GigE10, 10),
    makeBayer(0x010c0028, "BayerGB10Packed", EPattern::GB, EPacking::GigE10, 10),
    makeBayer(0x010c0029, "BayerBG10Packed", EPattern::BG, EPacking::GigE10, 10),
    makeBayer(0x010c002a, "BayerGR12Packed", EPattern::GR, EPacking::GigE12, 12),
    makeBayer(0x010c002b, "BayerRG12Packed", EPattern::RG, EPacking::GigE12, 12),
    makeBayer(0x010c002c, "BayerGB12Packed", EPattern::GB, EPacking::GigE12, 12),
    makeBayer(0x010c002d, "BayerBG12Packed", EPattern::BG, EPacking::GigE12, 12),
    makeBayer(0x010a0056, "BayerGR10p", EPattern::GR, EPacking::Lsb10, 10),
    makeBayer(0x010a0058, "BayerRG10p", EPattern::RG, EPacking::Lsb10, 10),
    makeBayer(0x010a0054, "BayerGB10p", EPattern::GB, EPacking::Lsb10, 10),
    makeBayer(0x010a0052, "BayerBG10p", EPattern::BG, EPacking::Lsb10, 10),
    makeBayer(0x010c0057, "BayerGR12p", EPattern::GR, EPacking::Lsb12, 12),
    makeBayer(0x010c0059, "BayerRG12p", EPattern::RG, EPacking::Lsb12, 12),
    makeBayer(0x010c0055, "BayerGB12p", EPattern::GB, EPacking::Lsb12, 12),
    makeBayer(0x010c0053, "BayerBG12p", EPattern::BG, EPacking::Lsb12, 12),

    makeColor(0x02180014, "RGB8", EKind::Rgb),
    makeColor(0x02180015, "BGR8", EKind::Bgr),
    makeColor(0x0210001f, "YUV422_8_UYVY", EKind::Uyvy),
    makeColor(0x02100032, "YUV422_8", EKind::Yuyv),
};

// What features of older cameras call them.
static constexpr struct
{
    const char *name;
    quint32 code;
} OLDER_NAMES[] = {
    {"RGB8Packed", 0x02180014},
    {"BGR8Packed", 0x02180015},
    {"YUV422Packed", 0x0210001f},
    {"YUV422_YUYV_Packed", 0x02100032},
};

int CPixelFormat::getMaximum() const
{
    return (1 << significantBits) - 1;
}

const CPixelFormat *CPixelFormat::find(quint32 code)
{
    const auto *format
        = std::find_if(std::begin(FORMATS), std::end(FORMATS),
                       [code](const CPixelFormat &candidate) { return candidate.code == code; });
    return format != std::end(FORMATS) ? format : nullptr;
}

const CPixelFormat *CPixelFormat::find(const QString &name)
{
    for (const CPixelFormat &format : FORMATS) {
        if (name == QLatin1String(format.name))
            return &format;
    }
    for (const auto &older : OLDER_NAMES) {
        if (name == QLatin1String(older.name))
            return find(older.code);
    }
    return nullptr;
}

QString CPixelFormat::getName(quint32 code)
{
    if (const CPixelFormat *format = find(code))
        return QLatin1String(format->name);
    return QStringLiteral("0x") + QString::number(code, 16).rightJustified(8, QLatin1Char('0'));
}

} // namespace Viewer::Image
