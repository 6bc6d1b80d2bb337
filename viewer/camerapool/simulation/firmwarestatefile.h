#pragma once

#include <QHash>
#include <QString>

#include <mutex>

namespace Viewer::CameraPool::Simulation {

/// The file that remembers which firmware updates wrote into the simulated cameras: what flash
/// memory is to a real one. Any thread.
class CFirmwareStateFile
{
public:
    /// Reads the file. A missing one means that nothing was written yet. A damaged one is put aside
    /// as "<path>.damaged" with a warning, so that one bad file does not keep the viewer from
    /// starting. An empty @p path remembers nothing beyond this object's life.
    explicit CFirmwareStateFile(const QString &path);
    Q_DISABLE_COPY(CFirmwareStateFile)

    /// The version last written into the camera; empty: none.
    [[nodiscard]] QString getVersion(const QString &cameraId) const;

    /// Remembers the version. The file is replaced as a whole or not at all; when that fails there
    /// is a warning, since the update itself has succeeded.
    void setVersion(const QString &cameraId, const QString &version);

    /// Forgets all versions.
    void clear();

private:
    void load();
    void save();

    const QString m_path;
    mutable std::mutex m_mutex; // held while writing too, so that the newest state is the last one
    QHash<QString, QString> m_versions;
};

} // namespace Viewer::CameraPool::Simulation
