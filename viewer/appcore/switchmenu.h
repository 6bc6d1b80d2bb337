#pragma once

#include <QObject>

class QMenu;

namespace Viewer::Camera {
class ICameraKind;
}

namespace Viewer::AppCore {

/// A menu with the switches of one kind of cameras, such as unplugging a simulated one.
class CSwitchMenu : public QObject
{
    Q_OBJECT

public:
    /// Fills @p menu each time it opens. Both arguments are borrowed and outlive this object.
    CSwitchMenu(Camera::ICameraKind &kind, QMenu *menu);
    ~CSwitchMenu() override;

    /// Adds the switches of @p kind to @p menu, in which they stay.
    static void add(Camera::ICameraKind &kind, QMenu &menu);

private:
    void fill();

    Camera::ICameraKind &m_kind;
    QMenu *const m_menu;
};

} // namespace Viewer::AppCore
