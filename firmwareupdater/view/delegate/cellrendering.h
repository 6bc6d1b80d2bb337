#pragma once

#include <QPainter>
#include <QStyleOptionViewItem>
#include <QWidget>

namespace Plugin::FirmwareUpdater::Internal::View {

/// Gives @p widget the size of texts in cells.
void setCellFont(QWidget *widget);

/// Prepares a widget that is never shown but painted into cells: its font, and a palette with the
/// colours of hovered and selected rows in the roles that getBackgroundRole() names.
void setUpCellWidget(QWidget *widget);

/// The palette role in which setUpCellWidget() keeps the background of a cell in this state.
[[nodiscard]] QPalette::ColorRole getBackgroundRole(QStyle::State state);

/// Draws @p widget and its children, from its top left corner and @p size large, at @p position.
/// The picture is the same in a view and on an image, sharp at each device pixel ratio; the painter
/// keeps its state.
void renderCellWidget(QPainter *painter, QWidget *widget, const QPoint &position,
                      const QSize &size);

/// The line at the right edge of a cell that another column follows.
void drawColumnSeparator(QPainter *painter, const QRect &cell);

/// The given edges of the frame around a row that is hovered and selected.
void drawRowFrame(QPainter *painter, const QRect &cell, Qt::Edges edges);

} // namespace Plugin::FirmwareUpdater::Internal::View
