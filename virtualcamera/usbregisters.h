#pragma once

#include <QtGlobal>

namespace VirtualCamera {

class CRegisters;
struct CFeatureDescription;

/// Fills in the bootstrap registers of USB3 Vision but the texts: which camera it is.
void setUpUsbRegisters(CRegisters &registers, const CFeatureDescription &description);

/// Whether the host may write the word at @p address, which is one of the bootstrap registers'.
[[nodiscard]] bool isUsbRegisterWritable(quint32 address);

} // namespace VirtualCamera
