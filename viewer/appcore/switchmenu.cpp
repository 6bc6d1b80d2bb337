#include "switchmenu.h"

#include "viewer/camera/icamerakind.h"

#include <QMenu>
#include <QSettings>

namespace Viewer::AppCore {

using Camera::CCameraSwitch;

static void addSwitch(const CCameraSwitch &entry, QMenu &menu)
{
    QAction *const action = menu.addAction(entry.text);
    action->setObjectName(entry.id);
    action->setCheckable(true);
    action->setChecked(entry.isOn);
    action->setEnabled(entry.isEnabled);
    QObject::connect(action, &QAction::triggered, &menu, [entry](bool on) {
        if (entry.isRemembered)
            QSettings().setValue(entry.id, on);
        entry.set(on);
    });
}

CSwitchMenu::CSwitchMenu(Camera::ICameraKind &kind, QMenu *menu)
    : m_kind(kind)
    , m_menu(menu)
{
    connect(m_menu, &QMenu::aboutToShow, this, &CSwitchMenu::fill);
    // Filled already now: a menu without entries would not open by keyboard.
    fill();
}

CSwitchMenu::~CSwitchMenu() = default;

void CSwitchMenu::add(Camera::ICameraKind &kind, QMenu &menu)
{
    QString group;
    QMenu *target = &menu;
    const QVector<CCameraSwitch> switches = kind.getSwitches();
    for (const CCameraSwitch &entry : switches) {
        if (entry.group.isEmpty())
            target = &menu;
        else if (entry.group != group)
            target
                = menu.addMenu(QString(entry.group).replace(QLatin1Char('&'), QLatin1String("&&")));
        group = entry.group;
        addSwitch(entry, *target);
    }
}

void CSwitchMenu::fill()
{
    m_menu->clear();
    qDeleteAll(m_menu->findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly));
    add(m_kind, *m_menu);
}

} // namespace Viewer::AppCore
