#pragma once

#include <QObject>
#include <QTimer>

class QWidget;

namespace Viewer::AppCore {

/// Knows whether a modal dialog of a plug-in is on the screen.
class CModalDialogWatcher : public QObject
{
    Q_OBJECT

public:
    /// Watches all windows of the application. Create it after the QApplication.
    explicit CModalDialogWatcher(QObject *parent = nullptr);
    ~CModalDialogWatcher() override;

    /// Makes @p dialog count as one of the viewer's own, which is not watched.
    static void markAsOwn(QWidget *dialog);

    /// True from the moment a modal dialog is shown until the event loop finds none: a wizard that
    /// hides one page to show the next counts as open throughout.
    [[nodiscard]] bool isDialogVisible() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void dialogVisibleChanged(bool visible);

    /// Any modal window, the viewer's own ones too: it is about to block the others, or has ceased
    /// to.
    void modalWindowShown(const QWidget *window);
    void modalWindowHidden();

private:
    void updateState();

    QTimer m_hideTimer;
    bool m_visible = false;
};

} // namespace Viewer::AppCore
