#pragma once

#include <QObject>

#include <memory>

class QSocketNotifier;
struct udev;
struct udev_monitor;

namespace Viewer::Camera::GenICam {

/// Tells that a device has been plugged into the USB or pulled out of it, and that its user's
/// rights have been settled. Where the system tells nobody, nothing is told.
class CUsbWatcher : public QObject
{
    Q_OBJECT

public:
    explicit CUsbWatcher(QObject *parent = nullptr);
    ~CUsbWatcher() override;

    /// From now on.
    void start();

Q_SIGNALS:
    void devicesChanged();

private:
    void readEvents();

    struct CDeleter
    {
        void operator()(udev *library) const;
        void operator()(udev_monitor *monitor) const;
    };

    // The order matters: who is named first is used by those that follow.
    std::unique_ptr<udev, CDeleter> m_udev;
    std::unique_ptr<udev_monitor, CDeleter> m_monitor;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace Viewer::Camera::GenICam
