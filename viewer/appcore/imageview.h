#pragma once

#include <QImage>
#include <QWidget>

namespace Viewer::AppCore {

/// Shows one camera's moving image, as large as it fits, or a text in its place.
class CImageView : public QWidget
{
    Q_OBJECT

public:
    explicit CImageView(QWidget *parent = nullptr);
    ~CImageView() override;

    /// Shows @p image until the next call.
    void setImage(const QImage &image);

    /// Shows @p title and, in smaller letters, @p hint instead of an image.
    void setPlaceholder(const QString &title, const QString &hint);

    [[nodiscard]] bool hasImage() const;
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintPlaceholder(QPainter &painter);

    QImage m_image;
    QString m_title;
    QString m_hint;
};

} // namespace Viewer::AppCore
