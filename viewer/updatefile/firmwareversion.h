#pragma once

#include "camerapool/efirmwareupdatedirection.h"

#include <QString>
#include <QVersionNumber>

#include <optional>

namespace Viewer::UpdateFile {

/// A firmware version: numbers separated by dots, then an optional suffix, as in "2.0.0-rc1".
/// Segments of value zero at the end do not count, so "2.0" equals "2.0.0". A suffix that begins
/// with a hyphen marks a version from before the release itself, any other one a version from after
/// it; runs of digits within suffixes compare as numbers. A value; any thread.
class CFirmwareVersion
{
public:
    /// Nothing when @p text does not begin with a number, or when its suffix begins with anything
    /// but a letter, a hyphen, a plus sign, an underscore or a space. Surrounding white space is
    /// ignored.
    [[nodiscard]] static std::optional<CFirmwareVersion> parse(const QString &text);

    /// Less than, equal to or greater than 0 as the left version is older than, equal to or newer
    /// than the right one.
    [[nodiscard]] static int compare(const CFirmwareVersion &left, const CFirmwareVersion &right);

private:
    QVersionNumber m_number;
    QString m_suffix;
};

inline bool operator==(const CFirmwareVersion &left, const CFirmwareVersion &right)
{
    return CFirmwareVersion::compare(left, right) == 0;
}

inline bool operator!=(const CFirmwareVersion &left, const CFirmwareVersion &right)
{
    return !(left == right);
}

inline bool operator<(const CFirmwareVersion &left, const CFirmwareVersion &right)
{
    return CFirmwareVersion::compare(left, right) < 0;
}

inline bool operator>(const CFirmwareVersion &left, const CFirmwareVersion &right)
{
    return right < left;
}

inline bool operator<=(const CFirmwareVersion &left, const CFirmwareVersion &right)
{
    return !(right < left);
}

inline bool operator>=(const CFirmwareVersion &left, const CFirmwareVersion &right)
{
    return !(left < right);
}

/// True when both texts name the same version. An unreadable text equals only itself.
[[nodiscard]] bool isSameVersion(const QString &left, const QString &right);

/// What installing @p target does to a camera that has @p current. An unreadable version is never
/// the newer one: an unreadable target makes a downgrade, an unreadable current version an upgrade.
[[nodiscard]] Plugin::CameraPool::EFirmwareUpdateDirection getDirection(const QString &current,
                                                                        const QString &target);

/// True when @p current cannot be shown to be at least @p minimum: it is older, or one of the two
/// is unreadable and they are not the same text. An empty @p minimum asks for nothing.
[[nodiscard]] bool isBelow(const QString &current, const QString &minimum);

} // namespace Viewer::UpdateFile
