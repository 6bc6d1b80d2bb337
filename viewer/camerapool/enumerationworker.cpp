#include "enumerationworker.h"

#include "viewer/camera/icameraenumerator.h"

#include <utility>

namespace Viewer::CameraPool {

CEnumerationWorker::CEnumerationWorker(Camera::ICameraEnumerator &enumerator)
    : m_enumerator(enumerator)
{
}

void CEnumerationWorker::onRequested()
{
    const QVector<Camera::CTransportLayerSnapshot> layers = m_enumerator.enumerate();
    {
        const std::lock_guard lock(m_mutex);
        m_result = layers;
    }
    emit enumerated();
}

QVector<Camera::CTransportLayerSnapshot> CEnumerationWorker::takeResult()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_result, {});
}

} // namespace Viewer::CameraPool
