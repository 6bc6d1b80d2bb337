#include "workerenvironment.h"

#include <QVector>

namespace Viewer::Process {

QProcessEnvironment makeWorkerEnvironment()
{
    const QProcessEnvironment own = QProcessEnvironment::systemEnvironment();
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("PATH"), QStringLiteral("/usr/bin:/bin"));
    QVector<const char *> names{"HOME",
                                "LANG",
                                "LC_ALL",
                                "TMPDIR",
                                "TZ",
                                "XDG_STATE_HOME",
                                "XDG_RUNTIME_DIR",
                                "DBUS_SYSTEM_BUS_ADDRESS",
                                "QT_LOGGING_RULES",
                                "ASAN_OPTIONS",
                                "LSAN_OPTIONS",
                                "TSAN_OPTIONS",
                                "UBSAN_OPTIONS"};
    // An emulated USB is seen by who runs under the library that emulates it.
    if (own.contains(QStringLiteral("UMOCKDEV_DIR")))
        names << "UMOCKDEV_DIR"
              << "LD_PRELOAD";
    for (const char *const name : qAsConst(names)) {
        const QString variable = QString::fromLatin1(name);
        if (own.contains(variable))
            environment.insert(variable, own.value(variable));
    }
    return environment;
}

} // namespace Viewer::Process
