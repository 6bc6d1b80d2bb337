#include "displayconverter.h"

#include <utility>

namespace Viewer::ImageView {

static constexpr int HISTOGRAM_INTERVAL = 250; // milliseconds
static constexpr int HISTOGRAM_BINS = 256;

CDisplayConverter::CDisplayConverter(QObject *parent)
    : QObject(parent)
{
    m_thread.setMaxThreadCount(1);
}

CDisplayConverter::~CDisplayConverter()
{
    m_thread.waitForDone();
}

void CDisplayConverter::show(const Image::CFrame &frame)
{
    if (!m_isBusy) {
        begin(frame);
        return;
    }
    if (m_pending)
        ++m_droppedCount;
    m_pending = frame;
    m_shown = {};
}

void CDisplayConverter::clear()
{
    m_pending.reset();
    m_shown = {};
    m_isRepeatWanted = false;
    m_histogramAge.invalidate();
    m_droppedCount = 0;
    ++m_generation;
}

void CDisplayConverter::setOptions(const Image::CDisplayOptions &options, bool withHistogram)
{
    if (m_options.saturationColor == options.saturationColor
        && m_isHistogramWanted == withHistogram)
        return;
    m_options = options;
    m_isHistogramWanted = withHistogram;
    m_histogramAge.invalidate();
    if (m_isBusy)
        m_isRepeatWanted = true;
    else if (m_shown.memory)
        begin(m_shown);
}

const Image::CFrame &CDisplayConverter::getFrame() const
{
    return m_shown;
}

qint64 CDisplayConverter::getDroppedCount() const
{
    return m_droppedCount;
}

void CDisplayConverter::begin(const Image::CFrame &frame)
{
    const bool withHistogram = m_isHistogramWanted
        && (!m_histogramAge.isValid() || m_histogramAge.hasExpired(HISTOGRAM_INTERVAL));
    if (withHistogram)
        m_histogramAge.start();
    m_isBusy = true;
    m_thread.start([this, frame, options = m_options, withHistogram, generation = m_generation] {
        CDisplayedFrame result;
        result.frame = frame;
        Image::CConvertedFrame converted = m_converter.toDisplay(frame, options);
        result.image = std::move(converted.image);
        result.fault = converted.fault.getLocalized();
        if (withHistogram)
            result.histogram = Image::computeHistogram(frame, HISTOGRAM_BINS);
        QMetaObject::invokeMethod(
            this, [this, result, generation] { finish(result, generation); }, Qt::QueuedConnection);
    });
}

void CDisplayConverter::finish(const CDisplayedFrame &result, int generation)
{
    m_isBusy = false;
    const bool isWanted = generation == m_generation;
    if (isWanted)
        m_shown = result.frame;
    if (m_pending) {
        m_isRepeatWanted = false;
        begin(*std::exchange(m_pending, std::nullopt));
    } else if (isWanted && std::exchange(m_isRepeatWanted, false)) {
        begin(m_shown);
    }
    if (isWanted)
        emit frameReady(result);
}

} // namespace Viewer::ImageView
