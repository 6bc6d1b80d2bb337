#pragma once

#include <QHash>
#include <QString>

#include <chrono>
#include <mutex>

namespace Viewer::Camera::Simulation {

/// The file that remembers which firmware updates wrote into the simulated cameras: what flash
/// memory is to a real one. Several viewers may use one file at the same time: each writes what it
/// has to add to what the others wrote, under a lock of its own beside the file, "<path>.lock". Any
/// thread.
class CFirmwareStateFile
{
public:
    /// Reads the file. A missing one means that nothing was written yet. A damaged one is put aside
    /// as "<path>.damaged" with a warning, so that one bad file does not keep the viewer from
    /// starting. An empty @p path remembers nothing beyond this object's life. @p patience is how
    /// long setVersion() waits for another viewer.
    explicit CFirmwareStateFile(const QString &path,
                                std::chrono::milliseconds patience = std::chrono::seconds(5));
    Q_DISABLE_COPY(CFirmwareStateFile)

    /// The version last written into the camera, as far as this object knows; empty: none.
    [[nodiscard]] QString getVersion(const QString &cameraId) const;

    /// Remembers the version. The file is replaced as a whole or not at all; when that fails there
    /// is a warning, since the update itself has succeeded, and the next call tries to make up for
    /// it. Waits while another viewer writes, so it does not belong on the GUI thread.
    void setVersion(const QString &cameraId, const QString &version);

    /// Forgets all versions, also those that other viewers wrote.
    void clear();

private:
    using Versions = QHash<QString, QString>;

    [[nodiscard]] QString read(Versions &versions) const;
    void load();
    void save();
    void putAside(const QString &fault, bool locked) const;
    void warnAboutWriting(const QString &reason) const;

    const QString m_path;
    const std::chrono::milliseconds m_patience;
    mutable std::mutex m_mutex; // held while writing too, so that the newest state is the last one
    Versions m_versions; ///< as last read or written
    Versions m_unsaved; ///< what the file does not have yet
};

} // namespace Viewer::Camera::Simulation
