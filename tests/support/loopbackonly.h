#pragma once

#include <QNetworkInterface>
#include <QtTest>

#include <algorithm>

namespace TestSupport {

/// Whether this process is anywhere but in a network namespace with nothing but the loopback
/// interface, which tests/loopbackonly.sh makes where it can.
inline bool reachesOthers()
{
    const auto interfaces = QNetworkInterface::allInterfaces();
    return std::any_of(interfaces.cbegin(), interfaces.cend(), [](const auto &networkInterface) {
        return !(networkInterface.flags() & QNetworkInterface::IsLoopBack);
    });
}

} // namespace TestSupport

#define SKIP_IF_OTHERS_HEAR_IT()                                                                   \
    if (TestSupport::reachesOthers())                                                              \
    QSKIP("A broadcast would leave this machine: no network namespace could be made.")
