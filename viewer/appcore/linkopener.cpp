#include "linkopener.h"

#include "textdialog.h"

#include "core/richtext.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QProcess>
#include <QStandardPaths>
#include <QTextDocument>
#include <QTextFormat>
#include <QUrl>

namespace Viewer::AppCore {

CLinkOpener::CLinkOpener(const QString &program, QObject *parent)
    : QObject(parent)
    , m_program(program)
{
    // The empty scheme is that of a bare path.
    for (const char *const scheme : {"https", "http", "mailto", "file", ""})
        handle(QLatin1String(scheme));
    qApp->installEventFilter(this);
}

CLinkOpener::~CLinkOpener()
{
    for (const QString &scheme : qAsConst(m_schemes))
        QDesktopServices::unsetUrlHandler(scheme);
}

void CLinkOpener::setEnvironment(const QProcessEnvironment &environment)
{
    m_environment = environment;
}

void CLinkOpener::setLogFolder(const QString &folder)
{
    m_logFolder = folder;
}

void CLinkOpener::setManual(const QString &file)
{
    m_manual = QUrl::fromLocalFile(file);
}

void CLinkOpener::addFolder(const QString &folder)
{
    m_folders.append(folder);
}

void CLinkOpener::handle(const QString &scheme)
{
    if (m_schemes.contains(scheme))
        return;
    m_schemes.insert(scheme);
    QDesktopServices::setUrlHandler(scheme, this, "open");
}

bool CLinkOpener::eventFilter(QObject *watched, QEvent *event)
{
    // A link is followed on a release of the mouse or a press of a key.
    if (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::KeyPress) {
        const auto *const label = qobject_cast<QLabel *>(watched);
        if (label && label->openExternalLinks())
            handleLinks(*label);
    }
    return QObject::eventFilter(watched, event);
}

// Of a scheme without a handler Qt asks nobody, and the desktop opens it with whatever claims it.
void CLinkOpener::handleLinks(const QLabel &label)
{
    const auto *const document = label.findChild<QTextDocument *>();
    if (!document)
        return;
    const QVector<QTextFormat> formats = document->allFormats();
    for (const QTextFormat &format : formats) {
        if (format.isCharFormat())
            handle(QUrl(format.toCharFormat().anchorHref()).scheme());
    }
}

void CLinkOpener::open(const QUrl &url)
{
    const QString address = url.toString(QUrl::FullyEncoded);
    const QString own = findOwn(url);
    if (!own.isEmpty())
        run(own, false);
    else if (Core::Text::isWebLink(address))
        run(address, true);
    else if (!m_manual.isEmpty() && url == m_manual)
        run(m_manual.toLocalFile(), true);
    else
        showAddress(url.isValid() ? address : url.errorString(),
                    tr("The viewer opens only web pages, mail addresses and its own logs. This "
                       "link leads somewhere else, so it was not opened."));
}

// The path of a log or a folder of the viewer's, without links; empty: @p url is nothing of these.
QString CLinkOpener::findOwn(const QUrl &url) const
{
    if (!url.isLocalFile() && !url.isRelative())
        return {};
    const QFileInfo file(url.isRelative() ? url.path() : url.toLocalFile());
    const QString path = file.canonicalFilePath();
    if (!file.isAbsolute() || path.isEmpty())
        return {};
    for (const QString &folder : m_folders) {
        if (file.isDir() && path == QFileInfo(folder).canonicalFilePath())
            return path;
    }
    // Nothing that only looks like a log: a link to another file, a pipe, a program.
    const QString logs = QFileInfo(m_logFolder).canonicalFilePath();
    const bool isLog = !m_logFolder.isEmpty() && !logs.isEmpty()
        && path.startsWith(logs + QLatin1Char('/')) && path.endsWith(QLatin1String(".log"))
        && file.isFile();
    return isLog ? path : QString();
}

void CLinkOpener::run(const QString &target, bool isAddress)
{
    const QString executable = QStandardPaths::findExecutable(m_program);
    if (executable.isEmpty()) {
        openFallback(target, isAddress);
        return;
    }
    // Run here rather than by Qt, which calls a program that starts and then fails a success.
    auto *const process = new QProcess(this);
    connect(process, &QProcess::errorOccurred, this,
            [this, process, target, isAddress](QProcess::ProcessError error) {
                if (error != QProcess::FailedToStart)
                    return;
                process->deleteLater();
                openFallback(target, isAddress);
            });
    connect(process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            [this, process, target, isAddress](int exitCode, QProcess::ExitStatus status) {
                process->deleteLater();
                if (exitCode != 0 || status != QProcess::NormalExit)
                    openFallback(target, isAddress);
            });
    process->setProcessEnvironment(m_environment);
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(executable, {target});
}

void CLinkOpener::openFallback(const QString &target, bool isAddress)
{
    if (isAddress)
        showAddress(target,
                    tr("This desktop has no program for web pages. Copy the address to open it "
                       "elsewhere."));
    else if (QFileInfo(target).isDir())
        showDialog(new CTextDialog(tr("Folder"), QDir::toNativeSeparators(target),
                                   QApplication::activeModalWidget()));
    else
        CTextDialog::showFile(target, QApplication::activeModalWidget());
}

void CLinkOpener::showAddress(const QString &address, const QString &hint)
{
    auto *const dialog = new CTextDialog(tr("Address"), address, QApplication::activeModalWidget());
    dialog->setHint(hint);
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
