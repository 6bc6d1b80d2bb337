#pragma once

#include "edescription.h"

#include <QByteArray>

#include <optional>

namespace VirtualCamera {

struct CCameraSettings;

/// The description of a camera's features, and where the camera says that it is.
struct CFeatureDescription
{
    QByteArray url;
    QByteArray bytes; ///< filled up to a whole word
    int size = 0; ///< without what fills it up
    bool isPacked = false;
};

/// The description that @p settings ask for: XML by the schema of GenICam unless it is a faulty
/// one.
[[nodiscard]] CFeatureDescription makeFeatureDescription(const CCameraSettings &settings);

/// The kind of description that the command line calls @p name.
[[nodiscard]] std::optional<EDescription> findDescription(const QByteArray &name);

/// The names of all kinds, with a comma between two.
[[nodiscard]] QByteArray getDescriptionNames();

} // namespace VirtualCamera
