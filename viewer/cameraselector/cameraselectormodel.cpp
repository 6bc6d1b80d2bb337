#include "cameraselectormodel.h"

#include "core/richtext.h"

namespace Viewer::CameraSelector {

using Plugin::CameraPool::CameraInfoPtr;
using Plugin::CameraPool::TransportLayerInfoPtr;

// The internal id of a layer's index; that of a camera's index is the row of its layer.
static constexpr quintptr LAYER_ID = ~quintptr(0);

CCameraSelectorModel::CCameraSelectorModel(QObject *parent)
    : QAbstractItemModel(parent)
    , m_layerIcon(QStringLiteral(":/viewer/icons/layer.png"))
    , m_cameraIcon(QStringLiteral(":/viewer/icons/camera.png"))
    , m_getSnapshot([](const QString &) { return Camera::CCameraSnapshot(); })
{
}

CCameraSelectorModel::~CCameraSelectorModel() = default;

void CCameraSelectorModel::setSnapshots(const SnapshotFunction &getSnapshot)
{
    m_getSnapshot = getSnapshot;
}

void CCameraSelectorModel::setTransportLayers(const QVector<TransportLayerInfoPtr> &layers)
{
    beginResetModel();
    m_layers = layers;
    m_places.clear();
    m_cameraCount = 0;
    for (int row = 0; row < m_layers.size(); ++row) {
        m_places.insert(m_layers.at(row)->getId(), {row, -1});
        const QVector<CameraInfoPtr> &cameras = m_layers.at(row)->getCameraInfoList();
        for (int cameraRow = 0; cameraRow < cameras.size(); ++cameraRow)
            m_places.insert(cameras.at(cameraRow)->getId(), {row, cameraRow});
        m_cameraCount += cameras.size();
    }
    endResetModel();
}

void CCameraSelectorModel::setActivity(const QString &cameraId, Camera::ECameraActivity activity)
{
    if (m_activities.value(cameraId, Camera::ECameraActivity::Idle) == activity)
        return;
    m_activities.insert(cameraId, activity);
    onSnapshotChanged(cameraId);
}

void CCameraSelectorModel::onSnapshotChanged(const QString &cameraId)
{
    const QModelIndex index = findId(cameraId);
    if (index.isValid()) {
        const QModelIndex stateIndex = index.siblingAtColumn(StateColumn);
        emit dataChanged(stateIndex, stateIndex, {Qt::DisplayRole});
    }
}

QSharedPointer<Plugin::CameraPool::IBaseInfo>
CCameraSelectorModel::getInfo(const QModelIndex &index) const
{
    if (!index.isValid())
        return {};
    if (index.internalId() == LAYER_ID)
        return m_layers.at(index.row());
    return getCamera(index);
}

QModelIndex CCameraSelectorModel::findId(const QString &id) const
{
    const auto place = m_places.constFind(id);
    if (place == m_places.constEnd())
        return {};
    const QModelIndex layerIndex = index(place->first, NameColumn);
    return place->second < 0 ? layerIndex : index(place->second, NameColumn, layerIndex);
}

int CCameraSelectorModel::getCameraCount() const
{
    return m_cameraCount;
}

QModelIndex CCameraSelectorModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? quintptr(parent.row()) : LAYER_ID);
}

QModelIndex CCameraSelectorModel::parent(const QModelIndex &child) const
{
    if (!child.isValid() || child.internalId() == LAYER_ID)
        return {};
    return createIndex(static_cast<int>(child.internalId()), NameColumn, LAYER_ID);
}

int CCameraSelectorModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return m_layers.size();
    if (parent.internalId() != LAYER_ID || parent.column() != NameColumn)
        return 0;
    return m_layers.at(parent.row())->getCameraInfoList().size();
}

int CCameraSelectorModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

QVariant CCameraSelectorModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (index.internalId() == LAYER_ID)
        return getLayerData(index.row(), index.column(), role);
    return getCameraData(getCamera(index), index.column(), role);
}

