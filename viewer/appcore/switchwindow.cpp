#include "switchwindow.h"

#include "modaldialogwatcher.h"
#include "switchmenu.h"

#include "viewer/camera/icamerakind.h"

#include <QApplication>
#include <QHash>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWindow>

namespace Viewer::AppCore {

using Camera::CCameraSwitch;

static constexpr int ID_ROLE = Qt::UserRole;

CSwitchWindow::CSwitchWindow(Camera::ICameraKind &kind, const QString &title,
                             const CModalDialogWatcher &dialogs, QWidget *parent)
    : QWidget(parent, Qt::Tool)
    , m_kind(kind)
    , m_tree(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("switchWindow"));
    setWindowTitle(title);
    resize(300, 420);
    m_tree->setObjectName(QStringLiteral("switchTree"));
    m_tree->setAccessibleName(title);
    m_tree->header()->hide();
    m_tree->setUniformRowHeights(true);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_tree);
    m_fillTimer.setSingleShot(true);
    m_fillTimer.setInterval(0);
    connect(&m_fillTimer, &QTimer::timeout, this, &CSwitchWindow::fill);
    connect(m_tree, &QTreeWidget::itemChanged, this, &CSwitchWindow::onItemChanged);
    const auto fillLater = [this] { m_fillTimer.start(); };
    connect(&m_kind, &Camera::ICameraKind::camerasChanged, this, fillLater);
    connect(&m_kind, &Camera::ICameraKind::cameraStateChanged, this, fillLater);
    connect(&dialogs, &CModalDialogWatcher::modalWindowShown, this, &CSwitchWindow::follow);
    connect(&dialogs, &CModalDialogWatcher::modalWindowHidden, this, [this] {
        const QWidget *const dialog = QApplication::activeModalWidget();
        follow(dialog ? dialog : parentWidget());
    });
}

CSwitchWindow::~CSwitchWindow() = default;

void CSwitchWindow::follow(const QWidget *dialog)
{
    // A modal dialog blocks every window but those that belong to it.
    if (windowHandle() && dialog->windowHandle())
        windowHandle()->setTransientParent(dialog->windowHandle());
}

void CSwitchWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    const QWidget *const dialog = QApplication::activeModalWidget();
    if (dialog)
        follow(dialog);
    fill();
}

void CSwitchWindow::fill()
{
    if (!isVisible())
        return;
    m_fillTimer.stop();
    const QSignalBlocker blocker(m_tree);
    const QVector<CCameraSwitch> switches = m_kind.getSwitches();
    QHash<QString, QTreeWidgetItem *> items;
    for (QTreeWidgetItemIterator place(m_tree); *place; ++place) {
        const QString id = (*place)->data(0, ID_ROLE).toString();
        if (!id.isEmpty())
            items.insert(id, *place);
    }
    // As long as they are the same, each stays where the user looks at it.
    bool isSame = items.size() == switches.size();
    for (const CCameraSwitch &entry : switches)
        isSame = isSame && items.contains(entry.id);
    if (!isSame) {
        m_tree->clear();
        items.clear();
    }
    QString group;
    QTreeWidgetItem *parent = m_tree->invisibleRootItem();
    for (const CCameraSwitch &entry : switches) {
        QTreeWidgetItem *&item = items[entry.id];
        if (!item) {
            if (entry.group != group) {
                parent = entry.group.isEmpty() ? m_tree->invisibleRootItem()
                                               : new QTreeWidgetItem(m_tree, {entry.group});
                parent->setExpanded(true);
                group = entry.group;
            }
            item = new QTreeWidgetItem(parent, {CSwitchMenu::withoutMnemonic(entry.text)});
            item->setData(0, ID_ROLE, entry.id);
        }
        item->setCheckState(0, entry.isOn ? Qt::Checked : Qt::Unchecked);
        item->setDisabled(!entry.isEnabled);
    }
    m_tree->setRootIsDecorated(m_tree->topLevelItemCount() < items.size());
}

void CSwitchWindow::onItemChanged(QTreeWidgetItem *item)
{
    const QString id = item->data(0, ID_ROLE).toString();
    const bool isOn = item->checkState(0) == Qt::Checked;
    const QVector<CCameraSwitch> switches = m_kind.getSwitches();
    for (const CCameraSwitch &entry : switches) {
        if (entry.id == id && entry.isOn != isOn)
            CSwitchMenu::set(entry, isOn);
    }
    // What it cannot be switched to, and what else has changed with it.
    m_fillTimer.start();
}

} // namespace Viewer::AppCore
