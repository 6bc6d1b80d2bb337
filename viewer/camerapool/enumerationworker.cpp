#include "enumerationworker.h"

#include "icameraenumerator.h"

#include <utility>

namespace Viewer::CameraPool {

CEnumerationWorker::CEnumerationWorker(ICameraEnumerator &enumerator)
    : m_enumerator(enumerator)
{
}

void CEnumerationWorker::onRequested()
{
    const QVector<CTransportLayerSnapshot> layers = m_enumerator.enumerate();
    {
        const std::lock_guard lock(m_mutex);
        m_result = layers;
    }
    emit enumerated();
}

QVector<CTransportLayerSnapshot> CEnumerationWorker::takeResult()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_result, {});
}

} // namespace Viewer::CameraPool
