#pragma once

#include "camerakinds.h"

#include "viewer/stream/streamtask.h"

namespace TestSupport {

/// For the images of the first camera that is found with a program's @p arguments; its kind is
/// empty where there is none.
inline Viewer::Stream::CStreamTask makeStreamTask(const QStringList &arguments)
{
    for (const auto &kind : makeCameraKinds(arguments)) {
        kind->start();
        const auto layers = kind->enumerate();
        for (const auto &layer : layers) {
            if (!layer.cameras.isEmpty())
                return {kind->getName(), kind->createHandle(layer.cameras.first().id)->describe(),
                        "en"};
        }
    }
    return {};
}

} // namespace TestSupport
