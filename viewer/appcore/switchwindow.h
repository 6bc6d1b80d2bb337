#pragma once

#include <QTimer>
#include <QWidget>

class QTreeWidget;
class QTreeWidgetItem;

namespace Viewer::Camera {
class ICameraKind;
struct CCameraSwitch;
} // namespace Viewer::Camera

namespace Viewer::AppCore {

class CModalDialogWatcher;

/// The switches of one kind of cameras in a window that stays open and can be used beside every
/// modal dialog, so that a camera can be unplugged while a wizard works on it.
class CSwitchWindow : public QWidget
{
    Q_OBJECT

public:
    /// All but @p parent are borrowed and outlive this object.
    CSwitchWindow(Camera::ICameraKind &kind, const QString &title,
                  const CModalDialogWatcher &dialogs, QWidget *parent);
    ~CSwitchWindow() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void fill();
    void onItemChanged(QTreeWidgetItem *item);
    void follow(const QWidget *dialog);

    Camera::ICameraKind &m_kind;
    QTreeWidget *const m_tree;
    QTimer m_fillTimer; ///< many cameras may change together
};

} // namespace Viewer::AppCore
