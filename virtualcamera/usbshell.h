#pragma once

#include "camerasettings.h"
#include "cameravoice.h"

#include <QObject>
#include <QProcess>

#include <memory>
#include <vector>

struct _UMockdevTestbed;

namespace VirtualCamera {

class CUsbPort;

/// What is to be on the emulated bus, and who is to see it.
struct CUsbSettings
{
    CCameraSettings camera;
    QString flashFile; ///< see CCameraVoice
    QStringList command; ///< a program that sees the bus, with its arguments; empty: none
    bool hasTwin = false; ///< a second camera that says that it is the same one
    bool isForbidden = false; ///< nobody may open the camera
};

/// An emulated USB with a virtual camera. It is seen by programs that run with the environment that
/// it tells of, without any right on this machine.
class CUsbShell : public QObject
{
    Q_OBJECT

public:
    explicit CUsbShell(const CUsbSettings &settings, QObject *parent = nullptr);
    ~CUsbShell() override;

    /// Puts the library under which a process sees an emulated bus in front of all others. That
    /// works at the start of a process only: it returns in the process where it does, and not at
    /// all in the first one.
    static void enterEmulation(char **argv);

    /// Makes the bus and starts the command. False with a sentence in @p error when one of them
    /// does not work.
    bool start(QString &error);

    void printStatistics();

Q_SIGNALS:
    /// The command has ended.
    void ended(int exitCode);

private:
    void readCommands();
    [[nodiscard]] bool startCommand(QString &error);

    const CUsbSettings m_settings;
    CCameraVoice m_voice;
    _UMockdevTestbed *m_testbed = nullptr;
    std::vector<std::unique_ptr<CUsbPort>> m_ports;
    QProcess m_process;
};

} // namespace VirtualCamera
