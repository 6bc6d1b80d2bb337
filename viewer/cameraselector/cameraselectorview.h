#pragma once

#include "camerapool/icameraenumerationservice.h"

#include <QPointer>
#include <QSet>
#include <QTreeView>

class QMenu;

namespace Viewer::CameraSelector {

class CCameraSelectorModel;
class CCameraSelectorProxy;
class CDeviceSelectorService;

/// The tree in which the user selects a camera. It follows the enumeration, keeps the selection
/// while the selected camera is there and shown, and reports it to the selector service.
class CCameraSelectorView : public QTreeView
{
    Q_OBJECT

public:
    CCameraSelectorView(
        const QSharedPointer<Plugin::CameraPool::ICameraEnumerationService> &enumeration,
        const QSharedPointer<CDeviceSelectorService> &selector, QWidget *parent = nullptr);
    ~CCameraSelectorView() override;

    /// The menu for the right button and the menu key. Borrowed.
    void setContextMenu(QMenu *menu);

    /// All cameras, whatever is shown of them.
    [[nodiscard]] CCameraSelectorModel *getModel() const;

    /// The place of the layer or camera @p id in this tree; invalid: it is not shown.
    [[nodiscard]] QModelIndex findId(const QString &id) const;

    /// Selects the layer or camera @p id, for which the filter gives way; nothing when there is no
    /// such camera.
    void selectId(const QString &id);

    /// Shows the cameras that have @p text in any column, see CCameraSelectorProxy. A selected
    /// camera that is not shown is not selected until it is shown again.
    void setFilter(const QString &text);

    /// How many cameras are shown.
    [[nodiscard]] int getShownCount() const;

signals:
    void filterChanged(const QString &text);

    /// What is shown may have changed.
    void shownChanged();

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    void onEnumerationChanged();
    void onReset();
    void restoreOrder();
    void rememberOrder(int column, Qt::SortOrder order);
    void createColumnMenu();
    void fitColumn(int column);
    void clearCurrent();

    const QSharedPointer<Plugin::CameraPool::ICameraEnumerationService> m_enumeration;
    const QSharedPointer<CDeviceSelectorService> m_selector;
    CCameraSelectorModel *const m_model;
    CCameraSelectorProxy *const m_proxy;
    QPointer<QMenu> m_contextMenu;
    QMenu *const m_columnMenu;
    QString m_selectedId; ///< what the user has selected, shown or not; empty: nothing
    QSet<QString> m_collapsedIds; ///< of layers
    bool m_rebuilding = false;
};

} // namespace Viewer::CameraSelector
