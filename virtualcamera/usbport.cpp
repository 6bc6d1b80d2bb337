#include "usbport.h"

#include "cameravoice.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <linux/usbdevice_fs.h>
#include <memory>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/timerfd.h>
#include <umockdev.h>
#include <unistd.h>

namespace VirtualCamera {

static constexpr int PORTS = 9;

static usbdevfs_urb &getUrb(UMockdevIoctlData *data)
{
    return *reinterpret_cast<usbdevfs_urb *>(data->data);
}

namespace {

struct CDataDeleter
{
    void operator()(UMockdevIoctlData *data) const { g_object_unref(data); }
};

/// Memory of the client's.
using CData = std::unique_ptr<UMockdevIoctlData, CDataDeleter>;

} // namespace

/// What the pointer at @p offset in @p data leads to; null: to nothing, or the client has gone.
static CData resolve(UMockdevIoctlData *data, std::size_t offset, std::size_t size)
{
    return CData(umockdev_ioctl_data_resolve(data, offset, size, nullptr));
}

static std::optional<int> readNumber(UMockdevIoctlData *argument)
{
    int number = 0;
    const CData data = resolve(argument, 0, sizeof number);
    if (!data)
        return {};
    std::memcpy(&number, data->data, sizeof number);
    return number;
}

CUsbPort::CUsbPort(UMockdevTestbed *testbed, const CCameraSettings &settings, int number,
                   CCameraVoice &voice)
    : m_testbed(testbed)
    , m_settings(settings)
    , m_number(number)
    , m_timer(timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC | TFD_NONBLOCK))
    , m_voice(voice)
    , m_deviceNumber(number + 1 - PORTS)
    , m_camera(settings, voice)
{
    m_clock.start();
}

CUsbPort::~CUsbPort()
{
    close(m_timer);
}

Time CUsbPort::getTime() const
{
    return Time(m_clock.nsecsElapsed());
}

