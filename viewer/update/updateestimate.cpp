#include "updateestimate.h"

#include "viewer/camera/icameradevice.h"

#include <algorithm>
#include <limits>

namespace Viewer::Update {

using namespace std::chrono_literals;
using Plugin::CameraPool::EFirmwareUpdateStep;
using std::chrono::milliseconds;

static constexpr milliseconds LONGEST_ESTIMATE(std::numeric_limits<int>::max());

static milliseconds getUsualTime(const UpdateFile::CUpdateStep &step, qint64 uploadRate)
{
    switch (step.kind) {
    case EFirmwareUpdateStep::CheckPreconditions:
        return 200ms;
    case EFirmwareUpdateStep::AcquireUpdateData:
        return 500ms;
    case EFirmwareUpdateStep::FeatureWrite:
    case EFirmwareUpdateStep::FeatureAssert:
        return 100ms;
    case EFirmwareUpdateStep::FeatureExecute:
        return 1s;
    case EFirmwareUpdateStep::FileUpload: {
        const double seconds = static_cast<double>(step.payload.size)
            / static_cast<double>(std::max<qint64>(uploadRate, 1));
        return milliseconds(static_cast<qint64>(
            std::min(seconds * 1000.0, static_cast<double>(LONGEST_ESTIMATE.count()))));
    }
    case EFirmwareUpdateStep::DeviceReset:
        return 5s;
    case EFirmwareUpdateStep::Invalid:
        break;
    }
    return 1ms;
}

milliseconds estimateStep(const UpdateFile::CUpdateStep &step, qint64 uploadRate)
{
    const milliseconds estimate
        = step.estimatedMs ? milliseconds(*step.estimatedMs) : getUsualTime(step, uploadRate);
    return std::clamp(estimate, milliseconds(1), LONGEST_ESTIMATE);
}

milliseconds estimateEntry(const UpdateFile::CUpdateEntry &entry, qint64 uploadRate)
{
    milliseconds total = 0ms;
    for (const UpdateFile::CUpdateStep &step : entry.steps)
        total = std::min(total + estimateStep(step, uploadRate), LONGEST_ESTIMATE);
    return total;
}

milliseconds getTimeLimit(milliseconds estimate)
{
    return std::max<milliseconds>(30s, std::min<milliseconds>(3 * estimate, estimate + 5min));
}

milliseconds getTimeLimit(const UpdateFile::CUpdateStep &step, const Camera::ICameraDevice &device)
{
    milliseconds estimate = estimateStep(step, device.getUploadRate());
    if (step.kind == EFirmwareUpdateStep::FileUpload)
        estimate = std::max(estimate, getUsualTime(step, device.getUploadRate()));
    const milliseconds limit = getTimeLimit(estimate);
    return step.kind == EFirmwareUpdateStep::DeviceReset
        ? std::max(limit, device.getShortestResetLimit())
        : limit;
}

} // namespace Viewer::Update
