#pragma once

#include <QLabel>

namespace Plugin::FirmwareUpdater::Internal::View {

/// A text in which Tab goes from link to link, and which tells where the link under the mouse
/// leads, as its tool tip and in the status bar of the page's parent. Qt's own label takes the
/// focus as a whole first, and then nothing shows where it is.
class CLinkLabel : public QLabel
{
    Q_OBJECT

public:
    explicit CLinkLabel(QWidget *parent = nullptr);

    /// Answers Qt::ImCursorRectangle with the place of the link that has the focus: a scroll area
    /// asks for it to bring what has the focus into view.
    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

    /// Tells @p target in place of where the links lead; empty: where they lead.
    void setTarget(const QString &target);

protected:
    void focusInEvent(QFocusEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void showTarget(const QString &link);

    QString m_target;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
