#include "inputmonitor.h"

#include <QCoreApplication>
#include <QEvent>

namespace Plugin::FirmwareUpdater::Internal::View {

CInputMonitor::CInputMonitor(QObject *parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
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
