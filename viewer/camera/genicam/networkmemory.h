#pragma once

#include "memoryreader.h"

#include <QHostAddress>
#include <QUdpSocket>

namespace Viewer::Camera::GenICam {

/// The memory of a GigE Vision camera, by plain datagrams: without control over it, which leaves a
/// camera that is in use undisturbed.
class CNetworkMemory : public CMemoryReader
{
public:
    /// Nothing is sent yet.
    CNetworkMemory(const QHostAddress &camera, const QDeadlineTimer &deadline);

    [[nodiscard]] CDescriptionPlace findDescription() override;

private:
    void send(const CRequest &request, const QDeadlineTimer &deadline) override;
    [[nodiscard]] std::optional<CAnswer> receive(const QDeadlineTimer &deadline) override;

    QUdpSocket m_socket;
};

} // namespace Viewer::Camera::GenICam
