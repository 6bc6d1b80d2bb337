#include "viewer/camerapool/updatefile/manifestparser.h"
#include "viewer/json/messagetext.h"

#include <cstdint>
#include <cstdlib>

using namespace Viewer::CameraPool::UpdateFile;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

/// Whatever the bytes are, there is either a manifest that can be used or one line that says why
/// not.
static bool isSound(const CManifestResult &result)
{
    if (!result.fault.isEmpty())
        return result.manifest.updates.isEmpty()
            && !Viewer::Json::hasUnprintable(result.fault.getEnglish())
            && result.fault.getEnglish().size() < 1000;
    for (const CUpdateEntry &update : result.manifest.updates) {
        if (update.models.isEmpty() || update.steps.isEmpty() || update.version.isEmpty())
            return false;
    }
    return !result.manifest.updates.isEmpty();
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray json(reinterpret_cast<const char *>(data), static_cast<int>(size));
    if (!isSound(parseManifest(json)))
        std::abort();
    return 0;
}
