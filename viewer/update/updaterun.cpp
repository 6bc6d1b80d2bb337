#include "updaterun.h"

#include "logging.h"
#include "progressthrottle.h"
#include "updateestimate.h"
#include "viewer/camera/cameraerror.h"
#include "viewer/camera/icameradevice.h"
#include "viewer/updatefile/firmwareversion.h"
#include "viewer/updatefile/manifestparser.h"
#include "viewer/updatefile/updatearchive.h"
#include "viewer/updatefile/updatefileerror.h"

#include "viewer/text/visibletext.h"

#include "core/baseexception.h"

#include <QIODevice>

#include <algorithm>

namespace Viewer::Update {

using Text::CErrorText;
using namespace std::chrono_literals;
using Plugin::CameraPool::EFirmwareUpdateStep;
using UpdateFile::CFeatureValue;
using UpdateFile::CUpdateStep;

static constexpr std::chrono::milliseconds OPEN_LIMIT = 10s;
static constexpr std::chrono::milliseconds FEATURE_LIMIT = 5s;

CUpdateRun::CUpdateRun(const QString &cameraName, const UpdateFile::CUpdateEntry &entry,
                       const QString &filePath, Camera::ICameraDevice &device, IListener &listener)
    : m_cameraName(cameraName)
    , m_entry(entry)
    , m_filePath(filePath)
    , m_device(device)
    , m_listener(listener)
{
}

CUpdateRun::~CUpdateRun() = default;

void CUpdateRun::execute()
{
    m_device.open(OPEN_LIMIT);
    for (m_currentStep = 0; m_currentStep < m_entry.steps.size(); ++m_currentStep) {
        const CUpdateStep &step = m_entry.steps.at(m_currentStep);
        const std::chrono::milliseconds estimate = estimateStep(step, m_device.getUploadRate());
        qCDebug(updateLog).noquote().nospace()
            << m_cameraName << ": step " << m_currentStep + 1 << " of " << m_entry.steps.size()
            << ", " << UpdateFile::getStepKindName(step.kind) << ", may take "
            << getTimeLimit(estimate).count() << " ms";
        m_listener.stepBegun(step, estimate);
        executeStep(step);
        m_listener.stepDone(step, estimate);
    }
    checkVersion();
}

bool CUpdateRun::hasWritten() const
{
    return m_written;
}

QString CUpdateRun::getReportedVersion() const
{
    return m_reportedVersion;
}

void CUpdateRun::executeStep(const CUpdateStep &step)
{
    const std::chrono::milliseconds limit = getTimeLimit(step, m_device);
    switch (step.kind) {
    case EFirmwareUpdateStep::CheckPreconditions:
        checkPreconditions(&step);
        return;
    case EFirmwareUpdateStep::AcquireUpdateData:
        acquireData();
        return;
    case EFirmwareUpdateStep::FeatureWrite:
        write([&] { m_device.writeFeature(step.feature.feature, step.feature.value, limit); });
        return;
    case EFirmwareUpdateStep::FeatureExecute:
        write([&] { m_device.executeCommand(step.feature.feature, limit); });
        return;
    case EFirmwareUpdateStep::FeatureAssert:
        assertFeature(step.feature);
        return;
    case EFirmwareUpdateStep::FileUpload:
        prepareWriting();
        upload(step);
        return;
    case EFirmwareUpdateStep::DeviceReset:
        write([&] { m_device.resetAndWait(limit); });
        return;
    case EFirmwareUpdateStep::Invalid:
        break;
    }
    fail(CErrorText::tr("the update file contains a step of an unknown kind"));
}

void CUpdateRun::checkPreconditions(const CUpdateStep *step)
{
    const QString status = readFeature(QStringLiteral("DeviceStatus"));
    if (status != QLatin1String("0"))
        fail(CErrorText::tr("it cannot be updated now, since it reports status %1")
                 .arg(Text::shorten(status)));
    const QString model = readFeature(QStringLiteral("DeviceModelName"));
    if (!m_entry.models.contains(model))
        fail(CErrorText::tr("the update is not for its model \"%1\"").arg(Text::shorten(model)));
    const QString deviceVersion = readFeature(QStringLiteral("DeviceVersion"));
    if (!m_entry.deviceVersions.isEmpty() && !m_entry.deviceVersions.contains(deviceVersion))
        fail(CErrorText::tr("the update is not for its device version \"%1\"")
                 .arg(Text::shorten(deviceVersion)));
    const QString version = readFirmwareVersion();
    if (UpdateFile::isBelow(version, m_entry.minimumVersion))
        fail(CErrorText::tr("the update needs firmware version %1 or later, but the camera has "
                            "\"%2\"; install an older update first")
                 .arg(m_entry.minimumVersion, Text::shorten(version)));
    if (!step)
        return;
    for (const CFeatureValue &precondition : step->preconditions) {
        const QString value = readFeature(precondition.feature);
        if (value != precondition.value)
            fail(CErrorText::tr("a precondition of the update is not met: its feature \"%1\" is "
                                "\"%2\" instead of \"%3\"")
                     .arg(precondition.feature, Text::shorten(value),
                          Text::shorten(precondition.value)));
    }
}

void CUpdateRun::acquireData()
{
    if (m_archive)
        return;
    try {
        auto archive = std::make_unique<UpdateFile::CUpdateArchive>(m_filePath);
        for (const CUpdateStep &step : m_entry.steps) {
            if (step.kind == EFirmwareUpdateStep::FileUpload)
                archive->checkPayload(step.payload);
        }
        m_archive = std::move(archive);
    } catch (const UpdateFile::CUpdateFileError &error) {
        fail(error.getText());
    }
}

void CUpdateRun::prepareWriting()
{
    if (m_mayWrite)
        return;
    // Minutes may have gone by since the wizard looked, and the file's own check may be missing.
    acquireData();
    bool checked = false;
    for (int i = 0; i < m_currentStep; ++i) {
        const CUpdateStep &step = m_entry.steps.at(i);
        if (step.kind == EFirmwareUpdateStep::CheckPreconditions) {
            checkPreconditions(&step);
            checked = true;
        }
    }
    if (!checked)
        checkPreconditions(nullptr);
    m_mayWrite = true;
}

template <typename Operation>
void CUpdateRun::write(Operation operation)
{
    prepareWriting();
    m_listener.writing();
    try {
        operation();
    } catch (const Camera::CCameraError &error) {
        m_written = m_written || error.getChange() == Camera::CCameraError::EChange::Possible;
        throw;
    } catch (...) {
        m_written = true;
        throw;
    }
    m_written = true;
}

void CUpdateRun::assertFeature(const CFeatureValue &expected)
{
    const QString value = expected.feature == QLatin1String("DeviceFirmwareVersion")
        ? readFirmwareVersion()
        : readFeature(expected.feature);
    if (value != expected.value)
        fail(CErrorText::tr("its feature \"%1\" is \"%2\" instead of \"%3\"")
                 .arg(expected.feature, Text::shorten(value), Text::shorten(expected.value)));
}

void CUpdateRun::upload(const CUpdateStep &step)
{
    std::unique_ptr<QIODevice> source;
    try {
        source = m_archive->openPayload(step.payload);
    } catch (const UpdateFile::CUpdateFileError &error) {
        fail(error.getText());
    }
    const qint64 size = step.payload.size;
    CProgressThrottle throttle(CProgressThrottle::Clock::now());
    const auto progress = [this, &step, size, &throttle](qint64 bytesDone) {
        m_written = m_written || bytesDone > 0;
        const double percent = std::clamp(
            100.0 * static_cast<double>(bytesDone) / static_cast<double>(size), 0.0, 100.0);
        if (throttle.passes(percent, CProgressThrottle::Clock::now()))
            m_listener.stepProgressed(step, percent);
    };
    write([&] {
        m_device.uploadFile(step.targetFile, *source, size, progress, getTimeLimit(step, m_device));
    });
}

void CUpdateRun::checkVersion()
{
    const QString version = readFirmwareVersion();
    if (!UpdateFile::isSameVersion(version, m_entry.version))
        fail(CErrorText::tr("after the update it reports firmware version \"%1\" instead of %2")
                 .arg(Text::shorten(version), m_entry.version));
}

QString CUpdateRun::readFirmwareVersion()
{
    m_reportedVersion = readFeature(QStringLiteral("DeviceFirmwareVersion"));
    return m_reportedVersion;
}

QString CUpdateRun::readFeature(const QString &name)
{
    return m_device.readFeature(name, FEATURE_LIMIT);
}

void CUpdateRun::fail(const CErrorText &cause) const
{
    throw Camera::CCameraError(m_cameraName, cause);
}

} // namespace Viewer::Update
