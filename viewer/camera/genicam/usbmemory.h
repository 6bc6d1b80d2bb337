#pragma once

#include "memoryreader.h"
#include "usbsearch.h"

namespace Viewer::Camera::GenICam {

/// The memory of a USB3 Vision camera, through its control channel, which belongs to this object as
/// long as that lives: the library, too, can have it only afterwards.
class CUsbMemory : public CMemoryReader
{
public:
    /// Takes the control channel and clears it from what a program before may have left there.
    /// Throws CFeatureError when the camera is away, or when another program uses it, which is left
    /// alone.
    CUsbMemory(const CUsbControl &control, const QDeadlineTimer &deadline);
    ~CUsbMemory() override;

    [[nodiscard]] CDescriptionPlace findDescription() override;

private:
    void send(const CRequest &request, const QDeadlineTimer &deadline) override;
    [[nodiscard]] std::optional<CAnswer> receive(const QDeadlineTimer &deadline) override;

    /// The bytes that went to or came from @p endpoint; nothing: it did not work.
    [[nodiscard]] std::optional<int> transfer(quint8 endpoint, QByteArray &bytes,
                                              const QDeadlineTimer &deadline);
    void clear(quint8 endpoint);

    const CUsbControl m_control;
    const int m_descriptor;
};

} // namespace Viewer::Camera::GenICam
