#pragma once

#include "viewer/commandline/option.h"

#include <QHostAddress>
#include <QVector>

#include <functional>

namespace Viewer::Camera::GenICam {

/// Where to look for real cameras.
struct CSearchOptions
{
    QVector<QHostAddress> addresses; ///< asked each time, each of one device
    bool searchesNetwork = false;
};

/// The options that fill in @p target, which outlives them.
[[nodiscard]] QVector<CommandLine::COption> getSearchOptions(CSearchOptions &target);

} // namespace Viewer::Camera::GenICam
