#include "treerow.h"

#include "model/firmwareupdatetreemodel.h"

#include <QSortFilterProxyModel>

namespace Plugin::FirmwareUpdater::Internal::View {

using Entity::CFirmwareUpdateEntity;
using EType = CFirmwareUpdateEntity::EFirmwareUpdateEntityType;

static CFirmwareUpdateEntity *findEntity(const QModelIndex &index)
{
    const auto *proxy = qobject_cast<const QSortFilterProxyModel *>(index.model());
    const QModelIndex source = proxy ? proxy->mapToSource(index) : index;
    return qobject_cast<const Model::CFirmwareUpdateTreeModel *>(source.model())
        ? static_cast<CFirmwareUpdateEntity *>(source.internalPointer())
        : nullptr;
}

CTreeRow::CTreeRow(const QModelIndex &index)
    : m_entity(findEntity(index))
    , m_row(index.row())
{
}

bool CTreeRow::isValid() const
{
    return m_entity;
}

QPointer<CFirmwareUpdateEntity> CTreeRow::getEntity() const
{
    return m_entity;
}

bool CTreeRow::isTransportLayer() const
{
    return m_entity->getEntityType() == EType::TransportLayer;
}

bool CTreeRow::isCameraType() const
{
    return m_entity->getEntityType() == EType::CameraType;
}

bool CTreeRow::isDirectCamera() const
{
    const auto *parent = qobject_cast<CFirmwareUpdateEntity *>(m_entity->parent());
    return m_entity->getEntityType() == EType::CameraDevice && parent
        && parent->getTransportLayerInfo();
}

bool CTreeRow::isFirst() const
{
    return m_row == 0;
}

bool CTreeRow::isFirstListedCamera() const
{
    return isFirst() && !isTransportLayer() && !isCameraType() && !isDirectCamera();
}

QSize CTreeRow::getSizeHint(const QSize &hint) const
{
    return isValid() ? QSize(hint.width(), getHeight()) : hint;
}

int CTreeRow::getHeight() const
{
    if (isTransportLayer())
        return 24;
    if (isCameraType())
        return 25;
    return isFirstListedCamera() ? 27 : 20;
}

} // namespace Plugin::FirmwareUpdater::Internal::View
