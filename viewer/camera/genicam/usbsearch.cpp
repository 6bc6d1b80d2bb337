#include "usbsearch.h"

#include "usbdescriptors.h"

#include "viewer/text/visibletext.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <linux/usbdevice_fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace Viewer::Camera::GenICam {

namespace {

/// A device of usbfs, open as long as this object lives.
class CUsbDevice
{
public:
    explicit CUsbDevice(const QByteArray &node)
        : m_descriptor(::open(node.constData(), O_RDWR | O_CLOEXEC))
        , m_isForbidden(m_descriptor < 0 && (errno == EACCES || errno == EPERM))
    {
    }
    ~CUsbDevice()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    Q_DISABLE_COPY(CUsbDevice)

    /// This user has no right to open it.
    [[nodiscard]] bool isForbidden() const { return m_isForbidden; }

    /// One of its texts; empty: there is none, or it does not answer, and is not asked again.
    [[nodiscard]] QString readText(quint8 index)
    {
        if (index == 0 || m_isSilent)
            return {};
        if (m_language == 0) {
            const QByteArray languages = readString(0);
            if (languages.size() < 4)
                return {};
            m_language = static_cast<quint16>(static_cast<quint8>(languages.at(2))
                                              | static_cast<quint8>(languages.at(3)) << 8);
        }
        return readUsbText(readString(index));
    }

private:
    QByteArray readString(quint8 index)
    {
        constexpr quint8 READ_STANDARD = 0x80;
        constexpr quint8 GET_DESCRIPTOR = 6;
        constexpr quint16 STRING = 3;
        constexpr quint16 LONGEST = 255;
        constexpr quint32 TIME_LIMIT = 1000; // milliseconds
        QByteArray bytes(LONGEST, '\0');
        usbdevfs_ctrltransfer transfer{};
        transfer.bRequestType = READ_STANDARD;
        transfer.bRequest = GET_DESCRIPTOR;
        transfer.wValue = static_cast<quint16>(STRING << 8 | index);
        transfer.wIndex = m_language;
        transfer.wLength = LONGEST;
        transfer.timeout = TIME_LIMIT;
        transfer.data = bytes.data();
        const int size = m_descriptor < 0 ? -1 : ::ioctl(m_descriptor, USBDEVFS_CONTROL, &transfer);
        m_isSilent = size < 0 && (errno == ETIMEDOUT || errno == ENODEV);
        return bytes.left(qMax(size, 0));
    }

    const int m_descriptor;
    const bool m_isForbidden;
    quint16 m_language = 0;
    bool m_isSilent = false;
};

} // namespace

/// What the system knows of a device, at most so much of it as a device can say of itself.
static QByteArray readAttribute(const QString &device, const char *name)
{
    constexpr qint64 LONGEST = 65536;
    QFile file(device + QLatin1Char('/') + QString::fromLatin1(name));
    return file.open(QIODevice::ReadOnly) ? file.read(LONGEST) : QByteArray();
}

/// Bus and device, by which it is found among the device nodes.
static QByteArray readPlace(const QString &device)
{
    const auto readNumber = [&device](const char *attribute) {
        return readAttribute(device, attribute).trimmed().rightJustified(3, '0');
    };
    return readNumber("busnum") + '/' + readNumber("devnum");
}

static QByteArray getNode(const QByteArray &place)
{
    return "/dev/bus/usb/" + place;
}

static CFoundCamera describe(const QString &device, const CUsbTexts &texts)
{
    const auto readName = [&device](const char *attribute) {
        return Text::toSingleLine(QString::fromUtf8(readAttribute(device, attribute)).simplified());
    };
    const QByteArray place = readPlace(device);
    CUsbDevice opened(getNode(place));
    CFoundCamera camera;
    camera.transport = ETransport::Usb;
    camera.address = QString::fromLatin1(place);
    camera.isForbidden = opened.isForbidden();
    camera.hardwareAddress = opened.readText(texts.uniqueNumber);
    camera.version = opened.readText(texts.version);
    camera.userName = opened.readText(texts.userName);
    // What the system has read when the camera was plugged in says the same.
    const auto choose
        = [](const QString &own, const QString &other) { return own.isEmpty() ? other : own; };
    camera.vendor = choose(opened.readText(texts.vendor), readName("manufacturer"));
    camera.model = choose(opened.readText(texts.model), readName("product"));
    camera.serialNumber = choose(opened.readText(texts.serialNumber), readName("serial"));
    return camera;
}

/// Calls @p use for each camera with its folder in sysfs and its texts.
template <typename Use>
static void forEachCamera(Use use)
{
    const QDir devices(QStringLiteral("/sys/bus/usb/devices"));
    const QStringList names = devices.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &name : names) {
        const QString device = devices.filePath(name);
        if (const auto texts = findUsbCamera(readAttribute(device, "descriptors")))
            use(device, *texts);
    }
}

QVector<CFoundCamera> findUsbCameras()
{
    QVector<CFoundCamera> cameras;
    forEachCamera([&cameras](const QString &device, const CUsbTexts &texts) {
        cameras.append(describe(device, texts));
    });
    return cameras;
}

std::optional<CUsbControl> findUsbControl(const QString &address)
{
    constexpr quint8 TO_HOST = 0x80;
    std::optional<CUsbControl> control;
    forEachCamera([&](const QString &device, const CUsbTexts &texts) {
        const QByteArray place = readPlace(device);
        if (QString::fromLatin1(place) != address)
            return;
        control = CUsbControl{getNode(place), texts.interface};
        for (const char number : texts.endpoints) {
            const auto endpoint = static_cast<quint8>(number);
            ((endpoint & TO_HOST) != 0 ? control->answers : control->commands) = endpoint;
        }
    });
    return control;
}

} // namespace Viewer::Camera::GenICam
