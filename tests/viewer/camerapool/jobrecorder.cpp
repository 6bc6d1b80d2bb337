#include "jobrecorder.h"

#include <thread>

namespace Test {

using Plugin::CameraPool::EFirmwareUpdateStep;
using Plugin::CameraPool::IDeviceFirmwareUpdate;
using Plugin::CameraPool::IFirmwareUpdateInfo;

static QString getName(EFirmwareUpdateStep step)
{
    static const QStringList names{
        QStringLiteral("CheckPreconditions"), QStringLiteral("AcquireUpdateData"),
        QStringLiteral("FeatureWrite"),       QStringLiteral("FeatureExecute"),
        QStringLiteral("FeatureAssert"),      QStringLiteral("FileUpload"),
        QStringLiteral("DeviceReset"),        QStringLiteral("Invalid")};
    return names.value(static_cast<int>(step));
}

CJobRecorder::CJobRecorder(IDeviceFirmwareUpdate &job)
{
    m_connections = {
        QObject::connect(&job, &IDeviceFirmwareUpdate::firmwareUpdateBegin,
                         [this](const QSharedPointer<IFirmwareUpdateInfo> &info, unsigned total) {
                             add(info ? QStringLiteral("begin %1").arg(total)
                                      : QStringLiteral("begin without info"));
                         }),
        QObject::connect(
            &job, &IDeviceFirmwareUpdate::firmwareUpdateProgressStepBegin,
            [this](EFirmwareUpdateStep step, unsigned estimate, const QString &description) {
                add(QStringLiteral("step %1 %2 %3")
                        .arg(getName(step))
                        .arg(estimate)
                        .arg(description)
                        .trimmed());
            }),
        QObject::connect(&job, &IDeviceFirmwareUpdate::firmwareUpdateProgressStepProgressChanged,
                         [this](EFirmwareUpdateStep step, double percent) {
                             add(QStringLiteral("progress %1 %2").arg(getName(step)).arg(percent));
                         }),
        QObject::connect(&job, &IDeviceFirmwareUpdate::firmwareUpdateProgressStepDone,
                         [this](EFirmwareUpdateStep step, unsigned estimate) {
                             add(QStringLiteral("stepDone %1 %2").arg(getName(step)).arg(estimate));
                         }),
        QObject::connect(&job, &IDeviceFirmwareUpdate::firmwareUpdateDone,
                         [this] { add(QStringLiteral("done")); }),
        QObject::connect(&job, &IDeviceFirmwareUpdate::firmwareUpdateError,
                         [this](const QString &text) { add(QStringLiteral("error ") + text); })};
}

CJobRecorder::~CJobRecorder()
{
    for (const QMetaObject::Connection &connection : qAsConst(m_connections))
        QObject::disconnect(connection);
}

QStringList CJobRecorder::getLines() const
{
    const std::lock_guard lock(m_mutex);
    return m_lines;
}

QStringList CJobRecorder::getMilestones() const
{
    QStringList milestones;
    for (const QString &line : getLines()) {
        if (!line.startsWith(QLatin1String("progress ")))
            milestones.append(line);
    }
    return milestones;
}

QStringList CJobRecorder::getAll(const char *word) const
{
    const QString prefix = QString::fromLatin1(word);
    QStringList lines;
    for (const QString &line : getLines()) {
        if (line == prefix || line.startsWith(prefix + QLatin1Char(' ')))
            lines.append(line.mid(prefix.size() + 1));
    }
    return lines;
}

void CJobRecorder::add(const QString &line)
{
    const std::lock_guard lock(m_mutex);
    m_lines.append(line);
}

void executeOnThread(IDeviceFirmwareUpdate &job)
{
    std::thread([&job] { job.executeFirmwareUpdate(); }).join();
}

} // namespace Test
