#pragma once

#include <QByteArray>
#include <QFileInfo>
#include <QString>

#include <functional>

/// What options do with their values. The targets have to outlive the functions.
namespace Viewer::CommandLine {

using CTaker = std::function<bool(const QString &value)>;

inline CTaker takeSwitch(bool &target, bool value = true)
{
    return [&target, value](const QString &) {
        target = value;
        return true;
    };
}

/// A whole number from @p minimum to @p maximum. @p target may be anything that is made of one.
template <typename T>
CTaker takeInteger(T &target, qint64 minimum, qint64 maximum)
{
    return [&target, minimum, maximum](const QString &text) {
        bool isNumber = false;
        const qint64 number = text.toLongLong(&isNumber);
        if (!isNumber || number < minimum || number > maximum)
            return false;
        target = T(number);
        return true;
    };
}

/// UTF-8 of at most @p maximumSize bytes.
inline CTaker takeUtf8(QByteArray &target, int maximumSize)
{
    return [&target, maximumSize](const QString &text) {
        target = text.toUtf8();
        return target.size() <= maximumSize;
    };
}

/// A path that does not depend on the current folder afterwards; not empty.
inline CTaker takePath(QString &target)
{
    return [&target](const QString &path) {
        target = path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
        return !path.isEmpty();
    };
}

} // namespace Viewer::CommandLine
