#include "scripteddevice.h"

#include "viewer/camerapool/cameraerror.h"

#include <QIODevice>

namespace Test {

using std::chrono::milliseconds;

CScriptedDevice::CScriptedDevice(const std::shared_ptr<CDeviceScript> &script)
    : m_script(script)
{
    m_script->isAlive = true;
}

CScriptedDevice::~CScriptedDevice()
{
    m_script->isAlive = false;
}

void CScriptedDevice::open(milliseconds timeLimit)
{
    m_script->isOpen = true; // also when it fails then: close() has to follow
    note(QStringLiteral("open"), timeLimit);
}

void CScriptedDevice::close() noexcept
{
    m_script->isOpen = false;
}

QString CScriptedDevice::readFeature(const QString &name, milliseconds timeLimit)
{
    note(QStringLiteral("read ") + name, timeLimit);
    if (!m_script->features.contains(name))
        throw Viewer::CameraPool::CCameraError(m_script->cameraName,
                                               QStringLiteral("it has no feature ") + name);
    return m_script->features.value(name);
}

void CScriptedDevice::writeFeature(const QString &name, const QString &value,
                                   milliseconds timeLimit)
{
    note(QStringLiteral("write %1=%2").arg(name, value), timeLimit);
    m_script->features.insert(name, value);
}

void CScriptedDevice::executeCommand(const QString &name, milliseconds timeLimit)
{
    note(QStringLiteral("execute ") + name, timeLimit);
}

void CScriptedDevice::uploadFile(const QString &fileName, QIODevice &source, qint64 size,
                                 const ProgressFunction &progress, milliseconds timeLimit)
{
    note(QStringLiteral("upload %1 %2").arg(fileName).arg(size), timeLimit);
    qint64 done = 0;
    while (done < size) {
        const QByteArray block = source.read(std::min(m_script->blockSize, size - done));
        if (block.isEmpty())
            throw Viewer::CameraPool::CCameraError(m_script->cameraName, source.errorString());
        m_script->uploaded += block;
        done += block.size();
        progress(done);
    }
}

void CScriptedDevice::resetAndWait(milliseconds timeLimit)
{
    note(QStringLiteral("reset"), timeLimit);
    if (!m_script->versionAfterReset.isEmpty())
        m_script->features.insert(QStringLiteral("DeviceFirmwareVersion"),
                                  m_script->versionAfterReset);
}

qint64 CScriptedDevice::getUploadRate() const
{
    return m_script->uploadRate;
}

void CScriptedDevice::note(const QString &call, milliseconds timeLimit)
{
    if (timeLimit <= milliseconds::zero())
        qFatal("%s without a time limit", qPrintable(call));
    if (m_script->before)
        m_script->before(call);
    m_script->calls.append(call);
}

} // namespace Test
