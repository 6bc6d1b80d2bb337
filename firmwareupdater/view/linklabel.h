#pragma once

#include <QLabel>

namespace Plugin::FirmwareUpdater::Internal::View {

/// A text in which Tab goes from link to link. Qt's own label takes the focus as a whole first, and
/// then nothing shows where it is.
class CLinkLabel : public QLabel
{
    Q_OBJECT

public:
    explicit CLinkLabel(QWidget *parent = nullptr);

    /// Answers Qt::ImCursorRectangle with the place of the link that has the focus: a scroll area
    /// asks for it to bring what has the focus into view.
    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

protected:
    void focusInEvent(QFocusEvent *event) override;
    bool focusNextPrevChild(bool next) override;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
