#include "cameramemory.h"

#include "featurelimits.h"
#include "icameraobserver.h"
#include "memorymap.h"
#include "usbmap.h"
#include "usbregisters.h"

#include <utility>

namespace VirtualCamera {

using Gvcp::EStatus;

// Values of FileOperationStatus.
static constexpr quint32 FILE_SUCCESS = 0;
static constexpr quint32 FILE_FAILURE = 1;

CCameraMemory::CCameraMemory(const CCameraSettings &settings, ICameraObserver &observer,
                             IImageStream &stream)
    : m_settings(settings)
    , m_observer(observer)
    , m_description(makeFeatureDescription(settings))
    , m_acquisition(m_settings, m_registers, observer, stream)
    , m_buffer(settings.bufferLength, '\0')
    , m_model(settings.model)
    , m_serialNumber(settings.serialNumber)
    , m_firmwareVersion(settings.firmwareVersion)
{
    setUpBootstrap();
    setUpFeatures();
}

void CCameraMemory::setUpBootstrap()
{
    if (m_settings.transport == ETransport::Usb)
        setUpUsbBootstrap();
    else
        setUpEthernetBootstrap();
}

void CCameraMemory::setUpEthernetBootstrap()
{
    m_registers.setWord(MemoryMap::PROTOCOL_VERSION, 0x00010002);
    m_registers.setWord(MemoryMap::DEVICE_MODE, 0x80000001); // big-endian registers, texts in UTF-8
    // A hardware address of the kind that nobody has bought.
    m_registers.setWord(MemoryMap::HARDWARE_ADDRESS_HIGH, 0x0200);
    m_registers.setWord(MemoryMap::HARDWARE_ADDRESS_LOW, m_settings.address);
    m_registers.setWord(MemoryMap::SUPPORTED_IP_CONFIGURATION, 0x00000005);
    m_registers.setWord(MemoryMap::CURRENT_IP_CONFIGURATION, 0x00000005);
    m_registers.setWord(MemoryMap::CURRENT_ADDRESS, m_settings.address);
    m_registers.setWord(MemoryMap::CURRENT_SUBNET_MASK, 0xff000000);
    m_registers.setText(MemoryMap::VENDOR_NAME, m_settings.vendor, 32);
    m_registers.setText(MemoryMap::MODEL_NAME, m_model, 32);
    m_registers.setText(MemoryMap::DEVICE_VERSION, m_firmwareVersion, 32);
    m_registers.setText(MemoryMap::VENDOR_INFORMATION, "virtual camera", 48);
    m_registers.setText(MemoryMap::SERIAL_NUMBER, m_serialNumber, 16);
    m_registers.setText(MemoryMap::USER_NAME, m_settings.userName, 16);
    m_registers.setText(MemoryMap::FIRST_URL, m_description.url, MemoryMap::URL_SIZE);
    m_registers.setWord(MemoryMap::INTERFACE_COUNT, 1);
    m_registers.setWord(MemoryMap::CAPABILITY,
                        0xc0000007); // user name, serial number, resends, writes, many registers
    m_registers.setWord(MemoryMap::HEARTBEAT_TIMEOUT,
                        static_cast<quint32>(m_settings.heartbeatTimeout.count()));
    m_registers.setWord(MemoryMap::TICK_FREQUENCY_LOW, 1'000'000'000);
}

void CCameraMemory::setUpUsbBootstrap()
{
    const auto setText = [this](quint32 address, const QByteArray &text) {
        m_registers.setText(address, text, UsbMap::TEXT_SIZE);
    };
    setText(UsbMap::VENDOR_NAME, m_settings.vendor);
    setText(UsbMap::MODEL_NAME, m_model);
    setText(UsbMap::FAMILY_NAME, m_model);
    setText(UsbMap::DEVICE_VERSION, m_firmwareVersion);
    setText(UsbMap::VENDOR_INFORMATION, "virtual camera");
    setText(UsbMap::SERIAL_NUMBER, m_serialNumber);
    setText(UsbMap::USER_NAME, m_settings.userName);
    setUpUsbRegisters(m_registers, m_description);
}

void CCameraMemory::setUpFeatures()
{
    m_registers.clearFeatures();
    m_registers.setText(MemoryMap::FIRMWARE_VERSION, m_firmwareVersion, 32);
    m_registers.setWord(MemoryMap::DEVICE_STATUS, m_settings.status);
    m_registers.setWord(MemoryMap::FILE_ACCESS_LENGTH,
                        static_cast<quint32>(m_settings.bufferLength));
    m_registers.setWord(MemoryMap::FILE_SIZE, static_cast<quint32>(m_file.getContent().size()));
    m_acquisition.setUp();
}

const QByteArray *CCameraMemory::findArea(quint32 address, int size, int &offset) const
{
    const std::pair<quint32, const QByteArray *> areas[] = {
        {0, &m_registers.getBootstrap()},
        {MemoryMap::FEATURES, &m_registers.getFeatures()},
        {MemoryMap::FILE_ACCESS_BUFFER, &m_buffer},
        {MemoryMap::DESCRIPTION, &m_description.bytes},
    };
    for (const auto &[begin, bytes] : areas) {
        if (address >= begin && address - begin + static_cast<qint64>(size) <= bytes->size()) {
            offset = static_cast<int>(address - begin);
            return bytes;
        }
    }
    return nullptr;
}

EStatus CCameraMemory::read(quint32 address, int size, Time now, QByteArray &bytes)
{
    int offset = 0;
    const QByteArray *const area = findArea(address, size, offset);
    if (!area)
        return EStatus::InvalidAddress;
    if (area != &m_registers.getFeatures()) {
        bytes = area->mid(offset, size);
        return EStatus::Success;
    }
    bytes.clear();
    for (quint32 i = 0; i < static_cast<quint32>(size); i += 4)
        Gvcp::appendWord(bytes, readFeatureWord(address + i, now));
    return EStatus::Success;
}

quint32 CCameraMemory::readFeatureWord(quint32 address, Time now)
{
    switch (address) {
    case MemoryMap::FIRMWARE_ACTIVATE:
        return findRunning(m_activation, now) ? 1 : 0;
    case MemoryMap::FILE_OPERATION_EXECUTE:
        return findRunning(m_operation, now) ? 1 : 0;
    case MemoryMap::FILE_OPERATION_STATUS:
        return findRunning(m_operation, now) ? FILE_FAILURE : m_registers.getWord(address);
    case MemoryMap::ACQUISITION_ACTIVE:
        return m_acquisition.isAcquiring() ? 1 : 0;
    case MemoryMap::FILE_OPERATION_RESULT:
        return findRunning(m_operation, now) ? 0 : m_registers.getWord(address);
    default:
        return m_registers.getWord(address);
    }
}

bool CCameraMemory::findRunning(CRunning &running, Time now)
{
    const bool isRunning = !running.hasEnded(now);
    if (running.reads > 0)
        --running.reads;
    return isRunning;
}

bool CCameraMemory::isBootstrapWritable(quint32 address) const
{
    if (m_settings.transport == ETransport::Usb)
        return isUsbRegisterWritable(address);
    const bool isUserName = address >= MemoryMap::USER_NAME && address < MemoryMap::DISCOVERY_SIZE;
    const bool isStreamChannel = address == MemoryMap::STREAM_PORT
        || address == MemoryMap::STREAM_PACKET_SIZE || address == MemoryMap::STREAM_PACKET_DELAY
        || address == MemoryMap::STREAM_ADDRESS;
    return isUserName || isStreamChannel || address == MemoryMap::HEARTBEAT_TIMEOUT;
}

bool CCameraMemory::isWritable(quint32 address) const
{
    if (address < MemoryMap::FEATURES)
        return isBootstrapWritable(address);
    switch (address) {
    case MemoryMap::ACQUISITION_ACTIVE:
    case MemoryMap::PAYLOAD_SIZE:
    case MemoryMap::DEVICE_STATUS:
    case MemoryMap::FILE_OPERATION_STATUS:
    case MemoryMap::FILE_OPERATION_RESULT:
    case MemoryMap::FILE_SIZE:
        return false;
    default:
        return address >= MemoryMap::DEVICE_STATUS;
    }
}

CCameraMemory::CWriteResult CCameraMemory::write(quint32 address, const QByteArray &bytes, Time now)
{
    int offset = 0;
    const QByteArray *const area = findArea(address, bytes.size(), offset);
    if (!area)
        return {EStatus::InvalidAddress, {}};
    if (area == &m_description.bytes)
        return {EStatus::WriteProtect, {}};
    if (area == &m_buffer) {
        if (!m_operation.hasEnded(now))
            return {EStatus::Busy, {}};
        m_buffer.replace(offset, bytes.size(), bytes);
        return {};
    }
    for (int i = 0; i < bytes.size(); i += 4) {
        const EStatus status
            = checkWord(address + static_cast<quint32>(i), Gvcp::readWord(bytes, i), now);
        if (status != EStatus::Success)
            return {status, {}};
    }
    CWriteResult result;
    for (int i = 0; i < bytes.size() && result.status == EStatus::Success; i += 4) {
        const CWriteResult next
            = writeWord(address + static_cast<quint32>(i), Gvcp::readWord(bytes, i), now);
        result = {next.status, result.duration + next.duration};
    }
    return result;
}

EStatus CCameraMemory::checkWord(quint32 address, quint32 value, Time now) const
{
    if (!isWritable(address))
        return EStatus::WriteProtect;
    const bool isFileAccess
        = address >= MemoryMap::FILE_SELECTOR && address <= MemoryMap::FILE_SIZE;
    if (isFileAccess && !m_operation.hasEnded(now))
        return EStatus::Busy;
    const bool isLength = address == MemoryMap::FILE_ACCESS_LENGTH;
    if (isLength && (value == 0 || value > static_cast<quint32>(m_settings.bufferLength)))
        return EStatus::InvalidParameter;
    return isWithinLimits(address, value) ? m_acquisition.check(address, value)
                                          : EStatus::InvalidParameter;
}

CCameraMemory::CWriteResult CCameraMemory::writeWord(quint32 address, quint32 value, Time now)
{
    switch (address) {
    case MemoryMap::DEVICE_RESET:
    case MemoryMap::FIRMWARE_ACTIVATE:
    case MemoryMap::FILE_OPERATION_EXECUTE:
        return value == 0 ? CWriteResult() : executeCommand(address, now);
    case MemoryMap::ACQUISITION_START:
    case MemoryMap::ACQUISITION_STOP:
    case MemoryMap::TRIGGER_SOFTWARE:
        if (value != 0)
            m_acquisition.execute(address, now);
        return {};
    case MemoryMap::HEARTBEAT_TIMEOUT:
        // Shorter ones are of no use: a camera rounds them up.
        value = qMax<quint32>(value, 500);
        break;
    default:
        break;
    }
    // One that stands in front of it in the same command may have changed its limits.
    if (const EStatus status = m_acquisition.check(address, value); status != EStatus::Success)
        return {status, {}};
    m_registers.setWord(address, value);
    m_acquisition.onWritten(address);
    return {};
}

CCameraMemory::CWriteResult CCameraMemory::executeCommand(quint32 address, Time now)
{
    switch (address) {
    case MemoryMap::DEVICE_RESET:
        if (isRefused("DeviceReset"))
            return {EStatus::Error, {}};
        if (m_settings.ignoresReset)
            m_observer.onEvent("ignore DeviceReset");
        else
            m_resetRequested = true;
        return {};
    case MemoryMap::FIRMWARE_ACTIVATE:
        if (isRefused("FirmwareActivate") || m_file.getVersion().isEmpty())
            return {EStatus::Error, {}};
        m_activatedVersion = m_file.getVersion();
        m_activation = {now + m_settings.activationDuration, m_settings.activationReads};
        m_observer.onEvent("activate " + m_activatedVersion);
        return {};
    default:
        if (isRefused("FileOperationExecute"))
            return {EStatus::Error, {}};
        return executeFileOperation();
    }
}

CCameraMemory::CWriteResult CCameraMemory::executeFileOperation()
{
    quint32 result = 0;
    const bool succeeded = runFileOperation(result);
    m_operation.reads = m_settings.operationReads;
    m_registers.setWord(MemoryMap::FILE_OPERATION_STATUS, succeeded ? FILE_SUCCESS : FILE_FAILURE);
    m_registers.setWord(MemoryMap::FILE_OPERATION_RESULT, result);
    m_registers.setWord(MemoryMap::FILE_SIZE, static_cast<quint32>(m_file.getContent().size()));
    const bool isOpening = m_registers.getWord(MemoryMap::FILE_OPERATION_SELECTOR)
        == static_cast<quint32>(EFileOperation::Open);
    return {EStatus::Success,
            isOpening && succeeded ? m_settings.openDuration : std::chrono::milliseconds(0)};
}

bool CCameraMemory::runFileOperation(quint32 &result)
{
    const quint32 offset = m_registers.getWord(MemoryMap::FILE_ACCESS_OFFSET);
    const int length = static_cast<int>(m_registers.getWord(MemoryMap::FILE_ACCESS_LENGTH));
    switch (static_cast<EFileOperation>(m_registers.getWord(MemoryMap::FILE_OPERATION_SELECTOR))) {
    case EFileOperation::Open:
        if (!m_file.open(m_registers.getWord(MemoryMap::FILE_OPEN_MODE)))
            return false;
        m_observer.onEvent("open FirmwareImage");
        return true;
    case EFileOperation::Close:
        if (!m_file.close())
            return false;
        m_observer.onEvent("close " + QByteArray::number(m_file.getContent().size()));
        m_observer.onFileClosed(m_file.getContent());
        return true;
    case EFileOperation::Read: {
        const QByteArray bytes = m_file.read(offset, length);
        if (bytes.isNull())
            return false;
        m_buffer.replace(0, bytes.size(), bytes);
        result = static_cast<quint32>(bytes.size());
        return true;
    }
    case EFileOperation::Write: {
        const int written = m_file.write(offset, m_buffer.left(length));
        if (written < 0)
            return false;
        m_uploadedBytes += written;
        result = static_cast<quint32>(written);
        return true;
    }
    case EFileOperation::Delete:
        return m_file.remove();
    }
    return false;
}

bool CCameraMemory::isRefused(const char *command) const
{
    if (m_settings.refusedCommand != command)
        return false;
    m_observer.onEvent(QByteArray("refuse ") + command);
    return true;
}

quint32 CCameraMemory::getUsbRegister(quint32 address) const
{
    return m_registers.getLittleWord(address);
}

QByteArray CCameraMemory::getDiscoveryData() const
{
    return m_registers.getBootstrap().left(MemoryMap::DISCOVERY_SIZE);
}

void CCameraMemory::setControlPrivilege(quint32 value)
{
    m_registers.setWord(MemoryMap::CONTROL_PRIVILEGE, value);
}

std::chrono::milliseconds CCameraMemory::getHeartbeatTimeout() const
{
    return std::chrono::milliseconds(m_registers.getWord(MemoryMap::HEARTBEAT_TIMEOUT));
}

void CCameraMemory::abandon()
{
    m_acquisition.abort();
    if (!m_file.isOpen())
        return;
    m_file.abandon();
    m_operation = {};
    m_observer.onEvent("abandon FirmwareImage");
}

bool CCameraMemory::isResetRequested() const
{
    return m_resetRequested;
}

void CCameraMemory::breakOff(Time now)
{
    m_resetRequested = false;
    if (!m_activation.hasEnded(now))
        m_activatedVersion.clear();
    m_activation = {};
    m_operation = {};
}

void CCameraMemory::restart()
{
    if (!m_activatedVersion.isEmpty() && !m_settings.returnsWithOldVersion)
        m_firmwareVersion = m_activatedVersion;
    m_activatedVersion.clear();
    if (!m_settings.returnsWithModel.isEmpty())
        m_model = m_settings.returnsWithModel;
    if (!m_settings.returnsWithSerialNumber.isEmpty())
        m_serialNumber = m_settings.returnsWithSerialNumber;
    m_file.abandon();
    m_buffer.fill('\0');
    setUpBootstrap();
    setUpFeatures();
    m_observer.onEvent("back " + m_firmwareVersion);
}

qint64 CCameraMemory::getUploadedBytes() const
{
    return m_uploadedBytes;
}

} // namespace VirtualCamera
