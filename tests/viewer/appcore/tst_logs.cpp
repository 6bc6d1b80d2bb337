#include "viewer/appcore/logfolder.h"
#include "viewer/appcore/loglistdialog.h"
#include "viewer/appcore/logsummary.h"
#include "viewer/appcore/textdialog.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

#include <csignal>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace Viewer::AppCore;
using EOutcome = CLogSummary::EOutcome;

/// Looks at the folder of logs as several viewers leave it behind, and at its list.
class CLogsTest : public QObject
{
    Q_OBJECT

public slots:
    void openFolder(const QUrl &url) { m_openedFolder = url.toLocalFile(); }

private slots:
    void init();
    void eachViewerHasAPrivateFolder();
    void removesOldLogsAndNothingElse();
    void withoutAFolderLogsGoNowhere_data();
    void withoutAFolderLogsGoNowhere();
    void tellsTheOutcome();
    void listsShowsAndCopies();

private:
    QString root() const { return m_home->filePath("state/nuvexviewer/logs"); }
    /// Of a viewer that has ended, unless it is @p withLock == false.
    QString makeFolder(const QString &name, bool withLock = true) const;
    static QString makeFile(const QString &path, const QByteArray &text = {});
    QStringList find(const QString &pattern) const;

    std::unique_ptr<QTemporaryDir> m_home;
    QString m_openedFolder;
};

void CLogsTest::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    qputenv("HOME", m_home->path().toUtf8());
    qputenv("XDG_STATE_HOME", m_home->filePath("state").toUtf8());
    qputenv("TMPDIR", "/tmp");
}

QString CLogsTest::makeFolder(const QString &name, bool withLock) const
{
    QDir().mkpath(root() + '/' + name);
    if (withLock)
        makeFile(root() + '/' + name + "/.lock");
    return root() + '/' + name + '/';
}

QString CLogsTest::makeFile(const QString &path, const QByteArray &text)
{
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(text);
    return path;
}

