#pragma once

#include "displayconverter.h"
#include "streamrates.h"

#include "viewer/camera/icamerastream.h"

#include <QElapsedTimer>
#include <QWidget>

namespace Viewer::ImageView {

class CElidedLabel;
class CImageView;

/// One camera: its image, and below that its name, the value of the pixel under the pointer, and
/// what its stream does.
class CImageTile : public QWidget
{
    Q_OBJECT

public:
    explicit CImageTile(QWidget *parent = nullptr);
    ~CImageTile() override;

    void setName(const QString &name);

    /// With a frame around it: it is the one that is selected among several.
    void setFramed(bool isFramed);

    void setOptions(bool showsSaturation, bool showsHistogram);

    void showFrame(const Image::CFrame &frame);

    /// @p skippedCount: frames that were dropped before they came here. Both count from the start.
    void addStatistics(const Camera::CStreamStatistics &statistics, qint64 skippedCount);

    /// Ends the image; see CImageView::setPlaceholder().
    void setPlaceholder(const QString &title, const QString &hint);

    /// Asks for the image as a PNG file with all that the sensor gave. pictureReady() follows when
    /// there is one, maybe before this returns.
    void requestPicture();

    [[nodiscard]] CImageView *getView() const;

signals:
    /// @p name is that of a file. Without @p png there is no memory.
    void pictureReady(const QByteArray &png, const QString &name);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void onFrameReady(const CDisplayedFrame &frame);
    void updatePixel();

    QString m_name;
    CImageView *const m_view;
    QWidget *const m_footer;
    CElidedLabel *const m_nameLabel;
    CElidedLabel *const m_pixelLabel;
    CElidedLabel *const m_ratesLabel;
    CStreamRates m_rates;
    QElapsedTimer m_clock;
    bool m_isFramed = false;
    bool m_showsHistogram = false;
    bool m_isPictureWanted = false;
    CDisplayConverter m_converter;
};

} // namespace Viewer::ImageView
