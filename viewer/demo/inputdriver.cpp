#include "inputdriver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTreeView>

namespace Viewer::Demo {

static void sendMouse(QWidget *widget, QEvent::Type type, const QPoint &position,
                      Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, position, widget->mapToGlobal(position), button, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

static void sendKey(QWidget *widget, int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(widget, &release);
}

void CInputDriver::moveMouse(QWidget *widget, const QPoint &position)
{
    sendMouse(widget, QEvent::MouseMove, position, Qt::NoButton, Qt::NoButton);
}

void CInputDriver::click(QWidget *widget, const QPoint &position)
{
    sendMouse(widget, QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton);
    sendMouse(widget, QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::NoButton);
}

bool CInputDriver::click(QAbstractButton *button)
{
    if (!button || !button->isVisible() || !button->isEnabled())
        return false;
    click(button, button->rect().center());
    return true;
}

void CInputDriver::type(QLineEdit *lineEdit, const QString &text)
{
    lineEdit->setFocus();
    sendKey(lineEdit, Qt::Key_A, Qt::ControlModifier, {});
    for (const QChar character : text)
        sendKey(lineEdit, Qt::Key_unknown, Qt::NoModifier, QString(character));
}

bool CInputDriver::tick(QTreeView *view, const QModelIndex &index)
{
    view->scrollTo(index);
    const QPoint center = view->visualRect(index).center();
    moveMouse(view->viewport(), center);
    const QList<QCheckBox *> boxes = view->viewport()->findChildren<QCheckBox *>();
    for (QCheckBox *const box : boxes) {
        const QRect area(box->mapTo(view->viewport(), QPoint()), box->size());
        if (!box->isVisible() || !box->isEnabled() || !area.contains(center))
            continue;
        // A model's groups under other transport layers are ticked together with the first.
        if (box->isChecked())
            return true;
        click(box, QPoint(box->height() / 2, box->height() / 2));
        return box->isChecked();
    }
    return false;
}

} // namespace Viewer::Demo
