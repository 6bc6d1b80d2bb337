#pragma once

#include <QtGlobal>

namespace VirtualCamera {

/// Whether the register at @p address may be set to @p value, whatever the description tells of
/// the feature behind it. True for a register without limits.
[[nodiscard]] bool isWithinLimits(quint32 address, quint32 value);

} // namespace VirtualCamera
