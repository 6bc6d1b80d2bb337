#pragma once

#include "usbcamera.h"
#include "usbdescriptors.h"

#include <QElapsedTimer>

#include <list>
#include <map>
#include <mutex>

// GLib has names that Qt takes for its own.
struct _GObject;
struct _UMockdevTestbed;
struct _UMockdevIoctlBase;
struct _UMockdevIoctlClient;
struct _UMockdevIoctlData;

namespace VirtualCamera {

class CCameraVoice;

/// A camera at its place on the emulated bus: what the kernel does for programs that use it, which
/// is what usbfs offers. Whoever opened the device is called its client.
///
/// Clients are served on a thread of the emulation; everything else is for one other thread.
class CUsbPort
{
public:
    /// @p number is 1 to 9, the camera's place on the bus. @p testbed and @p voice are borrowed;
    /// @p voice is used on the emulation's thread as well.
    CUsbPort(_UMockdevTestbed *testbed, const CCameraSettings &settings, int number,
             CCameraVoice &voice);
    ~CUsbPort();
    Q_DISABLE_COPY(CUsbPort)

    /// Nobody but root, which has every right, may open the device from its next plugging in on.
    void setAccessible(bool isAccessible) { m_isAccessible = isAccessible; }

    /// A descriptor of the kernel's, readable when tick() has something to do.
    [[nodiscard]] int getTimer() const { return m_timer; }

    /// Does what has become due, plugging in and unplugging as well.
    void tick();

    /// Somebody pulls the plug, or puts it in again.
    void unplug();
    void plugIn();

    /// Takes the device from the bus for good. Nothing of @p testbed must be there any more when
    /// this object goes: clients tell it when they vanish.
    void leave();

    void printStatistics();

private:
    /// A transfer that a client waits for.
    struct CUrb
    {
        _UMockdevIoctlClient *client;
        _UMockdevIoctlData *data; ///< owned, in the client's format
    };

    static int onIoctl(_UMockdevIoctlBase *base, _UMockdevIoctlClient *client, CUsbPort *port);
    static void onConnected(_UMockdevIoctlBase *base, _UMockdevIoctlClient *client, CUsbPort *port);
    static void onVanished(void *self, _GObject *client);
    void forget(const void *client);

    [[nodiscard]] Time getTime() const;
    void appear();
    void disappear();
    void endAll(int status);

    /// What an ioctl gives: 0 or a negative error.
    [[nodiscard]] int execute(_UMockdevIoctlClient *client, unsigned long request,
                              _UMockdevIoctlData *argument);
    [[nodiscard]] int claim(_UMockdevIoctlClient *client, _UMockdevIoctlData *argument,
                            bool isClaim);
    [[nodiscard]] int submit(_UMockdevIoctlClient *client, _UMockdevIoctlData *argument);
    [[nodiscard]] int discard(_UMockdevIoctlClient *client, _UMockdevIoctlData *argument);
    [[nodiscard]] int reap(_UMockdevIoctlClient *client, _UMockdevIoctlData *argument);
    [[nodiscard]] int control(_UMockdevIoctlData *argument);
    /// Bytes that are written to @p target, or a negative error.
    [[nodiscard]] int answerControl(const quint8 *setup, quint8 *target, int size);

    void pump();
    void finish(std::list<CUrb>::iterator urb, int status, int size);
    void setReady();
    void setTimer();

    _UMockdevTestbed *const m_testbed;
    const CCameraSettings m_settings;
    const int m_number;
    QElapsedTimer m_clock;
    const int m_timer; ///< set by both threads
    CCameraVoice &m_voice;
    bool m_isAccessible = true;
    QByteArray m_path; ///< in sysfs; empty: there is no device
    int m_deviceNumber = 0; ///< on the bus
    _UMockdevIoctlBase *m_handler = nullptr;

    std::mutex m_mutex; ///< guards what follows
    CUsbCamera m_camera;
    CUsbDescriptors m_descriptors;
    /// Clients wait at it until it can be written: it is full unless there is something to fetch.
    int m_pipe = -1;
    bool m_isReady = false;
    std::map<int, _UMockdevIoctlClient *> m_claims; ///< by interface
    std::list<CUrb> m_waiting;
    std::list<CUrb> m_done;
};

} // namespace VirtualCamera
