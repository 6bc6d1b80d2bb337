#include "featureinfo.h"

#include <QCborArray>

#include <cmath>

namespace Viewer::Camera {

static const QString NAME = QStringLiteral("name");
static const QString DISPLAY_NAME = QStringLiteral("displayName");
static const QString CATEGORY = QStringLiteral("category");
static const QString UNIT = QStringLiteral("unit");
static const QString KIND = QStringLiteral("kind");
static const QString IS_READABLE = QStringLiteral("readable");
static const QString IS_WRITABLE = QStringLiteral("writable");
static const QString VALUE = QStringLiteral("value");
static const QString MINIMUM = QStringLiteral("minimum");
static const QString MAXIMUM = QStringLiteral("maximum");
static const QString INCREMENT = QStringLiteral("increment");
static const QString CHOICES = QStringLiteral("choices");

QCborMap CFeatureInfo::toCbor() const
{
    return {{NAME, name},
            {DISPLAY_NAME, displayName},
            {CATEGORY, category},
            {UNIT, unit},
            {KIND, static_cast<int>(kind)},
            {IS_READABLE, isReadable},
            {IS_WRITABLE, isWritable},
            {VALUE, value},
            {MINIMUM, minimum},
            {MAXIMUM, maximum},
            {INCREMENT, increment},
            {CHOICES, QCborArray::fromStringList(choices)}};
}

std::optional<CFeatureInfo> CFeatureInfo::fromCbor(const QCborMap &map)
{
    CFeatureInfo info;
    info.name = map.value(NAME).toString();
    const qint64 kind = map.value(KIND).toInteger(-1);
    info.minimum = map.value(MINIMUM).toDouble();
    info.maximum = map.value(MAXIMUM).toDouble();
    info.increment = map.value(INCREMENT).toDouble();
    if (info.name.isEmpty() || kind < 0 || kind > static_cast<int>(EKind::Other)
        || !std::isfinite(info.minimum) || !std::isfinite(info.maximum)
        || !std::isfinite(info.increment))
        return std::nullopt;
    info.kind = static_cast<EKind>(kind);
    info.displayName = map.value(DISPLAY_NAME).toString();
    info.category = map.value(CATEGORY).toString();
    info.unit = map.value(UNIT).toString();
    info.isReadable = map.value(IS_READABLE).toBool();
    info.isWritable = map.value(IS_WRITABLE).toBool();
    info.value = map.value(VALUE).toString();
    for (const QCborValue choice : map.value(CHOICES).toArray())
        info.choices.append(choice.toString());
    return info;
}

} // namespace Viewer::Camera
