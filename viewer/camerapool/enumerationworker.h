#pragma once

#include "viewer/camera/camerasnapshot.h"

#include <QObject>
#include <QVector>

#include <mutex>

namespace Viewer::Camera {
class ICameraEnumerator;
}

namespace Viewer::CameraPool {

/// Enumerates on the thread it lives in.
class CEnumerationWorker : public QObject
{
    Q_OBJECT

public:
    /// @p enumerator is borrowed and outlives the worker's thread.
    explicit CEnumerationWorker(Camera::ICameraEnumerator &enumerator);

    /// What the last enumeration found; nothing when it has been taken already. Any thread.
    [[nodiscard]] QVector<Camera::CTransportLayerSnapshot> takeResult();

public slots:
    void onRequested();

signals:
    /// A result can be taken.
    void enumerated();

private:
    Camera::ICameraEnumerator &m_enumerator;
    std::mutex m_mutex;
    QVector<Camera::CTransportLayerSnapshot> m_result;
};

} // namespace Viewer::CameraPool
