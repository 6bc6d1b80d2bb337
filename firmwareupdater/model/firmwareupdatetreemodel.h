#pragma once

#include "cameraindex.h"
#include "firmwareupdateentity.h"

#include <QAbstractItemModel>
#include <QList>
#include <QMap>
#include <QPointer>
#include <QSharedPointer>
#include <QVariant>
#include <QVector>

namespace Plugin::FirmwareUpdater::Internal::Model {

/// A tree of update entities as an item model, and the rules of what is ticked in it.
///
/// It is filled either with the whole tree (transport layer, camera model group, camera) or with a
/// flat list of cameras. The column, not the role, selects a node's value. An index carries its
/// node as internal pointer; the root, which has no index of its own, owns the nodes. GUI thread
/// only.
class CFirmwareUpdateTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit CFirmwareUpdateTreeModel(QObject *parent = nullptr);
    ~CFirmwareUpdateTreeModel() override;

    /// Rebuilds the whole tree; no tick survives. Layers without cameras and null entries get no
    /// row. Within a model group the cameras stand in the reverse of the layer's order, and the
    /// group shows the last camera's information.
    void setTransportLayerInfoVector(
        const QVector<QSharedPointer<Plugin::CameraPool::ITransportLayerInfo>> &transportLayers);

    /// Rebuilds the model as a flat list of @p cameras, which the model takes over as they are.
    /// Null entries are left out, and so are nodes of the tree that the model had, which die with
    /// it.
    void setCameraDeviceList(QList<Entity::CFirmwareUpdateEntity *> cameras);

    /// The first camera with the id @p cameraId, below the transport layer @p transportLayerId
    /// where the tree has layers; invalid when there is none. A flat list is searched by camera id
    /// alone.
    [[nodiscard]] QModelIndex getModelIndexForCameraId(const QString &transportLayerId,
                                                       const QString &cameraId, int column) const;

    /// The same below @p node, by search.
    [[nodiscard]] QModelIndex getModelIndexForCameraId(QPointer<Entity::CFirmwareUpdateEntity> node,
                                                       const QString &transportLayerId,
                                                       const QString &cameraId, int column) const;

    /// Enters a camera node into the ticked ones, or removes it. Other nodes are ignored.
    void updateSelectedCamerasMap(bool selected, QPointer<Entity::CFirmwareUpdateEntity> node);

    /// Spreads the tick of the camera or model group @p index over the tree: one camera model at a
    /// time can be ticked, so the nodes of all other models become enabled or disabled.
    void updateAllNodesBySelection(const QModelIndex &index);

    /// Writes @p value to @p node and all nodes below it without a signal: column SelectionStatus
    /// ticks the nodes of the camera model @p modelName, column Enabled disables (on true) those of
    /// every other model.
    void setDataRecursivelyByModelName(QPointer<Entity::CFirmwareUpdateEntity> node,
                                       const QString &modelName, int column, const QVariant &value);

    /// The ticked cameras in ascending order of their ids; null for one whose node has died.
    [[nodiscard]] QList<QPointer<Entity::CFirmwareUpdateEntity>> getSelectedCameraList() const;

    /// True when getSelectedCameraList() is not empty, without building the list.
    [[nodiscard]] bool hasSelectedCameras() const;

    /// Forgets which cameras are ticked; their nodes keep their ticks.
    void clearSelectedCamerasMap();

    /// Adds the numbers of cameras with each update result to the counters.
    void getModelStatistics(int &failed, int &successful, int &skipped) const;

    /// The same for @p node and all nodes below it.
    void getModelStatisticsRecursively(QPointer<Entity::CFirmwareUpdateEntity> node,
                                       QPointer<Entity::CFirmwareUpdateEntity> lastFailed,
                                       int &failed, int &successful, int &skipped) const;

    /// Announces a change of @p index and all rows below it, column 0 of each, parents first.
    void updateModelIndices(const QModelIndex &index, QVector<int> roles);

    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex index(int row, int column,
                                    const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &child) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Writes the tick (column 0 or 2), the selected firmware (4), the status (6) or the result
    /// (7); only with `Qt::EditRole`. A tick is not spread. A value that was there already is
    /// announced like a new one.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

private:
    void initializeModel();
    void beginRebuild();
    void addTransportLayer(const Plugin::CameraPool::TransportLayerInfoPtr &transportLayer);
    void spreadCameraSelection(Entity::CFirmwareUpdateEntity *camera);
    void spreadGroupSelection(Entity::CFirmwareUpdateEntity *group);
    void writeByModelName(const QPointer<Entity::CFirmwareUpdateEntity> &node,
                          const QString &modelName, int column, bool value);
    void announceRows(const QModelIndex &index, const QVector<int> &roles);
    [[nodiscard]] Entity::CFirmwareUpdateEntity *getNode(const QModelIndex &index) const;

    QPointer<Entity::CFirmwareUpdateEntity> m_root;
    QList<QVariant> m_headerList;
    QMap<QString, QPointer<Entity::CFirmwareUpdateEntity>> m_selectedCameras;
    mutable CCameraIndex m_cameraIndex;
};

} // namespace Plugin::FirmwareUpdater::Internal::Model
