#include "fuzztarget.h"
#include "viewer/camera/simulation/cameradescriptionreader.h"

#include "core/baseexception.h"

#include <QSet>

using namespace Viewer::Camera::Simulation;

static bool isSound(const CCameraDescription &description)
{
    QSet<QString> ids;
    int count = 0;
    for (const CLayerDescription &layer : description.layers) {
        ids.insert(layer.id);
        count += 1 + layer.cameras.size();
        for (const CCameraDescriptionEntry &entry : layer.cameras) {
            ids.insert(entry.camera.id);
            if (entry.uploadSpeed < 1 || entry.camera.modelName.isEmpty())
                return false;
        }
    }
    return ids.size() == count && !ids.contains(QString());
}

/// Whatever the bytes are, there are either cameras that can be told apart or one line that says
/// what is wrong with their description.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    try {
        Fuzz::require(isSound(CCameraDescriptionReader::read(Fuzz::toBytes(data, size), "cams")));
    } catch (const Core::Exception::BaseException &exception) {
        Fuzz::require(Fuzz::isReadable(exception.getMessage()));
    }
    return 0;
}
