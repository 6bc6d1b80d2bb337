#include "imageview.h"

#include "histogrampainter.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QIcon>
#include <QMenu>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Viewer::ImageView {

// A neutral dark surround, on which neither a bright nor a dark image glares.
static const QColor BACKGROUND(0x26, 0x2a, 0x30);
static const QColor TITLE_COLOR(0xd5, 0xda, 0xe1);
static const QColor HINT_COLOR(0x8d, 0x96, 0xa3);
static constexpr int ICON_EXTENT = 64;
static constexpr int MARGIN = 16;
static constexpr double ZOOM_STEP = 1.25;
static constexpr double GREATEST_ZOOM = 32;
static constexpr int WHEEL_STEP = 120; // eighths of a degree
static constexpr double PAN_PART = 0.1; // of the widget, for one key

CImageView::CImageView(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Image"));
    setMinimumSize(120, 80);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

CImageView::~CImageView() = default;

void CImageView::setImage(const QImage &image)
{
    const QSize oldSize = m_image.size();
    m_image = image;
    m_scaledImage = QImage();
    setAccessibleDescription(QString());
    if (oldSize != image.size())
        setCenter(m_center);
    update();
    emit pointedPixelChanged();
}

void CImageView::setPlaceholder(const QString &title, const QString &hint)
{
    m_image = QImage();
    m_scaledImage = QImage();
    m_histogram = {};
    m_title = title;
    m_hint = hint;
    setAccessibleDescription(title + QLatin1Char(' ') + hint);
    update();
    emit pointedPixelChanged();
}

void CImageView::setHistogram(const Image::CHistogram &histogram)
{
    m_histogram = histogram;
    update();
}

void CImageView::setContextMenu(QMenu *menu)
{
    m_contextMenu = menu;
}

bool CImageView::hasImage() const
{
    return !m_image.isNull();
}

QImage CImageView::getImage() const
{
    return m_image;
}

QSize CImageView::sizeHint() const
{
    return {640, 480};
}

double CImageView::getFitZoom() const
{
    if (!hasImage())
        return 1;
    return std::min(static_cast<double>(width()) / m_image.width(),
                    static_cast<double>(height()) / m_image.height())
        * devicePixelRatioF();
}

double CImageView::getZoom() const
{
    return m_isFit ? getFitZoom() : m_zoom;
}

QRectF CImageView::getTarget() const
{
    const double scale = getZoom() / devicePixelRatioF();
    const QSizeF size = QSizeF(m_image.size()) * scale;
    const QPointF middle(width() / 2.0, height() / 2.0);
    if (m_isFit)
        return {middle - QPointF(size.width(), size.height()) / 2, size};
    QPointF corner = middle - m_center * scale;
    // Pixels of the image on those of the screen are as sharp as they are.
    if (m_zoom >= 1) {
        const double ratio = devicePixelRatioF();
        corner = {std::round(corner.x() * ratio) / ratio, std::round(corner.y() * ratio) / ratio};
    }
    return {corner, size};
}

QPointF CImageView::toImage(const QPointF &position) const
{
    return (position - getTarget().topLeft()) * devicePixelRatioF() / getZoom();
}

QPoint CImageView::getPointedPixel() const
{
    const QPointF place = toImage(m_pointer);
    const QPoint pixel(static_cast<int>(std::floor(place.x())),
                       static_cast<int>(std::floor(place.y())));
    const bool isThere = QRectF(rect()).contains(m_pointer) && m_image.rect().contains(pixel);
    return isThere ? pixel : QPoint(-1, -1);
}

void CImageView::fit()
{
    m_isFit = true;
    update();
    emit pointedPixelChanged();
}

void CImageView::zoomTo(double zoom, const QPointF &position)
{
    if (!hasImage())
        return;
    const double fitZoom = getFitZoom();
    const double smallest = std::min(fitZoom, 1.0);
    zoom = std::clamp(zoom, smallest, std::max(fitZoom, GREATEST_ZOOM));
    if (zoom == fitZoom && zoom == smallest) {
        fit();
        return;
    }
    const QPointF place = toImage(position);
    const QPointF middle(width() / 2.0, height() / 2.0);
    m_isFit = false;
    m_zoom = zoom;
    setCenter(place - (position - middle) * devicePixelRatioF() / zoom);
}

void CImageView::zoomIn()
{
    zoomByStep(1, QPointF(width() / 2.0, height() / 2.0));
}

void CImageView::zoomOut()
{
    zoomByStep(-1, QPointF(width() / 2.0, height() / 2.0));
}

void CImageView::showOriginalSize()
{
    zoomTo(1, QPointF(width() / 2.0, height() / 2.0));
}

void CImageView::zoomByStep(double steps, const QPointF &position)
{
    zoomTo(getZoom() * std::pow(ZOOM_STEP, steps), position);
}

void CImageView::setCenter(const QPointF &center)
{
    m_center = {std::clamp<double>(center.x(), 0, m_image.width()),
                std::clamp<double>(center.y(), 0, m_image.height())};
    update();
    emit pointedPixelChanged();
}

void CImageView::pan(const QPointF &distance)
{
    if (hasImage() && !m_isFit)
        setCenter(m_center - distance * devicePixelRatioF() / m_zoom);
}

void CImageView::resizeEvent(QResizeEvent *)
{
    emit pointedPixelChanged();
}

void CImageView::wheelEvent(QWheelEvent *event)
{
    zoomByStep(static_cast<double>(event->angleDelta().y()) / WHEEL_STEP, event->position());
    event->accept();
}

void CImageView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_pressed = m_dragged = event->pos();
    m_isDragging = false;
}

