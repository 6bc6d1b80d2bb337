#pragma once

#include "acquisition.h"
#include "camerasettings.h"
#include "cameratime.h"
#include "featuredescription.h"
#include "firmwarefile.h"
#include "gvcp.h"
#include "registers.h"

#include <QByteArray>

#include <chrono>

namespace VirtualCamera {

class ICameraObserver;

/// The address space of a camera and what happens when it is written: features, file access,
/// firmware, acquisition. It knows nothing of datagrams, and takes the time from its caller.
class CCameraMemory
{
public:
    struct CWriteResult
    {
        Gvcp::EStatus status = Gvcp::EStatus::Success;
        std::chrono::milliseconds duration{0}; ///< until the camera has done what was asked
    };

    /// @p observer and @p stream are borrowed.
    CCameraMemory(const CCameraSettings &settings, ICameraObserver &observer, IImageStream &stream);

    /// Reads @p size bytes; both numbers are multiples of 4. On any other status than Success
    /// @p bytes is left alone. To read may change something: commands count who asks for their end.
    Gvcp::EStatus read(quint32 address, int size, Time now, QByteArray &bytes);

    /// Writes @p bytes, a multiple of 4 of them, all or nothing: only a command that fails, or a
    /// region that does not fit, comes too late for what was written in front of it.
    CWriteResult write(quint32 address, const QByteArray &bytes, Time now);

    /// The part of the memory that answers a discovery.
    [[nodiscard]] QByteArray getDiscoveryData() const;

    /// A bootstrap register of USB3 Vision.
    [[nodiscard]] quint32 getUsbRegister(quint32 address) const;

    /// The register shows who has control; the decision about it is not the memory's.
    void setControlPrivilege(quint32 value);
    [[nodiscard]] std::chrono::milliseconds getHeartbeatTimeout() const;

    /// Who had control has gone: what was uploaded to an open file is forgotten, acquisition ends.
    void abandon();

    /// True once a reset has been asked for.
    [[nodiscard]] bool isResetRequested() const;

    /// The camera goes away: firmware whose activation has not ended is not activated.
    void breakOff(Time now);

    /// The camera comes back from a reset: activated firmware takes effect, settings are lost.
    void restart();

    /// Bytes that have been written to the file so far, over all uploads.
    [[nodiscard]] qint64 getUploadedBytes() const;

    [[nodiscard]] const QByteArray &getModel() const { return m_model; }
    [[nodiscard]] const QByteArray &getSerialNumber() const { return m_serialNumber; }
    [[nodiscard]] const QByteArray &getFirmwareVersion() const { return m_firmwareVersion; }

private:
    /// Something that has been started and reads as running until it has ended.
    struct CRunning
    {
        Time end{0};
        int reads = 0; ///< that still find it running

        [[nodiscard]] bool hasEnded(Time now) const { return now >= end && reads == 0; }
    };

    void setUpBootstrap();
    void setUpEthernetBootstrap();
    void setUpUsbBootstrap();
    void setUpFeatures();
    [[nodiscard]] const QByteArray *findArea(quint32 address, int size, int &offset) const;
    [[nodiscard]] quint32 readFeatureWord(quint32 address, Time now);
    [[nodiscard]] static bool findRunning(CRunning &running, Time now);
    [[nodiscard]] bool isWritable(quint32 address) const;
    [[nodiscard]] bool isBootstrapWritable(quint32 address) const;
    [[nodiscard]] Gvcp::EStatus checkWord(quint32 address, quint32 value, Time now) const;

    CWriteResult writeWord(quint32 address, quint32 value, Time now);
    CWriteResult executeCommand(quint32 address, Time now);
    CWriteResult executeFileOperation();
    [[nodiscard]] bool runFileOperation(quint32 &result);
    [[nodiscard]] bool isRefused(const char *command) const;

    const CCameraSettings m_settings;
    ICameraObserver &m_observer;
    const CFeatureDescription m_description;
    CRegisters m_registers;
    CAcquisition m_acquisition;
    QByteArray m_buffer;
    CFirmwareFile m_file;
    CRunning m_operation; ///< of the file
    QByteArray m_model;
    QByteArray m_serialNumber;
    QByteArray m_firmwareVersion;
    QByteArray m_activatedVersion; ///< takes effect at the next reset; empty: none
    CRunning m_activation;
    qint64 m_uploadedBytes = 0;
    bool m_resetRequested = false;
};

} // namespace VirtualCamera
