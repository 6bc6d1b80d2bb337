#pragma once

#include <QMetaType>

namespace Core::Logging {

/// How important a log line is, from least to most.
enum class ELogLevel {
    Debug = 0,
    Info = 1,
    Warning = 2,
    Critical = 3,
};

} // namespace Core::Logging

Q_DECLARE_METATYPE(Core::Logging::ELogLevel)
