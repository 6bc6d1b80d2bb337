#pragma once

#include "camerasettings.h"
#include "gvcp.h"
#include "imagestream.h"

#include <memory>

namespace VirtualCamera {

class CRegisters;
class ICameraObserver;

/// What the registers of image format, acquisition and stream channel do.
class CAcquisition
{
public:
    /// All of it is borrowed.
    CAcquisition(const CCameraSettings &settings, CRegisters &registers, ICameraObserver &observer,
                 IImageStream &stream);

    /// Gives the registers the values that they have after a start of the camera.
    void setUp();

    /// Whether the register at @p address, which is within its limits, may be set to @p value now.
    /// Success for registers that mean nothing here.
    [[nodiscard]] Gvcp::EStatus check(quint32 address, quint32 value) const;

    /// Does what it means that the register at @p address has been set.
    void onWritten(quint32 address);

    /// Does what is commanded by a write to @p address.
    void execute(quint32 address, Time now);

    /// Ends an acquisition in the middle of its frame, and closes the stream channel: its owner has
    /// gone.
    void abort();

    [[nodiscard]] bool isAcquiring() const { return m_stream.isAcquiring(); }

private:
    void setUpStreamChannel();
    [[nodiscard]] bool isLocked() const;
    [[nodiscard]] std::shared_ptr<const CPicture> makePicture() const;
    void start(Time now);

    const CCameraSettings &m_settings;
    CRegisters &m_registers;
    ICameraObserver &m_observer;
    IImageStream &m_stream;
};

} // namespace VirtualCamera
