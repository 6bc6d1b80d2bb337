#pragma once

#include <QString>

namespace Viewer::AppCore {

/// Stands between the user and how Qt starts. Where Qt cannot use the window system it aborts, with
/// a core file and a list of its platforms; while this object lives it ends the process with one
/// sentence on standard error instead. One at a time, on the thread of the application object.
class CStartGuard
{
public:
    /// Create it before the application object, from the arguments that this one gets. They decide
    /// about the exit code: @p usageError where they choose the window system, else EXIT_FAILURE.
    CStartGuard(int argc, char **argv, int usageError);

    /// From here on Qt's messages, also those held back so far, go where they always go.
    ~CStartGuard();

    CStartGuard(const CStartGuard &) = delete;
    CStartGuard &operator=(const CStartGuard &) = delete;

    /// Says in one sentence what is wrong with those of Qt's own arguments that Qt follows blindly;
    /// empty: nothing. Needs no application object.
    [[nodiscard]] static QString findFault(int argc, char **argv);
};

} // namespace Viewer::AppCore
