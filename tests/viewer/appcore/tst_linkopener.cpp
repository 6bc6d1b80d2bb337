#include "viewer/appcore/linkopener.h"
#include "viewer/appcore/textdialog.h"

#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using namespace Viewer::AppCore;

/// Clicks links as the wizard's modal dialogs show them.
class CLinkOpenerTest : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatNoProgramShows();
    void opensOnlyWhatItKnows_data();
    void opensOnlyWhatItKnows();
    void desktopProgramKeepsItsEnvironment();

private:
    QString makeFile(const QString &name, const QByteArray &text) const;
    void clickLink(const QString &address);

    QTemporaryDir m_folder;
    QDialog m_wizard;
};

QString CLinkOpenerTest::makeFile(const QString &name, const QByteArray &text) const
{
    QFile file(m_folder.filePath(name));
    file.open(QIODevice::WriteOnly);
    file.write(text);
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return file.fileName();
}

void CLinkOpenerTest::clickLink(const QString &address)
{
    m_wizard.setModal(true);
    m_wizard.show();
    QLabel label(QString("<a href=\"%1\">a link wide enough to hit</a>").arg(address), &m_wizard);
    label.setOpenExternalLinks(true);
    label.show();
    QTest::mouseClick(&label, Qt::LeftButton, {}, label.rect().center());
}

void CLinkOpenerTest::showsWhatNoProgramShows()
{
    const auto verify = [this](const QString &program, const QString &link, const QString &text) {
        CLinkOpener opener(program);
        opener.setLogFolder(m_folder.path());
        clickLink(link);
        QTRY_VERIFY(m_wizard.findChild<CTextDialog *>());
        const std::unique_ptr<CTextDialog> shown(m_wizard.findChild<CTextDialog *>());
        QCOMPARE(shown->getText(), text);
    };
    const QString log = makeFile("update.log", "first line\nsecond line \xc3\xa4\n");
    for (const char *command : {"exit 3", "kill -KILL $$"})
        verify(makeFile("open-link", QByteArray("#!/bin/sh\n") + command), log,
               "first line\nsecond line ä\n");
    verify("/nowhere", "https://support.example/en/?a=1&amp;b=%C3%A4",
           "https://support.example/en/?a=1&b=%C3%A4");
}

void CLinkOpenerTest::opensOnlyWhatItKnows_data()
{
    QTest::addColumn<QString>("link"); // %1: the folder of the logs
    QTest::addColumn<bool>("isOpened");
    QTest::newRow("web page") << "https://support.example/a%20b?c=1" << true;
    QTest::newRow("web page without TLS") << "HTTP://support.example" << true;
    QTest::newRow("mail address") << "mailto:support@korvane.example" << true;
    QTest::newRow("log") << "%1/logs/run/with space.log" << true;
    QTest::newRow("log as address") << "file://%1/logs/run/with%20space.log" << true;
    QTest::newRow("folder of the logs") << "file://%1/logs" << true;
    QTest::newRow("manual") << "file://%1/manual/index.html" << true;
    QTest::newRow("other page beside it") << "file://%1/manual/other.html" << false;
    QTest::newRow("folder within it") << "%1/logs/run" << false;
    QTest::newRow("other file beside a log") << "%1/logs/run/program" << false;
    QTest::newRow("link beside a log") << "%1/logs/run/link.log" << false;
    QTest::newRow("detour") << "%1/logs/../outside.log" << false;
    QTest::newRow("folder of a like name") << "%1/logs2/outside.log" << false;
    QTest::newRow("missing log") << "%1/logs/run/missing.log" << false;
    QTest::newRow("pipe") << "%1/logs/run/pipe.log" << false;
    QTest::newRow("file of the system") << "file:///etc/passwd" << false;
    QTest::newRow("relative path") << "logs/run/update.log" << false;
    for (const char *address :
         {"smb://server/share", "javascript:alert(1)", "ftp://server/a.log", "x-own+1.2:do?this",
          "http:support", "data:text/html,a", "file://server/share/a.log", "vnc://[bad"})
        QTest::newRow(address) << address << false;
}

void CLinkOpenerTest::opensOnlyWhatItKnows()
{
    QFETCH(QString, link);
    QFETCH(bool, isOpened);
    QDir folder(m_folder.path());
    for (const char *name : {"logs/run", "logs2", "manual"})
        folder.mkpath(name);
    for (const char *name : {"logs/run/with space.log", "logs/run/program", "outside.log",
                             "logs2/outside.log", "manual/index.html", "manual/other.html"})
        makeFile(name, "#!/bin/sh\n");
    QFile::link("/etc/passwd", folder.filePath("logs/run/link.log"));
    mkfifo(QFile::encodeName(folder.filePath("logs/run/pipe.log")).constData(), S_IRUSR);
    folder.remove("received");

    CLinkOpener opener(makeFile("open-link",
                                "#!/bin/sh\nprintf %s \"$1\" > ${0%/*}/new\n"
                                "mv ${0%/*}/new ${0%/*}/received\n"));
    opener.setLogFolder(folder.filePath("logs"));
    opener.addFolder(folder.filePath("logs"));
    opener.setManual(folder.canonicalPath() + "/manual/index.html");
    const QString target = link.contains("%1") ? link.arg(folder.canonicalPath()) : link;
    clickLink(target);
    const std::unique_ptr<CTextDialog> shown(m_wizard.findChild<CTextDialog *>());
    QCOMPARE(!shown, isOpened);
    QCOMPARE(!opener.findChild<QProcess *>(), !isOpened);
    if (isOpened) {
        const QString received = QUrl(target).isLocalFile() ? QUrl(target).toLocalFile() : target;
        QFile file(folder.filePath("received"));
        QTRY_VERIFY(file.exists());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(file.readAll()).toLower(), received.toLower());
    } else {
        QVERIFY2(shown->getText().contains(target), qPrintable(shown->getText()));
        QVERIFY(shown->findChild<QLabel *>()->text().contains("it was not opened"));
    }
}

void CLinkOpenerTest::desktopProgramKeepsItsEnvironment()
{
    CLinkOpener opener(makeFile("open-link", "#!/bin/sh\nln -s \"$TMPDIR\" ${0%/*}/temporary\n"));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TMPDIR", "/outside");
    opener.setEnvironment(environment);
    clickLink("https://support.example");
    // Programs of the desktop do not write where the viewer's logs lie.
    QTRY_COMPARE(QFile::symLinkTarget(m_folder.filePath("temporary")), "/outside");
}

QTEST_MAIN(CLinkOpenerTest)

#include "tst_linkopener.moc"
