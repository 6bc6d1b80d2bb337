#pragma once

#include "camerapool/efirmwareupdatedirection.h"
#include "camerapool/icamerainfo.h"
#include "camerapool/idevicefirmwareupdate.h"
#include "camerapool/itransportlayerinfo.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>
#include <QVector>

namespace Plugin::FirmwareUpdater::Internal::Entity {

/// One node of the update tree: a transport layer, a camera model group or a camera. The QObject
/// parent is the parent node and owns the node. GUI thread only.
class CFirmwareUpdateEntity : public QObject
{
    Q_OBJECT

public:
    /// The values of a node. A number is at once a column of the tree model and the role that a
    /// change of the value is announced with; Enabled is a role alone.
    enum ECameraUpdateModelRole {
        DisplayName = 0,
        Id = 1,
        SelectionStatus = 2,
        CurrentFirmware = 3,
        SelectedFirmware = 4,
        UpdateDetails = 5,
        UpdateStatus = 6,
        UpdateResult = 7,
        Enabled = 8,
    };
    Q_ENUM(ECameraUpdateModelRole)

    enum class EFirmwareUpdateStatus {
        Waiting = 0,
        Updating = 1,
        Complete = 2,
    };
    Q_ENUM(EFirmwareUpdateStatus)

    enum class EFirmwareUpdateResult {
        OK = 0,
        Failed = 1,
        Skipped = 2,
    };
    Q_ENUM(EFirmwareUpdateResult)

    enum class EFirmwareUpdateEntityType {
        TransportLayer = 0,
        CameraType = 1,
        CameraDevice = 2,
    };
    Q_ENUM(EFirmwareUpdateEntityType)

    Q_PROPERTY(EFirmwareUpdateEntityType entityType READ getEntityType WRITE setEntityType NOTIFY
                   entityTypeChanged)
    Q_PROPERTY(
        Plugin::CameraPool::TransportLayerInfoPtr ptrTransportLayerInfo READ getTransportLayerInfo
            WRITE setTransportLayerInfo NOTIFY transportLayerInfoChanged)
    Q_PROPERTY(Plugin::CameraPool::CameraInfoPtr ptrCameraInfo READ getCameraInfo WRITE
                   setCameraInfo NOTIFY cameraInfoChanged)
    Q_PROPERTY(bool selected READ isSelected WRITE setSelected NOTIFY selectedChanged)
    Q_PROPERTY(QString selectedFirmware READ getSelectedFirmware WRITE setSelectedFirmware NOTIFY
                   selectedFirmwareChanged)
    Q_PROPERTY(Plugin::CameraPool::EFirmwareUpdateDirection updateDetails READ getUpdateDetails
                   WRITE setUpdateDetails NOTIFY updateDetailsChanged)
    Q_PROPERTY(EFirmwareUpdateStatus updateStatus READ getUpdateStatus WRITE setUpdateStatus NOTIFY
                   updateStatusChanged)
    Q_PROPERTY(EFirmwareUpdateResult updateResult READ getUpdateResult WRITE setUpdateResult NOTIFY
                   updateResultChanged)
    Q_PROPERTY(bool enabled READ isEnabled WRITE setEnabled NOTIFY enabledChanged)
    Q_PROPERTY(Plugin::CameraPool::DeviceFirmwareUpdatePtr ptrDeviceFirmwareUpdate READ
                   getDeviceFirmwareUpdate WRITE setDeviceFirmwareUpdate NOTIFY
                       deviceFirmwareUpdateChanged)
    Q_PROPERTY(QVector<QPointer<CFirmwareUpdateEntity>> children READ getChildren WRITE setChildren
                   NOTIFY childrenChanged)

    /// Number of values that have a column.
    static constexpr int COLUMN_COUNT = 8;

    /// A fresh node below @p parent, or without a parent when that is null. The parent owns the
    /// node but does not list it among its children: addChildEntity() does.
    explicit CFirmwareUpdateEntity(QPointer<CFirmwareUpdateEntity> parent = {});

    /// A node of kind @p type below @p parent, which may be null, like the one above. What it
    /// stands for, @p transportLayer and @p camera, may be null as well.
    CFirmwareUpdateEntity(EFirmwareUpdateEntityType type,
                          const Plugin::CameraPool::TransportLayerInfoPtr &transportLayer,
                          const Plugin::CameraPool::CameraInfoPtr &camera,
                          CFirmwareUpdateEntity *parent);

    /// A parentless node with @p other's values, but without its children and its update job.
    CFirmwareUpdateEntity(const CFirmwareUpdateEntity &other);

    /// Takes over @p other's values silently; children and update job stay as they are.
    CFirmwareUpdateEntity &operator=(const CFirmwareUpdateEntity &other);

    ~CFirmwareUpdateEntity() override;

    /// True when both nodes have the same parent, whatever their values: no test of identity or
    /// content. Kept on purpose.
    bool operator==(const CFirmwareUpdateEntity &other) const;

    /// Yields what operator==() yields, not its opposite. Kept on purpose.
    bool operator!=(const CFirmwareUpdateEntity &other) const;

    /// Makes the types that travel in the properties known to Qt. Every node does so by itself.
    static void registerMetaTypes();

    /// A number that grows with every change, in whatever tree, of what a search for a camera looks
    /// at: kind, camera, transport layer and children of the nodes. A node's death counts as well.
    [[nodiscard]] static quint64 getTreeRevision();

    /// Appends @p child and becomes its parent; does nothing when it is listed already.
    void addChildEntity(QPointer<CFirmwareUpdateEntity> child);

    /// The child at @p row, or null when there is none or it has died.
    [[nodiscard]] QPointer<CFirmwareUpdateEntity> getChildEntity(int row) const;

