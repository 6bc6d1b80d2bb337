#include "imagetile.h"

#include "elidedlabel.h"
#include "imageview.h"

#include "viewer/image/framerecorder.h"

#include <QDateTime>
#include <QPainter>
#include <QVBoxLayout>

namespace Viewer::ImageView {

static constexpr int FRAME_WIDTH = 3;
static constexpr QRgb SATURATION_COLOR = 0xffff0040;

CImageTile::CImageTile(QWidget *parent)
    : QWidget(parent)
    , m_view(new CImageView(this))
    , m_footer(new QWidget(this))
    , m_nameLabel(new CElidedLabel(m_footer))
    , m_pixelLabel(new CElidedLabel(m_footer))
    , m_ratesLabel(new CElidedLabel(m_footer))
{
    m_pixelLabel->setObjectName(QStringLiteral("pixelLabel"));
    m_ratesLabel->setObjectName(QStringLiteral("ratesLabel"));
    // The value does not give way to a long name.
    m_pixelLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto *const line = new QHBoxLayout;
    line->addWidget(m_nameLabel, 1);
    line->addWidget(m_pixelLabel);
    auto *const lines = new QVBoxLayout(m_footer);
    lines->setContentsMargins(4, 2, 4, 2);
    lines->setSpacing(1);
    lines->addLayout(line);
    lines->addWidget(m_ratesLabel);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(FRAME_WIDTH, FRAME_WIDTH, FRAME_WIDTH, FRAME_WIDTH);
    layout->setSpacing(0);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_footer);
    m_footer->hide();
    m_clock.start();
    connect(&m_converter, &CDisplayConverter::frameReady, this, &CImageTile::onFrameReady);
    connect(m_view, &CImageView::pointedPixelChanged, this, &CImageTile::updatePixel);
}

CImageTile::~CImageTile() = default;

void CImageTile::setName(const QString &name)
{
    m_name = name;
    m_nameLabel->setText(name);
    m_nameLabel->setToolTip(name);
}

void CImageTile::setFramed(bool isFramed)
{
    m_isFramed = isFramed;
    update();
}

void CImageTile::setOptions(bool showsSaturation, bool showsHistogram)
{
    Image::CDisplayOptions options;
    if (showsSaturation)
        options.saturationColor = SATURATION_COLOR;
    m_showsHistogram = showsHistogram;
    if (!showsHistogram)
        m_view->setHistogram({});
    m_converter.setOptions(options, showsHistogram);
}

void CImageTile::showFrame(const Image::CFrame &frame)
{
    m_converter.show(frame);
}

void CImageTile::addStatistics(const Camera::CStreamStatistics &statistics, qint64 skippedCount)
{
    m_rates.add(statistics, skippedCount + m_converter.getDroppedCount(), m_clock.elapsed());
    m_ratesLabel->setText(m_rates.getText());
    // The line may be cut, the tool tip is not.
    m_ratesLabel->setToolTip(m_rates.getText() + QLatin1String("\n\n") + m_rates.getTotals());
}

void CImageTile::setPlaceholder(const QString &title, const QString &hint)
{
    m_converter.clear();
    m_rates.clear();
    m_ratesLabel->setText({});
    m_ratesLabel->setToolTip({});
    m_isPictureWanted = false;
    m_view->setPlaceholder(title, hint);
    m_footer->hide();
}

void CImageTile::requestPicture()
{
    const Image::CFrame &frame = m_converter.getFrame();
    // The next one is on its way.
    m_isPictureWanted = !frame.memory;
    if (m_isPictureWanted)
        return;
    Image::CFrameConverter converter;
    emit pictureReady(Image::encodeFrame(converter, m_name, frame),
                      Image::getFrameFileName(m_name, QDateTime::currentDateTime(), frame.number));
}

CImageView *CImageTile::getView() const
{
    return m_view;
}

void CImageTile::onFrameReady(const CDisplayedFrame &frame)
{
    if (!frame.fault.isEmpty())
        m_view->setPlaceholder(m_name, tr("Its image cannot be shown: %1.").arg(frame.fault));
    else
        m_view->setImage(frame.image);
    if (frame.histogram && m_showsHistogram && frame.fault.isEmpty())
        m_view->setHistogram(*frame.histogram);
    m_footer->show();
    if (m_isPictureWanted && frame.fault.isEmpty())
        requestPicture();
}

void CImageTile::updatePixel()
{
    const QPoint pixel = m_view->getPointedPixel();
    const Image::CFrame &frame = m_converter.getFrame();
    // While there is no frame, what was told stays for a moment.
    if (pixel.x() >= 0 && !frame.memory && m_view->hasImage())
        return;
    QStringList values;
    const QVector<int> components = Image::getPixel(frame, pixel.x(), pixel.y());
    for (const int component : components)
        values.append(QString::number(component));
    m_pixelLabel->setText(values.isEmpty() ? QString()
                                           : QStringLiteral("(%1, %2): %3")
                                                 .arg(pixel.x())
                                                 .arg(pixel.y())
                                                 .arg(values.join(QLatin1String(", "))));
}

void CImageTile::paintEvent(QPaintEvent *)
{
    if (!m_isFramed)
        return;
    QPainter painter(this);
    const QColor color = palette().color(QPalette::Active, QPalette::Highlight);
    painter.setPen(QPen(color, FRAME_WIDTH, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    const int half = FRAME_WIDTH / 2;
    painter.drawRect(rect().adjusted(half, half, -half - 1, -half - 1));
}

} // namespace Viewer::ImageView
