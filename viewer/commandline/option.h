#pragma once

#include <QString>

#include <functional>

namespace Viewer::CommandLine {

/// One option of a program: a row of its table.
struct COption
{
    QString name; ///< without dashes
    QString valueName; ///< empty: a switch
    QString description;

    /// Takes the value; a switch gets an empty one. Called once for each time that the option is
    /// given, in that order. False: the value is no good.
    std::function<bool(const QString &value)> take;

    /// The sentence about a value that is no good, which may show it as %1; empty: a common one.
    QString fault = {};

    /// Taken before anything is answered, and also from arguments that are faulty elsewhere.
    bool comesFirst = false;
};

} // namespace Viewer::CommandLine
