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
    bool isLockedByImages = false; ///< not writable only because images come
    /// Empty if it is not readable. A number is in the C locale and has all its digits.
    QString value;
    double minimum = 0; ///< Float
    double maximum = 0;
    double increment = 0; ///< 0: any value between
    qint64 integerMinimum = 0; ///< Integer
    qint64 integerMaximum = 0;
    qint64 integerIncrement = 1; ///< at least 1
    QStringList choices; ///< Enumeration: those that the camera takes now

    /// Texts that are far too long are cut off.
    [[nodiscard]] QCborMap toCbor() const;

    /// The shortest text that means exactly @p number, be that of single or of double precision.
    [[nodiscard]] static QString toText(double number);

    /// Nothing: @p map is no feature.
    [[nodiscard]] static std::optional<CFeatureInfo> fromCbor(const QCborMap &map);
};

} // namespace Viewer::Camera
