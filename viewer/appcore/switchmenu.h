#pragma once

#include <QObject>

class QMenu;

namespace Viewer::Camera {
class ICameraKind;
struct CCameraSwitch;
} // namespace Viewer::Camera

namespace Viewer::AppCore {

class CModalDialogWatcher;
class CSwitchWindow;

/// A menu with the switches of one kind of cameras, such as unplugging a simulated one.
class CSwitchMenu : public QObject
{
    Q_OBJECT

public:
    /// Fills @p menu each time it opens. All arguments are borrowed and outlive this object.
    CSwitchMenu(Camera::ICameraKind &kind, const CModalDialogWatcher &dialogs, QMenu *menu);
    ~CSwitchMenu() override;

    /// Adds the switches of @p kind to @p menu, in which they stay.
    static void add(Camera::ICameraKind &kind, QMenu &menu);

    /// What the user does with @p entry.
    static void set(const Camera::CCameraSwitch &entry, bool on);

    /// The text of a menu entry as it is shown elsewhere.
    [[nodiscard]] static QString withoutMnemonic(QString text);

private:
    void fill();
    void showWindow(bool on);

    Camera::ICameraKind &m_kind;
    const CModalDialogWatcher &m_dialogs;
    QMenu *const m_menu;
    CSwitchWindow *m_window = nullptr; ///< the main window's child; made when it is wanted
};

} // namespace Viewer::AppCore
