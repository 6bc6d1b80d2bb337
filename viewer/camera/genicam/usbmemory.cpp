#include "usbmemory.h"

#include "camerafeatures.h"
#include "logging.h"

#include <QtEndian>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <linux/usbdevice_fs.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace Viewer::Camera::GenICam {

// The control protocol of USB3 Vision: reading memory and what is answered to it.
static constexpr quint32 PREFIX = 0x43563355; // "U3VC"
static constexpr int HEADER_SIZE = 12;
static constexpr quint16 WANTS_ANSWER = 0x4000;
static constexpr quint16 READ_MEMORY = 0x0800;
static constexpr quint16 READ_MEMORY_ANSWER = 0x0801;
static constexpr quint16 PENDING_ANSWER = 0x0805;
/// Whole packets of every speed, and more than any answer to what is asked for here.
static constexpr int ANSWER_SIZE = 1024;

static constexpr quint64 MANIFEST_TABLE = 0x01D0;
static constexpr quint64 TECHNOLOGY = 0x01D8;
static constexpr quint64 LONGEST_ANSWER = 0x18; ///< from there

CUsbMemory::CUsbMemory(const CUsbControl &control, const QDeadlineTimer &deadline)
    : CMemoryReader(std::numeric_limits<quint64>::max(), 1, deadline)
    , m_control(control)
    , m_descriptor(::open(control.node.constData(), O_RDWR | O_CLOEXEC))
{
    unsigned int interface = control.interface;
    if (m_descriptor < 0)
        throwNoAnswer();
    if (::ioctl(m_descriptor, USBDEVFS_CLAIMINTERFACE, &interface) != 0) {
        const bool isInUse = errno == EBUSY;
        ::close(m_descriptor);
        if (isInUse)
            throw CFeatureError(getInUseText(), CFeatureError::EReason::InUse);
        throwNoAnswer();
    }
    clear(control.commands);
    clear(control.answers);
}

CUsbMemory::~CUsbMemory()
{
    unsigned int interface = m_control.interface;
    ::ioctl(m_descriptor, USBDEVFS_RELEASEINTERFACE, &interface);
    ::close(m_descriptor);
}

void CUsbMemory::clear(quint8 endpoint)
{
    unsigned int number = endpoint;
    ::ioctl(m_descriptor, USBDEVFS_CLEAR_HALT, &number);
}

std::optional<int> CUsbMemory::transfer(quint8 endpoint, QByteArray &bytes,
                                        const QDeadlineTimer &deadline)
{
    auto urb = usbdevfs_urb();
    urb.type = USBDEVFS_URB_TYPE_BULK;
    urb.endpoint = endpoint;
    urb.buffer = bytes.data();
    urb.buffer_length = static_cast<int>(bytes.size());
    if (::ioctl(m_descriptor, USBDEVFS_SUBMITURB, &urb) != 0)
        return {};
    pollfd ready{m_descriptor, POLLOUT, 0};
    if (::poll(&ready, 1, static_cast<int>(deadline.remainingTime())) <= 0)
        ::ioctl(m_descriptor, USBDEVFS_DISCARDURB, &urb);
    // It is the system's until it has been given back.
    void *done = nullptr;
    while (::ioctl(m_descriptor, USBDEVFS_REAPURB, &done) != 0) {
        if (errno != EINTR)
            return {};
    }
    if (urb.status == -EPIPE)
        clear(endpoint);
    return urb.status == 0 ? std::optional<int>(urb.actual_length) : std::nullopt;
}

void CUsbMemory::send(const CRequest &request, const QDeadlineTimer &deadline)
{
    constexpr quint16 PAYLOAD_SIZE = 12;
    QByteArray bytes(HEADER_SIZE + PAYLOAD_SIZE, '\0');
    qToLittleEndian<quint32>(PREFIX, bytes.data());
    qToLittleEndian<quint16>(WANTS_ANSWER, bytes.data() + 4);
    qToLittleEndian<quint16>(READ_MEMORY, bytes.data() + 6);
    qToLittleEndian<quint16>(PAYLOAD_SIZE, bytes.data() + 8);
    qToLittleEndian<quint16>(request.id, bytes.data() + 10);
    qToLittleEndian<quint64>(request.address, bytes.data() + HEADER_SIZE);
    qToLittleEndian<quint16>(request.size, bytes.data() + HEADER_SIZE + 10);
    if (!transfer(m_control.commands, bytes, deadline))
        qCDebug(genICamLog).noquote() << m_control.node << "takes no command";
}

std::optional<CMemoryReader::CAnswer> CUsbMemory::receive(const QDeadlineTimer &deadline)
{
    QByteArray bytes(ANSWER_SIZE, '\0');
    const std::optional<int> size = transfer(m_control.answers, bytes, deadline);
    if (!size)
        return {};
    bytes.truncate(*size);
    const auto readHalfWord
        = [&bytes](int offset) { return qFromLittleEndian<quint16>(bytes.constData() + offset); };
    CAnswer answer;
    if (bytes.size() < HEADER_SIZE || qFromLittleEndian<quint32>(bytes.constData()) != PREFIX)
        return answer;
    answer.status = readHalfWord(4);
    answer.id = readHalfWord(10);
    answer.bytes = bytes.mid(HEADER_SIZE);
    if (readHalfWord(6) == READ_MEMORY_ANSWER)
        answer.kind = CAnswer::EKind::Bytes;
    else if (readHalfWord(6) == PENDING_ANSWER)
        answer.kind = CAnswer::EKind::Pending;
    return answer;
}

CDescriptionPlace CUsbMemory::findDescription()
{
    const auto readNumber = [this](quint64 address) {
        return qFromLittleEndian<quint64>(read(address, 8).constData());
    };
    const QByteArray longest = read(readNumber(TECHNOLOGY) + LONGEST_ANSWER, 4);
    limitBlocks(static_cast<int>(std::clamp<qint64>(qFromLittleEndian<quint32>(longest.constData()),
                                                    HEADER_SIZE + 1, ANSWER_SIZE))
                - HEADER_SIZE);
    const quint64 table = readNumber(MANIFEST_TABLE);
    // The library takes the first one.
    const QByteArray entry = readNumber(table) == 0 ? QByteArray() : read(table + 8, MANIFEST_SIZE);
    return readManifestEntry(entry);
}

} // namespace Viewer::Camera::GenICam
