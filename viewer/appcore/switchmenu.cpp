#include "switchmenu.h"

#include "switchwindow.h"

#include "viewer/camera/icamerakind.h"

#include <QMenu>
#include <QRegularExpression>
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
    QObject::connect(action, &QAction::triggered, &menu,
                     [entry](bool on) { CSwitchMenu::set(entry, on); });
}

CSwitchMenu::CSwitchMenu(Camera::ICameraKind &kind, const CModalDialogWatcher &dialogs, QMenu *menu)
    : m_kind(kind)
    , m_dialogs(dialogs)
    , m_menu(menu)
{
    connect(m_menu, &QMenu::aboutToShow, this, &CSwitchMenu::fill);
    // Filled already now: a menu without entries would not open by keyboard.
    fill();
}

CSwitchMenu::~CSwitchMenu()
{
    delete m_window;
}

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
    QAction *const windowAction = m_menu->addAction(tr("Keep open in a &window"));
    windowAction->setObjectName(QStringLiteral("switchWindowAction"));
    windowAction->setCheckable(true);
    windowAction->setChecked(m_window && m_window->isVisible());
    connect(windowAction, &QAction::triggered, this, &CSwitchMenu::showWindow);
    m_menu->addSeparator();
    add(m_kind, *m_menu);
}

void CSwitchMenu::showWindow(bool on)
{
    if (!m_window)
        m_window = new CSwitchWindow(m_kind, withoutMnemonic(m_menu->title()), m_dialogs,
                                     m_menu->parentWidget());
    m_window->setVisible(on);
}

void CSwitchMenu::set(const CCameraSwitch &entry, bool on)
{
    if (entry.isRemembered)
        QSettings().setValue(entry.id, on);
    entry.set(on);
}

QString CSwitchMenu::withoutMnemonic(QString text)
{
    // Qt drops the "&" of a mnemonic from a button's text, but not the parentheses and the letter
    // that stand behind a text whose script has no letters to underline.
    static const QRegularExpression mnemonic(QStringLiteral("\\(&.\\)|&|\\.\\.\\.$"));
    return text.remove(mnemonic);
}

} // namespace Viewer::AppCore
