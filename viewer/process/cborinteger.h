#pragma once

#include <QCborValue>

namespace Viewer::Process {

/// The whole number in @p value; @p otherwise: it is none. QCborValue::toInteger() would also
/// convert a floating-point number for which there is no whole one.
[[nodiscard]] inline qint64 toInteger(const QCborValue &value, qint64 otherwise)
{
    return value.isInteger() ? value.toInteger() : otherwise;
}

} // namespace Viewer::Process
