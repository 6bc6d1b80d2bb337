#pragma once

namespace Plugin::CameraPool {

/// Names of the transport-layer types, as the camera pool reports them in its own texts.
constexpr const char *TLTypeGigE = "GEV";
constexpr const char *TLTypeUSB = "U3V";
constexpr const char *TLTypeIIDC = "IIDC";
constexpr const char *TLTypeLVXB = "LVXB";
constexpr const char *TLTypeCL = "CL";
constexpr const char *TLTypeCamEmu = "CamEmu";
constexpr const char *TLTypeIPCam = "IPCam";
constexpr const char *TLTypeCXP = "CXP";
constexpr const char *TLTypeCustom = "Custom";

} // namespace Plugin::CameraPool
