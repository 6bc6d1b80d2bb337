#pragma once

#include <QAccessibleWidget>

class QLineEdit;

namespace Plugin::FirmwareUpdater::Internal::View {

/// The field of step 2 as screen readers see it.
///
/// Qt's own gives a text that assistive technology enters to QLineEdit::setText(), like a text that
/// the program shows, so that the page would not learn of it. Here it is typed.
class CAccessiblePathField final : public QAccessibleWidget,
                                   public QAccessibleTextInterface,
                                   public QAccessibleEditableTextInterface
{
public:
    explicit CAccessiblePathField(QLineEdit *field);

    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    // Offsets are numbers of characters; all rectangles and points are on the screen.
    void selection(int selectionIndex, int *startOffset, int *endOffset) const override;
    int selectionCount() const override;
    void addSelection(int startOffset, int endOffset) override;
    void removeSelection(int selectionIndex) override;
    void setSelection(int selectionIndex, int startOffset, int endOffset) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int startOffset, int endOffset) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int startIndex, int endIndex) override;
    QString attributes(int offset, int *startOffset, int *endOffset) const override;

    void deleteText(int startOffset, int endOffset) override;
    void insertText(int offset, const QString &text) override;
    void replaceText(int startOffset, int endOffset, const QString &text) override;

private:
    [[nodiscard]] QLineEdit *getField() const;
    void select(int startOffset, int endOffset);
};

} // namespace Plugin::FirmwareUpdater::Internal::View
