#pragma once

#include "featuredescription.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QHostAddress>
#include <QUdpSocket>

namespace Viewer::Camera::GenICam {

/// Reads the memory of one camera by plain datagrams: without control over it, which leaves a
/// camera that is in use undisturbed, and without the library, which would believe what it reads.
class CMemoryReader
{
public:
    /// Nothing is sent yet. All reading ends when @p deadline does.
    CMemoryReader(const QHostAddress &camera, const QDeadlineTimer &deadline);
    ~CMemoryReader();
    Q_DISABLE_COPY(CMemoryReader)

    /// The @p size bytes from @p address on. Blocks; throws CFeatureError when the camera refuses
    /// or does not answer in time.
    [[nodiscard]] QByteArray read(quint64 address, qint64 size);

private:
    [[nodiscard]] QByteArray readBlock(quint32 address, quint16 size);
    [[nodiscard]] QByteArray waitForAnswer(const QDeadlineTimer &deadline);

    QUdpSocket m_socket;
    const QDeadlineTimer m_deadline;
    quint16 m_id = 0;
};

/// Throws CFeatureError when the description of @p camera's features must not be given to the
/// library. Blocks until @p deadline at most; any thread.
void checkFeatureDescription(const QHostAddress &camera, const QDeadlineTimer &deadline);

} // namespace Viewer::Camera::GenICam