QVariant CCameraSelectorModel::getLayerData(int row, int column, int role) const
{
    if (column == NameColumn && role == Qt::DisplayRole)
        return m_layers.at(row)->getDisplayName();
    if (column == NameColumn && role == Qt::DecorationRole)
        return m_layerIcon;
    return {};
}

QVariant CCameraSelectorModel::getCameraData(const CameraInfoPtr &camera, int column,
                                             int role) const
{
    if (role == Qt::DecorationRole && column == NameColumn)
        return m_cameraIcon;
    if (role == Qt::ToolTipRole && column == StateColumn)
        return Core::Text::toToolTip(getStateText(*camera));
    if (role == Qt::ToolTipRole)
        return Core::Text::toToolTip(getToolTip(*camera));
    if (role != Qt::DisplayRole)
        return {};
    switch (column) {
    case NameColumn:
        return camera->getDisplayName();
    case ModelColumn:
        return camera->getModelName();
    case SerialNumberColumn:
        return camera->getSerialNumber();
    case FirmwareColumn:
        return camera->getFirmwareVersion();
    case IpAddressColumn:
        return m_getSnapshot(camera->getId()).ipAddress;
    case MacAddressColumn:
        return m_getSnapshot(camera->getId()).macAddress;
    case StateColumn:
        return getStateText(*camera);
    default:
        return {};
    }
}

QString CCameraSelectorModel::getToolTip(const Plugin::CameraPool::ICameraInfo &camera) const
{
    const Camera::CCameraSnapshot snapshot = m_getSnapshot(camera.getId());
    QStringList lines{tr("%1\nModel: %2\nSerial number: %3\nDevice version: %4\nFirmware: %5")
                          .arg(camera.getDisplayName(), camera.getModelName(),
                               camera.getSerialNumber(), camera.getDeviceVersion(),
                               camera.getFirmwareVersion())};
    if (!snapshot.ipAddress.isEmpty())
        lines.append(tr("IP address: %1").arg(snapshot.ipAddress));
    if (!snapshot.macAddress.isEmpty())
        lines.append(tr("MAC address: %1").arg(snapshot.macAddress));
    return lines.join(QLatin1Char('\n'));
}

QString CCameraSelectorModel::getStateText(const Plugin::CameraPool::ICameraInfo &camera) const
{
    switch (m_activities.value(camera.getId(), Camera::ECameraActivity::Idle)) {
    case Camera::ECameraActivity::Acquiring:
        return tr("Acquiring");
    case Camera::ECameraActivity::Recording:
        return tr("Recording");
    case Camera::ECameraActivity::Updating:
        return tr("Updating");
    case Camera::ECameraActivity::InUseElsewhere:
        return tr("In use elsewhere");
    case Camera::ECameraActivity::Idle:
        break;
    }
    const qint32 statusCode = camera.getCameraStatusCode();
    if (statusCode == 0)
        return tr("Ready");
    const QString reason = m_getSnapshot(camera.getId()).statusReason;
    const QString code = QString::number(statusCode);
    return tr("Not updatable (%1)")
        .arg(reason.isEmpty() ? code : QStringLiteral("%1: %2").arg(code, reason));
}

CameraInfoPtr CCameraSelectorModel::getCamera(const QModelIndex &index) const
{
    return m_layers.at(static_cast<int>(index.internalId()))->getCameraInfoList().at(index.row());
}

QVariant CCameraSelectorModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NameColumn:
        return tr("Camera");
    case ModelColumn:
        return tr("Model");
    case SerialNumberColumn:
        return tr("Serial number");
    case FirmwareColumn:
        return tr("Firmware");
    case IpAddressColumn:
        return tr("IP address");
    case MacAddressColumn:
        return tr("MAC address");
    case StateColumn:
        return tr("State");
    default:
        return {};
    }
}

} // namespace Viewer::CameraSelector
