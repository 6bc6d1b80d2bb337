#include "modaldialogwatcher.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <algorithm>

namespace Viewer::AppCore {

static const char *const OWN_DIALOG_PROPERTY = "nuvexViewerOwnDialog";

static bool isAnyModalDialogVisible()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.cbegin(), windows.cend(), [](const QWidget *window) {
        return window->isVisible() && window->isModal()
            && !window->property(OWN_DIALOG_PROPERTY).toBool();
    });
}

CModalDialogWatcher::CModalDialogWatcher(QObject *parent)
    : QObject(parent)
{
    m_hideTimer.setSingleShot(true);
    m_hideTimer.setInterval(0);
    connect(&m_hideTimer, &QTimer::timeout, this, &CModalDialogWatcher::updateState);
    qApp->installEventFilter(this);
}

CModalDialogWatcher::~CModalDialogWatcher() = default;

void CModalDialogWatcher::markAsOwn(QWidget *dialog)
{
    dialog->setProperty(OWN_DIALOG_PROPERTY, true);
}

bool CModalDialogWatcher::isDialogVisible() const
{
    return m_visible || isAnyModalDialogVisible();
}

bool CModalDialogWatcher::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
        const auto *const widget = qobject_cast<QWidget *>(watched);
        if (widget && widget->isWindow()) {
            if (event->type() == QEvent::Hide)
                m_hideTimer.start();
            else
                updateState();
            if (widget->isModal() && event->type() == QEvent::Show)
                emit modalWindowShown(widget);
            else if (widget->isModal())
                emit modalWindowHidden();
        }
    }
    return QObject::eventFilter(watched, event);
}

void CModalDialogWatcher::updateState()
{
    const bool visible = isAnyModalDialogVisible();
    if (visible == m_visible)
        return;
    m_visible = visible;
    emit dialogVisibleChanged(visible);
}

} // namespace Viewer::AppCore