void CUsbPort::appear()
{
    QByteArray description;
    QByteArray node;
    {
        const std::lock_guard lock(m_mutex);
        // No number is given twice in a row, as on a real bus.
        m_deviceNumber += PORTS;
        const CCameraMemory &memory = m_camera.getMemory();
        m_descriptors
            = makeUsbDescriptors(m_settings.vendor, memory.getModel(), memory.getFirmwareVersion(),
                                 memory.getSerialNumber(), m_settings.userName, m_number);
        node = "bus/usb/001/" + QByteArray::number(m_deviceNumber).rightJustified(3, '0');
        m_path = "/devices/pci0000:00/0000:00:14.0/usb1/1-" + QByteArray::number(m_number);
        const auto property = [&description](const QByteArray &name, const QByteArray &value) {
            description += "E: " + name + '=' + value + '\n';
        };
        const auto attribute = [&description](const QByteArray &name, const QByteArray &value) {
            description += "A: " + name + '=' + value + "\\n\n";
        };
        description = "P: " + m_path + '\n';
        property("SUBSYSTEM", "usb");
        property("DEVTYPE", "usb_device");
        property("DRIVER", "usb");
        property("BUSNUM", "001");
        property("DEVNUM", QByteArray::number(m_deviceNumber).rightJustified(3, '0'));
        property("DEVNAME", "/dev/" + node);
        attribute("busnum", "1");
        attribute("devnum", QByteArray::number(m_deviceNumber));
        attribute("bConfigurationValue", "1");
        attribute("speed", "5000");
        attribute("bDeviceClass", "ef");
        attribute("bDeviceSubClass", "02");
        attribute("bDeviceProtocol", "01");
        attribute("manufacturer", m_settings.vendor);
        attribute("product", memory.getModel());
        attribute("serial", memory.getSerialNumber());
        description += "H: descriptors=" + m_descriptors.bytes.toHex() + '\n';

        char *const root = umockdev_testbed_get_root_dir(m_testbed);
        const QByteArray file = QByteArray(root) + "/dev/" + node;
        g_free(root);
        g_mkdir_with_parents(file.left(file.lastIndexOf('/')).constData(), 0755);
        if (mkfifo(file.constData(), 0600) != 0)
            qFatal("No device node %s: %s", file.constData(), std::strerror(errno));
        m_pipe = open(file.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
        // Of one page, which one byte fills.
        fcntl(m_pipe, F_SETPIPE_SZ, 4096);
        m_isReady = true;
        setReady();
        chmod(file.constData(), m_isAccessible ? 0666 : 0);
    }
    m_handler = umockdev_ioctl_base_new();
    g_signal_connect(m_handler, "handle-ioctl", G_CALLBACK(onIoctl), this);
    g_signal_connect(m_handler, "client-connected", G_CALLBACK(onConnected), this);
    umockdev_testbed_attach_ioctl(m_testbed, ("/dev/" + node).constData(), m_handler, nullptr);
    // Tells everybody who listens.
    if (!umockdev_testbed_add_from_string(m_testbed, description.constData(), nullptr))
        qFatal("The emulated bus takes no device");
    m_voice.printLine("PLUGGED " + node);
}

void CUsbPort::disappear()
{
    {
        const std::lock_guard lock(m_mutex);
        endAll(-ESHUTDOWN);
    }
    const QByteArray path = "/sys" + m_path;
    umockdev_testbed_uevent(m_testbed, path.constData(), "remove");
    umockdev_testbed_remove_device(m_testbed, path.constData());
    m_path.clear();
    m_voice.printLine("UNPLUGGED");
    const std::lock_guard lock(m_mutex);
    m_claims.clear();
    // Clients keep their end, and learn the rest by the errors that they get.
    close(m_pipe);
    m_pipe = -1;
}

void CUsbPort::tick()
{
    bool isPlugged = false;
    {
        const std::lock_guard lock(m_mutex);
        m_camera.tick(getTime());
        isPlugged = m_camera.isPlugged();
        pump();
    }
    if (isPlugged && m_path.isEmpty())
        appear();
    else if (!isPlugged && !m_path.isEmpty())
        disappear();
}

void CUsbPort::unplug()
{
    {
        const std::lock_guard lock(m_mutex);
        m_camera.unplug(getTime());
    }
    tick();
}

void CUsbPort::plugIn()
{
    {
        const std::lock_guard lock(m_mutex);
        m_camera.plugIn();
    }
    tick();
}

void CUsbPort::leave()
{
    if (!m_path.isEmpty())
        disappear();
}

void CUsbPort::printStatistics()
{
    const std::lock_guard lock(m_mutex);
    m_voice.printStatistics(m_camera.getStatistics(), m_camera.getStreamStatistics(),
                            m_camera.getMemory().getUploadedBytes());
}

void CUsbPort::onConnected(UMockdevIoctlBase *, UMockdevIoctlClient *client, CUsbPort *port)
{
    // Nothing else tells of a program that has been killed.
    g_object_weak_ref(G_OBJECT(client), onVanished, port);
}

void CUsbPort::onVanished(void *self, _GObject *client)
{
    static_cast<CUsbPort *>(self)->forget(client);
}

void CUsbPort::forget(const void *client)
{
    const std::lock_guard lock(m_mutex);
    for (auto claim = m_claims.begin(); claim != m_claims.end();)
        claim = claim->second == client ? m_claims.erase(claim) : std::next(claim);
    const auto drop = [client](CUrb &urb) {
        if (urb.client == client)
            g_object_unref(urb.data);
        return urb.client == client;
    };
    m_waiting.remove_if(drop);
    m_done.remove_if(drop);
    setReady();
}

int CUsbPort::onIoctl(UMockdevIoctlBase *, UMockdevIoctlClient *client, CUsbPort *port)
{
    const std::lock_guard lock(port->m_mutex);
    UMockdevIoctlData *const argument = umockdev_ioctl_client_get_arg(client);
    const int result = port->execute(client, umockdev_ioctl_client_get_request(client), argument);
    umockdev_ioctl_client_complete(client, result < 0 ? -1 : result, result < 0 ? -result : 0);
    return TRUE;
}

int CUsbPort::execute(UMockdevIoctlClient *client, unsigned long request,
                      UMockdevIoctlData *argument)
{
    // What has ended before the plug was pulled can be fetched afterwards.
    if (request == USBDEVFS_REAPURB || request == USBDEVFS_REAPURBNDELAY)
        return reap(client, argument);
    if (!m_camera.isPlugged())
        return -ENODEV;
    switch (request) {
    case USBDEVFS_GET_CAPABILITIES: {
        const CData data = resolve(argument, 0, sizeof(quint32));
        if (!data)
            return -EFAULT;
        const quint32 capabilities = USBDEVFS_CAP_BULK_SCATTER_GATHER
            | USBDEVFS_CAP_NO_PACKET_SIZE_LIM | USBDEVFS_CAP_REAP_AFTER_DISCONNECT
            | USBDEVFS_CAP_ZERO_PACKET;
        std::memcpy(data->data, &capabilities, sizeof capabilities);
        return 0;
    }
    case USBDEVFS_CONTROL:
        return control(argument);
    case USBDEVFS_CLAIMINTERFACE:
        return claim(client, argument, true);
    case USBDEVFS_RELEASEINTERFACE:
        return claim(client, argument, false);
    case USBDEVFS_CLEAR_HALT:
        if (readNumber(argument) != UsbEndpoint::IMAGES)
            m_camera.clearStall();
        return 0;
    case USBDEVFS_GETDRIVER:
    case USBDEVFS_IOCTL:
        return -ENODATA; // no driver of the kernel's has it
    case USBDEVFS_SETCONFIGURATION:
    case USBDEVFS_SETINTERFACE:
    case USBDEVFS_RESET:
        return 0;
    case USBDEVFS_SUBMITURB:
        return submit(client, argument);
    case USBDEVFS_DISCARDURB:
        return discard(client, argument);
    default:
        return -ENOTTY;
    }
}

int CUsbPort::claim(UMockdevIoctlClient *client, UMockdevIoctlData *argument, bool isClaim)
{
    const std::optional<int> number = readNumber(argument);
    if (!number)
        return -EFAULT;
    const auto owner = m_claims.find(*number);
    const bool isOwn = owner != m_claims.end() && owner->second == client;
    if (!isClaim) {
        if (!isOwn)
            return -EINVAL;
        m_claims.erase(owner);
        return 0;
    }
    if (owner != m_claims.end() && !isOwn)
        return -EBUSY;
    m_claims[*number] = client;
    return 0;
}

int CUsbPort::submit(UMockdevIoctlClient *client, UMockdevIoctlData *argument)
{
    CData data = resolve(argument, 0, sizeof(usbdevfs_urb));
    if (!data)
        return -EFAULT;
    usbdevfs_urb &urb = getUrb(data.get());
    const auto owner = m_claims.find(urb.endpoint == UsbEndpoint::IMAGES ? 1 : 0);
    const bool isOthers = owner != m_claims.end() && owner->second != client;
    if (urb.type != USBDEVFS_URB_TYPE_CONTROL && isOthers)
        return -EBUSY;
    if (!resolve(data.get(), offsetof(usbdevfs_urb, buffer),
                 static_cast<std::size_t>(urb.buffer_length)))
        return -EFAULT;
    m_waiting.push_back({client, data.release()});
    const auto last = std::prev(m_waiting.end());
    const auto *const bytes = static_cast<const char *>(urb.buffer);
    if (urb.type == USBDEVFS_URB_TYPE_CONTROL) {
        constexpr int SETUP_SIZE = 8;
        auto *const setup = static_cast<quint8 *>(urb.buffer);
        const int size = urb.buffer_length < SETUP_SIZE
            ? -EPIPE
            : answerControl(setup, setup + SETUP_SIZE, urb.buffer_length - SETUP_SIZE);
        finish(last, size < 0 ? size : 0, qMax(size, 0));
    } else if (urb.endpoint == UsbEndpoint::COMMANDS && m_camera.isStalled()) {
        finish(last, -EPIPE, 0);
    } else if (urb.endpoint == UsbEndpoint::COMMANDS) {
        m_camera.handle(QByteArray(bytes, urb.buffer_length), getTime());
        finish(last, 0, urb.buffer_length);
    }
    pump();
    return 0;
}

int CUsbPort::answerControl(const quint8 *setup, quint8 *target, int size)
{
    constexpr quint8 WRITE_ENDPOINT = 0x02;
    constexpr quint8 SET_FEATURE = 3;
    constexpr quint8 READ_STANDARD = 0x80;
    constexpr quint8 GET_DESCRIPTOR = 6;
    constexpr quint8 STRING = 3;
    // A host halts an endpoint to start from a known state, and clears that through the system.
    if (setup[0] == WRITE_ENDPOINT && setup[1] == SET_FEATURE)
        return 0;
    if (setup[0] != READ_STANDARD || setup[1] != GET_DESCRIPTOR || setup[3] != STRING)
        return -EPIPE;
    const QByteArray text = m_descriptors.getText(setup[2]);
    if (text.isEmpty())
        return -EPIPE;
    const int count = qMin(text.size(), size);
    std::memcpy(target, text.constData(), static_cast<std::size_t>(count));
    return count;
}

int CUsbPort::control(UMockdevIoctlData *argument)
{
    const CData data = resolve(argument, 0, sizeof(usbdevfs_ctrltransfer));
    if (!data)
        return -EFAULT;
    const auto &transfer = *reinterpret_cast<usbdevfs_ctrltransfer *>(data->data);
    // It begins with the setup as it goes over the wire.
    const auto *const setup = reinterpret_cast<const quint8 *>(&transfer);
    const CData buffer
        = resolve(data.get(), offsetof(usbdevfs_ctrltransfer, data), transfer.wLength);
    if (!buffer)
        return -EFAULT;
    return answerControl(setup, buffer->data, transfer.wLength);
}

int CUsbPort::discard(UMockdevIoctlClient *client, UMockdevIoctlData *argument)
{
    gulong address = 0;
    std::memcpy(&address, argument->data, sizeof address);
    for (auto urb = m_waiting.begin(); urb != m_waiting.end(); ++urb) {
        if (urb->client == client && urb->data->client_addr == address) {
            finish(urb, -ENOENT, 0);
            return 0;
        }
    }
    return -EINVAL;
}

int CUsbPort::reap(UMockdevIoctlClient *client, UMockdevIoctlData *argument)
{
    for (auto urb = m_done.begin(); urb != m_done.end(); ++urb) {
        if (urb->client != client)
            continue;
        const CData target = resolve(argument, 0, sizeof(void *));
        if (!target)
            return -EFAULT;
        umockdev_ioctl_data_set_ptr(target.get(), 0, urb->data);
        g_object_unref(urb->data);
        m_done.erase(urb);
        setReady();
        return 0;
    }
    return m_camera.isPlugged() ? -EAGAIN : -ENODEV;
}

void CUsbPort::finish(std::list<CUrb>::iterator urb, int status, int size)
{
    getUrb(urb->data).status = status;
    getUrb(urb->data).actual_length = size;
    m_done.splice(m_done.end(), m_waiting, urb);
    setReady();
}

void CUsbPort::endAll(int status)
{
    while (!m_waiting.empty())
        finish(m_waiting.begin(), status, 0);
}

void CUsbPort::pump()
{
    for (auto next = m_waiting.begin(); next != m_waiting.end();) {
        const auto urb = next++;
        const usbdevfs_urb &data = getUrb(urb->data);
        const auto size = static_cast<std::size_t>(data.buffer_length);
        if (data.endpoint == UsbEndpoint::IMAGES) {
            const auto count = m_camera.takeImage(static_cast<uchar *>(data.buffer),
                                                  data.buffer_length, getTime());
            if (count)
                finish(urb, 0, *count);
        } else if (data.endpoint == UsbEndpoint::ANSWERS && m_camera.isStalled()) {
            finish(urb, -EPIPE, 0);
        } else if (data.endpoint == UsbEndpoint::ANSWERS) {
            const std::optional<QByteArray> answer = m_camera.takeAnswer(getTime());
            if (!answer)
                continue;
            const bool fits = static_cast<std::size_t>(answer->size()) <= size;
            std::memcpy(data.buffer, answer->constData(),
                        fits ? static_cast<std::size_t>(answer->size()) : size);
            finish(urb, fits ? 0 : -EOVERFLOW, fits ? answer->size() : data.buffer_length);
        }
    }
    setTimer();
}

void CUsbPort::setReady()
{
    const bool isReady = !m_done.empty();
    if (isReady == m_isReady || m_pipe < 0)
        return;
    m_isReady = isReady;
    char byte = 0;
    if ((isReady ? read(m_pipe, &byte, 1) : write(m_pipe, &byte, 1)) != 1)
        qFatal("The pipe of an emulated device is broken: %s", std::strerror(errno));
}

void CUsbPort::setTimer()
{
    const bool isToMove = m_camera.isPlugged() == m_path.isEmpty();
    const std::optional<Time> deadline
        = isToMove ? std::optional<Time>(getTime()) : m_camera.getNextDeadline();
    itimerspec timer{};
    if (deadline) {
        // 0 would stop the timer.
        const qint64 rest = qMax<qint64>((*deadline - getTime()).count(), 1);
        constexpr qint64 SECOND = 1'000'000'000;
        timer.it_value = {rest / SECOND, rest % SECOND};
    }
    // It is set anew even where it has expired, so that nobody need read it.
    timerfd_settime(m_timer, 0, &timer, nullptr);
}

} // namespace VirtualCamera
