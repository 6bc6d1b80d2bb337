#include "firmwareupdateentity.h"

#include <utility>

namespace Plugin::FirmwareUpdater::Internal::Entity {

quint64 CFirmwareUpdateEntity::s_treeRevision = 0;

CFirmwareUpdateEntity::CFirmwareUpdateEntity(QPointer<CFirmwareUpdateEntity> parent)
    : CFirmwareUpdateEntity(EFirmwareUpdateEntityType::TransportLayer, {}, {}, parent)
{
}

CFirmwareUpdateEntity::CFirmwareUpdateEntity(
    EFirmwareUpdateEntityType type, const Plugin::CameraPool::TransportLayerInfoPtr &transportLayer,
    const Plugin::CameraPool::CameraInfoPtr &camera, CFirmwareUpdateEntity *parent)
    : QObject(parent)
    , m_ptrCameraInfo(camera)
    , m_entityType(type)
    , m_ptrTransportLayerInfo(transportLayer)
{
    [[maybe_unused]] static const bool registered = [] {
        registerMetaTypes();
        return true;
    }();
}

CFirmwareUpdateEntity::CFirmwareUpdateEntity(const CFirmwareUpdateEntity &other)
    : CFirmwareUpdateEntity()
{
    *this = other;
}

CFirmwareUpdateEntity &CFirmwareUpdateEntity::operator=(const CFirmwareUpdateEntity &other)
{
    if (this == &other)
        return *this;

    m_ptrCameraInfo = other.m_ptrCameraInfo;
    m_selected = other.m_selected;
    m_updateDetails = other.m_updateDetails;
    m_updateStatus = other.m_updateStatus;
    m_updateResult = other.m_updateResult;
    m_selectedFirmware = other.m_selectedFirmware;
    m_entityType = other.m_entityType;
    m_ptrTransportLayerInfo = other.m_ptrTransportLayerInfo;
    m_enabled = other.m_enabled;
    ++s_treeRevision;
    return *this;
}

CFirmwareUpdateEntity::~CFirmwareUpdateEntity()
{
    ++s_treeRevision;
    // Own children die with this object. Only a listed child that has moved to another parent would
    // survive it, and that one is sent after its list. One posted event for each own child as well
    // would make the destruction of a large tree quadratic, for Qt searches every posted event when
    // its receiver dies.
    for (const QPointer<CFirmwareUpdateEntity> &child : std::as_const(m_children)) {
        if (child && child->parent() != this)
            child->deleteLater();
    }
}

bool CFirmwareUpdateEntity::operator==(const CFirmwareUpdateEntity &other) const
{
    return parent() == other.parent();
}

bool CFirmwareUpdateEntity::operator!=(const CFirmwareUpdateEntity &other) const
{
    return *this == other;
}

void CFirmwareUpdateEntity::registerMetaTypes()
{
    qRegisterMetaType<EFirmwareUpdateStatus>();
    qRegisterMetaType<EFirmwareUpdateResult>();
    qRegisterMetaType<EFirmwareUpdateEntityType>();
    qRegisterMetaType<QPointer<CFirmwareUpdateEntity>>();
    qRegisterMetaType<QVector<QPointer<CFirmwareUpdateEntity>>>();
    qRegisterMetaType<Plugin::CameraPool::CameraInfoPtr>("Plugin::CameraPool::CameraInfoPtr");
    qRegisterMetaType<Plugin::CameraPool::TransportLayerInfoPtr>(
        "Plugin::CameraPool::TransportLayerInfoPtr");
    qRegisterMetaType<Plugin::CameraPool::DeviceFirmwareUpdatePtr>(
        "Plugin::CameraPool::DeviceFirmwareUpdatePtr");
    qRegisterMetaType<Plugin::CameraPool::EFirmwareUpdateDirection>(
        "Plugin::CameraPool::EFirmwareUpdateDirection");
}

quint64 CFirmwareUpdateEntity::getTreeRevision()
{
    return s_treeRevision;
}

void CFirmwareUpdateEntity::addChildEntity(QPointer<CFirmwareUpdateEntity> child)
{
    if (!child || findRow(child) >= 0)
        return;

    child->setParent(this);
    child->m_row = m_children.size();
    if (!m_rows.isEmpty())
        m_rows.insert(child, child->m_row);
    m_children.append(child);
    ++s_treeRevision;
}

QPointer<CFirmwareUpdateEntity> CFirmwareUpdateEntity::getChildEntity(int row) const
{
    return m_children.value(row);
}

int CFirmwareUpdateEntity::getChildCount() const
{
    return m_children.size();
}

int CFirmwareUpdateEntity::getColumnCount() const
{
    return COLUMN_COUNT;
}

int CFirmwareUpdateEntity::getRow() const
{
    if (!parent())
        return 0;

    const auto *const parentEntity = qobject_cast<const CFirmwareUpdateEntity *>(parent());
    return parentEntity ? parentEntity->findRow(this) : -1;
}

int CFirmwareUpdateEntity::findRow(const CFirmwareUpdateEntity *child) const
{
    if (child->m_row < 0 || isListedAt(child->m_row, child))
        return child->m_row;

    if (m_rows.isEmpty()) {
        // Backwards, so that a child listed twice keeps its first place.
        for (int row = m_children.size() - 1; row >= 0; --row)
            m_rows.insert(m_children.at(row), row);
    }
    const int row = m_rows.value(child, -1);
    return isListedAt(row, child) ? row : -1;
}

bool CFirmwareUpdateEntity::isListedAt(int row, const CFirmwareUpdateEntity *child) const
{
    return row >= 0 && row < m_children.size() && m_children.at(row) == child;
}

QVariant CFirmwareUpdateEntity::getData(int column) const
{
    switch (column) {
    case DisplayName:
        return getDisplayName();
    case Id:
        return getId();
    case SelectionStatus:
        return m_selected;
    case CurrentFirmware:
        return getCurrentFirmware();
    case SelectedFirmware:
        return m_selectedFirmware;
    case UpdateDetails:
        return static_cast<int>(m_updateDetails);
    case UpdateStatus:
        return QVariant::fromValue(m_updateStatus);
    case UpdateResult:
        return QVariant::fromValue(m_updateResult);
    default:
        return {};
    }
}

QVariant CFirmwareUpdateEntity::getDisplayName() const
{
    switch (m_entityType) {
    case EFirmwareUpdateEntityType::TransportLayer:
        return m_ptrTransportLayerInfo ? m_ptrTransportLayerInfo->getDisplayName() : QVariant();
    case EFirmwareUpdateEntityType::CameraType:
        return m_ptrCameraInfo ? m_ptrCameraInfo->getModelName() : QVariant();
    case EFirmwareUpdateEntityType::CameraDevice:
        return m_ptrCameraInfo ? m_ptrCameraInfo->getDisplayName() : QVariant();
    }
    return {};
}

QVariant CFirmwareUpdateEntity::getId() const
{
    switch (m_entityType) {
    case EFirmwareUpdateEntityType::TransportLayer:
        return m_ptrTransportLayerInfo ? m_ptrTransportLayerInfo->getId() : QVariant();
    case EFirmwareUpdateEntityType::CameraType:
    case EFirmwareUpdateEntityType::CameraDevice:
        return m_ptrCameraInfo ? m_ptrCameraInfo->getId() : QVariant();
    }
    return {};
}

QVariant CFirmwareUpdateEntity::getCurrentFirmware() const
{
    if (m_entityType != EFirmwareUpdateEntityType::CameraDevice)
        return {};
    // The job knows the version that the camera reports after the update, the snapshot does not.
    if (m_ptrDeviceFirmwareUpdate)
        return m_ptrDeviceFirmwareUpdate->getFirmwareVersion();
    return m_ptrCameraInfo ? m_ptrCameraInfo->getFirmwareVersion() : QVariant();
}

const Plugin::CameraPool::CameraInfoPtr &CFirmwareUpdateEntity::getCameraInfo() const
{
    return m_ptrCameraInfo;
}

bool CFirmwareUpdateEntity::isSelected() const
{
    return m_selected;
}

Plugin::CameraPool::EFirmwareUpdateDirection CFirmwareUpdateEntity::getUpdateDetails() const
{
    return m_updateDetails;
}

CFirmwareUpdateEntity::EFirmwareUpdateStatus CFirmwareUpdateEntity::getUpdateStatus() const
{
    return m_updateStatus;
}

CFirmwareUpdateEntity::EFirmwareUpdateResult CFirmwareUpdateEntity::getUpdateResult() const
{
    return m_updateResult;
}

QString CFirmwareUpdateEntity::getSelectedFirmware() const
{
    return m_selectedFirmware;
}

CFirmwareUpdateEntity::EFirmwareUpdateEntityType CFirmwareUpdateEntity::getEntityType() const
{
    return m_entityType;
}

const Plugin::CameraPool::TransportLayerInfoPtr &
CFirmwareUpdateEntity::getTransportLayerInfo() const
{
    return m_ptrTransportLayerInfo;
}

bool CFirmwareUpdateEntity::isEnabled() const
{
    return m_enabled;
}

Plugin::CameraPool::DeviceFirmwareUpdatePtr CFirmwareUpdateEntity::getDeviceFirmwareUpdate() const
{
    return m_ptrDeviceFirmwareUpdate;
}

const QVector<QPointer<CFirmwareUpdateEntity>> &CFirmwareUpdateEntity::getChildren() const
{
    return m_children;
}

void CFirmwareUpdateEntity::setCameraInfo(Plugin::CameraPool::CameraInfoPtr ptrCameraInfo)
{
    if (m_ptrCameraInfo == ptrCameraInfo)
        return;
    m_ptrCameraInfo = ptrCameraInfo;
    ++s_treeRevision;
    emit cameraInfoChanged(m_ptrCameraInfo);
}

void CFirmwareUpdateEntity::setSelected(bool selected)
{
    if (m_selected == selected)
        return;
    m_selected = selected;
    emit selectedChanged(m_selected);
}

void CFirmwareUpdateEntity::setUpdateDetails(
    Plugin::CameraPool::EFirmwareUpdateDirection updateDetails)
{
    if (m_updateDetails == updateDetails)
        return;
    m_updateDetails = updateDetails;
    emit updateDetailsChanged(m_updateDetails);
}

void CFirmwareUpdateEntity::setUpdateStatus(EFirmwareUpdateStatus updateStatus)
{
    if (m_updateStatus == updateStatus)
        return;
    m_updateStatus = updateStatus;
    emit updateStatusChanged(m_updateStatus);
}

void CFirmwareUpdateEntity::setUpdateResult(EFirmwareUpdateResult updateResult)
{
    if (m_updateResult == updateResult)
        return;
    m_updateResult = updateResult;
    emit updateResultChanged(m_updateResult);
}

void CFirmwareUpdateEntity::setSelectedFirmware(QString selectedFirmware)
{
    if (m_selectedFirmware == selectedFirmware)
        return;
    m_selectedFirmware = std::move(selectedFirmware);
    emit selectedFirmwareChanged(m_selectedFirmware);
}

void CFirmwareUpdateEntity::setEntityType(EFirmwareUpdateEntityType entityType)
{
    if (m_entityType == entityType)
        return;
    m_entityType = entityType;
    ++s_treeRevision;
    emit entityTypeChanged(m_entityType);
}

void CFirmwareUpdateEntity::setTransportLayerInfo(
    Plugin::CameraPool::TransportLayerInfoPtr ptrTransportLayerInfo)
{
    if (m_ptrTransportLayerInfo == ptrTransportLayerInfo)
        return;
    m_ptrTransportLayerInfo = ptrTransportLayerInfo;
    ++s_treeRevision;
    emit transportLayerInfoChanged(m_ptrTransportLayerInfo);
}

void CFirmwareUpdateEntity::setEnabled(bool enabled)
{
    if (m_enabled == enabled)
        return;
    m_enabled = enabled;
    emit enabledChanged(m_enabled);
}

void CFirmwareUpdateEntity::setDeviceFirmwareUpdate(
    Plugin::CameraPool::DeviceFirmwareUpdatePtr ptrDeviceFirmwareUpdate)
{
    if (m_ptrDeviceFirmwareUpdate == ptrDeviceFirmwareUpdate)
        return;
    m_ptrDeviceFirmwareUpdate = ptrDeviceFirmwareUpdate;
    emit deviceFirmwareUpdateChanged(m_ptrDeviceFirmwareUpdate);
}

void CFirmwareUpdateEntity::setChildren(QVector<QPointer<CFirmwareUpdateEntity>> children)
{
    if (m_children == children)
        return;
    m_children = std::move(children);
    ++s_treeRevision;

    m_rows.clear();
    for (int row = m_children.size() - 1; row >= 0; --row) {
        if (CFirmwareUpdateEntity *const child = m_children.at(row))
            child->m_row = row;
    }

    emit childrenChanged(m_children);
}

} // namespace Plugin::FirmwareUpdater::Internal::Entity
