#include "fuzztarget.h"
#include "viewer/camera/genicam/unicastdiscovery.h"

using namespace Viewer::Camera::GenICam;

/// Whatever comes back from the network, a camera's words fit on one line, and are no longer than
/// the protocol lets them be.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto camera
        = readDiscoveryAnswer(Fuzz::toBytes(data, size), QHostAddress(QHostAddress::LocalHost));
    if (!camera)
        return 0;
    Fuzz::require(size == 256 && camera->address == "127.0.0.1");
    for (const QString &text :
         {camera->vendor, camera->model, camera->version, camera->serialNumber, camera->userName})
        Fuzz::require(text.size() <= 32 && !Viewer::Text::hasUnprintable(text));
    Fuzz::require(Fuzz::isReadable(camera->getFullName())
                  && Fuzz::isReadable(camera->getIdentity()));
    return 0;
}
