#pragma once

#include "core/iservice.h"
#include "itransportlayerinfo.h"

#include <QVector>

namespace Plugin::CameraPool {

/// Finds the cameras that are there.
class HOSTAPI_EXPORT ICameraEnumerationService : public Core::Service::IService
{
    Q_OBJECT

public:
    explicit ICameraEnumerationService(QObject *parent = nullptr);
    ~ICameraEnumerationService() override;

    /// The current result. GUI thread; quick.
    [[nodiscard]] virtual QVector<QSharedPointer<Plugin::CameraPool::ITransportLayerInfo>>
    getTransportLayerInfoVector() const = 0;

    /// Asks for a new enumeration and returns at once; enumerationChanged() brings the result, also
    /// an unchanged one.
    virtual void refreshEnumeration() = 0;

signals:
    /// The result has changed and is already in place. Emitted on the GUI thread; not while a
    /// firmware update runs, and otherwise only when something did change.
    void enumerationChanged();
};

} // namespace Plugin::CameraPool
