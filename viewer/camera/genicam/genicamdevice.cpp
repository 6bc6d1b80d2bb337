#include "genicamdevice.h"

#include "fileupload.h"
#include "logging.h"
#include "networkmemory.h"
#include "unicastdiscovery.h"
#include "usbmemory.h"
#include "usbsearch.h"

#include <QDeadlineTimer>
#include <QIODevice>
#include <QThread>
#include <QUdpSocket>

#include <algorithm>

namespace Viewer::Camera::GenICam {

using Text::CErrorText;
using namespace std::chrono_literals;
using std::chrono::milliseconds;

/// How long a camera may take to say who it is before it is opened.
static constexpr milliseconds IDENTITY_LIMIT = 1s;

/// How often a camera is looked at that is busy with something.
static constexpr milliseconds POLL_INTERVAL = 50ms;

/// Bytes a second: an 8 MiB image in half a minute, what a block of 512 bytes and three more
/// commands, each with its way to the camera and back, come to.
static constexpr qint64 USUAL_UPLOAD_RATE = 300'000;

CGenICamDevice::CGenICamDevice(const CFoundCamera &camera)
    : m_camera(camera)
{
}

CGenICamDevice::~CGenICamDevice()
{
    close();
}

QString CGenICamDevice::getName() const
{
    return m_camera.getFullName();
}

void CGenICamDevice::open(milliseconds timeLimit)
{
    if (m_device)
        fail(CErrorText::tr("it is already open"));
    if (m_camera.isAmbiguous)
        fail(CErrorText::tr("another camera has the same vendor, model and serial number; connect "
                            "only one of them and search for cameras again"));
    // What is dead is found out before the library, which takes longer, is set to work. In it only
    // its own limits count: 2.5 s for each answer that does not come, and no end for a camera that
    // announces its answer again and again.
    const QDeadlineTimer deadline(timeLimit);
    checkIdentity(std::min(timeLimit, IDENTITY_LIMIT));
    m_device = translate([this, &deadline] { return makeDevice(deadline); });
    qCDebug(genICamLog).noquote() << getName() << "is open";
}

void CGenICamDevice::checkIdentity(milliseconds timeLimit) const
{
    const std::optional<CFoundCamera> found = find(timeLimit);
    if (!found)
        fail(getNoAnswerText());
    if (!found->isSameAs(m_camera))
        fail(CErrorText::tr("another camera, %1, answers at its address; search for cameras again")
                 .arg(found->getFullName()));
    if (found->isForbidden)
        fail(CErrorText::tr("you have no right to open it; install the rule %1 for udev and plug "
                            "the camera in again")
                 .arg(getUsbRuleName()));
}

std::optional<CFoundCamera> CGenICamDevice::find(milliseconds timeLimit) const
{
    const QVector<CFoundCamera> found = m_camera.transport == ETransport::Ethernet
        ? discoverUnicast({QHostAddress(m_camera.address)}, timeLimit)
        : findUsbCameras();
    const auto isIt = [this](const CFoundCamera &other) {
        return m_camera.transport == ETransport::Ethernet || other.isSameAs(m_camera);
    };
    const auto camera = std::find_if(found.begin(), found.end(), isIt);
    return camera == found.end() ? std::nullopt : std::optional(*camera);
}

// The address on this machine from which @p camera is reached.
static CObjectPointer<GInetAddress> findInterface(const QHostAddress &camera)
{
    QUdpSocket socket;
    // Asks the system for a route; nothing is sent.
    socket.connectToHost(camera, 9);
    socket.waitForConnected(0);
    return CObjectPointer<GInetAddress>(
        g_inet_address_new_from_string(socket.localAddress().toString().toLatin1().constData()));
}

CObjectPointer<ArvDevice> CGenICamDevice::makeDevice(const QDeadlineTimer &deadline) const
{
    CErrorGuard error;
    CObjectPointer<ArvDevice> device;
    if (m_camera.transport == ETransport::Ethernet) {
        // By address and without the library's list of devices, which a search locks for a second.
        const QHostAddress address(m_camera.address);
        if (!m_camera.isDescriptionTrusted) {
            CNetworkMemory memory(address, deadline);
            checkFeatureDescription(memory);
        }
        const CObjectPointer<GInetAddress> interfaceAddress = findInterface(address);
        const CObjectPointer<GInetAddress> cameraAddress(
            g_inet_address_new_from_string(m_camera.address.toLatin1().constData()));
        if (!interfaceAddress || !cameraAddress)
            throw CFeatureError(CErrorText::tr("its address cannot be reached; check the network "
                                               "settings of this computer"),
                                CFeatureError::EReason::NoAnswer);
        device.reset(
            arv_gv_device_new(interfaceAddress.get(), cameraAddress.get(), error.receive()));
    } else {
        device = makeUsbDevice(deadline, error);
    }
    const CErrorText attempt = CErrorText::tr("it could not be opened");
    // The first that the library says to a camera on USB has come to nothing.
    if (m_camera.transport == ETransport::Usb && error.is(ARV_DEVICE_ERROR_PROTOCOL_ERROR))
        CMemoryReader::throwNoAnswer();
    if (error)
        throwError(error, attempt);
    if (!device)
        throw CFeatureError(attempt, CFeatureError::EReason::NoAnswer);
    if (ARV_IS_GV_DEVICE(device.get()) && !arv_gv_device_is_controller(ARV_GV_DEVICE(device.get())))
        throw CFeatureError(getInUseText(), CFeatureError::EReason::InUse);
    return device;
}

CObjectPointer<ArvDevice> CGenICamDevice::makeUsbDevice(const QDeadlineTimer &deadline,
                                                        CErrorGuard &error) const
{
    // Wherever it is now: a reset has given it another address.
    const std::optional<CFoundCamera> found = find(IDENTITY_LIMIT);
    const auto control = found ? findUsbControl(found->address) : std::nullopt;
    if (!control)
        CMemoryReader::throwNoAnswer();
    {
        CUsbMemory memory(*control, deadline);
        if (!m_camera.isDescriptionTrusted)
            checkFeatureDescription(memory);
    }
    if (!m_camera.hardwareAddress.isEmpty())
        return CObjectPointer<ArvDevice>(arv_uv_device_new_from_guid(
            m_camera.hardwareAddress.toUtf8().constData(), error.receive()));
    return CObjectPointer<ArvDevice>(
        arv_uv_device_new(m_camera.vendor.toUtf8().constData(), m_camera.model.toUtf8().constData(),
                          m_camera.serialNumber.toUtf8().constData(), error.receive()));
}

void CGenICamDevice::close() noexcept
{
    m_device.reset();
}

QString CGenICamDevice::readFeature(const QString &name, milliseconds timeLimit)
{
    Q_UNUSED(timeLimit)
    return translate([this, &name] { return readKnownFeature(getFeatures(), name.toUtf8()); });
}

QString CGenICamDevice::readKnownFeature(const CFeatures &features, const QByteArray &name) const
{
    if (features.has(name))
        return features.read(name);
    // What the pool expects of every camera and the standard leaves to the maker.
    if (name == "DeviceStatus")
        return QStringLiteral("0");
    if (name == "DeviceFirmwareVersion" && features.has("DeviceVersion"))
        return features.read("DeviceVersion");
    if (name == "DeviceSerialNumber")
        return m_camera.serialNumber;
    return features.read(name);
}

void CGenICamDevice::writeFeature(const QString &name, const QString &value, milliseconds timeLimit)
{
    Q_UNUSED(timeLimit)
    translate([this, &name, &value] { getFeatures().write(name.toUtf8(), value); });
}

void CGenICamDevice::executeCommand(const QString &name, milliseconds timeLimit)
{
    const QDeadlineTimer deadline(timeLimit);
    translate([this, &name, &deadline] {
        const CFeatures features = getFeatures();
        const QByteArray command = name.toUtf8();
        qCDebug(genICamLog).noquote() << getName() << "command" << name;
        features.execute(command);
        while (!features.isDone(command)) {
            if (deadline.hasExpired())
                fail(CErrorText::tr("its command \"%1\" took too long; switch the camera off and "
                                    "on and repeat the update")
                         .arg(name));
            QThread::msleep(POLL_INTERVAL.count());
        }
    });
}

void CGenICamDevice::uploadFile(const QString &fileName, QIODevice &source, qint64 size,
                                const ProgressFunction &progress, milliseconds timeLimit)
{
    const QDeadlineTimer deadline(timeLimit);
    translate([&] {
        const CFeatures features = getFeatures();
        CFileUpload upload(features, fileName, deadline);
        upload.open();
        qCDebug(genICamLog).noquote() << getName() << "takes" << size << "bytes for" << fileName
                                      << "in blocks of" << upload.getBlockSize();
        for (qint64 done = 0; done < size;) {
            if (deadline.hasExpired())
                fail(CErrorText::tr("the upload of its file \"%1\" took too long; it was broken "
                                    "off after %2 of %3 bytes")
                         .arg(fileName, QString::number(done), QString::number(size)));
            const QByteArray block
                = source.read(std::min<qint64>(upload.getBlockSize(), size - done));
            if (block.isEmpty())
                fail(CErrorText::tr("the data for its file \"%1\" ended after %2 of %3 bytes (%4)")
                         .arg(fileName, QString::number(done), QString::number(size),
                              source.errorString()));
            upload.writeBlock(block);
            done += block.size();
            if (progress)
                progress(done);
        }
        upload.close();
    });
}

void CGenICamDevice::resetAndWait(milliseconds timeLimit)
{
    const QDeadlineTimer deadline(timeLimit);
    translate([this, &deadline] {
        const CFoundCamera before = find(DISCOVERY_LIMIT).value_or(m_camera);
        qCDebug(genICamLog).noquote() << getName() << "is reset, version" << before.version;
        try {
            getFeatures().execute(QByteArrayLiteral("DeviceReset"));
        } catch (const CFeatureError &error) {
            // A camera may be gone before it answers.
            if (error.getReason() != CFeatureError::EReason::NoAnswer)
                throw;
        }
        waitForReturn(before, deadline);
        // Kept until here: closing it earlier would wait for answers of a camera that is away.
        m_device.reset();
        while (!m_device) {
            try {
                m_device = makeDevice(deadline);
            } catch (const CFeatureError &error) {
                // It answers questions for its name a little before it can be opened.
                if (deadline.hasExpired())
                    fail(error.getText());
                QThread::msleep(POLL_INTERVAL.count());
            }
        }
    });
}

void CGenICamDevice::waitForReturn(const CFoundCamera &before, const QDeadlineTimer &deadline) const
{
    // Right after the command the camera is still there: only one that has been away, or is
    // another than before, has returned. One missing answer may just be lost on the way.
    constexpr int SURE_SILENCE = 2;
    int silence = 0;
    while (!deadline.hasExpired()) {
        const std::optional<CFoundCamera> found = find(DISCOVERY_LIMIT);
        const bool isThere = found && found->isSameAs(m_camera);
        // On USB a device that has been away has another address.
        if (isThere
            && (silence >= SURE_SILENCE || found->version != before.version
                || found->address != before.address)) {
            qCDebug(genICamLog).noquote()
                << getName() << "is back, version" << found->version << "unanswered" << silence;
            return;
        }
        if (!isThere)
            ++silence;
        else
            silence = 0;
        QThread::msleep(POLL_INTERVAL.count());
    }
    fail(silence > 0 ? CErrorText::tr("it did not come back from its reset; switch it off and on "
                                      "and check its firmware version")
                     : CErrorText::tr("it did not restart; switch it off and on and check its "
                                      "firmware version"));
}

qint64 CGenICamDevice::getUploadRate() const
{
    return USUAL_UPLOAD_RATE;
}

milliseconds CGenICamDevice::getShortestResetLimit() const
{
    // Cameras that write their flash memory while they start take long.
    return 60s;
}

CFeatures CGenICamDevice::getFeatures() const
{
    if (!m_device)
        fail(CErrorText::tr("it is not open"), CCameraError::EChange::None);
    return CFeatures(m_device.get());
}

static CCameraError::EChange toChange(CFeatureError::EReason reason)
{
    switch (reason) {
    case CFeatureError::EReason::InUse:
        return CCameraError::EChange::InUse;
    case CFeatureError::EReason::Refused:
        return CCameraError::EChange::None;
    case CFeatureError::EReason::NoAnswer:
    case CFeatureError::EReason::Unknown:
        break;
    }
    return CCameraError::EChange::Possible;
}

ArvDevice *CGenICamDevice::getDevice() const
{
    return m_device.get();
}

void CGenICamDevice::fail(const CFeatureError &error) const
{
    fail(error.getText(), toChange(error.getReason()));
}

void CGenICamDevice::fail(const CErrorText &cause, CCameraError::EChange change) const
{
    const CCameraError error(getName(), cause, change);
    qCDebug(genICamLog).noquote() << error.getMessage()
                                  << (change == CCameraError::EChange::Possible ? ""
                                                                                : "(unchanged)");
    throw error;
}

} // namespace Viewer::Camera::GenICam
