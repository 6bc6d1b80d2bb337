#include "workerenvironment.h"

namespace Viewer::Process {

QProcessEnvironment makeWorkerEnvironment()
{
    const QProcessEnvironment own = QProcessEnvironment::systemEnvironment();
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("PATH"), QStringLiteral("/usr/bin:/bin"));
    for (const char *const name :
         {"HOME", "LANG", "LC_ALL", "TMPDIR", "TZ", "XDG_STATE_HOME", "XDG_RUNTIME_DIR",
          "DBUS_SYSTEM_BUS_ADDRESS", "QT_LOGGING_RULES", "ASAN_OPTIONS", "LSAN_OPTIONS",
          "TSAN_OPTIONS", "UBSAN_OPTIONS"}) {
        const QString variable = QString::fromLatin1(name);
        if (own.contains(variable))
            environment.insert(variable, own.value(variable));
    }
    return environment;
}

} // namespace Viewer::Process
