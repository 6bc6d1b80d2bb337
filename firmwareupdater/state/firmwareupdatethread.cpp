#include "firmwareupdatethread.h"

#include "core/baseexception.h"

#include <QCoreApplication>

namespace Plugin::FirmwareUpdater::Internal::State {

using Plugin::CameraPool::IDeviceFirmwareUpdate;

CFirmwareUpdateThread::CFirmwareUpdateThread(QObject *parent)
    : QThread(parent)
{
    qRegisterMetaType<Plugin::CameraPool::EFirmwareUpdateStep>(
        "Plugin::CameraPool::EFirmwareUpdateStep");
    qRegisterMetaType<QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>>(
        "QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>");
}

CFirmwareUpdateThread::~CFirmwareUpdateThread() = default;

void CFirmwareUpdateThread::setFirmwareUpdate(
    const QSharedPointer<IDeviceFirmwareUpdate> &firmwareUpdate)
{
    if (isRunning() || m_firmwareUpdate == firmwareUpdate)
        return;

    m_firmwareUpdate = firmwareUpdate;
    m_firmwareUpdate->moveToThread(this);
}

void CFirmwareUpdateThread::run()
{
    if (!m_firmwareUpdate)
        return;

    const IDeviceFirmwareUpdate *const job = m_firmwareUpdate.data();
    connect(job, &IDeviceFirmwareUpdate::firmwareUpdateDone, this,
            &CFirmwareUpdateThread::firmwareUpdateDone);
    connect(job, &IDeviceFirmwareUpdate::firmwareUpdateError, this,
            &CFirmwareUpdateThread::firmwareUpdateError);
    connect(job, &IDeviceFirmwareUpdate::firmwareUpdateBegin, this,
            &CFirmwareUpdateThread::firmwareUpdateBegin);
    connect(job, &IDeviceFirmwareUpdate::firmwareUpdateProgressStepBegin, this,
            &CFirmwareUpdateThread::firmwareUpdateProgressStepBegin);
    connect(job, &IDeviceFirmwareUpdate::firmwareUpdateProgressStepDone, this,
            &CFirmwareUpdateThread::firmwareUpdateProgressStepDone);
    connect(job, &IDeviceFirmwareUpdate::firmwareUpdateProgressStepProgressChanged, this,
            &CFirmwareUpdateThread::firmwareUpdateProgressStepProgressChanged);

    try {
        m_firmwareUpdate->executeFirmwareUpdate();
    } catch (const Core::Exception::BaseException &exception) {
        emit firmwareUpdateError(exception.getMessage());
    }

    disconnect(job, nullptr, this, nullptr);
    m_firmwareUpdate->moveToThread(QCoreApplication::instance()->thread());
    m_firmwareUpdate.reset();
}

} // namespace Plugin::FirmwareUpdater::Internal::State