void CImageView::mouseMoveEvent(QMouseEvent *event)
{
    m_pointer = event->localPos();
    const bool isFar
        = (event->pos() - m_pressed).manhattanLength() >= QApplication::startDragDistance();
    if ((event->buttons() & Qt::LeftButton) != 0 && (isFar || m_isDragging)) {
        m_isDragging = true;
        pan(event->pos() - m_dragged);
        m_dragged = event->pos();
    }
    emit pointedPixelChanged();
}

void CImageView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && !m_isDragging)
        emit activated();
    m_isDragging = false;
}

void CImageView::leaveEvent(QEvent *)
{
    m_pointer = {-1, -1};
    emit pointedPixelChanged();
}

void CImageView::keyPressEvent(QKeyEvent *event)
{
    const QSizeF step = QSizeF(size()) * PAN_PART;
    switch (event->key()) {
    case Qt::Key_Left:
        pan({step.width(), 0});
        break;
    case Qt::Key_Right:
        pan({-step.width(), 0});
        break;
    case Qt::Key_Up:
        pan({0, step.height()});
        break;
    case Qt::Key_Down:
        pan({0, -step.height()});
        break;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit activated();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void CImageView::contextMenuEvent(QContextMenuEvent *event)
{
    // What it does, it does to the one that is selected.
    emit activated();
    if (!m_contextMenu)
        return;
    const bool isByMouse = event->reason() == QContextMenuEvent::Mouse;
    m_contextMenu->popup(isByMouse ? event->globalPos() : mapToGlobal(rect().center()));
    event->accept();
}

void CImageView::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void CImageView::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}

void CImageView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (m_image.isNull()) {
        painter.fillRect(rect(), BACKGROUND);
        paintPlaceholder(painter);
    } else {
        const QRegion around
            = QRegion(rect()).subtracted(getTarget().toAlignedRect().adjusted(1, 1, -1, -1));
        for (const QRect &side : around)
            painter.fillRect(side, BACKGROUND);
        paintImage(painter);
        paintHistogram(painter, rect(), m_histogram);
    }
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DotLine));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void CImageView::paintImage(QPainter &painter)
{
    const double ratio = devicePixelRatioF();
    const QRectF target = getTarget();
    const QSize size = (target.size() * ratio).toSize().expandedTo(QSize(1, 1));
    // Enlarged, single pixels are what the user wants to see.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, getZoom() < 2);
    if (getZoom() >= 1) {
        painter.drawImage(target, m_image);
        return;
    }
    // The painter takes ten times as long, 25 times a second.
    if (m_scaledImage.size() != size)
        m_scaledImage = m_scaler.scaleDown(m_image, size);
    m_scaledImage.setDevicePixelRatio(ratio);
    const QPointF corner = target.topLeft() * ratio;
    painter.drawImage(QPointF(corner.toPoint()) / ratio, m_scaledImage);
}

void CImageView::paintPlaceholder(QPainter &painter)
{
    QFont titleFont = font();
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.4);
    const QRect area = rect().adjusted(MARGIN, MARGIN, -MARGIN, -MARGIN);
    const int flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    const int titleHeight = QFontMetrics(titleFont).boundingRect(area, flags, m_title).height();
    const int hintHeight = fontMetrics().boundingRect(area, flags, m_hint).height();
    const int totalHeight = ICON_EXTENT + MARGIN + titleHeight + MARGIN / 2 + hintHeight;
    QRect line = area;
    line.setTop(qMax(area.top(), area.center().y() - totalHeight / 2));

    const QIcon icon(QStringLiteral(":/viewer/icons/placeholder.png"));
    icon.paint(&painter, QRect(line.left(), line.top(), line.width(), ICON_EXTENT),
               Qt::AlignCenter);
    line.setTop(line.top() + ICON_EXTENT + MARGIN);
    painter.setFont(titleFont);
    painter.setPen(TITLE_COLOR);
    painter.drawText(line, flags, m_title);
    line.setTop(line.top() + titleHeight + MARGIN / 2);
    painter.setFont(font());
    painter.setPen(HINT_COLOR);
    painter.drawText(line, flags, m_hint);
}

} // namespace Viewer::ImageView
