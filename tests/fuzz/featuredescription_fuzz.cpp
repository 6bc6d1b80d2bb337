#include "fuzztarget.h"
#include "viewer/camera/genicam/featuredescription.h"

using namespace Viewer::Camera::GenICam;

/// Whatever a camera has for a description, it is judged in one line.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = Fuzz::toBytes(data, size);
    for (const CDescriptionPlace &place :
         {readDescriptionPlace(bytes), readManifestEntry(bytes.left(MANIFEST_SIZE))})
        Fuzz::require(place.fault.isEmpty()
                          ? place.size > 0 && place.size <= MAXIMUM_PACKED_DESCRIPTION
                          : Fuzz::isReadable(place.fault.getEnglish()));
    for (const bool isPacked : {false, true}) {
        const Viewer::Text::CErrorText fault = findDescriptionFault(bytes, isPacked);
        Fuzz::require(fault.isEmpty() || Fuzz::isReadable(fault.getEnglish()));
    }
    return 0;
}
