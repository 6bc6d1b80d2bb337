#include "startguard.h"

#include "viewer/text/visibletext.h"

#include <QByteArray>
#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <optional>

namespace Viewer::AppCore {

// Far more than any style sheet has.
static constexpr qint64 MAXIMUM_STYLE_SHEET_SIZE = 4 * 1024 * 1024;

namespace {

struct CHeldMessages
{
    QtMessageHandler handler = nullptr; ///< the one before
    int exitCode = EXIT_FAILURE;
    QString reason; ///< the first thing that Qt said about the window system
    QStringList lines; ///< as they would have been printed
};

std::mutex mutex; // threads of the window system may have something to say as well
std::optional<CHeldMessages> heldMessages;

void holdMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const std::lock_guard lock(mutex);
    if (!heldMessages) {
        // It came while the guard went.
        std::fprintf(stderr, "%s\n", qUtf8Printable(qFormatLogMessage(type, context, text)));
        return;
    }
    CHeldMessages &held = *heldMessages;
    if (type != QtFatalMsg) {
        if (held.reason.isEmpty() && QLatin1String(context.category).startsWith(u"qt.qpa"))
            held.reason = text;
        held.lines.append(qFormatLogMessage(type, context, text));
        return;
    }
    if (held.reason.isEmpty())
        held.reason = text.section(QLatin1Char('\n'), 0, 0);
    std::fprintf(stderr,
                 "nuvexviewer: The window system cannot be used (%s). Check DISPLAY, "
                 "WAYLAND_DISPLAY, QT_QPA_PLATFORM and the arguments -platform and -display.\n",
                 qUtf8Printable(Text::toSingleLine(held.reason.trimmed())));
    // Without destructors: Qt is in the middle of making what they would take down.
    std::_Exit(held.exitCode);
}

// As Qt does: one dash or two, the value behind an equals sign or in the next argument.
bool isArgument(const char *argument, const char *name)
{
    const QByteArray text(argument);
    const QByteArray wanted = QByteArray("-") + name;
    const QByteArray given = text.startsWith("--") ? text.mid(1) : text;
    return given == wanted || given.startsWith(wanted + '=');
}

} // namespace

CStartGuard::CStartGuard(int argc, char **argv, int usageError)
{
    heldMessages.emplace();
    for (int i = 1; i < argc; ++i) {
        if (isArgument(argv[i], "platform") || isArgument(argv[i], "display"))
            heldMessages->exitCode = usageError;
    }
    heldMessages->handler = qInstallMessageHandler(holdMessage);
}

CStartGuard::~CStartGuard()
{
    const std::lock_guard lock(mutex);
    qInstallMessageHandler(heldMessages->handler);
    for (const QString &line : qAsConst(heldMessages->lines))
        std::fprintf(stderr, "%s\n", qUtf8Printable(line));
    heldMessages.reset();
}

QString CStartGuard::findFault(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        if (!isArgument(argv[i], "stylesheet"))
            continue;
        const QByteArray argument(argv[i]);
        const int equals = argument.indexOf('=');
        const QString path = QFile::decodeName(
            equals >= 0 ? argument.mid(equals + 1) : QByteArray(i + 1 < argc ? argv[i + 1] : ""));
        const QFileInfo file(path);
        // Qt reads it whole: a device would never end.
        if (!file.isFile() || file.size() > MAXIMUM_STYLE_SHEET_SIZE)
            return QStringLiteral("The style sheet \"%1\" is not a file of at most %2 bytes.")
                .arg(Text::toSingleLine(QDir::toNativeSeparators(path)))
                .arg(MAXIMUM_STYLE_SHEET_SIZE);
    }
    return {};
}

} // namespace Viewer::AppCore
