#pragma once

#include "camerasnapshot.h"

#include <QObject>
#include <QVector>

namespace Viewer::CameraPool {

class ICameraEnumerator;

/// Enumerates on the thread it lives in.
class CEnumerationWorker : public QObject
{
    Q_OBJECT

public:
    /// @p enumerator is borrowed and outlives the worker's thread.
    explicit CEnumerationWorker(ICameraEnumerator &enumerator);

public slots:
    void onRequested();

signals:
    void enumerated(const QVector<Viewer::CameraPool::CTransportLayerSnapshot> &layers);

private:
    ICameraEnumerator &m_enumerator;
};

} // namespace Viewer::CameraPool
