#include "imagescaler.h"

#include <opencv2/imgproc.hpp>

namespace Viewer::Image {

QImage CImageScaler::scaleDown(const QImage &image, const QSize &size)
{
    QImage scaled = m_memory.makeImage(size.width(), size.height(), QImage::Format_RGB32);
    if (image.isNull() || scaled.isNull())
        return {};
    const bool isGray = image.format() == QImage::Format_Grayscale8;
    const cv::Mat from(image.height(), image.width(), isGray ? CV_8UC1 : CV_8UC4,
                       const_cast<uchar *>(image.constBits()),
                       static_cast<size_t>(image.bytesPerLine()));
    cv::Mat to(scaled.height(), scaled.width(), CV_8UC4, scaled.bits(),
               static_cast<size_t>(scaled.bytesPerLine()));
    if (!isGray) {
        cv::resize(from, to, to.size(), 0, 0, cv::INTER_LINEAR);
        return scaled;
    }
    m_gray.resize(static_cast<size_t>(size.width()) * static_cast<size_t>(size.height()));
    cv::Mat gray(scaled.height(), scaled.width(), CV_8UC1, m_gray.data());
    cv::resize(from, gray, gray.size(), 0, 0, cv::INTER_LINEAR);
    cv::cvtColor(gray, to, cv::COLOR_GRAY2BGRA);
    return scaled;
}

} // namespace Viewer::Image
