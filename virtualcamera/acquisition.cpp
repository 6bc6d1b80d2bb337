#include "acquisition.h"

#include "icameraobserver.h"
#include "memorymap.h"
#include "picture.h"
#include "registers.h"
#include "usbmap.h"

#include <algorithm>

namespace VirtualCamera {

using Gvcp::EStatus;

namespace {

// Values of AcquisitionMode.
constexpr quint32 SINGLE_FRAME = 1;
constexpr quint32 MULTI_FRAME = 2;

// Bits of the register of the packet size.
constexpr quint32 FIRE_TEST_PACKET = 0x80000000;
constexpr quint32 DO_NOT_FRAGMENT = 0x40000000;
constexpr quint32 PACKET_SIZE = 0x0000ffff;

constexpr quint32 SMALLEST_PACKET = 576;
constexpr quint32 LARGEST_PACKET = 9000;

constexpr float FASTEST_RATE = 1000; // frames a second
constexpr float MICROSECONDS = 1'000'000; // of a second

} // namespace

CAcquisition::CAcquisition(const CCameraSettings &settings, CRegisters &registers,
                           ICameraObserver &observer, IImageStream &stream)
    : m_settings(settings)
    , m_registers(registers)
    , m_observer(observer)
    , m_stream(stream)
{
}

void CAcquisition::setUp()
{
    const auto set
        = [this](quint32 address, quint32 value) { m_registers.setWord(address, value); };
    if (m_settings.transport == ETransport::Ethernet)
        setUpStreamChannel();
    set(MemoryMap::WIDTH, static_cast<quint32>(m_settings.width));
    set(MemoryMap::HEIGHT, static_cast<quint32>(m_settings.height));
    set(MemoryMap::PIXEL_FORMAT, m_settings.pixelFormat);
    set(MemoryMap::ACQUISITION_FRAME_COUNT, 1);
    set(MemoryMap::FRAME_RATE_ENABLE, 1);
    const auto rate = static_cast<float>(m_settings.frameRate);
    m_registers.setFloat(MemoryMap::FRAME_RATE, rate);
    m_registers.setFloat(MemoryMap::EXPOSURE_TIME, std::min(10000.F, MICROSECONDS / rate));
    onWritten(MemoryMap::WIDTH);
}

void CAcquisition::setUpStreamChannel()
{
    const auto set
        = [this](quint32 address, quint32 value) { m_registers.setWord(address, value); };
    set(MemoryMap::STREAM_CHANNEL_COUNT, 1);
    set(MemoryMap::STREAM_CAPABILITY, 0xc0000000); // source port, block ids of 16 bits
    set(MemoryMap::STREAM_PORT, 0);
    set(MemoryMap::STREAM_PACKET_SIZE, DO_NOT_FRAGMENT | 1500);
    set(MemoryMap::STREAM_PACKET_DELAY, 0);
    set(MemoryMap::STREAM_ADDRESS, 0);
    set(MemoryMap::STREAM_SOURCE_PORT, m_settings.streamPort);
}

bool CAcquisition::isLocked() const
{
    return m_stream.isAcquiring() || m_registers.getWord(MemoryMap::TL_PARAMS_LOCKED) != 0;
}

EStatus CAcquisition::check(quint32 address, quint32 value) const
{
    const auto fits = [this, value](quint32 other, quint32 end) {
        return value + m_registers.getWord(other) <= end ? EStatus::Success
                                                         : EStatus::InvalidParameter;
    };
    EStatus status = EStatus::Success;
    switch (address) {
    case MemoryMap::WIDTH:
        status = fits(MemoryMap::OFFSET_X, MemoryMap::SENSOR_WIDTH);
        break;
    case MemoryMap::OFFSET_X:
        status = fits(MemoryMap::WIDTH, MemoryMap::SENSOR_WIDTH);
        break;
    case MemoryMap::HEIGHT:
        status = fits(MemoryMap::OFFSET_Y, MemoryMap::SENSOR_HEIGHT);
        break;
    case MemoryMap::OFFSET_Y:
        status = fits(MemoryMap::HEIGHT, MemoryMap::SENSOR_HEIGHT);
        break;
    case MemoryMap::PIXEL_FORMAT:
        status = findPixelFormat(value) ? EStatus::Success : EStatus::InvalidParameter;
        break;
    case MemoryMap::ACQUISITION_MODE:
    case MemoryMap::ACQUISITION_FRAME_COUNT:
        break;
    case MemoryMap::STREAM_PACKET_SIZE: {
        const quint32 size = value & PACKET_SIZE;
        if (size < SMALLEST_PACKET || size > LARGEST_PACKET || size % 4 != 0)
            return EStatus::InvalidParameter;
        // Test packets may be fired at any time.
        const quint32 before = m_registers.getWord(MemoryMap::STREAM_PACKET_SIZE) & PACKET_SIZE;
        if (size == before)
            return EStatus::Success;
        break;
    }
    case MemoryMap::STREAM_ADDRESS:
        // Nothing leaves this machine.
        return value == 0 || CPeer{value, 0}.isLoopback() ? EStatus::Success
                                                          : EStatus::InvalidParameter;
    case MemoryMap::TRIGGER_SOFTWARE:
        return m_registers.getWord(MemoryMap::TRIGGER_MODE) != 0 ? EStatus::Success
                                                                 : EStatus::AccessDenied;
    default:
        return EStatus::Success;
    }
    return isLocked() ? EStatus::AccessDenied : status;
}

std::shared_ptr<const CPicture> CAcquisition::makePicture() const
{
    const auto get
        = [this](quint32 address) { return static_cast<int>(m_registers.getWord(address)); };
    const QRect region(get(MemoryMap::OFFSET_X), get(MemoryMap::OFFSET_Y), get(MemoryMap::WIDTH),
                       get(MemoryMap::HEIGHT));
    return std::make_shared<CPicture>(
        *findPixelFormat(m_registers.getWord(MemoryMap::PIXEL_FORMAT)), region,
        static_cast<ETestPattern>(m_registers.getWord(MemoryMap::TEST_PATTERN)));
}

void CAcquisition::onWritten(quint32 address)
{
    const quint32 packetSize = m_registers.getWord(MemoryMap::STREAM_PACKET_SIZE);
    const bool firesTestPacket = (packetSize & FIRE_TEST_PACKET) != 0;
    m_registers.setWord(MemoryMap::STREAM_PACKET_SIZE, packetSize & ~FIRE_TEST_PACKET);
    // No frame can be taken while the one before is being exposed.
    const float fastest
        = std::min(FASTEST_RATE, MICROSECONDS / m_registers.getFloat(MemoryMap::EXPOSURE_TIME));
    const float rate = std::min(m_registers.getFloat(MemoryMap::FRAME_RATE), fastest);
    m_registers.setFloat(MemoryMap::FRAME_RATE, rate);
    const quint32 pixelSize = static_cast<quint32>(
        findPixelFormat(m_registers.getWord(MemoryMap::PIXEL_FORMAT))->getPixelSize());
    const quint32 payloadSize = m_registers.getWord(MemoryMap::WIDTH)
        * m_registers.getWord(MemoryMap::HEIGHT) * pixelSize / 8;
    m_registers.setWord(MemoryMap::PAYLOAD_SIZE, payloadSize);
    if (m_settings.transport == ETransport::Usb)
        m_registers.setLittleLong(UsbMap::REQUIRED_PAYLOAD_SIZE, payloadSize);

    CStreamSettings stream;
    const quint32 port = m_registers.getWord(MemoryMap::STREAM_PORT) & 0xffff;
    stream.receiver = {m_registers.getWord(MemoryMap::STREAM_ADDRESS), static_cast<quint16>(port)};
    if (stream.receiver.address == 0)
        stream.receiver.port = 0;
    stream.packetSize = static_cast<int>(packetSize & PACKET_SIZE);
    stream.mayBeFragmented = (packetSize & DO_NOT_FRAGMENT) == 0;
    stream.packetDelay = Time(m_registers.getWord(MemoryMap::STREAM_PACKET_DELAY));
    const bool isRateEnabled = m_registers.getWord(MemoryMap::FRAME_RATE_ENABLE) != 0;
    stream.framePeriod = std::chrono::duration_cast<Time>(
        std::chrono::duration<double>(1.0 / (isRateEnabled ? rate : fastest)));
    stream.isTriggered = m_registers.getWord(MemoryMap::TRIGGER_MODE) != 0;
    m_stream.configure(stream);

    if (firesTestPacket)
        m_stream.fireTestPacket();
    if (address == MemoryMap::TEST_PATTERN && m_stream.isAcquiring())
        m_stream.setPicture(makePicture());
}

void CAcquisition::execute(quint32 address, Time now)
{
    switch (address) {
    case MemoryMap::ACQUISITION_START:
        if (!m_stream.isAcquiring())
            start(now);
        break;
    case MemoryMap::ACQUISITION_STOP:
        if (m_stream.isAcquiring())
            m_observer.onEvent("stop acquisition");
        m_stream.stop();
        break;
    case MemoryMap::TRIGGER_SOFTWARE:
        m_stream.trigger();
        break;
    default:
        break;
    }
}

void CAcquisition::start(Time now)
{
    quint32 frameCount = 0;
    switch (m_registers.getWord(MemoryMap::ACQUISITION_MODE)) {
    case SINGLE_FRAME:
        frameCount = 1;
        break;
    case MULTI_FRAME:
        frameCount = m_registers.getWord(MemoryMap::ACQUISITION_FRAME_COUNT);
        break;
    default:
        break;
    }
    const auto picture = makePicture();
    const QSize size = picture->getRegion().size();
    m_observer.onEvent("start acquisition " + QByteArray::number(size.width()) + 'x'
                       + QByteArray::number(size.height()) + ' ' + picture->getFormat().name);
    m_stream.setPicture(picture);
    m_stream.start(frameCount, now);
}

void CAcquisition::abort()
{
    if (m_stream.isAcquiring())
        m_observer.onEvent("abort acquisition");
    m_stream.abort();
    // Who comes next finds nothing locked, and sends nothing to who was there before.
    for (const quint32 address :
         {MemoryMap::TL_PARAMS_LOCKED, MemoryMap::STREAM_PORT, MemoryMap::STREAM_ADDRESS})
        m_registers.setWord(address, 0);
    onWritten(MemoryMap::STREAM_ADDRESS);
}

} // namespace VirtualCamera
