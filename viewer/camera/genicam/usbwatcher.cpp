#include "usbwatcher.h"

#include <QSocketNotifier>

#include <libudev.h>

namespace Viewer::Camera::GenICam {

void CUsbWatcher::CDeleter::operator()(udev *library) const
{
    udev_unref(library);
}

void CUsbWatcher::CDeleter::operator()(udev_monitor *monitor) const
{
    udev_monitor_unref(monitor);
}

CUsbWatcher::CUsbWatcher(QObject *parent)
    : QObject(parent)
{
}

CUsbWatcher::~CUsbWatcher() = default;

void CUsbWatcher::start()
{
    m_udev.reset(udev_new());
    // What udev tells, not the kernel: by then it has given the user the right to open the device.
    m_monitor.reset(m_udev ? udev_monitor_new_from_netlink(m_udev.get(), "udev") : nullptr);
    if (!m_monitor
        || udev_monitor_filter_add_match_subsystem_devtype(m_monitor.get(), "usb", "usb_device") < 0
        || udev_monitor_enable_receiving(m_monitor.get()) < 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(udev_monitor_get_fd(m_monitor.get()),
                                                   QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] { readEvents(); });
}

void CUsbWatcher::readEvents()
{
    bool hasChanged = false;
    while (udev_device *const device = udev_monitor_receive_device(m_monitor.get())) {
        hasChanged = true;
        udev_device_unref(device);
    }
    if (hasChanged)
        Q_EMIT devicesChanged();
}

} // namespace Viewer::Camera::GenICam
