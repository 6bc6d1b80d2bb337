#pragma once

#include <QPainter>
#include <QStyleOptionViewItem>
#include <QWidget>

namespace Plugin::FirmwareUpdater::Internal::View {

/// Prepares a widget that is never shown but painted into cells: its font, and a palette with the
/// colours of hovered and selected rows in the roles that getBackgroundRole() names.
void setUpCellWidget(QWidget *widget);

/// The palette role in which setUpCellWidget() keeps the background of a cell in this state.
[[nodiscard]] QPalette::ColorRole getBackgroundRole(QStyle::State state);

/// Renders @p widget and its children, from its top left corner and @p size large, at @p position
/// of the painter's coordinates. A painter that only moves its origin is followed, one that scales
/// or rotates is not. The painter is ended for that and begun again with its state restored, but
/// for what it had saved.
void renderCellWidget(QPainter *painter, QWidget *widget, const QPoint &position,
                      const QSize &size);

/// The line at the right edge of a cell that another column follows.
void drawColumnSeparator(QPainter *painter, const QRect &cell);

/// The given edges of the frame around a row that is hovered and selected.
void drawRowFrame(QPainter *painter, const QRect &cell, Qt::Edges edges);

} // namespace Plugin::FirmwareUpdater::Internal::View