QStringList CLogsTest::find(const QString &pattern) const
{
    QStringList found;
    QDirIterator entries(root(), {pattern}, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        found.append(entries.next());
    return found;
}

void CLogsTest::eachViewerHasAPrivateFolder()
{
    {
        CLogFolder first;
        CLogFolder second;
        QVERIFY(first.open());
        const QString folder = QDir::tempPath();
        QVERIFY2(folder.startsWith(root() + '/'), qPrintable(folder));
        struct stat info = {};
        QCOMPARE(stat(folder.toUtf8(), &info), 0);
        QCOMPARE(info.st_mode & 07777, 0700U);
        QVERIFY(second.open());
        QVERIFY(QDir::tempPath() != folder && QDir::tempPath().startsWith(root() + '/'));
        QCOMPARE(first.getOutsideEnvironment().value("TMPDIR"), "/tmp");
        makeFile(folder + "/NuvexFirmwareUpdaterGUI_20260115_064211.log");
        QCOMPARE(second.getLogs().size(), 1);
        QVERIFY(second.getLogs().constFirst().inUse);
    }
    QCOMPARE(QDir::tempPath(), "/tmp");
    // The one with a log stays.
    QCOMPARE(QDir(root()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
    QVERIFY(!CLogFolder().getLogs().constFirst().inUse);

    qputenv("XDG_STATE_HOME", "state");
    CLogFolder relative;
    QVERIFY(relative.open());
    QVERIFY(QDir::tempPath().startsWith(m_home->filePath(".local/state/nuvexviewer/logs/")));
}

void CLogsTest::removesOldLogsAndNothingElse()
{
    CLogFolder running;
    QVERIFY(running.open());
    const QString old = "NuvexFirmwareUpdaterGUI_20200101_00000%1.log";
    const QString inUse = makeFile(QDir::tempPath() + '/' + old.arg(0));
    const QString unknown = makeFile(makeFolder("20200101_000000_noLock", false) + old.arg(1));
    const QString outside = m_home->filePath("outside");
    QDir().mkpath(outside);
    makeFile(outside + "/.lock");
    const QString behindLink = makeFile(outside + '/' + old.arg(2));
    QVERIFY(QFile::link(outside, root() + "/20200101_000000_aLinkX"));
    const QString mixed = makeFolder("20200101_000000_mixedX");
    const QString notes = makeFile(mixed + "notes.txt");
    const QString link = mixed + old.arg(3);
    QVERIFY(QFile::link(behindLink, link));
    makeFile(mixed + old.arg(4)); // the only one that goes from here
    makeFile(makeFolder("20200101_000000_single") + old.arg(5));
    makeFolder("20200101_000000_emptyX");
    const QString recent = makeFolder("20260101_000000_recent");
    for (int i = 0; i < CLogFolder::MAXIMUM_COUNT; ++i)
        makeFile(recent + "NuvexFirmwareUpdaterGUI_20260101_"
                 + QTime(0, 0).addSecs(i).toString("HHmmss") + ".log");

    CLogFolder folder;
    QVERIFY(folder.open());
    for (const QString &kept : {inUse, unknown, behindLink, notes})
        QVERIFY2(QFile::exists(kept), qPrintable(kept));
    QVERIFY(QFileInfo(link).isSymLink());
    QCOMPARE(find("*20260101_*.log").size(), CLogFolder::MAXIMUM_COUNT);
    QCOMPARE(find(old.arg(4)) + find(old.arg(5)), QStringList());
    QCOMPARE(find("*single") + find("*emptyX"), QStringList());
}

void CLogsTest::withoutAFolderLogsGoNowhere_data()
{
    QTest::addColumn<QString>("fault");
    for (const char *fault : {"Not a directory", "other than its owner can write", "File too large",
                              "there is no home folder"})
        QTest::newRow(fault) << fault;
}

void CLogsTest::withoutAFolderLogsGoNowhere()
{
    QFETCH(QString, fault);
    rlimit old{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &old), 0);
    if (fault.startsWith("Not")) {
        makeFile(m_home->filePath("state"));
    } else if (fault.startsWith("other")) {
        makeFolder(".");
        QCOMPARE(chmod(root().toUtf8(), 0777), 0);
    } else if (fault.startsWith("File")) {
        // As if the disk were full: files can be made, but hold little.
        signal(SIGXFSZ, SIG_IGN);
        const rlimit small{1000, old.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    } else {
        qunsetenv("HOME");
        qunsetenv("XDG_STATE_HOME");
    }
    CLogFolder folder;
    const bool opened = folder.open();
    setrlimit(RLIMIT_FSIZE, &old);
    QVERIFY(!opened);
    QVERIFY2(folder.getFault().contains(fault), qPrintable(folder.getFault()));
    QCOMPARE(find("*_*"), QStringList());
    // Where the plug-in's logs would be.
    QVERIFY(!QDir::tempPath().isEmpty());
    QVERIFY(!QFile(QDir::tempPath() + "/NuvexFirmwareUpdaterGUI_20260115_064211.log")
                 .open(QIODevice::WriteOnly));
    const CLogListDialog dialog(folder);
    QCOMPARE(dialog.findChild<QLabel *>("hintLabel")->text(), folder.getFault());
}

void CLogsTest::tellsTheOutcome()
{
    const auto check = [](const QString &messages, EOutcome outcome, int updated, int cameras) {
        // As written where English, Japanese and Korean are spoken.
        for (const char *const prefix :
             {"Thu Jan 15 06:42:11 2026 INFO ", "\u6728 1\u6708 15 06:42:11 2026 \u60C5\u5831 ",
              "\uBAA9 1\uC6D4 15 06:42:11 2026 \uC815\uBCF4 "}) {
            QString text;
            for (const QString &message : messages.split('|', Qt::SkipEmptyParts))
                text += QString(prefix) + message + '\n';
            const CLogSummary summary = CLogSummary::parse(text.toUtf8());
            QVERIFY2(summary.outcome == outcome, qPrintable(messages));
            QCOMPARE(summary.updatedCount, updated);
            QCOMPARE(summary.cameraCount, cameras);
            // Without its prefix a line is a part of somebody's text.
            QCOMPARE(CLogSummary::parse(text.remove(prefix).toUtf8()).outcome, EOutcome::NoUpdate);
        }
    };
    const QString begin = "Starting firmware update (%1/%2) for camera c%1|Update infos:|"
                          "Entering update step: FileUpload|";
    const QString done = begin + "Finished firmware update (%1/%2)|";
    const QString first = done.arg(1).arg(2), second = begin.arg(2).arg(2);
    const QString fault = "Firmware update (2/2) failed.|", failed = second + fault;
    const QString all = "Finished all firmware updates|";
    check("", EOutcome::NoUpdate, 0, 0);
    check("Selected firmware update file x|", EOutcome::NoUpdate, 0, 0);
    check(first + done.arg(2).arg(2) + all, EOutcome::Successful, 2, 2);
    check(first + failed + all, EOutcome::Failed, 1, 2);
    check(first + failed, EOutcome::Failed, 1, 2);
    check(first + "Firmware updates have been canceled by the user|the series was stopped|" + fault
              + all,
          EOutcome::Canceled, 1, 2);
    check(first + second + "User canceled firmware update|" + fault + all, EOutcome::Failed, 1, 2);
    check(first + second, EOutcome::Interrupted, 1, 2); // killed
    check(first, EOutcome::Interrupted, 1, 2);
    check(first + failed + all + done.arg(1).arg(1) + all, EOutcome::Failed, 2, 3); // repeated
    check(first + failed + all + begin.arg(1).arg(1), EOutcome::Interrupted, 1, 3);
    check("Finished firmware update (7/7)|" + all, EOutcome::Successful, 7, 7); // only the end
    // Release notes that lie.
    check("Starting firmware update (1/2) for camera a|Release Notes: x|" + first
              + done.arg(2).arg(2) + all + "Entering update step: FileUpload|",
          EOutcome::Interrupted, 1, 2);
    check("Finished firmware update (3/2)|Finished firmware update (0/0)|"
          "Finished firmware update (99999999/99999999)|",
          EOutcome::NoUpdate, 0, 0);
}

void CLogsTest::listsShowsAndCopies()
{
    const QByteArray prefix = "Thu Jan 15 06:42:11 2026 INFO ";
    const QByteArray text = prefix + "Starting firmware update (1/1) for camera <b>\u202E</b>\n"
        + prefix + "Finished firmware update (1/1)\n";
    const QByteArray end = prefix + "Finished all firmware updates\n";
    const QString ended = makeFolder("20260115_064211_endedX");
    makeFile(ended + "NuvexFirmwareUpdaterGUI_20260115_064211.log", text);
    makeFile(ended + "NuvexFirmwareUpdaterGUI_20260331_020000.log",
             QByteArray(CLogListDialog::MAXIMUM_LOG_SIZE, 'x') + '\n' + text + end);
    CLogFolder folder;
    QVERIFY(folder.open());
    makeFile(QDir::tempPath() + "/NuvexFirmwareUpdaterGUI_20260201_000000.log", text);

    CLogListDialog dialog(folder);
    dialog.show();
    const auto *const tree = dialog.findChild<QTreeWidget *>("logTree");
    QStringList rows;
    for (int row = 0; row < tree->topLevelItemCount(); ++row)
        rows.append(tree->topLevelItem(row)->text(0) + '|' + tree->topLevelItem(row)->text(1) + '|'
                    + tree->topLevelItem(row)->text(2));
    QCOMPARE(rows,
             QStringList({"2026-03-31 02:00:00|<b>?</b>|Successful",
                          "2026-02-01 00:00:00|<b>?</b>|Running (1 of 1 updated)",
                          "2026-01-15 06:42:11|<b>?</b>|Interrupted (1 of 1 updated)"}));
    const auto *const details = dialog.findChild<QLabel *>("detailsLabel");
    QCOMPARE(details->textFormat(), Qt::PlainText);
    QVERIFY2(details->text().contains("only its end was read"), qPrintable(details->text()));

    const auto click = [&dialog](const char *name) {
        QTest::mouseClick(dialog.findChild<QPushButton *>(name), Qt::LeftButton);
    };
    QTest::keyClick(dialog.findChild<QTreeWidget *>("logTree"), Qt::Key_End);
    click("openButton");
    const auto *const shown = dialog.findChild<CTextDialog *>();
    QVERIFY(shown && shown->isVisible());
    QCOMPARE(shown->getText(), QString::fromUtf8(text));
    click("copyButton");
    QCOMPARE(QGuiApplication::clipboard()->text(), QString::fromUtf8(text));
    QDesktopServices::setUrlHandler("file", this, "openFolder");
    click("folderButton");
    QDesktopServices::unsetUrlHandler("file");
    QCOMPARE(m_openedFolder, root());

    // Gone in the meantime.
    QVERIFY(QFile::remove(ended + "NuvexFirmwareUpdaterGUI_20260115_064211.log"));
    click("copyButton");
    QVERIFY2(details->text().contains("cannot be read"), qPrintable(details->text()));
}

QTEST_MAIN(CLogsTest)

#include "tst_logs.moc"
