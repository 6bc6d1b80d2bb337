#include "firmwareversion.h"

namespace Viewer::UpdateFile {

using Plugin::CameraPool::EFirmwareUpdateDirection;

namespace {

bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

/// Length of the numbers and dots that @p text begins with, without a dot at their end.
/// QVersionNumber::fromString() could tell it too, but is declared a pure function, so optimizing
/// compilers drop what it stores through its second argument.
int getNumberLength(const QString &text)
{
    int length = 0;
    for (int position = 0; position < text.size() && isDigit(text.at(position)); ++position) {
        while (position < text.size() && isDigit(text.at(position)))
            ++position;
        length = position;
        if (position == text.size() || text.at(position) != QLatin1Char('.'))
            break;
    }
    return length;
}

bool canBeginSuffix(QChar character)
{
    return character.isLetter() || QStringLiteral("-+_ ").contains(character);
}

/// The run of digits at @p position without its leading zeros; moves @p position behind the run.
QStringView takeNumber(const QString &text, int &position)
{
    while (position < text.size() && text.at(position) == QLatin1Char('0'))
        ++position;
    const int begin = position;
    while (position < text.size() && isDigit(text.at(position)))
        ++position;
    return QStringView(text).mid(begin, position - begin);
}

/// Compares character by character, but runs of digits as numbers of any length.
int compareNaturally(const QString &left, const QString &right)
{
    int leftPosition = 0;
    int rightPosition = 0;
    while (leftPosition < left.size() && rightPosition < right.size()) {
        const QChar leftCharacter = left.at(leftPosition);
        const QChar rightCharacter = right.at(rightPosition);
        if (isDigit(leftCharacter) && isDigit(rightCharacter)) {
            const QStringView leftNumber = takeNumber(left, leftPosition);
            const QStringView rightNumber = takeNumber(right, rightPosition);
            if (leftNumber.size() != rightNumber.size())
                return leftNumber.size() < rightNumber.size() ? -1 : 1;
            if (const int order = leftNumber.compare(rightNumber))
                return order;
        } else if (leftCharacter != rightCharacter) {
            return leftCharacter < rightCharacter ? -1 : 1;
        } else {
            ++leftPosition;
            ++rightPosition;
        }
    }
    return (left.size() - leftPosition) - (right.size() - rightPosition);
}

/// -1 for a version from before the release, 0 for the release, 1 for one from after it.
int getStage(const QString &suffix)
{
    if (suffix.isEmpty())
        return 0;
    return suffix.startsWith(QLatin1Char('-')) ? -1 : 1;
}

} // namespace

std::optional<CFirmwareVersion> CFirmwareVersion::parse(const QString &text)
{
    const QString trimmed = text.trimmed();
    const int length = getNumberLength(trimmed);
    const QString numberText = trimmed.left(length);
    const QVersionNumber number = QVersionNumber::fromString(numberText);
    // A segment that is too large for an int ends the number early.
    if (number.isNull() || number.segmentCount() != numberText.count(QLatin1Char('.')) + 1)
        return std::nullopt;
    if (length < trimmed.size() && !canBeginSuffix(trimmed.at(length)))
        return std::nullopt;

    CFirmwareVersion version;
    version.m_number = number.normalized();
    version.m_suffix = trimmed.mid(length);
    return version;
}

int CFirmwareVersion::compare(const CFirmwareVersion &left, const CFirmwareVersion &right)
{
    if (const int order = QVersionNumber::compare(left.m_number, right.m_number))
        return order;
    if (const int order = getStage(left.m_suffix) - getStage(right.m_suffix))
        return order;
    return compareNaturally(left.m_suffix, right.m_suffix);
}

bool isSameVersion(const QString &left, const QString &right)
{
    if (left == right)
        return true;
    const auto leftVersion = CFirmwareVersion::parse(left);
    const auto rightVersion = CFirmwareVersion::parse(right);
    return leftVersion && rightVersion && *leftVersion == *rightVersion;
}

EFirmwareUpdateDirection getDirection(const QString &current, const QString &target)
{
    if (isSameVersion(current, target))
        return EFirmwareUpdateDirection::Reinstall;
    const auto targetVersion = CFirmwareVersion::parse(target);
    if (!targetVersion)
        return EFirmwareUpdateDirection::Downgrade;
    const auto currentVersion = CFirmwareVersion::parse(current);
    if (!currentVersion || *currentVersion < *targetVersion)
        return EFirmwareUpdateDirection::Upgrade;
    return EFirmwareUpdateDirection::Downgrade;
}

bool isBelow(const QString &current, const QString &minimum)
{
    if (minimum.isEmpty() || isSameVersion(current, minimum))
        return false;
    const auto currentVersion = CFirmwareVersion::parse(current);
    const auto minimumVersion = CFirmwareVersion::parse(minimum);
    return !currentVersion || !minimumVersion || *currentVersion < *minimumVersion;
}

} // namespace Viewer::UpdateFile
