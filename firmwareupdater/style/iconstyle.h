#pragma once

#include <QProxyStyle>

class QLabel;

namespace Plugin::FirmwareUpdater::Internal::Style {

/// Draws the icon of one label, for the device that it is painted on. Labels of Qt 6 scale their
/// picture for the screen that they believe to be on.
class CIconStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// Gives @p label the icon @p name of getIconPixmap().
    static void setIcon(QLabel *label, const QString &name);

    void drawItemPixmap(QPainter *painter, const QRect &rect, int alignment,
                        const QPixmap &pixmap) const override;

private:
    explicit CIconStyle(QLabel *label);

    QString m_name;
};

} // namespace Plugin::FirmwareUpdater::Internal::Style
