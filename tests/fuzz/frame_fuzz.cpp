#include "fuzztarget.h"
#include "viewer/image/frame.h"
#include "viewer/image/frameconverter.h"
#include "viewer/image/framerecorder.h"
#include "viewer/image/framevalues.h"

#include <cstring>
#include <vector>

using namespace Viewer::Image;

/// What a frame is told to be, in front of its bytes.
struct CHeader
{
    quint32 pixelFormat;
    qint32 width;
    qint32 height;
    qint32 linePadding;
    qint32 x;
    qint32 y;
    qint32 bins;
    quint8 marks;
};
static constexpr size_t HEADER_SIZE = 29;

static void requireFaultOrImage(const CConvertedFrame &converted, const CFrame &frame)
{
    const bool isFault = converted.image.isNull();
    Fuzz::require(isFault == !converted.fault.isEmpty());
    Fuzz::require(isFault || converted.image.size() == QSize(frame.width, frame.height));
    Fuzz::require(!isFault || Fuzz::isReadable(converted.fault.getEnglish()));
    Fuzz::require(!isFault || Fuzz::isReadable(converted.fault.getLocalized()));
}

/// Whatever a frame says of itself and whatever its bytes are, it becomes an image, values and a
/// file with the same pixels, or one sentence; no byte is read but its own.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    CHeader header = {};
    if (size < HEADER_SIZE)
        return 0;
    std::memcpy(&header, data, HEADER_SIZE);
    // A copy of just this size, so that a look behind it is seen.
    const auto bytes = std::make_shared<std::vector<uchar>>(data + HEADER_SIZE, data + size);
    CFrame frame;
    frame.memory = bytes;
    frame.data = bytes->data();
    frame.size = static_cast<qint64>(bytes->size());
    frame.pixelFormat = header.pixelFormat;
    frame.width = header.width;
    frame.height = header.height;
    frame.linePadding = header.linePadding;

    static CFrameConverter converter;
    CDisplayOptions options;
    if (header.marks % 2 != 0)
        options.saturationColor = qRgb(255, 0, 0);
    requireFaultOrImage(converter.toDisplay(frame, options), frame);
    const CConvertedFrame kept = converter.toFullDepth(frame);
    requireFaultOrImage(kept, frame);

    const bool isReadable = kept.fault.isEmpty();
    const bool isInside
        = header.x >= 0 && header.y >= 0 && header.x < frame.width && header.y < frame.height;
    Fuzz::require(getPixel(frame, header.x, header.y).isEmpty() == !(isReadable && isInside));
    quint64 counted = 0;
    for (const QVector<quint32> &counts : computeHistogram(frame, header.bins).counts) {
        for (const quint32 count : counts)
            counted += count;
    }
    Fuzz::require((counted > 0) == isReadable);

    if (!isReadable)
        return 0;
    QByteArray file;
    CRecording recording;
    recording.writer = [&file](const QString &, const QByteArray &written) {
        file = written;
        return Viewer::Text::CErrorText();
    };
    CFrameRecorder recorder(recording);
    recorder.record(frame);
    recorder.stop();
    Fuzz::require(recorder.getWrittenCount() == 1);
    const QImage image = QImage::fromData(file, "PNG");
    Fuzz::require(image == kept.image.convertToFormat(image.format()));
    return 0;
}
