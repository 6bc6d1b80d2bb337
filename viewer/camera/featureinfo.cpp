#include "featureinfo.h"

#include "viewer/process/cborinteger.h"

#include <QCborArray>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace Viewer::Camera {

static const QString NAME = QStringLiteral("name");
static const QString DISPLAY_NAME = QStringLiteral("displayName");
static const QString CATEGORY = QStringLiteral("category");
static const QString UNIT = QStringLiteral("unit");
static const QString KIND = QStringLiteral("kind");
static const QString IS_READABLE = QStringLiteral("readable");
static const QString IS_WRITABLE = QStringLiteral("writable");
static const QString IS_LOCKED_BY_IMAGES = QStringLiteral("lockedByImages");
static const QString VALUE = QStringLiteral("value");
static const QString MINIMUM = QStringLiteral("minimum");
static const QString MAXIMUM = QStringLiteral("maximum");
static const QString INCREMENT = QStringLiteral("increment");
static const QString INTEGER_MINIMUM = QStringLiteral("integerMinimum");
static const QString INTEGER_MAXIMUM = QStringLiteral("integerMaximum");
static const QString INTEGER_INCREMENT = QStringLiteral("integerIncrement");
static const QString CHOICES = QStringLiteral("choices");

/// More than any camera has, and so little that a message with some features can be read.
static constexpr int MAXIMUM_TEXT = 1000; // characters
static constexpr int MAXIMUM_CHOICES = 500;

QCborMap CFeatureInfo::toCbor() const
{
    QCborArray taken;
    for (const QString &choice : choices) {
        // Half a choice is none.
        if (choice.size() <= MAXIMUM_TEXT && taken.size() < MAXIMUM_CHOICES)
            taken.append(choice);
    }
    return {{NAME, name.left(MAXIMUM_TEXT)},
            {DISPLAY_NAME, displayName.left(MAXIMUM_TEXT)},
            {CATEGORY, category.left(MAXIMUM_TEXT)},
            {UNIT, unit.left(MAXIMUM_TEXT)},
            {KIND, static_cast<int>(kind)},
            {IS_READABLE, isReadable},
            {IS_WRITABLE, isWritable},
            {IS_LOCKED_BY_IMAGES, isLockedByImages},
            {VALUE, value.left(MAXIMUM_TEXT)},
            {MINIMUM, minimum},
            {MAXIMUM, maximum},
            {INCREMENT, increment},
            {INTEGER_MINIMUM, integerMinimum},
            {INTEGER_MAXIMUM, integerMaximum},
            {INTEGER_INCREMENT, integerIncrement},
            {CHOICES, taken}};
}

QString CFeatureInfo::toText(double number)
{
    std::array<char, 32> text{};
    char *const end = text.data() + text.size();
    const double size = std::abs(number);
    const auto narrow = size <= std::numeric_limits<float>::max()
        ? static_cast<float>(number)
        : std::numeric_limits<float>::infinity();
    // 1000000 and not 1e+06
    const auto format = size == 0 || (size >= 1e-4 && size < 1e15) ? std::chars_format::fixed
                                                                   : std::chars_format::general;
    // Many cameras keep single precision: 0.1 of these has sixteen more digits in double precision.
    const std::to_chars_result result = static_cast<double>(narrow) == number
        ? std::to_chars(text.data(), end, narrow, format)
        : std::to_chars(text.data(), end, number, format);
    return QString::fromLatin1(text.data(), static_cast<int>(result.ptr - text.data()));
}

std::optional<CFeatureInfo> CFeatureInfo::fromCbor(const QCborMap &map)
{
    CFeatureInfo info;
    info.name = map.value(NAME).toString();
    const qint64 kind = Process::toInteger(map.value(KIND), -1);
    info.integerMinimum = Process::toInteger(map.value(INTEGER_MINIMUM), 0);
    info.integerMaximum = Process::toInteger(map.value(INTEGER_MAXIMUM), 0);
    info.integerIncrement = Process::toInteger(map.value(INTEGER_INCREMENT), 1);
    info.minimum = map.value(MINIMUM).toDouble();
    info.maximum = map.value(MAXIMUM).toDouble();
    info.increment = map.value(INCREMENT).toDouble();
    if (info.name.isEmpty() || kind < 0 || kind > static_cast<int>(EKind::Other)
        || !std::isfinite(info.minimum) || !std::isfinite(info.maximum)
        || !std::isfinite(info.increment) || info.integerIncrement < 1)
        return std::nullopt;
    info.kind = static_cast<EKind>(kind);
    info.displayName = map.value(DISPLAY_NAME).toString();
    info.category = map.value(CATEGORY).toString();
    info.unit = map.value(UNIT).toString();
    info.isReadable = map.value(IS_READABLE).toBool();
    info.isWritable = map.value(IS_WRITABLE).toBool();
    info.isLockedByImages = map.value(IS_LOCKED_BY_IMAGES).toBool();
    info.value = map.value(VALUE).toString();
    for (const QCborValue choice : map.value(CHOICES).toArray())
        info.choices.append(choice.toString());
    return info;
}

} // namespace Viewer::Camera
