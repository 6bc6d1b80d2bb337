#include "networksearch.h"

#include "glibpointers.h"
#include "unicastdiscovery.h"

#include "viewer/text/visibletext.h"

#include <csignal>
#include <thread>

namespace Viewer::Camera::GenICam {

static QString toText(const char *text)
{
    return Text::toSingleLine(QString::fromUtf8(text).simplified());
}

static CFoundCamera readCamera(ArvInterface *interface, unsigned int index, ETransport transport)
{
    CFoundCamera camera;
    camera.transport = transport;
    if (transport == ETransport::Ethernet)
        camera.address = toText(arv_interface_get_device_address(interface, index));
    else // on Ethernet the camera is asked again, and tells more
        camera.hardwareAddress = toText(arv_interface_get_device_physical_id(interface, index));
    camera.vendor = toText(arv_interface_get_device_vendor(interface, index));
    camera.model = toText(arv_interface_get_device_model(interface, index));
    camera.serialNumber = toText(arv_interface_get_device_serial_nbr(interface, index));
    return camera;
}

static QVector<CFoundCamera> search(ArvInterface *interface, ETransport transport)
{
    arv_interface_update_device_list(interface);
    QVector<CFoundCamera> cameras;
    const unsigned int count = arv_interface_get_n_devices(interface);
    for (unsigned int i = 0; i < count; ++i)
        cameras.append(readCamera(interface, i, transport));
    return cameras;
}

static QVector<CFoundCamera> searchWithoutSignals()
{
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);

    // The library keeps the camera's answer to itself, the version in it too: each camera is asked
    // for it once more, by its address.
    QVector<QHostAddress> addresses;
    const QVector<CFoundCamera> onEthernet
        = search(arv_gv_interface_get_instance(), ETransport::Ethernet);
    for (const CFoundCamera &camera : onEthernet)
        addresses.append(QHostAddress(camera.address));
    return discoverUnicast(addresses) + search(arv_uv_interface_get_instance(), ETransport::Usb);
}

QVector<CFoundCamera> searchNetwork()
{
    QVector<CFoundCamera> cameras;
    std::thread thread([&cameras] { cameras = searchWithoutSignals(); });
    thread.join();
    return cameras;
}

} // namespace Viewer::Camera::GenICam
