#pragma once

#include <QPoint>
#include <QString>

class QAbstractButton;
class QLineEdit;
class QModelIndex;
class QTreeView;
class QWidget;

namespace Viewer::Demo {

/// Works widgets as a person does: with mouse and keyboard events.
class CInputDriver
{
public:
    static void moveMouse(QWidget *widget, const QPoint &position);
    static void click(QWidget *widget, const QPoint &position);

    /// False, and no click, when the button is missing, hidden or disabled.
    static bool click(QAbstractButton *button);

    /// Replaces the text of @p lineEdit key by key.
    static void type(QLineEdit *lineEdit, const QString &text);

    /// Points at the row of @p index and clicks the check box that appears there, unless it is
    /// ticked already. False when none appears, or when it is disabled.
    static bool tick(QTreeView *view, const QModelIndex &index);
};

} // namespace Viewer::Demo
