#include "simulatedcamerastream.h"

#include "simulatedcamera.h"
#include "testpattern.h"

#include "viewer/camera/cameraerror.h"

namespace Viewer::Camera::Simulation {

using Clock = std::chrono::steady_clock;
using Text::CErrorText;

static constexpr QSize FRAME_SIZE(640, 480);
static constexpr int PIXEL_SIZE = 3; // bytes
static constexpr quint32 BGR8 = 0x02180015;
static constexpr double USUAL_FRAME_RATE = 25;
static constexpr double LOWEST_FRAME_RATE = 1;
static constexpr double HIGHEST_FRAME_RATE = 100;

CSimulatedCameraStream::CSimulatedCameraStream(const std::shared_ptr<CSimulatedCamera> &camera)
    : m_camera(camera)
    , m_frameRate(USUAL_FRAME_RATE)
{
}

CSimulatedCameraStream::~CSimulatedCameraStream()
{
    close();
}

QString CSimulatedCameraStream::getName() const
{
    return m_camera->getDescription().camera.displayName;
}

void CSimulatedCameraStream::open(std::chrono::milliseconds)
{
    CErrorText cause;
    bool isInUse = false;
    m_session = m_camera->connect(cause, isInUse);
    if (m_session == 0)
        throw CCameraError(getName(), cause,
                           isInUse ? CCameraError::EChange::InUse : CCameraError::EChange::None);
}

void CSimulatedCameraStream::close() noexcept
{
    stop();
    if (m_session != 0)
        m_camera->disconnect(m_session);
    m_session = 0;
}

static CFeatureInfo makeInteger(const char *name, const char *category, int value)
{
    CFeatureInfo info;
    info.name = QLatin1String(name);
    info.category = QLatin1String(category);
    info.kind = CFeatureInfo::EKind::Integer;
    info.isReadable = true;
    info.value = QString::number(value);
    info.integerMinimum = info.integerMaximum = value;
    return info;
}

static CFeatureInfo makeText(const char *name, const char *category, const QString &value)
{
    CFeatureInfo info;
    info.name = QLatin1String(name);
    info.category = QLatin1String(category);
    info.kind = CFeatureInfo::EKind::Text;
    info.isReadable = true;
    info.value = value;
    return info;
}

QVector<CFeatureInfo> CSimulatedCameraStream::readFeatures(const QStringList &names,
                                                           const std::function<void()> &)
{
    const CCameraSnapshot &camera = m_camera->getDescription().camera;
    const char *const device = "DeviceControl";
    const char *const image = "ImageFormatControl";
    QVector<CFeatureInfo> features{
        makeText("DeviceModelName", device, camera.modelName),
        makeText("DeviceVersion", device, camera.deviceVersion),
        makeText("DeviceSerialNumber", device, camera.serialNumber),
        makeText("DeviceFirmwareVersion", device, m_camera->getFirmwareVersion()),
        makeInteger("Width", image, FRAME_SIZE.width()),
        makeInteger("Height", image, FRAME_SIZE.height())};
    CFeatureInfo format = makeText("PixelFormat", image, QStringLiteral("BGR8"));
    format.kind = CFeatureInfo::EKind::Enumeration;
    format.choices = QStringList(format.value);
    CFeatureInfo rate = makeText("AcquisitionFrameRate", "AcquisitionControl", {});
    rate.kind = CFeatureInfo::EKind::Float;
    rate.unit = QStringLiteral("Hz");
    rate.isWritable = true;
    rate.minimum = LOWEST_FRAME_RATE;
    rate.maximum = HIGHEST_FRAME_RATE;
    {
        const std::lock_guard lock(m_mutex);
        rate.value = CFeatureInfo::toText(m_frameRate);
    }
    features << format << rate;
    if (names.isEmpty())
        return features;
    QVector<CFeatureInfo> wanted;
    for (const CFeatureInfo &feature : qAsConst(features)) {
        if (names.contains(feature.name))
            wanted.append(feature);
    }
    return wanted;
}

void CSimulatedCameraStream::writeFeature(const QString &name, const QString &value)
{
    bool isNumber = false;
    const double rate = value.toDouble(&isNumber);
    const bool isGood = name == QLatin1String("AcquisitionFrameRate") && isNumber
        && rate >= LOWEST_FRAME_RATE && rate <= HIGHEST_FRAME_RATE;
    if (!isGood)
        throw CCameraError(
            getName(),
            CErrorText::tr("its feature \"%1\" could not be set to \"%2\"").arg(name, value),
            CCameraError::EChange::None);
    const std::lock_guard lock(m_mutex);
    m_frameRate = rate;
}

void CSimulatedCameraStream::executeCommand(const QString &name)
{
    throw CCameraError(getName(), CErrorText::tr("its feature \"%1\" is not a command").arg(name),
                       CCameraError::EChange::None);
}

qint64 CSimulatedCameraStream::getFrameSize()
{
    return qint64(FRAME_SIZE.width()) * FRAME_SIZE.height() * PIXEL_SIZE;
}

void CSimulatedCameraStream::start(uchar *memory, int slotCount, qint64 slotSize,
                                   const FrameListener &listener)
{
    stop();
    m_memory = memory;
    m_slotSize = slotSize;
    m_listener = listener;
    m_statistics = {};
    m_freeSlots.clear();
    for (int slot = 0; slot < slotCount; ++slot)
        m_freeSlots.append(slot);
    m_isStopping = false;
    m_thread = std::thread([this] { makeFrames(); });
}

void CSimulatedCameraStream::giveBack(int slot)
{
    const std::lock_guard lock(m_mutex);
    m_freeSlots.append(slot);
}

void CSimulatedCameraStream::stop()
{
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_isStopping = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

/// The same number for @p id everywhere, which Qt's hash is not.
static quint32 spread(const QString &id)
{
    quint32 number = 0;
    for (const QChar character : id)
        number = 31 * number + character.unicode();
    return number;
}

void CSimulatedCameraStream::makeFrames()
{
    const int hue = static_cast<int>(spread(m_camera->getDescription().camera.id) % 360);
    const Clock::time_point begin = Clock::now();
    Clock::time_point next = begin;
    CFrameInfo frame;
    frame.pixelFormat = BGR8;
    frame.width = FRAME_SIZE.width();
    frame.height = FRAME_SIZE.height();
    frame.size = getFrameSize();
    while (true) {
        {
            std::unique_lock lock(m_mutex);
            if (m_changed.wait_until(lock, next, [this] { return m_isStopping; }))
                return;
            next += std::chrono::duration_cast<Clock::duration>(
                std::chrono::duration<double>(1 / m_frameRate));
            ++frame.number;
            if (m_freeSlots.isEmpty() || frame.size > m_slotSize) {
                ++m_statistics.incompleteFrames;
                continue;
            }
            frame.slot = m_freeSlots.takeFirst();
            ++m_statistics.frames;
            m_statistics.bytes += frame.size;
        }
        frame.timestamp
            = std::chrono::duration_cast<std::chrono::nanoseconds>(Clock::now() - begin).count();
        paintTestPattern(m_memory + frame.slot * m_slotSize, FRAME_SIZE, frame.number, hue);
        m_listener(frame);
    }
}

CStreamStatistics CSimulatedCameraStream::getStatistics()
{
    const std::lock_guard lock(m_mutex);
    return m_statistics;
}

void CSimulatedCameraStream::check()
{
    if (!m_camera->isConnected(m_session))
        throw CCameraError(getName(),
                           CErrorText::tr("the connection was lost; check its cable and its power "
                                          "supply"));
}

} // namespace Viewer::Camera::Simulation
