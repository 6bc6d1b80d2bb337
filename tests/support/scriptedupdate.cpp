#include "scriptedupdate.h"

#include "fakeinfos.h"

#include "core/baseexception.h"

namespace TestSupport {

CScriptedUpdate::CScriptedUpdate(const QString &version, EDirection direction,
                                 const QString &currentVersion)
    : m_info(new CFakeUpdateInfo(version))
    , m_direction(direction)
    , m_currentVersion(currentVersion)
{
}

CScriptedUpdate &CScriptedUpdate::add(std::function<void()> action)
{
    m_script.push_back(std::move(action));
    return *this;
}

CScriptedUpdate &CScriptedUpdate::begin(unsigned int totalMs)
{
    return add([this, totalMs] { emit firmwareUpdateBegin(m_info, totalMs); });
}

CScriptedUpdate &CScriptedUpdate::beginStep(EStep step, unsigned int estimateMs,
                                            const QString &text)
{
    return add([this, step, estimateMs, text] {
        emit firmwareUpdateProgressStepBegin(step, estimateMs, text);
    });
}

CScriptedUpdate &CScriptedUpdate::progress(EStep step, double percent)
{
    return add(
        [this, step, percent] { emit firmwareUpdateProgressStepProgressChanged(step, percent); });
}

CScriptedUpdate &CScriptedUpdate::endStep(EStep step, unsigned int estimateMs)
{
    return add([this, step, estimateMs] { emit firmwareUpdateProgressStepDone(step, estimateMs); });
}

CScriptedUpdate &CScriptedUpdate::done()
{
    return add([this] { emit firmwareUpdateDone(); });
}

CScriptedUpdate &CScriptedUpdate::error(const QString &message)
{
    return add([this, message] { emit firmwareUpdateError(message); });
}

CScriptedUpdate &CScriptedUpdate::throwException(const QString &message)
{
    return add([message] { throw Core::Exception::BaseException(message); });
}

CScriptedUpdate &CScriptedUpdate::hold()
{
    return add([this] {
        m_held = true;
        m_release.acquire();
        m_held = false;
    });
}

bool CScriptedUpdate::isHeld() const
{
    return m_held;
}

void CScriptedUpdate::release()
{
    m_release.release();
}

int CScriptedUpdate::getExecutionCount() const
{
    return m_executionCount;
}

QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>
CScriptedUpdate::getFirmwareUpdateInfo() const
{
    return m_info;
}

CScriptedUpdate::EDirection CScriptedUpdate::getFirmwareUpdateDirection() const
{
    return m_direction;
}

QString CScriptedUpdate::getFirmwareVersion() const
{
    return m_currentVersion;
}

void CScriptedUpdate::executeFirmwareUpdate()
{
    if (m_executionCount++ > 0) {
        emit firmwareUpdateError(
            QStringLiteral("The series of updates was stopped before this camera"));
        return;
    }
    for (const std::function<void()> &action : m_script)
        action();
}

} // namespace TestSupport
