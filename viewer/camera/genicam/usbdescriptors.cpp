#include "usbdescriptors.h"

#include "viewer/text/visibletext.h"

#include <QtEndian>

namespace Viewer::Camera::GenICam {

// Kinds of descriptors.
static constexpr quint8 STRING = 0x03;
static constexpr quint8 INTERFACE = 0x04;
static constexpr quint8 ENDPOINT = 0x05;
static constexpr quint8 CAMERA = 0x24;

/// The descriptor at the beginning of @p rest, which ends where the next one begins; empty: there
/// is none.
static QByteArray takeDescriptor(const QByteArray &rest)
{
    constexpr int HEADER_SIZE = 2;
    const int size = rest.isEmpty() ? 0 : static_cast<quint8>(rest.at(0));
    return size >= HEADER_SIZE && size <= rest.size() ? rest.left(size) : QByteArray();
}

static bool isControlInterface(const QByteArray &descriptor)
{
    constexpr int CLASS_OFFSET = 5; // and subclass and protocol
    static const QByteArray control("\xEF\x05\x00", 3);
    return descriptor.mid(CLASS_OFFSET, control.size()) == control;
}

std::optional<CUsbTexts> findUsbCamera(const QByteArray &descriptors)
{
    constexpr int CAMERA_SIZE = 20;
    constexpr quint8 INFORMATION = 1;
    std::optional<CUsbTexts> texts;
    bool isControl = false;
    quint8 interface = 0;
    int offset = 0;
    for (QByteArray next = takeDescriptor(descriptors); !next.isEmpty();
         offset += next.size(), next = takeDescriptor(descriptors.mid(offset))) {
        const auto at = [&next](int index) { return static_cast<quint8>(next.at(index)); };
        if (at(1) == INTERFACE) {
            if (texts)
                break;
            isControl = isControlInterface(next);
            interface = isControl ? at(2) : quint8(0);
        }
        if (isControl && !texts && at(1) == CAMERA && next.size() >= CAMERA_SIZE
            && at(2) == INFORMATION)
            texts = CUsbTexts{interface, {}, at(11), at(12), at(13), at(15), at(17), at(18)};
        if (texts && at(1) == ENDPOINT && next.size() > 2)
            texts->endpoints += next.at(2);
    }
    return texts;
}

QString readUsbText(const QByteArray &descriptor)
{
    const QByteArray whole = takeDescriptor(descriptor);
    if (whole.isEmpty() || static_cast<quint8>(whole.at(1)) != STRING)
        return {};
    QString text;
    for (int i = 2; i + 1 < whole.size(); i += 2)
        text += QChar(qFromLittleEndian<quint16>(whole.constData() + i));
    return Text::toSingleLine(text.simplified());
}

} // namespace Viewer::Camera::GenICam
