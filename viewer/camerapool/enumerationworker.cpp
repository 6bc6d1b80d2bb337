#include "enumerationworker.h"

#include "icameraenumerator.h"

namespace Viewer::CameraPool {

CEnumerationWorker::CEnumerationWorker(ICameraEnumerator &enumerator)
    : m_enumerator(enumerator)
{
}

void CEnumerationWorker::onRequested()
{
    emit enumerated(m_enumerator.enumerate());
}

} // namespace Viewer::CameraPool
