#pragma once

#include <QPointer>
#include <QTreeView>

namespace Plugin::FirmwareUpdater::Internal::View {

class CInputMonitor;

/// The camera tree of the wizard's dialogs. Its vertical scroll bar begins below the header, and
/// its editors stay open when they write their value.
class CCustomTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit CCustomTreeView(QWidget *parent = nullptr);

    /// Announced changes never alter a row's height, which follows from the kind of row alone; so a
    /// tick that announces every row of a long tree costs one repaint instead of a search per row,
    /// and a row of a list that changes alone is repainted alone.
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles = {}) override;

    /// Ticks or unticks the row of @p index as Space does with the current one. False when the row
    /// has no check box.
    bool toggleRow(const QModelIndex &index);

public slots:
    void setVisible(bool visible) override;

protected slots:
    /// Ignores the hint EditNextItem, which a check box editor sends with each value that it
    /// writes: it stays open.
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;
    bool viewportEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void updateGeometries() override;

private:
    void updateRow(const QModelIndex &index);
    void updateScrollBarGeometry();
    void setKeyboardUsed(bool used);
    void announceCurrentCell();

    const QPointer<const CInputMonitor> m_inputMonitor;

    /// Whether the current row was reached by keyboard and so shows a focus frame.
    bool m_isKeyboardUsed = false;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
