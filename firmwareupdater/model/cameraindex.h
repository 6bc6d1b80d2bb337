#pragma once

#include <QString>
#include <QVector>

#include <vector>

namespace Plugin::FirmwareUpdater::Internal::Entity {
class CFirmwareUpdateEntity;
}

namespace Plugin::FirmwareUpdater::Internal::Model {

/// The cameras of a tree by id. Made at the first look-up after a change of any tree.
class CCameraIndex
{
public:
    /// A camera and its place among its parent's children.
    struct CPlace
    {
        Entity::CFirmwareUpdateEntity *camera = nullptr;
        int row = -1;
    };

    /// The camera that a search in the tree of @p root finds first: one with the id @p cameraId and
    /// no children, on a path of nodes that have no transport layer or @p transportLayerId. No
    /// camera when there is none. @p root has to be alive.
    [[nodiscard]] CPlace find(Entity::CFirmwareUpdateEntity *root, const QString &transportLayerId,
                              const QString &cameraId);

    void clear();

private:
    /// Small, because there is one for each camera.
    struct CEntry
    {
        uint idHash;
        /// The transport layer on the camera's path as an index into m_layerIds.
        int layer;
        Entity::CFirmwareUpdateEntity *camera;
    };

    void collect(Entity::CFirmwareUpdateEntity *node, int layer);

    /// In ascending order of the ids' hashes, those of equal hash in tree order.
    std::vector<CEntry> m_entries;
    QVector<QString> m_layerIds;
    quint64 m_treeRevision = 0;

    static constexpr int NO_LAYER = -1;
};

} // namespace Plugin::FirmwareUpdater::Internal::Model
