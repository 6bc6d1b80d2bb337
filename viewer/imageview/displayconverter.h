#pragma once

#include "viewer/image/frame.h"
#include "viewer/image/frameconverter.h"
#include "viewer/image/framevalues.h"

#include <QElapsedTimer>
#include <QObject>
#include <QThreadPool>

#include <optional>

namespace Viewer::ImageView {

/// What became of a frame on its way to the screen.
struct CDisplayedFrame
{
    Image::CFrame frame;
    QImage image; ///< of Mono8 without marks the frame's memory; null where there is a fault
    QString fault; ///< a clause in the user's language
    std::optional<Image::CHistogram> histogram; ///< not of every frame
};

/// Makes pictures of one camera's frames on a thread of its own. Of frames that come faster than
/// they are made and taken, the newest is next, and the others are counted.
///
/// Each frame that is held keeps memory from the camera: there are two at most, that of getFrame()
/// included, and a third in a picture that is still on the screen. All calls and signals on the GUI
/// thread.
class CDisplayConverter : public QObject
{
    Q_OBJECT

public:
    explicit CDisplayConverter(QObject *parent = nullptr);
    /// Waits for the picture that is being made.
    ~CDisplayConverter() override;

    /// @p frame keeps its bytes alive.
    void show(const Image::CFrame &frame);

    /// Forgets all frames; frameReady() comes for none of them. The count of dropped ones begins
    /// anew.
    void clear();

    /// For the next frames, and once more for the one that is shown.
    void setOptions(const Image::CDisplayOptions &options, bool withHistogram);

    /// The frame that was announced last. It has no bytes where it had to make room for newer ones;
    /// then frameReady() follows soon.
    [[nodiscard]] const Image::CFrame &getFrame() const;

    /// Frames that have come since the begin, or clear(), and that nobody saw.
    [[nodiscard]] qint64 getDroppedCount() const;

signals:
    void frameReady(const Viewer::ImageView::CDisplayedFrame &frame);

private:
    void begin(const Image::CFrame &frame);
    void finish(const CDisplayedFrame &result, int generation);

    Image::CFrameConverter m_converter; // used on the thread alone
    Image::CDisplayOptions m_options;
    bool m_isHistogramWanted = false;
    QElapsedTimer m_histogramAge;
    std::optional<Image::CFrame> m_pending;
    Image::CFrame m_shown;
    bool m_isBusy = false; // until the result has come here, or much could be on its way
    bool m_isRepeatWanted = false;
    int m_generation = 0;
    qint64 m_droppedCount = 0;
    QThreadPool m_thread; // of one thread; the first member to end
};

} // namespace Viewer::ImageView
