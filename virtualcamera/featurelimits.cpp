#include "featurelimits.h"

#include "firmwarefile.h"
#include "memorymap.h"

#include <cstring>
#include <limits>

namespace VirtualCamera {

namespace {

/// What a register may be set to.
struct CLimits
{
    quint32 address;
    double smallest;
    double largest;
    bool isFloat = false; ///< the register holds a number of 32 bits by IEEE 754
};

constexpr CLimits LIMITS[] = {
    {MemoryMap::FIRMWARE_UPDATE_MODE, 0, 1},
    {MemoryMap::EXPOSURE_TIME, 10, 1'000'000, true},
    {MemoryMap::REVERSE_X, 0, 1},
    {MemoryMap::GAIN, 0, 24, true},
    {MemoryMap::FILE_SELECTOR, 0, 0},
    {MemoryMap::FILE_OPERATION_SELECTOR, 0, static_cast<double>(EFileOperation::Delete)},
    {MemoryMap::FILE_OPEN_MODE, 0, static_cast<double>(CFirmwareFile::EOpenMode::ReadWrite)},
    {MemoryMap::FILE_ACCESS_OFFSET, 0, CFirmwareFile::MAXIMUM_SIZE},
};

float toFloat(quint32 bits)
{
    static_assert(std::numeric_limits<float>::is_iec559);
    float number = 0;
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

} // namespace

bool isWithinLimits(quint32 address, quint32 value)
{
    for (const CLimits &limits : LIMITS) {
        if (limits.address != address)
            continue;
        const double number = limits.isFloat ? static_cast<double>(toFloat(value)) : value;
        // What is no number is not within them.
        return number >= limits.smallest && number <= limits.largest;
    }
    return true;
}

} // namespace VirtualCamera
