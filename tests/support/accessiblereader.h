#pragma once

#include <QAccessible>
#include <QStringList>
#include <QWidget>

/// Reads windows as a screen reader does. For Qt one runs in each program that this is linked to.
namespace TestSupport {

/// Name, state and description: "Line 1 [x] (VX-1400M, GigE)", with [x], [-] and [ ] for ticked,
/// partly ticked and not ticked, and "off" for what is not available.
[[nodiscard]] QString describe(const QAccessibleInterface *accessible);

/// The first cell of each row of a tree.
[[nodiscard]] QStringList readRows(QObject *tree);

/// The visible controls and pictures of @p window that have no name.
[[nodiscard]] QList<QWidget *> findNameless(const QWidget &window);

/// What has been announced since this was last asked, each as its kind and what describe() says.
[[nodiscard]] QStringList takeAnnouncements();

} // namespace TestSupport
