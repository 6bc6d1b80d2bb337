#pragma once

#include "camerapool/icameraenumerationservice.h"

#include <QPointer>
#include <QTreeView>

class QMenu;

namespace Viewer::CameraSelector {

class CCameraSelectorModel;
class CDeviceSelectorService;

/// The tree in which the user selects a camera. It follows the enumeration, keeps the selection
/// while the selected camera is there, and reports it to the selector service.
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

    [[nodiscard]] CCameraSelectorModel *getModel() const;

    /// Selects the layer or camera @p id; nothing when it is not there.
    void selectId(const QString &id);

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    void onEnumerationChanged();
    void createColumnMenu();
    void fitColumn(int column);
    void clearCurrent();

    const QSharedPointer<Plugin::CameraPool::ICameraEnumerationService> m_enumeration;
    const QSharedPointer<CDeviceSelectorService> m_selector;
    CCameraSelectorModel *const m_model;
    QPointer<QMenu> m_contextMenu;
    QMenu *const m_columnMenu;
    bool m_rebuilding = false;
};

} // namespace Viewer::CameraSelector
