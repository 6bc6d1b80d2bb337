#pragma once

#include "icamerainfo.h"

#include <QVector>

namespace Plugin::CameraPool {

/// One enumerated transport layer with the cameras found on it.
class HOSTAPI_EXPORT ITransportLayerInfo : public IBaseInfo
{
    Q_OBJECT

public:
    explicit ITransportLayerInfo(QObject *parent = nullptr);
    ~ITransportLayerInfo() override;

    /// The cameras in the order in which they were found, possibly none, never null ones. The
    /// reference is valid as long as this object.
    [[nodiscard]] virtual const QVector<QSharedPointer<Plugin::CameraPool::ICameraInfo>> &
    getCameraInfoList() const = 0;
};

using TransportLayerInfoPtr = QSharedPointer<Plugin::CameraPool::ITransportLayerInfo>;

} // namespace Plugin::CameraPool
