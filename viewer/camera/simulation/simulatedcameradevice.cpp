#include "simulatedcameradevice.h"

#include "firmwareimage.h"
#include "simulatedcamera.h"
#include "viewer/text/visibletext.h"

#include <QIODevice>
#include <QLocale>

#include <algorithm>

namespace Viewer::Camera::Simulation {

using Text::CErrorText;
using namespace std::chrono_literals;
using std::chrono::milliseconds;
using EChange = CCameraError::EChange;

// What real cameras take, about.
static constexpr milliseconds OPEN_DURATION = 200ms;
static constexpr milliseconds READ_DURATION = 20ms;
static constexpr milliseconds WRITE_DURATION = 60ms;
static constexpr milliseconds COMMAND_DURATION = 900ms;
static constexpr milliseconds RESET_DURATION = 4s;
static constexpr milliseconds LATE_RESET_DURATION = 5 * RESET_DURATION;
static constexpr milliseconds ENDLESS_DURATION = milliseconds::max();

static constexpr qint64 BLOCK_SIZE = 16 * 1024;

static QString getSeconds(milliseconds time)
{
    return QLocale::c().toString(static_cast<double>(time.count()) / 1000.0, 'g', 6);
}

static bool isFeatureName(const QString &name)
{
    return !name.isEmpty() && std::all_of(name.cbegin(), name.cend(), [](QChar character) {
        return character.unicode() < 128
            && (character.isLetterOrNumber() || character == QLatin1Char('_'));
    });
}

CSimulatedCameraDevice::CSimulatedCameraDevice(const std::shared_ptr<CSimulatedCamera> &camera)
    : m_camera(camera)
{
}

CSimulatedCameraDevice::~CSimulatedCameraDevice()
{
    close();
}

QString CSimulatedCameraDevice::getName() const
{
    return m_camera->getDescription().camera.displayName;
}

void CSimulatedCameraDevice::open(milliseconds timeLimit)
{
    if (m_session != 0)
        fail(CErrorText::tr("it is already open"));
    CErrorText cause;
    bool isInUse = false;
    m_session = m_camera->connect(cause, isInUse);
    if (m_session == 0)
        fail(cause, isInUse ? EChange::InUse : EChange::None);
    m_features.clear();
    m_image.clear();
    m_activatedVersion.clear();
    m_uploaded = false;
    work(OPEN_DURATION, timeLimit);
}

void CSimulatedCameraDevice::close() noexcept
{
    if (m_session == 0)
        return;
    m_camera->disconnect(m_session);
    m_session = 0;
}

QString CSimulatedCameraDevice::readFeature(const QString &name, milliseconds timeLimit)
{
    work(READ_DURATION, timeLimit);
    const CCameraSnapshot &camera = m_camera->getDescription().camera;
    const CScriptedFaults &faults = m_camera->getDescription().faults;
    if (m_uploaded && faults.assertFails)
        return QStringLiteral("invalid");
    if (name == QLatin1String("DeviceModelName"))
        return camera.modelName;
    if (name == QLatin1String("DeviceSerialNumber"))
        return camera.serialNumber;
    if (name == QLatin1String("DeviceVersion"))
        return camera.deviceVersion;
    if (name == QLatin1String("DeviceFirmwareVersion"))
        return m_camera->getFirmwareVersion();
    if (name == QLatin1String("DeviceStatus"))
        return QString::number(faults.preconditionNotMet ? 1 : camera.statusCode);
    const auto feature = m_features.constFind(name);
    if (feature == m_features.constEnd())
        fail(CErrorText::tr("it has no feature \"%1\" that can be read").arg(name));
    return *feature;
}

void CSimulatedCameraDevice::writeFeature(const QString &name, const QString &value,
                                          milliseconds timeLimit)
{
    work(WRITE_DURATION, timeLimit);
    if (m_camera->getDescription().faults.writeRefused)
        refuse(CErrorText::tr("it refuses to write the feature \"%1\"").arg(name));
    if (!isFeatureName(name) || name.startsWith(QLatin1String("Device")))
        refuse(CErrorText::tr("it has no feature \"%1\" that can be written").arg(name));
    m_features.insert(name, value);
}

void CSimulatedCameraDevice::executeCommand(const QString &name, milliseconds timeLimit)
{
    work(COMMAND_DURATION, timeLimit);
    if (!isFeatureName(name))
        refuse(CErrorText::tr("it has no command \"%1\"").arg(name));
    if (name == QLatin1String(ACTIVATE_COMMAND))
        activate();
}

void CSimulatedCameraDevice::uploadFile(const QString &fileName, QIODevice &source, qint64 size,
                                        const ProgressFunction &progress, milliseconds timeLimit)
{
    const CScriptedFaults &faults = m_camera->getDescription().faults;
    work(WRITE_DURATION, timeLimit);
    if (faults.writeRefused)
        refuse(CErrorText::tr("it refuses to write the file \"%1\"").arg(fileName));

    m_uploaded = false;
    m_activatedVersion.clear();
    m_image.clear();
    const auto start = CSimulatedCamera::Clock::now();
    const auto limit = std::chrono::duration_cast<std::chrono::microseconds>(timeLimit);
    qint64 done = 0;
    const auto getChange = [&done] { return done > 0 ? EChange::Possible : EChange::None; };
    while (done < size) {
        qint64 wanted = std::min(BLOCK_SIZE, size - done);
        for (const std::optional<qint64> &end : {faults.uploadFailsAtByte, faults.vanishesAtByte}) {
            if (end && *end >= done)
                wanted = std::min(wanted, *end - done);
        }
        if (wanted > 0) {
            const QByteArray block = source.read(wanted);
            if (block.isEmpty())
                fail(CErrorText::tr("the data for its file \"%1\" ended after %2 of %3 bytes (%4)")
                         .arg(fileName, QString::number(done), QString::number(size),
                              source.errorString()),
                     getChange());
            if (m_image.size() < CFirmwareImage::MAXIMUM_HEADER_SIZE)
                m_image += block.left(CFirmwareImage::MAXIMUM_HEADER_SIZE - m_image.size());
            done += block.size();
            const std::chrono::microseconds sent(
                static_cast<qint64>(static_cast<double>(done) * 1e6 / getUploadRate()));
            requireConnection(m_camera->waitSince(m_session, start, std::min(sent, limit)));
            if (sent > limit)
                failByTime(timeLimit);
            if (progress)
                progress(done);
        }
        if (faults.uploadFailsAtByte == done)
            fail(CErrorText::tr("the upload of its file \"%1\" broke off after %2 of %3 bytes")
                     .arg(fileName, QString::number(done), QString::number(size)),
                 getChange());
        if (faults.vanishesAtByte == done) {
            m_camera->setPlugged(false);
            requireConnection(false, getChange());
        }
    }
    m_uploaded = true;
}

void CSimulatedCameraDevice::resetAndWait(milliseconds timeLimit)
{
    work(WRITE_DURATION, timeLimit);
    const CScriptedFaults &faults = m_camera->getDescription().faults;
    const milliseconds duration = faults.neverReturnsFromReset ? ENDLESS_DURATION
        : faults.returnsLate                                   ? LATE_RESET_DURATION
                                                               : RESET_DURATION;
    const QString version = faults.returnsWithOldVersion ? QString() : m_activatedVersion;
    m_activatedVersion.clear();
    m_features.clear();
    const CSimulatedCamera::ERestart result
        = m_camera->restart(m_session, duration, timeLimit, version);
    requireConnection(result != CSimulatedCamera::ERestart::Unplugged);
    if (result == CSimulatedCamera::ERestart::NotInTime)
        fail(CErrorText::tr("it did not come back from its reset within %1 s; switch it off and on")
                 .arg(getSeconds(timeLimit)));
}

qint64 CSimulatedCameraDevice::getUploadRate() const
{
    return m_camera->getDescription().uploadSpeed;
}

milliseconds CSimulatedCameraDevice::getShortestResetLimit() const
{
    return 0ms; // a simulated camera takes as long as its description says
}

void CSimulatedCameraDevice::fail(const CErrorText &cause, EChange change) const
{
    throw CCameraError(getName(), cause, change);
}

void CSimulatedCameraDevice::refuse(const CErrorText &cause) const
{
    fail(cause, EChange::None);
}

void CSimulatedCameraDevice::failByTime(milliseconds timeLimit) const
{
    fail(CErrorText::tr("it did not answer within %1 s").arg(getSeconds(timeLimit)));
}

void CSimulatedCameraDevice::work(milliseconds duration, milliseconds timeLimit) const
{
    if (m_session == 0)
        refuse(CErrorText::tr("it is not open"));
    requireConnection(m_camera->wait(m_session, std::min(duration, timeLimit)));
    if (duration > timeLimit)
        failByTime(timeLimit);
}

void CSimulatedCameraDevice::requireConnection(bool connected, EChange change) const
{
    if (!connected)
        fail(CErrorText::tr("the connection was lost; check its cable and its power supply"),
             change);
}

void CSimulatedCameraDevice::activate()
{
    if (!m_uploaded)
        refuse(CErrorText::tr("there is no complete firmware image to activate"));
    const CFirmwareImage image = CFirmwareImage::parse(m_image);
    if (image.version.isEmpty())
        refuse(CErrorText::tr("it does not accept the uploaded file as a firmware image"));
    const QString model = m_camera->getDescription().camera.modelName;
    if (!image.model.isEmpty() && image.model != model)
        refuse(CErrorText::tr("the uploaded firmware image is for model %1, not for %2")
                   .arg(Text::shorten(image.model), model));
    m_activatedVersion = image.version;
}

} // namespace Viewer::Camera::Simulation
