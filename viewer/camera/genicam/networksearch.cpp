#include "networksearch.h"

#include "glibpointers.h"
#include "unicastdiscovery.h"

#include <csignal>
#include <thread>

namespace Viewer::Camera::GenICam {

static QVector<CFoundCamera> searchWithoutSignals()
{
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);

    // The library keeps the camera's answer to itself, the version in it too: each camera is asked
    // for it once more, by its address.
    QVector<QHostAddress> addresses;
    ArvInterface *const ethernet = arv_gv_interface_get_instance();
    arv_interface_update_device_list(ethernet);
    const unsigned int count = arv_interface_get_n_devices(ethernet);
    for (unsigned int i = 0; i < count; ++i)
        addresses.append(
            QHostAddress(QString::fromUtf8(arv_interface_get_device_address(ethernet, i))));
    return discoverUnicast(addresses);
}

QVector<CFoundCamera> searchNetwork()
{
    QVector<CFoundCamera> cameras;
    std::thread thread([&cameras] { cameras = searchWithoutSignals(); });
    thread.join();
    return cameras;
}

} // namespace Viewer::Camera::GenICam
