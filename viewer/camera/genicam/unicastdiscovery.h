#pragma once

#include "foundcamera.h"

#include <QHostAddress>
#include <QVector>

#include <chrono>
#include <optional>

namespace Viewer::Camera::GenICam {

/// How long a camera may take to answer a question for its identity.
inline constexpr std::chrono::milliseconds DISCOVERY_LIMIT{200};

/// The camera that @p datagram from @p sender tells of; nothing when it is no answer to a question
/// that was asked here.
[[nodiscard]] std::optional<CFoundCamera> readDiscoveryAnswer(const QByteArray &datagram,
                                                              const QHostAddress &sender);

/// Asks each of @p addresses who it is, all at once, and gives the answers that come within
/// @p limit, in the order of the addresses. Sends nothing to anybody else, opens nothing, and
/// leaves a camera that is in use undisturbed. Blocks up to @p limit; any thread.
[[nodiscard]] QVector<CFoundCamera> discoverUnicast(const QVector<QHostAddress> &addresses,
                                                    std::chrono::milliseconds limit
                                                    = DISCOVERY_LIMIT);

} // namespace Viewer::Camera::GenICam
