#include "cameraselectorview.h"

#include "cameraselectormodel.h"
#include "cameraselectorproxy.h"
#include "deviceselectorservice.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QSettings>

#include <algorithm>

namespace Viewer::CameraSelector {

static constexpr int COLUMN_SPACE = 16;
static const QLatin1String SORT_COLUMN_KEY("cameraTree/sortColumn"); // -1: the order of the search
static const QLatin1String SORT_DOWN_KEY("cameraTree/sortsDown");

CCameraSelectorView::CCameraSelectorView(
    const QSharedPointer<Plugin::CameraPool::ICameraEnumerationService> &enumeration,
    const QSharedPointer<CDeviceSelectorService> &selector, QWidget *parent)
    : QTreeView(parent)
    , m_enumeration(enumeration)
    , m_selector(selector)
    , m_model(new CCameraSelectorModel(this))
    , m_proxy(new CCameraSelectorProxy(*m_model, this))
    , m_columnMenu(new QMenu(this))
{
    setObjectName(QStringLiteral("cameraSelectorView"));
    setAccessibleName(tr("Cameras"));
    setModel(m_proxy);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setExpandsOnDoubleClick(false);
    setSelectionMode(QAbstractItemView::SingleSelection);
    header()->setStretchLastSection(true);
    header()->setSectionsMovable(false);
    createColumnMenu();
    restoreOrder();
    // Behind the connections of the base class, whose reset comes first.
    connect(m_proxy, &QAbstractItemModel::modelAboutToBeReset, this,
            [this] { m_rebuilding = true; });
    connect(m_proxy, &QAbstractItemModel::modelReset, this, &CCameraSelectorView::onReset);
    const auto rememberCollapsed = [this](const QModelIndex &layer, bool isCollapsed) {
        // A filter shows what it finds and changes nothing for the time after it.
        if (m_rebuilding || !m_proxy->getFilter().isEmpty())
            return;
        const QString id = m_model->getInfo(m_proxy->mapToSource(layer))->getId();
        if (isCollapsed)
            m_collapsedIds.insert(id);
        else
            m_collapsedIds.remove(id);
    };
    connect(this, &QTreeView::collapsed, this,
            [rememberCollapsed](const QModelIndex &layer) { rememberCollapsed(layer, true); });
    connect(this, &QTreeView::expanded, this,
            [rememberCollapsed](const QModelIndex &layer) { rememberCollapsed(layer, false); });
    connect(m_enumeration.data(),
            &Plugin::CameraPool::ICameraEnumerationService::enumerationChanged, this,
            &CCameraSelectorView::onEnumerationChanged);
    onEnumerationChanged();
}

CCameraSelectorView::~CCameraSelectorView() = default;

void CCameraSelectorView::setContextMenu(QMenu *menu)
{
    m_contextMenu = menu;
}

CCameraSelectorModel *CCameraSelectorView::getModel() const
{
    return m_model;
}

QModelIndex CCameraSelectorView::findId(const QString &id) const
{
    return m_proxy->mapFromSource(m_model->findId(id));
}

void CCameraSelectorView::selectId(const QString &id)
{
    if (m_model->findId(id).isValid() && !findId(id).isValid())
        setFilter({});
    const QModelIndex index = findId(id);
    if (index.isValid())
        setCurrentIndex(index);
    else
        clearCurrent();
}

void CCameraSelectorView::setFilter(const QString &text)
{
    if (text == m_proxy->getFilter())
        return;
    m_proxy->setFilter(text);
    emit filterChanged(text);
    emit shownChanged();
}

int CCameraSelectorView::getShownCount() const
{
    return m_proxy->getCameraCount();
}

void CCameraSelectorView::onEnumerationChanged()
{
    m_model->setTransportLayers(m_enumeration->getTransportLayerInfoVector());
    for (int column = 0; column < CCameraSelectorModel::ColumnCount; ++column)
        fitColumn(column);
}

void CCameraSelectorView::onReset()
{
    for (int row = 0; row < m_proxy->rowCount(); ++row) {
        const QModelIndex layer = m_proxy->index(row, 0);
        const QString id = m_model->getInfo(m_proxy->mapToSource(layer))->getId();
        setExpanded(layer, !m_proxy->getFilter().isEmpty() || !m_collapsedIds.contains(id));
    }
    if (!m_model->findId(m_selectedId).isValid())
        m_selectedId.clear();
    const QModelIndex index = findId(m_selectedId);
    if (index.isValid())
        setCurrentIndex(index);
    m_rebuilding = false;
    // Once, when everything is in place: the same camera in a new state, or null for one that has
    // disappeared or is not shown.
    m_selector->setSelection(m_model->getInfo(m_proxy->mapToSource(index)));
    emit shownChanged();
}

void CCameraSelectorView::restoreOrder()
{
    const QSettings settings;
    bool isNumber = false;
    int column = settings.value(SORT_COLUMN_KEY, -1).toInt(&isNumber);
    if (!isNumber || column >= CCameraSelectorModel::ColumnCount)
        column = -1;
    header()->setSortIndicator(qMax(column, -1),
                               settings.value(SORT_DOWN_KEY).toBool() ? Qt::DescendingOrder
                                                                      : Qt::AscendingOrder);
    setSortingEnabled(true);
    connect(header(), &QHeaderView::sortIndicatorChanged, this,
            &CCameraSelectorView::rememberOrder);
}

void CCameraSelectorView::rememberOrder(int column, Qt::SortOrder order)
{
    QSettings settings;
    settings.setValue(SORT_COLUMN_KEY, column);
    settings.setValue(SORT_DOWN_KEY, order == Qt::DescendingOrder);
}

void CCameraSelectorView::createColumnMenu()
{
    m_columnMenu->setObjectName(QStringLiteral("cameraSelectorColumnMenu"));
    for (int column = 0; column < CCameraSelectorModel::ColumnCount; ++column) {
        // Without its names and layers the tree would be none.
        if (column == CCameraSelectorModel::NameColumn)
            continue;
        QAction *const action = m_columnMenu->addAction(
            m_model->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
        const bool isShown = column != CCameraSelectorModel::IpAddressColumn
            && column != CCameraSelectorModel::MacAddressColumn;
        action->setCheckable(true);
        action->setChecked(isShown);
        setColumnHidden(column, !isShown);
        connect(action, &QAction::toggled, this, [this, column](bool shown) {
            setColumnHidden(column, !shown);
            fitColumn(column);
        });
    }
    m_columnMenu->addSeparator();
    m_columnMenu->addAction(tr("&Order as found"), this,
                            [this] { header()->setSortIndicator(-1, Qt::AscendingOrder); });
    header()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header(), &QWidget::customContextMenuRequested, this, [this](const QPoint &position) {
        m_columnMenu->popup(header()->viewport()->mapToGlobal(position));
    });
}

void CCameraSelectorView::fitColumn(int column)
{
    if (isColumnHidden(column))
        return;
    const int titleWidth = header()->sectionSizeHint(column);
    // The last column takes what is left, but never less than it has been given. A long reason
    // is elided there rather than scrolled to; the tool tip has all of it.
    const bool isLast = column == CCameraSelectorModel::StateColumn;
    setColumnWidth(
        column, isLast ? titleWidth : qMax(sizeHintForColumn(column), titleWidth) + COLUMN_SPACE);
}

void CCameraSelectorView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTreeView::currentChanged(current, previous);
    if (m_rebuilding)
        return;
    const auto info = m_model->getInfo(m_proxy->mapToSource(current));
    m_selectedId = info ? info->getId() : QString();
    m_selector->setSelection(info);
}

void CCameraSelectorView::contextMenuEvent(QContextMenuEvent *event)
{
    if (!m_contextMenu)
        return;
    QPoint position = event->globalPos();
    if (event->reason() != QContextMenuEvent::Mouse && currentIndex().isValid())
        position = viewport()->mapToGlobal(visualRect(currentIndex()).center());
    // An empty menu would show as a tiny frame.
    const QList<QAction *> actions = m_contextMenu->actions();
    const bool showsSomething
        = std::any_of(actions.cbegin(), actions.cend(), [](const QAction *action) {
              return action->isVisible() && !action->isSeparator();
          });
    if (showsSomething)
        m_contextMenu->popup(position);
    event->accept();
}

void CCameraSelectorView::mousePressEvent(QMouseEvent *event)
{
    QTreeView::mousePressEvent(event);
    if (!indexAt(event->pos()).isValid())
        clearCurrent();
}

void CCameraSelectorView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && currentIndex().isValid())
        clearCurrent();
    else
        QTreeView::keyPressEvent(event);
}

void CCameraSelectorView::clearCurrent()
{
    // Also one that is not shown.
    m_selectedId.clear();
    clearSelection();
    setCurrentIndex({});
}

} // namespace Viewer::CameraSelector
