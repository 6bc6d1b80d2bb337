#include "cameraindex.h"

#include "firmwareupdateentity.h"

#include <algorithm>

namespace Plugin::FirmwareUpdater::Internal::Model {

using Entity::CFirmwareUpdateEntity;

static uint hashId(const QString &cameraId)
{
    return static_cast<uint>(qHash(cameraId));
}

CCameraIndex::CPlace CCameraIndex::find(CFirmwareUpdateEntity *root,
                                        const QString &transportLayerId, const QString &cameraId)
{
    if (m_treeRevision != CFirmwareUpdateEntity::getTreeRevision()) {
        clear();
        collect(root, NO_LAYER);
        m_entries.shrink_to_fit();
        std::stable_sort(m_entries.begin(), m_entries.end(),
                         [](const CEntry &a, const CEntry &b) { return a.idHash < b.idHash; });
        m_treeRevision = CFirmwareUpdateEntity::getTreeRevision();
    }

    const uint idHash = hashId(cameraId);
    auto entry = std::lower_bound(m_entries.cbegin(), m_entries.cend(), idHash,
                                  [](const CEntry &e, uint hash) { return e.idHash < hash; });
    for (; entry != m_entries.cend() && entry->idHash == idHash; ++entry) {
        if (entry->layer != NO_LAYER && m_layerIds.at(entry->layer) != transportLayerId)
            continue;
        if (entry->camera->getCameraInfo()->getId() != cameraId)
            continue;
        // A parent that does not list the camera gives it no row.
        const int row = entry->camera->getRow();
        if (row >= 0)
            return {entry->camera, row};
    }
    return {};
}

void CCameraIndex::clear()
{
    m_entries = {};
    m_layerIds.clear();
    m_treeRevision = 0;
}

void CCameraIndex::collect(CFirmwareUpdateEntity *node, int layer)
{
    if (!node)
        return;
    if (node->getChildCount() == 0) {
        if (node->getEntityType() == CFirmwareUpdateEntity::EFirmwareUpdateEntityType::CameraDevice
            && node->getCameraInfo())
            m_entries.push_back({hashId(node->getCameraInfo()->getId()), layer, node});
        return;
    }

    if (node->getTransportLayerInfo()) {
        const QString layerId = node->getTransportLayerInfo()->getId();
        if (layer == NO_LAYER) {
            layer = m_layerIds.size();
            m_layerIds.append(layerId);
        } else if (m_layerIds.at(layer) != layerId) {
            // No id matches both layers of such a path.
            return;
        }
    }
    for (const QPointer<CFirmwareUpdateEntity> &child : node->getChildren())
        collect(child, layer);
}

} // namespace Plugin::FirmwareUpdater::Internal::Model
