#pragma once

#include <QCborMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace Viewer::Camera {

/// A feature of a camera as it is now, for showing and changing it. Texts are the camera's own.
struct CFeatureInfo
{
    enum class EKind { Text, Integer, Float, Enumeration, Boolean, Command, Other };

    QString name;
    QString displayName; ///< may be empty
    QString category; ///< those above it, with " / " between them; may be empty
    QString unit; ///< may be empty
    EKind kind = EKind::Other;
    bool isReadable = false; ///< now
    bool isWritable = false; ///< now; of a command: it can be executed
    QString value; ///< as ICameraDevice::readFeature() has it; empty if it is not readable
    double minimum = 0; ///< Integer and Float
    double maximum = 0;
    double increment = 0; ///< 0: any value between
    QStringList choices; ///< Enumeration: those that the camera takes now

    [[nodiscard]] QCborMap toCbor() const;

    /// Nothing: @p map is no feature.
    [[nodiscard]] static std::optional<CFeatureInfo> fromCbor(const QCborMap &map);
};

} // namespace Viewer::Camera
