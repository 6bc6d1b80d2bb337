#include "firmwareupdatetreemodel.h"

#include <QMetaEnum>

#include <algorithm>
#include <utility>

namespace Plugin::FirmwareUpdater::Internal::Model {

using Entity::CFirmwareUpdateEntity;
using EntityType = CFirmwareUpdateEntity::EFirmwareUpdateEntityType;
using EntityPtr = QPointer<CFirmwareUpdateEntity>;

CFirmwareUpdateTreeModel::CFirmwareUpdateTreeModel(QObject *parent)
    : QAbstractItemModel(parent)
    , m_root(new CFirmwareUpdateEntity)
{
    initializeModel();
}

CFirmwareUpdateTreeModel::~CFirmwareUpdateTreeModel()
{
    clearSelectedCamerasMap();
    if (m_root)
        m_root->deleteLater();
}

void CFirmwareUpdateTreeModel::initializeModel()
{
    // One header for each value, although the last value has no column. The three stages of an
    // update, of which a page shows one at a time, share a title.
    m_headerList << QObject::tr("Cameras") << QStringLiteral("Id")
                 << QStringLiteral("SelectionStatus") << QObject::tr("Current Firmware")
                 << QObject::tr("Firmware Selected") << QObject::tr("Details")
                 << QObject::tr("Details") << QObject::tr("Details") << QStringLiteral("Enabled");
}

void CFirmwareUpdateTreeModel::beginRebuild()
{
    beginResetModel();
    clearSelectedCamerasMap();
    m_cameraIndex.clear();
    delete m_root;
    m_root = new CFirmwareUpdateEntity;
}

void CFirmwareUpdateTreeModel::setTransportLayerInfoVector(
    const QVector<QSharedPointer<Plugin::CameraPool::ITransportLayerInfo>> &transportLayers)
{
    beginRebuild();
    for (const Plugin::CameraPool::TransportLayerInfoPtr &transportLayer : transportLayers) {
        if (transportLayer)
            addTransportLayer(transportLayer);
    }
    endResetModel();
}

void CFirmwareUpdateTreeModel::addTransportLayer(
    const Plugin::CameraPool::TransportLayerInfoPtr &transportLayer)
{
    const QVector<Plugin::CameraPool::CameraInfoPtr> cameras = transportLayer->getCameraInfoList();
    QVector<QString> modelNames;
    QHash<QString, QVector<const Plugin::CameraPool::CameraInfoPtr *>> camerasByModel;
    for (const Plugin::CameraPool::CameraInfoPtr &camera : cameras) {
        if (!camera)
            continue;
        const QString modelName = camera->getModelName();
        auto &group = camerasByModel[modelName];
        if (group.isEmpty())
            modelNames.append(modelName);
        group.append(&camera);
    }
    if (modelNames.isEmpty())
        return;

    auto *const layerNode
        = new CFirmwareUpdateEntity(EntityType::TransportLayer, transportLayer, {}, nullptr);
    for (const QString &modelName : std::as_const(modelNames)) {
        const auto &group = camerasByModel[modelName];
        auto *const groupNode = new CFirmwareUpdateEntity(EntityType::CameraType, transportLayer,
                                                          *group.constLast(), nullptr);
        // Users know the cameras of a group from last found to first found.
        QVector<EntityPtr> cameraNodes;
        cameraNodes.reserve(group.size());
        for (auto camera = group.crbegin(); camera != group.crend(); ++camera) {
            cameraNodes.append(new CFirmwareUpdateEntity(EntityType::CameraDevice, transportLayer,
                                                         **camera, groupNode));
        }
        groupNode->setChildren(std::move(cameraNodes));
        layerNode->addChildEntity(groupNode);
    }
    m_root->addChildEntity(layerNode);
}

void CFirmwareUpdateTreeModel::setCameraDeviceList(QList<CFirmwareUpdateEntity *> cameras)
{
    // Those of the old tree die with it.
    const QVector<EntityPtr> nodes(cameras.cbegin(), cameras.cend());
    beginRebuild();
    for (const EntityPtr &camera : nodes) {
        if (!camera)
            continue;
        m_root->addChildEntity(camera);
        updateSelectedCamerasMap(camera->isSelected(), camera);
    }
    endResetModel();
}

QModelIndex CFirmwareUpdateTreeModel::getModelIndexForCameraId(const QString &transportLayerId,
                                                               const QString &cameraId,
                                                               int column) const
{
    if (!m_root || column < 0 || column >= m_root->getColumnCount())
        return {};
    const CCameraIndex::CPlace place = m_cameraIndex.find(m_root, transportLayerId, cameraId);
    return place.camera ? createIndex(place.row, column, place.camera) : QModelIndex();
}

QModelIndex CFirmwareUpdateTreeModel::getModelIndexForCameraId(EntityPtr node,
                                                               const QString &transportLayerId,
                                                               const QString &cameraId,
                                                               int column) const
{
    if (!node || column < 0 || column >= node->getColumnCount())
        return {};

    if (node->getChildCount() == 0) {
        if (node->getEntityType() == EntityType::CameraDevice && node->getCameraInfo()
            && node->getCameraInfo()->getId() == cameraId)
            return createIndex(node->getRow(), column, node.data());
        return {};
    }

    const Plugin::CameraPool::TransportLayerInfoPtr layer = node->getTransportLayerInfo();
    if (layer && layer->getId() != transportLayerId)
        return {};

    for (int row = 0; row < node->getChildCount(); ++row) {
        const QModelIndex found = getModelIndexForCameraId(node->getChildEntity(row),
                                                           transportLayerId, cameraId, column);
        if (found.isValid())
            return found;
    }
    return {};
}

void CFirmwareUpdateTreeModel::updateSelectedCamerasMap(bool selected, EntityPtr node)
{
    if (!node || node->getEntityType() != EntityType::CameraDevice || !node->getCameraInfo())
        return;

    const QString id = node->getCameraInfo()->getId();
    // The hint makes a list that comes in the order of the ids cheaper.
    if (selected)
        m_selectedCameras.insert(m_selectedCameras.cend(), id, node);
    else
        m_selectedCameras.remove(id);
}

void CFirmwareUpdateTreeModel::updateAllNodesBySelection(const QModelIndex &index)
{
    CFirmwareUpdateEntity *const node = getNode(index);
    // A node without a camera has no model that its tick could spread to.
    if (!node || !node->getCameraInfo())
        return;

    switch (node->getEntityType()) {
    case EntityType::TransportLayer:
        break;
    case EntityType::CameraType:
        spreadGroupSelection(node);
        break;
    case EntityType::CameraDevice:
        spreadCameraSelection(node);
        break;
    }
}

void CFirmwareUpdateTreeModel::spreadGroupSelection(CFirmwareUpdateEntity *group)
{
    const bool selected = group->isSelected();
    const QString modelName = group->getCameraInfo()->getModelName();
    setDataRecursivelyByModelName(m_root, modelName, CFirmwareUpdateEntity::Enabled, selected);
    setDataRecursivelyByModelName(m_root, modelName, CFirmwareUpdateEntity::SelectionStatus,
                                  selected);
    updateModelIndices({},
                       {CFirmwareUpdateEntity::DisplayName, CFirmwareUpdateEntity::Enabled,
                        CFirmwareUpdateEntity::SelectionStatus});
}

void CFirmwareUpdateTreeModel::spreadCameraSelection(CFirmwareUpdateEntity *camera)
{
    auto *const group = qobject_cast<CFirmwareUpdateEntity *>(camera->parent());
    if (!group)
        return;

    const bool selected = camera->isSelected();
    const auto isOtherSelected = [camera, group] {
        const QVector<EntityPtr> siblings = group->getChildren();
        return std::any_of(siblings.cbegin(), siblings.cend(), [camera](const EntityPtr &sibling) {
            return sibling && sibling != camera && sibling->isSelected();
        });
    };

    // Only this group's row follows. The rows of the same model under other transport layers stay
    // as they are, and the last tick that leaves this group enables the other models again even
    // while a camera of this model is still ticked elsewhere.
    if (selected && !group->isSelected())
        group->setSelected(true);
    else if (!selected && !isOtherSelected())
        group->setSelected(false);
    else
        return;

    setDataRecursivelyByModelName(m_root, camera->getCameraInfo()->getModelName(),
                                  CFirmwareUpdateEntity::Enabled, selected);
    updateModelIndices({}, {CFirmwareUpdateEntity::DisplayName, CFirmwareUpdateEntity::Enabled});
}

void CFirmwareUpdateTreeModel::setDataRecursivelyByModelName(EntityPtr node,
                                                             const QString &modelName, int column,
                                                             const QVariant &value)
{
    if (column == CFirmwareUpdateEntity::Enabled
        || column == CFirmwareUpdateEntity::SelectionStatus)
        writeByModelName(node, modelName, column, value.toBool());
}

void CFirmwareUpdateTreeModel::writeByModelName(const EntityPtr &node, const QString &modelName,
                                                int column, bool value)
{
    if (!node)
        return;

    // Whoever hears of the change may take the tree apart.
    const QVector<EntityPtr> children = node->getChildren();
    if (node->parent() && node->getEntityType() != EntityType::TransportLayer
        && node->getCameraInfo()) {
        const bool sameModel = node->getCameraInfo()->getModelName() == modelName;
        if (!sameModel && column == CFirmwareUpdateEntity::Enabled) {
            node->setEnabled(!value);
        } else if (sameModel && column == CFirmwareUpdateEntity::SelectionStatus
                   && node->isSelected() != value) {
            node->setSelected(value);
            updateSelectedCamerasMap(value, node);
        }
    }

    for (const EntityPtr &child : children)
        writeByModelName(child, modelName, column, value);
}

QList<EntityPtr> CFirmwareUpdateTreeModel::getSelectedCameraList() const
{
    return m_selectedCameras.values();
}

bool CFirmwareUpdateTreeModel::hasSelectedCameras() const
{
    return !m_selectedCameras.isEmpty();
}

void CFirmwareUpdateTreeModel::clearSelectedCamerasMap()
{
    m_selectedCameras.clear();
}

void CFirmwareUpdateTreeModel::getModelStatistics(int &failed, int &successful, int &skipped) const
{
    getModelStatisticsRecursively(m_root, {}, failed, successful, skipped);
}

void CFirmwareUpdateTreeModel::getModelStatisticsRecursively(EntityPtr node, EntityPtr lastFailed,
                                                             int &failed, int &successful,
                                                             int &skipped) const
{
    if (!node)
        return;

    if (node->getEntityType() != EntityType::CameraDevice) {
        for (int row = 0; row < node->getChildCount(); ++row) {
            getModelStatisticsRecursively(node->getChildEntity(row), lastFailed, failed, successful,
                                          skipped);
        }
        return;
    }

    switch (node->getUpdateResult()) {
    case CFirmwareUpdateEntity::EFirmwareUpdateResult::OK:
        ++successful;
        break;
    case CFirmwareUpdateEntity::EFirmwareUpdateResult::Failed:
        ++failed;
        // By value: the caller never learns which camera failed. Kept on purpose.
        lastFailed = node;
        break;
    case CFirmwareUpdateEntity::EFirmwareUpdateResult::Skipped:
        ++skipped;
        break;
    }
}

void CFirmwareUpdateTreeModel::updateModelIndices(const QModelIndex &index, QVector<int> roles)
{
    announceRows(index, roles);
}

void CFirmwareUpdateTreeModel::announceRows(const QModelIndex &index, const QVector<int> &roles)
{
    // Whoever hears of the change may take the tree apart.
    const EntityPtr node = getNode(index);
    if (index.isValid())
        emit dataChanged(index, index, roles);

    for (int row = 0; node && row < node->getChildCount(); ++row) {
        const QModelIndex child = this->index(row, 0, index);
        if (child.isValid())
            announceRows(child, roles);
    }
}

int CFirmwareUpdateTreeModel::columnCount(const QModelIndex &parent) const
{
    const CFirmwareUpdateEntity *const node = getNode(parent);
    return node ? node->getColumnCount() : 0;
}

int CFirmwareUpdateTreeModel::rowCount(const QModelIndex &parent) const
{
    if (parent.column() > 0)
        return 0;
    const CFirmwareUpdateEntity *const node = getNode(parent);
    return node ? node->getChildCount() : 0;
}

QModelIndex CFirmwareUpdateTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    CFirmwareUpdateEntity *const child = getNode(parent)->getChildEntity(row);
    return child ? createIndex(row, column, child) : QModelIndex();
}

