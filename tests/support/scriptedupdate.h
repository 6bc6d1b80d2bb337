#pragma once

#include "camerapool/idevicefirmwareupdate.h"

#include <QSemaphore>

#include <atomic>
#include <functional>
#include <vector>

namespace TestSupport {

/// An update job that plays a script written by the test. The first execution plays it; as the
/// contract demands, every later one emits the refusal alone.
class CScriptedUpdate : public Plugin::CameraPool::IDeviceFirmwareUpdate
{
    Q_OBJECT

public:
    using EStep = Plugin::CameraPool::EFirmwareUpdateStep;
    using EDirection = Plugin::CameraPool::EFirmwareUpdateDirection;

    explicit CScriptedUpdate(const QString &version = QStringLiteral("2.0.0"),
                             EDirection direction = EDirection::Upgrade);

    // The script: what an execution does, in this order.
    CScriptedUpdate &begin(unsigned int totalMs);
    CScriptedUpdate &beginStep(EStep step, unsigned int estimateMs, const QString &text = {});
    CScriptedUpdate &progress(EStep step, double percent);
    CScriptedUpdate &endStep(EStep step, unsigned int estimateMs);
    CScriptedUpdate &done()
    {
        return add([this] { emit firmwareUpdateDone(); });
    }
    CScriptedUpdate &error(const QString &message)
    {
        return add([this, message] { emit firmwareUpdateError(message); });
    }
    CScriptedUpdate &throwException(const QString &message);
    /// Stops the script until release().
    CScriptedUpdate &hold();

    /// True while the script stands at a hold().
    [[nodiscard]] bool isHeld() const { return m_held; }
    void release() { m_release.release(); }

    [[nodiscard]] int getExecutionCount() const { return m_executionCount; }

    QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo> getFirmwareUpdateInfo() const override
    {
        return m_info;
    }
    EDirection getFirmwareUpdateDirection() const override { return m_direction; }
    QString getFirmwareVersion() const override { return QStringLiteral("1.0.0"); }
    void executeFirmwareUpdate() override;

private:
    CScriptedUpdate &add(std::function<void()> action);

    const QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo> m_info;
    const EDirection m_direction;
    std::vector<std::function<void()>> m_script;
    std::atomic<int> m_executionCount{0};
    std::atomic<bool> m_held{false};
    QSemaphore m_release;
};

} // namespace TestSupport
