#include "cameraselectorview.h"

#include "cameraselectormodel.h"
#include "deviceselectorservice.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>

#include <algorithm>

namespace Viewer::CameraSelector {

static constexpr int COLUMN_SPACE = 16;

CCameraSelectorView::CCameraSelectorView(
    const QSharedPointer<Plugin::CameraPool::ICameraEnumerationService> &enumeration,
    const QSharedPointer<CDeviceSelectorService> &selector, QWidget *parent)
    : QTreeView(parent)
    , m_enumeration(enumeration)
    , m_selector(selector)
    , m_model(new CCameraSelectorModel(this))
    , m_columnMenu(new QMenu(this))
{
    setObjectName(QStringLiteral("cameraSelectorView"));
    setAccessibleName(tr("Cameras"));
    setModel(m_model);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setExpandsOnDoubleClick(false);
    setSelectionMode(QAbstractItemView::SingleSelection);
    header()->setStretchLastSection(true);
    header()->setSectionsMovable(false);
    createColumnMenu();
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

void CCameraSelectorView::selectId(const QString &id)
{
    const QModelIndex index = m_model->findId(id);
    if (index.isValid())
        setCurrentIndex(index);
    else
        clearCurrent();
}

void CCameraSelectorView::onEnumerationChanged()
{
    const auto selected = m_selector->getSelection();
    m_rebuilding = true;
    m_model->setTransportLayers(m_enumeration->getTransportLayerInfoVector());
    expandAll();
    for (int column = 0; column < CCameraSelectorModel::ColumnCount; ++column)
        fitColumn(column);
    const QModelIndex index = selected ? m_model->findId(selected->getId()) : QModelIndex();
    if (index.isValid())
        setCurrentIndex(index);
    m_rebuilding = false;
    // Once, when everything is in place: the same camera in a new state, or null for one that has
    // disappeared.
    m_selector->setSelection(m_model->getInfo(index));
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
    if (!m_rebuilding)
        m_selector->setSelection(m_model->getInfo(current));
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
    clearSelection();
    setCurrentIndex({});
}

} // namespace Viewer::CameraSelector
