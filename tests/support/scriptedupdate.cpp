#include "scriptedupdate.h"

#include "fakeinfos.h"

#include "core/baseexception.h"

namespace TestSupport {

CScriptedUpdate::CScriptedUpdate(const QString &version, EDirection direction)
    : m_info(new CFakeUpdateInfo(version))
    , m_direction(direction)
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
