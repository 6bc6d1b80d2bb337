#include "linklabel.h"

#include "core/richtext.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QScrollArea>
#include <QStatusTipEvent>
#include <QTextBlock>

namespace Plugin::FirmwareUpdater::Internal::View {

CLinkLabel::CLinkLabel(QWidget *parent)
    : QLabel(parent)
{
    connect(this, &QLabel::linkHovered, this, &CLinkLabel::showTarget);
}

void CLinkLabel::setTarget(const QString &target)
{
    m_target = target;
}

void CLinkLabel::showTarget(const QString &link)
{
    const QString target = link.isEmpty() || m_target.isEmpty() ? link : m_target;
    setToolTip(Core::Text::toToolTip(target));
    // The pages have no status bar, and Qt asks nobody beyond a window for one.
    if (QWidget *const parent = window()->parentWidget()) {
        QStatusTipEvent event(target);
        QCoreApplication::sendEvent(parent, &event);
    }
}

QVariant CLinkLabel::inputMethodQuery(Qt::InputMethodQuery query) const
{
    const auto *const document = findChild<QTextDocument *>();
    if (query != Qt::ImCursorRectangle || !document || !hasSelectedText())
        return QLabel::inputMethodQuery(query);
    // A link with the focus is selected.
    const QTextBlock block = document->findBlock(selectionStart());
    const QTextLine line = block.layout()->lineForTextPosition(selectionStart() - block.position());
    const QPointF corner = document->documentLayout()->blockBoundingRect(block).topLeft();
    return line.naturalTextRect().translated(corner);
}

void CLinkLabel::focusInEvent(QFocusEvent *event)
{
    QLabel::focusInEvent(event);
    const bool isForward = event->reason() == Qt::TabFocusReason;
    if (isForward || event->reason() == Qt::BacktabFocusReason) {
        // What the mouse has selected is no place to start from.
        setSelection(0, 0);
        focusNextPrevChild(isForward);
    }
}

bool CLinkLabel::focusNextPrevChild(bool next)
{
    const bool hasMoved = QLabel::focusNextPrevChild(next);
    for (QWidget *parent = parentWidget(); hasFocus() && parent; parent = parent->parentWidget())
        if (auto *const area = qobject_cast<QScrollArea *>(parent))
            area->ensureWidgetVisible(this);
    return hasMoved;
}

} // namespace Plugin::FirmwareUpdater::Internal::View