    /// Number of listed children; those that have died count as well.
    [[nodiscard]] int getChildCount() const;

    [[nodiscard]] int getColumnCount() const;

    /// Place among the parent's children; 0 without a parent, -1 when the parent does not list the
    /// node.
    [[nodiscard]] int getRow() const;

    /// The value that column @p column shows; invalid where the kind of node has none.
    [[nodiscard]] QVariant getData(int column) const;

    [[nodiscard]] const Plugin::CameraPool::CameraInfoPtr &getCameraInfo() const;
    [[nodiscard]] bool isSelected() const;
    [[nodiscard]] Plugin::CameraPool::EFirmwareUpdateDirection getUpdateDetails() const;
    [[nodiscard]] EFirmwareUpdateStatus getUpdateStatus() const;
    [[nodiscard]] EFirmwareUpdateResult getUpdateResult() const;
    [[nodiscard]] QString getSelectedFirmware() const;
    [[nodiscard]] EFirmwareUpdateEntityType getEntityType() const;
    [[nodiscard]] const Plugin::CameraPool::TransportLayerInfoPtr &getTransportLayerInfo() const;
    [[nodiscard]] bool isEnabled() const;
    [[nodiscard]] Plugin::CameraPool::DeviceFirmwareUpdatePtr getDeviceFirmwareUpdate() const;
    [[nodiscard]] const QVector<QPointer<CFirmwareUpdateEntity>> &getChildren() const;

signals:
    // The enumerations are spelt in full: under these names Qt knows their types.
    void cameraInfoChanged(Plugin::CameraPool::CameraInfoPtr ptrCameraInfo);
    void selectedChanged(bool selected);
    void updateDetailsChanged(Plugin::CameraPool::EFirmwareUpdateDirection updateDetails);
    void updateStatusChanged(
        Plugin::FirmwareUpdater::Internal::Entity::CFirmwareUpdateEntity::EFirmwareUpdateStatus
            updateStatus);
    void updateResultChanged(
        Plugin::FirmwareUpdater::Internal::Entity::CFirmwareUpdateEntity::EFirmwareUpdateResult
            updateResult);
    void selectedFirmwareChanged(QString selectedFirmware);
    void entityTypeChanged(
        Plugin::FirmwareUpdater::Internal::Entity::CFirmwareUpdateEntity::EFirmwareUpdateEntityType
            entityType);
    void transportLayerInfoChanged(Plugin::CameraPool::TransportLayerInfoPtr ptrTransportLayerInfo);
    void enabledChanged(bool enabled);
    void deviceFirmwareUpdateChanged(
        Plugin::CameraPool::DeviceFirmwareUpdatePtr ptrDeviceFirmwareUpdate);
    void childrenChanged(QVector<QPointer<CFirmwareUpdateEntity>> children);

public slots:
    void setCameraInfo(Plugin::CameraPool::CameraInfoPtr ptrCameraInfo);
    void setSelected(bool selected);
    void setUpdateDetails(Plugin::CameraPool::EFirmwareUpdateDirection updateDetails);
    void setUpdateStatus(EFirmwareUpdateStatus updateStatus);
    void setUpdateResult(EFirmwareUpdateResult updateResult);
    void setSelectedFirmware(QString selectedFirmware);
    void setEntityType(EFirmwareUpdateEntityType entityType);
    void setTransportLayerInfo(Plugin::CameraPool::TransportLayerInfoPtr ptrTransportLayerInfo);
    void setEnabled(bool enabled);
    void
    setDeviceFirmwareUpdate(Plugin::CameraPool::DeviceFirmwareUpdatePtr ptrDeviceFirmwareUpdate);

    /// Replaces the list of children; their QObject parents stay.
    void setChildren(QVector<QPointer<CFirmwareUpdateEntity>> children);

private:
    [[nodiscard]] QVariant getDisplayName() const;
    [[nodiscard]] QVariant getId() const;
    [[nodiscard]] QVariant getCurrentFirmware() const;

    [[nodiscard]] int findRow(const CFirmwareUpdateEntity *child) const;
    [[nodiscard]] bool isListedAt(int row, const CFirmwareUpdateEntity *child) const;

    Plugin::CameraPool::CameraInfoPtr m_ptrCameraInfo;
    bool m_selected = false;
    Plugin::CameraPool::EFirmwareUpdateDirection m_updateDetails
        = Plugin::CameraPool::EFirmwareUpdateDirection::Invalid;
    EFirmwareUpdateStatus m_updateStatus = EFirmwareUpdateStatus::Waiting;
    EFirmwareUpdateResult m_updateResult = EFirmwareUpdateResult::Skipped;
    QString m_selectedFirmware;
    EFirmwareUpdateEntityType m_entityType = EFirmwareUpdateEntityType::TransportLayer;
    Plugin::CameraPool::TransportLayerInfoPtr m_ptrTransportLayerInfo;
    QVector<QPointer<CFirmwareUpdateEntity>> m_children;
    bool m_enabled = true;

    /// Where this node stood when it was last listed as a child; -1 for one that never was. Finding
    /// a row so needs no search. It fills a gap here: nodes are many.
    int m_row = -1;

    Plugin::CameraPool::DeviceFirmwareUpdatePtr m_ptrDeviceFirmwareUpdate;

    /// Rows of the listed children, filled only once a child's own m_row turns out to be of another
    /// list. The address of a dead child may have been taken by another node.
    mutable QHash<const CFirmwareUpdateEntity *, int> m_rows;

    static quint64 s_treeRevision;
};

} // namespace Plugin::FirmwareUpdater::Internal::Entity
