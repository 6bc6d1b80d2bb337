#pragma once

#include <QByteArray>

namespace VirtualCamera {

/// A ZIP archive of one file called @p name: @p content, filled up with blanks to @p size bytes,
/// which is below 4 GiB. Costs no more than the packed bytes, however many blanks there are. The
/// archive is a whole number of words long.
[[nodiscard]] QByteArray makeZip(const QByteArray &name, const QByteArray &content, qint64 size);

} // namespace VirtualCamera