QModelIndex CFirmwareUpdateTreeModel::parent(const QModelIndex &child) const
{
    if (!child.isValid())
        return {};
    auto *const parentNode = qobject_cast<CFirmwareUpdateEntity *>(getNode(child)->parent());
    if (!parentNode || parentNode == m_root)
        return {};
    return createIndex(parentNode->getRow(), 0, parentNode);
}

QVariant CFirmwareUpdateTreeModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    return getNode(index)->getData(index.column());
}

QVariant CFirmwareUpdateTreeModel::headerData(int section, Qt::Orientation orientation,
                                              int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return m_headerList.value(section);
}

Qt::ItemFlags CFirmwareUpdateTreeModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;

    // A camera of another model than the ticked one stays an enabled item: the delegate greys it.
    const Qt::ItemFlags baseFlags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    const EntityType type = getNode(index)->getEntityType();
    const bool hasCheckBox = type == EntityType::CameraType || type == EntityType::CameraDevice;
    return index.column() == 0 && hasCheckBox ? baseFlags | Qt::ItemIsEditable : baseFlags;
}

QHash<int, QByteArray> CFirmwareUpdateTreeModel::roleNames() const
{
    QHash<int, QByteArray> names;
    const auto roles = QMetaEnum::fromType<CFirmwareUpdateEntity::ECameraUpdateModelRole>();
    for (int i = 0; i < roles.keyCount(); ++i)
        names.insert(roles.value(i), roles.key(i));
    return names;
}

bool CFirmwareUpdateTreeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::EditRole)
        return false;

    CFirmwareUpdateEntity *const node = getNode(index);
    switch (index.column()) {
    case CFirmwareUpdateEntity::DisplayName:
    case CFirmwareUpdateEntity::SelectionStatus:
        node->setSelected(value.toBool());
        updateSelectedCamerasMap(value.toBool(), node);
        break;
    case CFirmwareUpdateEntity::SelectedFirmware:
        node->setSelectedFirmware(value.toString());
        break;
    case CFirmwareUpdateEntity::UpdateStatus:
        node->setUpdateStatus(
            static_cast<CFirmwareUpdateEntity::EFirmwareUpdateStatus>(value.toInt()));
        break;
    case CFirmwareUpdateEntity::UpdateResult:
        node->setUpdateResult(
            static_cast<CFirmwareUpdateEntity::EFirmwareUpdateResult>(value.toInt()));
        break;
    default:
        return false;
    }

    emit dataChanged(index, index, {index.column()});
    return true;
}

CFirmwareUpdateEntity *CFirmwareUpdateTreeModel::getNode(const QModelIndex &index) const
{
    return index.isValid() ? static_cast<CFirmwareUpdateEntity *>(index.internalPointer())
                           : m_root.data();
}

} // namespace Plugin::FirmwareUpdater::Internal::Model
