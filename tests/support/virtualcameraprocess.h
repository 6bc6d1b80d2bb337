#pragma once

#include <QHash>
#include <QHostAddress>
#include <QProcess>
#include <QStringList>

namespace TestSupport {

/// A virtual camera in a process of its own, which ends with this object.
class CVirtualCameraProcess
{
public:
    /// A loopback address that no other test program uses at the same time; @p number is 1 to 254.
    static QHostAddress getOwnAddress(int number);

    /// Cameras are on an emulated USB, see tests/emulatedusb.sh.
    static bool isOnUsb();

    /// What makes a program find the camera at @p address, or the one on USB.
    static QStringList getSearchOptions(const QHostAddress &address);

    /// Starts the camera at @p address, or on USB, and waits until it is ready. Without a camera
    /// the test program ends.
    CVirtualCameraProcess(const QHostAddress &address, const QStringList &arguments);
    ~CVirtualCameraProcess();

    /// "unplug" or "plug", to a camera on USB.
    void command(const QByteArray &command);

    /// What has happened to the camera up to now: "open FirmwareImage", "back 2.0.0".
    [[nodiscard]] QStringList getEvents();

    /// Ends the camera and gives the numbers of its last line by their names.
    QHash<QString, qint64> end();

private:
    void readOutput();

    QProcess m_process;
    QString m_output;
};

} // namespace TestSupport
