#include "customtreeview.h"

#include "inputmonitor.h"
#include "view/accessible/accessibletreeview.h"

#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

namespace Plugin::FirmwareUpdater::Internal::View {

CCustomTreeView::CCustomTreeView(QWidget *parent)
    : QTreeView(parent)
    , m_inputMonitor(CInputMonitor::get())
{
    CAccessibleTreeView::installFactory();
}

void CCustomTreeView::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                  const QVector<int> &roles)
{
    if (QAccessible::isActive()) {
        if (const CAccessibleTreeView *const accessible = CAccessibleTreeView::find(this))
            accessible->announceRow(topLeft);
    }
    if (topLeft == bottomRight && !isPersistentEditorOpen(topLeft)) {
        updateRow(topLeft);
        return;
    }
    QTreeView::dataChanged(topLeft, bottomRight, roles);
}

void CCustomTreeView::updateRow(const QModelIndex &index)
{
    // A tick spreads over the rows of a group.
    if (index.parent().isValid()) {
        viewport()->update();
        return;
    }
    // Most rows of a long list are not on the screen, and to ask where they are takes a walk there.
    const QModelIndex first = indexAt(QPoint(0, 0));
    const QModelIndex last = indexAt(QPoint(0, viewport()->height() - 1));
    const bool isAbove = !first.parent().isValid() && index.row() < first.row();
    const bool isBelow = last.isValid() && !last.parent().isValid() && index.row() > last.row();
    if (isAbove || isBelow)
        return;
    const QRect cell = visualRect(index.siblingAtColumn(0));
    viewport()->update(0, cell.top(), viewport()->width(), cell.height());
}

bool CCustomTreeView::toggleRow(const QModelIndex &index)
{
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    // The box of a row stands in column 0, whichever cell is meant.
    return edit(index.siblingAtColumn(0), AnyKeyPressed, &space);
}

void CCustomTreeView::setVisible(bool visible)
{
    QTreeView::setVisible(visible);
    if (visible)
        updateScrollBarGeometry();
}

void CCustomTreeView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    if (hint != QAbstractItemDelegate::EditNextItem)
        QTreeView::closeEditor(editor, hint);
}

void CCustomTreeView::showEvent(QShowEvent *event)
{
    QTreeView::showEvent(event);
    // Whoever came to this page by keyboard sees at once which row the keys work on.
    if (!event->spontaneous())
        setKeyboardUsed(m_inputMonitor && m_inputMonitor->isKeyboardUsed());
}

void CCustomTreeView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    updateScrollBarGeometry();
}

void CCustomTreeView::drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    QTreeView::drawRow(painter, option, index);
    if (!m_isKeyboardUsed || !hasFocus()
        || currentIndex().siblingAtColumn(0) != index.siblingAtColumn(0))
        return;
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(option);
    focus.state |= QStyle::State_KeyboardFocusChange;
    focus.backgroundColor = option.palette.color(QPalette::Base);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, this);
}

bool CCustomTreeView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::MouseMove || event->type() == QEvent::MouseButtonPress)
        setKeyboardUsed(false);
    return QTreeView::viewportEvent(event);
}

void CCustomTreeView::focusInEvent(QFocusEvent *event)
{
    QTreeView::focusInEvent(event);
    // A dialog that is shown tells its first control so before the focus has really come.
    if (!hasFocus())
        return;
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        setKeyboardUsed(true);
    // Later, because Qt announces now that the tree as a whole has the focus.
    if (QAccessible::isActive()) {
        QMetaObject::invokeMethod(this, &CCustomTreeView::announceCurrentCell,
                                  Qt::QueuedConnection);
    }
}

void CCustomTreeView::keyPressEvent(QKeyEvent *event)
{
    setKeyboardUsed(true);
    if (event->key() == Qt::Key_Space && toggleRow(currentIndex())) {
        event->accept();
        return;
    }
    QTreeView::keyPressEvent(event);
}

void CCustomTreeView::updateGeometries()
{
    QTreeView::updateGeometries();
    // The columns are as wide as the tree, also where the vertical scroll bar hides the end of the
    // last one. That end holds nothing to scroll to.
    horizontalScrollBar()->setRange(0, 0);
    updateScrollBarGeometry();
}

void CCustomTreeView::updateScrollBarGeometry()
{
    if (QScrollBar *scrollBar = verticalScrollBar()) {
        const QRect headerRect = header()->geometry();
        QRect rect = scrollBar->geometry();
        rect.setTop(headerRect.bottom() - headerRect.top() + 15);
        scrollBar->setGeometry(rect);
    }
}

void CCustomTreeView::setKeyboardUsed(bool used)
{
    if (m_isKeyboardUsed != used) {
        m_isKeyboardUsed = used;
        viewport()->update();
    }
}

void CCustomTreeView::announceCurrentCell()
{
    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(this);
    if (QAccessibleInterface *const cell = accessible ? accessible->focusChild() : nullptr) {
        QAccessibleEvent event(cell, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace Plugin::FirmwareUpdater::Internal::View
