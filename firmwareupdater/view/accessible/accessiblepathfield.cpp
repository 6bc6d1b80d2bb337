#include "accessiblepathfield.h"

#include <QLineEdit>

namespace Plugin::FirmwareUpdater::Internal::View {

CAccessiblePathField::CAccessiblePathField(QLineEdit *field)
    : QAccessibleWidget(field, QAccessible::EditableText)
{
}

QAccessible::State CAccessiblePathField::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = true;
    state.selectable = true;
    state.selected = getField()->hasSelectedText();
    state.hasPopup = true;
    return state;
}

QString CAccessiblePathField::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? getField()->text() : QAccessibleWidget::text(kind);
}

void CAccessiblePathField::setText(QAccessible::Text kind, const QString &text)
{
    if (kind == QAccessible::Value)
        replaceText(0, characterCount(), text);
    else
        QAccessibleWidget::setText(kind, text);
}

void *CAccessiblePathField::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

void CAccessiblePathField::selection(int selectionIndex, int *startOffset, int *endOffset) const
{
    const bool isSelected = selectionIndex == 0 && getField()->hasSelectedText();
    *startOffset = isSelected ? getField()->selectionStart() : 0;
    *endOffset = isSelected ? getField()->selectionEnd() : 0;
}

int CAccessiblePathField::selectionCount() const
{
    return getField()->hasSelectedText() ? 1 : 0;
}

void CAccessiblePathField::addSelection(int startOffset, int endOffset)
{
    setSelection(0, startOffset, endOffset);
}

void CAccessiblePathField::removeSelection(int selectionIndex)
{
    if (selectionIndex == 0)
        getField()->deselect();
}

void CAccessiblePathField::setSelection(int selectionIndex, int startOffset, int endOffset)
{
    if (selectionIndex == 0)
        select(startOffset, endOffset);
}

int CAccessiblePathField::cursorPosition() const
{
    return getField()->cursorPosition();
}

void CAccessiblePathField::setCursorPosition(int position)
{
    getField()->setCursorPosition(position);
}

QString CAccessiblePathField::text(int startOffset, int endOffset) const
{
    return getField()->text().mid(startOffset, endOffset - startOffset);
}

int CAccessiblePathField::characterCount() const
{
    return getField()->text().size();
}

QRect CAccessiblePathField::characterRect(int offset) const
{
    // How far a long path is scrolled is only known from the place of the cursor, which Qt
    // surrounds with equal room at both sides.
    const QRect cursor = getField()->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const auto getAdvance = [this](int from, int to) {
        return getField()->fontMetrics().horizontalAdvance(text(from, to));
    };
    const int left = cursor.center().x() + getAdvance(0, offset) - getAdvance(0, cursorPosition());
    const QRect rect(left, cursor.top(), getAdvance(offset, offset + 1), cursor.height());
    return {getField()->mapToGlobal(rect.topLeft()), rect.size()};
}

int CAccessiblePathField::offsetAtPoint(const QPoint &point) const
{
    return getField()->cursorPositionAt(getField()->mapFromGlobal(point));
}

void CAccessiblePathField::scrollToSubstring(int startIndex, int endIndex)
{
    setCursorPosition(endIndex);
    setCursorPosition(startIndex);
}

QString CAccessiblePathField::attributes(int offset, int *startOffset, int *endOffset) const
{
    // All of the text looks the same.
    *startOffset = offset;
    *endOffset = offset;
    return {};
}

void CAccessiblePathField::deleteText(int startOffset, int endOffset)
{
    replaceText(startOffset, endOffset, {});
}

void CAccessiblePathField::insertText(int offset, const QString &text)
{
    replaceText(offset, offset, text);
}

void CAccessiblePathField::replaceText(int startOffset, int endOffset, const QString &text)
{
    select(startOffset, endOffset);
    getField()->insert(text);
}

void CAccessiblePathField::select(int startOffset, int endOffset)
{
    // The offsets come from other programs, which may know an older and longer text.
    const int start = qBound(0, startOffset, characterCount());
    getField()->setSelection(start, qBound(start, endOffset, characterCount()) - start);
}

QLineEdit *CAccessiblePathField::getField() const
{
    return static_cast<QLineEdit *>(object());
}

} // namespace Plugin::FirmwareUpdater::Internal::View
