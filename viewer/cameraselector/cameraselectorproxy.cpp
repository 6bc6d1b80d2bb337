#include "cameraselectorproxy.h"

#include "cameraselectormodel.h"

#include <algorithm>
#include <vector>

namespace Viewer::CameraSelector {

// The internal id of a layer's index; that of a camera's index is the row of its layer.
static constexpr quintptr LAYER_ID = ~quintptr(0);

CCameraSelectorProxy::CCameraSelectorProxy(CCameraSelectorModel &source, QObject *parent)
    : QAbstractProxyModel(parent)
    , m_source(source)
    // Names of cameras are of no language, and some locales do not know of numbers.
    , m_collator(QLocale(QLocale::English, QLocale::UnitedStates))
{
    m_collator.setNumericMode(true);
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    m_rearrangeTimer.setSingleShot(true);
    m_rearrangeTimer.setInterval(0);
    connect(&m_rearrangeTimer, &QTimer::timeout, this, &CCameraSelectorProxy::rearrange);
    setSourceModel(&source);
    connect(&source, &QAbstractItemModel::modelAboutToBeReset, this, [this] { beginResetModel(); });
    connect(&source, &QAbstractItemModel::modelReset, this, [this] {
        take(arrange());
        endResetModel();
    });
    connect(&source, &QAbstractItemModel::dataChanged, this, &CCameraSelectorProxy::onDataChanged);
    take(arrange());
}

CCameraSelectorProxy::~CCameraSelectorProxy() = default;

void CCameraSelectorProxy::setFilter(const QString &text)
{
    if (text == m_filter)
        return;
    m_filter = text;
    rearrange();
}

QString CCameraSelectorProxy::getFilter() const
{
    return m_filter;
}

int CCameraSelectorProxy::getCameraCount() const
{
    int count = 0;
    for (const CLayer &layer : m_layers)
        count += static_cast<int>(layer.sourceRows.size());
    return count;
}

void CCameraSelectorProxy::sort(int column, Qt::SortOrder order)
{
    m_sortColumn = column;
    m_sortOrder = order;
    rearrange();
}

bool CCameraSelectorProxy::CLayer::operator==(const CLayer &other) const
{
    return sourceRow == other.sourceRow && sourceRows == other.sourceRows;
}

void CCameraSelectorProxy::rearrange()
{
    m_rearrangeTimer.stop();
    const QVector<CLayer> layers = arrange();
    if (layers == m_layers)
        return;
    beginResetModel();
    take(layers);
    endResetModel();
}

QVector<CCameraSelectorProxy::CLayer> CCameraSelectorProxy::arrange() const
{
    QVector<CLayer> layers;
    for (int row = 0; row < m_source.rowCount(); ++row) {
        const CLayer layer{row, arrangeCameras(m_source.index(row, 0))};
        if (m_filter.isEmpty() || !layer.sourceRows.isEmpty())
            layers.append(layer);
    }
    return layers;
}

QVector<int> CCameraSelectorProxy::arrangeCameras(const QModelIndex &sourceLayer) const
{
    QVector<int> rows;
    const int count = m_source.rowCount(sourceLayer);
    for (int row = 0; row < count; ++row) {
        if (m_filter.isEmpty() || isAccepted(m_source.index(row, 0, sourceLayer)))
            rows.append(row);
    }
    if (m_sortColumn < 0)
        return rows;
    // Keys, because each camera is compared many times.
    std::vector<QCollatorSortKey> keys;
    keys.reserve(static_cast<std::size_t>(count));
    for (int row = 0; row < count; ++row)
        keys.push_back(
            m_collator.sortKey(m_source.index(row, m_sortColumn, sourceLayer).data().toString()));
    std::stable_sort(rows.begin(), rows.end(), [this, &keys](int left, int right) {
        const int difference
            = keys[static_cast<std::size_t>(left)].compare(keys[static_cast<std::size_t>(right)]);
        return m_sortOrder == Qt::AscendingOrder ? difference < 0 : difference > 0;
    });
    return rows;
}

bool CCameraSelectorProxy::isAccepted(const QModelIndex &sourceCamera) const
{
    for (int column = 0; column < CCameraSelectorModel::ColumnCount; ++column) {
        const QString text = sourceCamera.siblingAtColumn(column).data().toString();
        if (text.contains(m_filter, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

void CCameraSelectorProxy::take(const QVector<CLayer> &layers)
{
    m_rearrangeTimer.stop();
    m_layers = layers;
    m_layerRows.fill(-1, m_source.rowCount());
    m_cameraRows.clear();
    for (int row = 0; row < m_source.rowCount(); ++row)
        m_cameraRows.append(QVector<int>(m_source.rowCount(m_source.index(row, 0)), -1));
    for (int row = 0; row < m_layers.size(); ++row) {
        const CLayer &layer = m_layers.at(row);
        m_layerRows[layer.sourceRow] = row;
        QVector<int> &cameraRows = m_cameraRows[layer.sourceRow];
        for (int camera = 0; camera < layer.sourceRows.size(); ++camera)
            cameraRows[layer.sourceRows.at(camera)] = camera;
    }
}

void CCameraSelectorProxy::onDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                         const QVector<int> &roles)
{
    // The source tells of one camera at a time.
    const QModelIndex first = mapFromSource(topLeft);
    if (first.isValid())
        emit dataChanged(first, first.siblingAtColumn(bottomRight.column()), roles);
    const bool isSortedBy
        = m_sortColumn >= topLeft.column() && m_sortColumn <= bottomRight.column();
    if (!m_filter.isEmpty() || isSortedBy)
        m_rearrangeTimer.start();
}

QModelIndex CCameraSelectorProxy::mapToSource(const QModelIndex &proxyIndex) const
{
    if (!proxyIndex.isValid())
        return {};
    if (proxyIndex.internalId() == LAYER_ID)
        return m_source.index(m_layers.at(proxyIndex.row()).sourceRow, proxyIndex.column());
    const CLayer &layer = m_layers.at(static_cast<int>(proxyIndex.internalId()));
    return m_source.index(layer.sourceRows.at(proxyIndex.row()), proxyIndex.column(),
                          m_source.index(layer.sourceRow, 0));
}

QModelIndex CCameraSelectorProxy::mapFromSource(const QModelIndex &sourceIndex) const
{
    if (!sourceIndex.isValid())
        return {};
    const QModelIndex sourceLayer = sourceIndex.parent();
    const int layerRow
        = m_layerRows.value(sourceLayer.isValid() ? sourceLayer.row() : sourceIndex.row(), -1);
    if (layerRow < 0)
        return {};
    if (!sourceLayer.isValid())
        return createIndex(layerRow, sourceIndex.column(), LAYER_ID);
    const int row = m_cameraRows.at(sourceLayer.row()).value(sourceIndex.row(), -1);
    return row < 0 ? QModelIndex()
                   : createIndex(row, sourceIndex.column(), static_cast<quintptr>(layerRow));
}

QModelIndex CCameraSelectorProxy::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? quintptr(parent.row()) : LAYER_ID);
}

QModelIndex CCameraSelectorProxy::parent(const QModelIndex &child) const
{
    if (!child.isValid() || child.internalId() == LAYER_ID)
        return {};
    return createIndex(static_cast<int>(child.internalId()), 0, LAYER_ID);
}

int CCameraSelectorProxy::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_layers.size());
    if (parent.internalId() != LAYER_ID || parent.column() != 0)
        return 0;
    return static_cast<int>(m_layers.at(parent.row()).sourceRows.size());
}

bool CCameraSelectorProxy::hasChildren(const QModelIndex &parent) const
{
    return rowCount(parent) > 0;
}

int CCameraSelectorProxy::columnCount(const QModelIndex &) const
{
    return CCameraSelectorModel::ColumnCount;
}

QVariant CCameraSelectorProxy::headerData(int section, Qt::Orientation orientation, int role) const
{
    // The base class asks by a row, of which there may be none.
    return m_source.headerData(section, orientation, role);
}

} // namespace Viewer::CameraSelector
