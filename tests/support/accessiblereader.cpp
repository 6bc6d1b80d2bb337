#include "accessiblereader.h"

#include <QAbstractButton>
#include <QLabel>
#include <QProgressBar>

#include <utility>

static QStringList announcements;

// Qt asks its platform whether a screen reader runs, and hands the events to it; the platform on
// which tests run without a display never has one. These take the place of Qt's own functions, also
// for its widgets.
bool QAccessible::isActive()
{
    return true;
}

void QAccessible::updateAccessibility(QAccessibleEvent *event)
{
    QAccessibleInterface *const accessible = event->accessibleInterface();
    if (event->type() == TableModelChanged && accessible->tableInterface())
        accessible->tableInterface()->modelChange(
            static_cast<QAccessibleTableModelChangeEvent *>(event));
    static const QHash<int, QString> kinds{{Focus, "focus "},
                                           {StateChanged, "state "},
                                           {NameChanged, "name "},
                                           {DescriptionChanged, "description "},
                                           {ValueChanged, "value "}};
    if (kinds.contains(event->type()))
        announcements.append(kinds.value(event->type()) + TestSupport::describe(accessible));
}

namespace TestSupport {

QString describe(const QAccessibleInterface *accessible)
{
    if (!accessible)
        return "nothing";
    const QAccessible::State state = accessible->state();
    QString text = accessible->text(QAccessible::Name);
    if (state.checkable)
        text += state.checkStateMixed ? " [-]" : state.checked ? " [x]" : " [ ]";
    if (state.disabled)
        text += " off";
    const QString description = accessible->text(QAccessible::Description);
    return description.isEmpty() ? text : text + " (" + description + ')';
}

QStringList readRows(QObject *tree)
{
    QStringList rows;
    auto *const table = QAccessible::queryAccessibleInterface(tree)->tableInterface();
    for (int row = 0; row < table->rowCount(); ++row)
        rows.append(describe(table->cellAt(row, 0)));
    return rows;
}

QList<QWidget *> findNameless(const QWidget &window)
{
    QList<QWidget *> widgets = window.findChildren<QWidget *>();
    const auto isNamed = [&window](QWidget *widget) {
        const auto *const label = qobject_cast<QLabel *>(widget);
        const bool isControl = widget->focusPolicy() != Qt::NoFocus
            || qobject_cast<QAbstractButton *>(widget) || qobject_cast<QProgressBar *>(widget)
            || (label && !label->pixmap(Qt::ReturnByValue).isNull());
        return !isControl || !widget->isVisible() || widget->window() != &window
            || !QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).isEmpty();
    };
    widgets.erase(std::remove_if(widgets.begin(), widgets.end(), isNamed), widgets.end());
    return widgets;
}

QStringList takeAnnouncements()
{
    return std::exchange(announcements, {});
}

} // namespace TestSupport
