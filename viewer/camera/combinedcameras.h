#pragma once

#include "icameradevicefactory.h"
#include "icameraenumerator.h"

#include <QVector>

namespace Viewer::Camera {

/// Several kinds of cameras as one: their transport layers stand one kind behind the other.
class CCombinedCameras : public ICameraDeviceFactory, public ICameraEnumerator
{
public:
    /// Adds a kind of cameras, which is borrowed and outlives this object, before the first other
    /// call.
    template <typename Cameras>
    void add(Cameras &cameras)
    {
        m_factories.append(&cameras);
        m_enumerators.append(&cameras);
    }

    // ICameraDeviceFactory
    [[nodiscard]] std::unique_ptr<ICameraDevice> createDevice(const QString &cameraId) override;

    // ICameraEnumerator
    [[nodiscard]] QVector<CTransportLayerSnapshot> enumerate() override;
    void cancel() override;

private:
    QVector<ICameraDeviceFactory *> m_factories;
    QVector<ICameraEnumerator *> m_enumerators;
};

} // namespace Viewer::Camera
