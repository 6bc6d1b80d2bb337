#include "linkopener.h"

#include "textdialog.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace Viewer::AppCore {

// The empty scheme is that of a bare path.
static const char *const Schemes[] = {"https", "http", "mailto", "file", ""};

CLinkOpener::CLinkOpener(const QString &program, QObject *parent)
    : QObject(parent)
    , m_program(program)
{
    for (const char *scheme : Schemes)
        QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "open");
}

CLinkOpener::~CLinkOpener()
{
    for (const char *scheme : Schemes)
        QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
}

void CLinkOpener::setEnvironment(const QProcessEnvironment &environment)
{
    m_environment = environment;
}

void CLinkOpener::open(const QUrl &url)
{
    const QString executable = QStandardPaths::findExecutable(m_program);
    if (executable.isEmpty()) {
        openFallback(url);
        return;
    }
    // Run here rather than by Qt, which calls a program that starts and then fails a success.
    auto *const process = new QProcess(this);
    connect(process, &QProcess::errorOccurred, this,
            [this, process, url](QProcess::ProcessError error) {
                if (error != QProcess::FailedToStart)
                    return;
                process->deleteLater();
                openFallback(url);
            });
    connect(process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            [this, process, url](int exitCode, QProcess::ExitStatus status) {
                process->deleteLater();
                if (exitCode != 0 || status != QProcess::NormalExit)
                    openFallback(url);
            });
    process->setProcessEnvironment(m_environment);
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(executable, {url.isRelative() ? url.path() : url.toString(QUrl::FullyEncoded)});
}

void CLinkOpener::openFallback(const QUrl &url)
{
    if (url.isLocalFile())
        showText(url.toLocalFile());
    else if (url.isRelative())
        showText(url.path());
    else
        showAddress(url);
}

void CLinkOpener::showText(const QString &path)
{
    if (QFileInfo(path).isDir()) {
        showDialog(new CTextDialog(tr("Folder"), QDir::toNativeSeparators(path),
                                   QApplication::activeModalWidget()));
        return;
    }
    CTextDialog::showFile(path, QApplication::activeModalWidget());
}

void CLinkOpener::showAddress(const QUrl &url)
{
    auto *const dialog = new CTextDialog(tr("Address"), url.toString(QUrl::FullyEncoded),
                                         QApplication::activeModalWidget());
    dialog->setHint(tr("This desktop has no program for web pages. Copy the address to open it "
                       "elsewhere."));
    showDialog(dialog);
}

void CLinkOpener::showDialog(QDialog *dialog)
{
    // Not modal, and a child of the modal dialog with the link: that one keeps its place as the
    // topmost modal dialog, and its own child is not blocked by it.
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
}

} // namespace Viewer::AppCore
