#include "inputmonitor.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

namespace Plugin::FirmwareUpdater::Internal::View {

static QPointer<CInputMonitor> monitor;

CInputMonitor::CInputMonitor(QObject *application)
    : QObject(application)
{
    application->installEventFilter(this);
}

const CInputMonitor *CInputMonitor::get()
{
    if (!monitor)
        monitor = new CInputMonitor(QCoreApplication::instance());
    return monitor;
}

void CInputMonitor::remove()
{
    delete monitor;
}

bool CInputMonitor::isKeyboardUsed() const
{
    return m_isKeyboardUsed;
}

bool CInputMonitor::eventFilter(QObject *object, QEvent *event)
{
    Q_UNUSED(object)
    if (event->type() == QEvent::KeyPress)
        m_isKeyboardUsed = true;
    else if (event->type() == QEvent::MouseButtonPress)
        m_isKeyboardUsed = false;
    return false;
}

} // namespace Plugin::FirmwareUpdater::Internal::View
