#pragma once

#include <QByteArray>
#include <QStringList>

namespace Test {

/// Writes an update file for the model "VX-1400M" with one entry for each of @p versions. Each has
/// every kind of step, all but the upload with an estimate (63 ms together), and a payload
/// "firmware-<version>.img" of @p imageSize bytes that simulated cameras take for a firmware image.
void writeUpdateFile(const QString &path, const QStringList &versions, int imageSize);

} // namespace Test
