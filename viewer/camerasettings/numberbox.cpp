#include "numberbox.h"

#include <QLineEdit>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace Viewer::CameraSettings {

using Camera::CFeatureInfo;

CNumberBox::CNumberBox(QWidget *parent)
    : QAbstractSpinBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAccelerated(false);
    // The field itself forgets on Enter that somebody has typed.
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] { m_isTyped = true; });
    connect(this, &QAbstractSpinBox::editingFinished, this, &CNumberBox::commit);
}

bool CNumberBox::isInteger() const
{
    return m_feature.kind == CFeatureInfo::EKind::Integer;
}

bool CNumberBox::hasLimits(const CFeatureInfo &feature)
{
    return feature.kind == CFeatureInfo::EKind::Integer
        ? feature.integerMinimum <= feature.integerMaximum
        : feature.minimum <= feature.maximum;
}

QString CNumberBox::getMinimum(const CFeatureInfo &feature)
{
    return feature.kind == CFeatureInfo::EKind::Integer ? QString::number(feature.integerMinimum)
                                                        : CFeatureInfo::toText(feature.minimum);
}

QString CNumberBox::getMaximum(const CFeatureInfo &feature)
{
    return feature.kind == CFeatureInfo::EKind::Integer ? QString::number(feature.integerMaximum)
                                                        : CFeatureInfo::toText(feature.maximum);
}

void CNumberBox::setFeature(const CFeatureInfo &feature)
{
    m_feature = feature;
    if (!m_isTyped && text() != feature.value)
        reset();
}

void CNumberBox::reset()
{
    m_isTyped = false;
    lineEdit()->setText(m_feature.value);
}

void CNumberBox::commit()
{
    // Enter, and leaving the field afterwards, are one wish.
    if (!m_isTyped)
        return;
    const QString typed = text().trimmed();
    const QString value = findValue(typed);
    reset();
    if (value.isEmpty()) {
        emit rejected(typed);
    } else if (value != m_feature.value) {
        lineEdit()->setText(value);
        emit edited(value);
    }
}

/// The multiple of @p increment above @p minimum that is nearest to @p value between the limits,
/// without a number that 64 bits cannot hold on the way.
static qint64 toMultiple(qint64 value, qint64 minimum, qint64 maximum, qint64 increment)
{
    const auto step = static_cast<quint64>(increment);
    const quint64 over = (static_cast<quint64>(value) - static_cast<quint64>(minimum)) % step;
    const quint64 room = static_cast<quint64>(maximum) - static_cast<quint64>(value);
    const bool isUp = over > 0 && over >= step - over && room >= step - over;
    return static_cast<qint64>(static_cast<quint64>(value) - over + (isUp ? step : 0));
}

QString CNumberBox::findValue(const QString &text) const
{
    bool isNumber = false;
    if (isInteger()) {
        const qint64 value = text.toLongLong(&isNumber);
        if (!isNumber)
            return {};
        if (!hasLimits(m_feature))
            return QString::number(value);
        const qint64 minimum = m_feature.integerMinimum;
        const qint64 maximum = m_feature.integerMaximum;
        if (value < minimum || value > maximum)
            return {};
        return QString::number(toMultiple(value, minimum, maximum, m_feature.integerIncrement));
    }
    double value = text.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value))
        return {};
    if (!hasLimits(m_feature))
        return CFeatureInfo::toText(value);
    // A limit that was shown can be typed, although single precision may be a little beyond it.
    if (text == getMinimum(m_feature) || text == getMaximum(m_feature))
        return text;
    if (value < m_feature.minimum || value > m_feature.maximum)
        return {};
    if (m_feature.increment > 0) {
        const double count = std::round((value - m_feature.minimum) / m_feature.increment);
        const double multiple = m_feature.minimum + count * m_feature.increment;
        if (std::isfinite(multiple) && multiple <= m_feature.maximum)
            value = multiple;
    }
    return CFeatureInfo::toText(value);
}

QString CNumberBox::stepInteger(qint64 value, int steps) const
{
    const bool isLimited = hasLimits(m_feature);
    const qint64 minimum
        = isLimited ? m_feature.integerMinimum : std::numeric_limits<qint64>::min();
    const qint64 maximum
        = isLimited ? m_feature.integerMaximum : std::numeric_limits<qint64>::max();
    const auto increment = static_cast<quint64>(m_feature.integerIncrement);
    const auto count = static_cast<quint64>(std::abs(static_cast<qint64>(steps)));
    const qint64 begin = std::clamp(value, minimum, maximum);
    const quint64 room = steps > 0 ? static_cast<quint64>(maximum) - static_cast<quint64>(begin)
                                   : static_cast<quint64>(begin) - static_cast<quint64>(minimum);
    const quint64 distance = std::min(count, room / increment) * increment;
    return QString::number(static_cast<qint64>(steps > 0 ? static_cast<quint64>(begin) + distance
                                                         : static_cast<quint64>(begin) - distance));
}

QString CNumberBox::stepFloat(double value, int steps) const
{
    // Without an increment a tenth of the first digit's place: fine for small values and for large
    // ones.
    const double place = std::abs(value) > 0 ? std::floor(std::log10(std::abs(value))) - 1 : 0;
    const double step = m_feature.increment > 0 ? m_feature.increment : std::pow(10, place);
    double next = value + steps * step;
    if (m_feature.increment <= 0)
        next = std::round(next / step) * step;
    if (!std::isfinite(next))
        return {};
    // What a decimal step leaves behind the digits that matter.
    next = QString::number(next, 'g', 15).toDouble();
    if (hasLimits(m_feature))
        next = std::clamp(next, m_feature.minimum, m_feature.maximum);
    return CFeatureInfo::toText(next);
}

void CNumberBox::stepBy(int steps)
{
    const QString typed = findValue(text().trimmed());
    const QString from = typed.isEmpty() ? m_feature.value : typed;
    const QString value
        = isInteger() ? stepInteger(from.toLongLong(), steps) : stepFloat(from.toDouble(), steps);
    reset();
    if (value.isEmpty() || value == m_feature.value)
        return;
    lineEdit()->setText(value);
    selectAll();
    emit edited(value);
}

QAbstractSpinBox::StepEnabled CNumberBox::stepEnabled() const
{
    return isReadOnly() ? StepNone : StepUpEnabled | StepDownEnabled;
}

void CNumberBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

} // namespace Viewer::CameraSettings
