#pragma once

#include <QWidget>

namespace Viewer::ImageView {

/// One line of text that takes no more room than there is; what does not fit is cut with dots.
class CElidedLabel : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString shownText READ getText)

public:
    explicit CElidedLabel(QWidget *parent = nullptr);
    ~CElidedLabel() override;

    void setText(const QString &text);
    [[nodiscard]] QString getText() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_text;
};

} // namespace Viewer::ImageView
