#include "fuzztarget.h"
#include "viewer/updatefile/manifestparser.h"

using namespace Viewer::UpdateFile;

/// Whatever the bytes are, there is either a manifest that can be used or one line that says why
/// not.
static bool isSound(const CManifestResult &result)
{
    if (!result.fault.isEmpty())
        return result.manifest.updates.isEmpty() && Fuzz::isReadable(result.fault.getEnglish());
    for (const CUpdateEntry &update : result.manifest.updates) {
        if (update.models.isEmpty() || update.steps.isEmpty() || update.version.isEmpty())
            return false;
    }
    return !result.manifest.updates.isEmpty();
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Fuzz::require(isSound(parseManifest(Fuzz::toBytes(data, size))));
    return 0;
}
