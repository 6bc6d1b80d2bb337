#include "featurelimits.h"

#include "firmwarefile.h"
#include "gvcp.h"
#include "memorymap.h"
#include "pattern.h"

namespace VirtualCamera {

namespace {

/// What a register may be set to.
struct CLimits
{
    quint32 address;
    double smallest;
    double largest;
    quint32 step = 1;
    bool isFloat = false; ///< the register holds a number of 32 bits by IEEE 754
};

constexpr CLimits LIMITS[] = {
    {MemoryMap::FIRMWARE_UPDATE_MODE, 0, 1},
    {MemoryMap::EXPOSURE_TIME, 10, 1'000'000, 1, true},
    {MemoryMap::REVERSE_X, 0, 1},
    {MemoryMap::GAIN, 0, 24, 1, true},
    {MemoryMap::BLACK_LEVEL, 0, 255, 1, true},
    {MemoryMap::FILE_SELECTOR, 0, 0},
    {MemoryMap::FILE_OPERATION_SELECTOR, 0, static_cast<double>(EFileOperation::Delete)},
    {MemoryMap::FILE_OPEN_MODE, 0, static_cast<double>(CFirmwareFile::EOpenMode::ReadWrite)},
    {MemoryMap::FILE_ACCESS_OFFSET, 0, CFirmwareFile::MAXIMUM_SIZE},
    {MemoryMap::WIDTH, 16, MemoryMap::SENSOR_WIDTH, 4},
    {MemoryMap::HEIGHT, 2, MemoryMap::SENSOR_HEIGHT, 2},
    {MemoryMap::OFFSET_X, 0, MemoryMap::SENSOR_WIDTH, 4},
    {MemoryMap::OFFSET_Y, 0, MemoryMap::SENSOR_HEIGHT, 2},
    {MemoryMap::TEST_PATTERN, 0, static_cast<double>(ETestPattern::White)},
    {MemoryMap::ACQUISITION_MODE, 0, 2},
    {MemoryMap::ACQUISITION_FRAME_COUNT, 1, 65535},
    {MemoryMap::FRAME_RATE_ENABLE, 0, 1},
    {MemoryMap::FRAME_RATE, 0.1, 1000, 1, true},
    {MemoryMap::TRIGGER_MODE, 0, 1},
    {MemoryMap::TRIGGER_SELECTOR, 0, 0},
    {MemoryMap::TRIGGER_SOURCE, 0, 0},
    {MemoryMap::TRIGGER_ACTIVATION, 0, 0},
    {MemoryMap::TL_PARAMS_LOCKED, 0, 1},
    {MemoryMap::STREAM_PACKET_DELAY, 0, 1'000'000},
};

} // namespace

bool isWithinLimits(quint32 address, quint32 value)
{
    for (const CLimits &limits : LIMITS) {
        if (limits.address != address)
            continue;
        const double number = limits.isFloat ? static_cast<double>(Gvcp::toFloat(value)) : value;
        const bool isStep = limits.isFloat || value % limits.step == 0;
        // What is no number is not within them.
        return number >= limits.smallest && number <= limits.largest && isStep;
    }
    return true;
}

} // namespace VirtualCamera
