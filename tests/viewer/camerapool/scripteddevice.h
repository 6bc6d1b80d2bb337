#pragma once

#include "viewer/camerapool/icameradevice.h"

#include <QHash>
#include <QStringList>

#include <functional>
#include <memory>

namespace Test {

/// What a CScriptedDevice does and what was done to it. Outlives the device, which a job owns.
struct CDeviceScript
{
    QString cameraName = QStringLiteral("Scripted camera");
    QHash<QString, QString> features; ///< by name; reading others fails
    QString versionAfterReset; ///< empty: the version stays
    qint64 uploadRate = 1000;
    qint64 blockSize = 10;

    /// Called before each operation but close(), with its line in calls; may throw.
    std::function<void(const QString &call)> before;

    QStringList calls; ///< "open", "read A", "write A=b", "execute A", "upload A 400", "reset"
    QByteArray uploaded; ///< all bytes of all uploads
    bool isOpen = false;
    bool isAlive = false;
};

/// A camera that is a script: no waiting, no surprises but the ones ordered.
class CScriptedDevice : public Viewer::CameraPool::ICameraDevice
{
public:
    explicit CScriptedDevice(const std::shared_ptr<CDeviceScript> &script);
    ~CScriptedDevice() override;
    Q_DISABLE_COPY(CScriptedDevice)

    void open(std::chrono::milliseconds timeLimit) override;
    void close() noexcept override;
    [[nodiscard]] QString readFeature(const QString &name,
                                      std::chrono::milliseconds timeLimit) override;
    void writeFeature(const QString &name, const QString &value,
                      std::chrono::milliseconds timeLimit) override;
    void executeCommand(const QString &name, std::chrono::milliseconds timeLimit) override;
    void uploadFile(const QString &fileName, QIODevice &source, qint64 size,
                    const ProgressFunction &progress, std::chrono::milliseconds timeLimit) override;
    void resetAndWait(std::chrono::milliseconds timeLimit) override;
    [[nodiscard]] qint64 getUploadRate() const override;

private:
    void note(const QString &call, std::chrono::milliseconds timeLimit);

    const std::shared_ptr<CDeviceScript> m_script;
};

} // namespace Test
