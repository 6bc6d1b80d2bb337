#pragma once

#include "viewer/image/framevalues.h"
#include "viewer/image/imagescaler.h"

#include <QImage>
#include <QPointer>
#include <QWidget>

class QMenu;

namespace Viewer::ImageView {

/// Shows one camera's moving image, or a text in its place. The image is as large as it fits, or in
/// a size of the user's, who zooms with the wheel and pans by dragging or with the arrow keys.
///
/// A zoom is screen pixels per pixel of the image, whatever the scale of the screen.
class CImageView : public QWidget
{
    Q_OBJECT

public:
    explicit CImageView(QWidget *parent = nullptr);
    ~CImageView() override;

    /// Shows @p image until the next call; zoom and place stay.
    void setImage(const QImage &image);

    /// Shows @p title and, in smaller letters, @p hint instead of an image.
    void setPlaceholder(const QString &title, const QString &hint);

    /// Without counts: none is shown.
    void setHistogram(const Image::CHistogram &histogram);

    /// The menu for the right button and the menu key. Borrowed.
    void setContextMenu(QMenu *menu);

    [[nodiscard]] bool hasImage() const;
    /// What is shown, with eight bits. It may keep memory from the camera as long as it lives.
    [[nodiscard]] QImage getImage() const;

    void fit();
    /// To @p zoom as far as the limits allow it; the pixel at @p position stays where it is.
    void zoomTo(double zoom, const QPointF &position);
    /// One step of zooming around the middle.
    void zoomIn();
    void zoomOut();
    void showOriginalSize();

    [[nodiscard]] double getZoom() const;

    /// The pixel of the image at @p position of the widget; may lie outside of the image.
    [[nodiscard]] QPointF toImage(const QPointF &position) const;

    /// The pixel under the pointer; (-1, -1): there is none.
    [[nodiscard]] QPoint getPointedPixel() const;

    [[nodiscard]] QSize sizeHint() const override;

signals:
    /// The user wants this one, by a click or a key, or by its context menu.
    void activated();
    void pointedPixelChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void paintImage(QPainter &painter);
    void paintPlaceholder(QPainter &painter);
    /// The zoom at which the whole image is seen.
    [[nodiscard]] double getFitZoom() const;
    /// Where the image is, in the widget.
    [[nodiscard]] QRectF getTarget() const;
    void pan(const QPointF &distance);
    void setCenter(const QPointF &center);
    void zoomByStep(double steps, const QPointF &position);

    QImage m_image;
    Image::CImageScaler m_scaler;
    QImage m_scaledImage; // as it is on the screen, while that is smaller; null: not made yet
    Image::CHistogram m_histogram;
    QString m_title;
    QString m_hint;
    QPointer<QMenu> m_contextMenu;
    bool m_isFit = true;
    double m_zoom = 1; // unless it is fit
    QPointF m_center; // of the widget, as a place of the image; unless it is fit
    QPoint m_pressed; // where the left button went down
    QPoint m_dragged; // where the pointer was last
    bool m_isDragging = false;
    QPointF m_pointer = {-1, -1}; // outside of the widget: there is none
};

} // namespace Viewer::ImageView
