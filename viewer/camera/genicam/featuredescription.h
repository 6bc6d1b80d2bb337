#pragma once

#include "viewer/text/errortext.h"

#include <QByteArray>

namespace Viewer::Camera::GenICam {

/// Bytes of a description as it lies in the camera, and unpacked. Real ones have some hundred
/// kilobytes and a few megabytes.
inline constexpr qint64 MAXIMUM_PACKED_DESCRIPTION = 16 * 1024 * 1024;
inline constexpr qint64 MAXIMUM_DESCRIPTION = 64 * 1024 * 1024;

/// Where in its own memory a camera keeps the description of its features.
struct CDescriptionPlace
{
    quint64 address = 0;
    qint64 size = 0; ///< from 1 to MAXIMUM_PACKED_DESCRIPTION
    bool isPacked = false; ///< in a ZIP archive
    Text::CErrorText fault; ///< why the description may not be read; empty: the rest is valid
};

/// Understands the address that a camera gives for its description, @p url up to its first NUL. An
/// address of a file of this computer or of the network is a fault. Any thread.
[[nodiscard]] CDescriptionPlace readDescriptionPlace(const QByteArray &url);

/// Bytes of an entry of the table in which a USB3 Vision camera says the same.
inline constexpr int MANIFEST_SIZE = 64;

/// Understands @p entry of that table, of which nothing is left where the table has none. Any
/// thread.
[[nodiscard]] CDescriptionPlace readManifestEntry(const QByteArray &entry);

/// Why the library must not be given a description: it trusts it, follows references for ever and
/// unpacks whatever there is. @p file is what lies in the camera, @p isPacked as the place says.
/// Empty: it may have it. Any thread.
[[nodiscard]] Text::CErrorText findDescriptionFault(const QByteArray &file, bool isPacked);

} // namespace Viewer::Camera::GenICam
