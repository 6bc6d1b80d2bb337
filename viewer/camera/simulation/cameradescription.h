#pragma once

#include "viewer/camera/camerasnapshot.h"

#include <QCborMap>
#include <QString>
#include <QVector>

#include <optional>

namespace Viewer::Camera::Simulation {

/// What goes wrong on purpose when a simulated camera is updated.
struct CScriptedFaults
{
    bool preconditionNotMet = false; ///< asked over the wire, it says that it cannot be updated
    bool writeRefused = false; ///< refuses feature writes and uploads
    std::optional<qint64> uploadFailsAtByte; ///< breaks the upload off after so many bytes
    std::optional<qint64> vanishesAtByte; ///< is gone after so many bytes of an upload
    bool assertFails = false; ///< answers nonsense to reads after an upload
    bool neverReturnsFromReset = false;
    bool returnsLate = false; ///< takes five times as long to restart
    bool returnsWithOldVersion = false; ///< restarts, but with the firmware it had
};

struct CCameraDescriptionEntry
{
    CCameraSnapshot camera; ///< as it comes from the factory
    qint64 uploadSpeed = 0; ///< bytes per second, at least 1
    CScriptedFaults faults;

    /// For another process.
    [[nodiscard]] QCborMap toCbor() const;
    /// Nothing: not what toCbor() gives.
    [[nodiscard]] static std::optional<CCameraDescriptionEntry> fromCbor(const QCborMap &map);
};

struct CLayerDescription
{
    QString id;
    QString displayName;
    QVector<CCameraDescriptionEntry> cameras;
};

/// All simulated transport layers with their cameras, in the order of the file.
struct CCameraDescription
{
    QVector<CLayerDescription> layers;
};

} // namespace Viewer::Camera::Simulation
