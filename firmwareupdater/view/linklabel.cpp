#include "linklabel.h"

#include <QAbstractTextDocumentLayout>
#include <QFocusEvent>
#include <QScrollArea>
#include <QTextBlock>

namespace Plugin::FirmwareUpdater::Internal::View {

CLinkLabel::CLinkLabel(QWidget *parent)
    : QLabel(parent)
{
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
