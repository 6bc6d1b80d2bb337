#pragma once

#include "viewer/text/visibletext.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <cstdlib>

/// What a fuzzer calls, over and over again. It ends the program when it finds a fault.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace Fuzz {

inline QByteArray toBytes(const std::uint8_t *data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size));
}

inline void require(bool condition)
{
    if (!condition)
        std::abort();
}

/// Whether a user can read @p message: one line that says something and is not endless.
inline bool isReadable(const QString &message)
{
    return !message.isEmpty() && message.size() < 1000 && !Viewer::Text::hasUnprintable(message);
}

} // namespace Fuzz
