#pragma once

#include "camerapool/itransportlayerinfo.h"
#include "viewer/camera/camerasnapshot.h"
#include "viewer/camera/ecameraactivity.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QIcon>
#include <QVector>

#include <functional>

namespace Viewer::CameraSelector {

/// The enumerated transport layers with their cameras, and what each camera is doing.
class CCameraSelectorModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum EColumn {
        NameColumn,
        ModelColumn,
        SerialNumberColumn,
        FirmwareColumn,
        IpAddressColumn,
        MacAddressColumn,
        StateColumn,
        ColumnCount
    };

    explicit CCameraSelectorModel(QObject *parent = nullptr);
    ~CCameraSelectorModel() override;

    /// What the viewer knows of a camera beyond the contract, by its id.
    using SnapshotFunction = std::function<Camera::CCameraSnapshot(const QString &cameraId)>;

    /// Before the first content.
    void setSnapshots(const SnapshotFunction &getSnapshot);

    /// Replaces the whole content; the activities stay.
    void setTransportLayers(const QVector<Plugin::CameraPool::TransportLayerInfoPtr> &layers);

    /// Shows @p activity for the camera @p cameraId, which need not be in the tree (yet).
    void setActivity(const QString &cameraId, Camera::ECameraActivity activity);

    /// The snapshot function tells something else of the state of the camera.
    void onSnapshotChanged(const QString &cameraId);

    /// The layer or camera at @p index; null for an invalid one.
    [[nodiscard]] QSharedPointer<Plugin::CameraPool::IBaseInfo>
    getInfo(const QModelIndex &index) const;

    /// The place of the layer or camera @p id; invalid when it is not there.
    [[nodiscard]] QModelIndex findId(const QString &id) const;

    [[nodiscard]] int getCameraCount() const;

    [[nodiscard]] QModelIndex index(int row, int column,
                                    const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &child) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    [[nodiscard]] QVariant getLayerData(int row, int column, int role) const;
    [[nodiscard]] QVariant getCameraData(const Plugin::CameraPool::CameraInfoPtr &camera,
                                         int column, int role) const;
    [[nodiscard]] QString getToolTip(const Plugin::CameraPool::ICameraInfo &camera) const;
    [[nodiscard]] QString getStateText(const Plugin::CameraPool::ICameraInfo &camera) const;
    [[nodiscard]] Plugin::CameraPool::CameraInfoPtr getCamera(const QModelIndex &index) const;

    const QIcon m_layerIcon;
    const QIcon m_cameraIcon;
    QVector<Plugin::CameraPool::TransportLayerInfoPtr> m_layers;
    QHash<QString, QPair<int, int>> m_places; ///< by id: row of the layer, row of the camera or -1
    QHash<QString, Camera::ECameraActivity> m_activities;
    SnapshotFunction m_getSnapshot;
    int m_cameraCount = 0;
};

} // namespace Viewer::CameraSelector
