#pragma once

#include "viewer/camera/featureinfo.h"

#include <QStringList>
#include <QVector>

#include <arv.h>
#include <functional>

namespace Viewer::Camera::GenICam {

/// The features called @p names that the open camera has, or, without names, all those in its tree
/// of categories. Reads each of them from the camera: what cannot be read has no value.
/// @p isStreaming: images come from it. @p pause is called between two of them. The thread that
/// owns the @p device.
[[nodiscard]] QVector<CFeatureInfo> listFeatures(ArvDevice *device, const QStringList &names,
                                                 bool isStreaming,
                                                 const std::function<void()> &pause);

} // namespace Viewer::Camera::GenICam
