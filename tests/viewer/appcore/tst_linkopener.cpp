#include "viewer/appcore/linkopener.h"
#include "viewer/appcore/textdialog.h"

#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>

using namespace Viewer::AppCore;

/// Clicks links as the wizard's modal dialogs show them.
class CLinkOpenerTest : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatNoProgramShows();
    void desktopProgramGetsTheLink();

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
        const CLinkOpener opener(program);
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

void CLinkOpenerTest::desktopProgramGetsTheLink()
{
    CLinkOpener opener(makeFile("open-link",
                                "#!/bin/sh\nln -s \"$TMPDIR\" ${0%/*}/temporary\n"
                                "ln -s \"$1\" ${0%/*}/received\n"));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TMPDIR", "/outside");
    opener.setEnvironment(environment);
    clickLink("/tmp/with space.log");
    QTRY_COMPARE(QFile::symLinkTarget(m_folder.filePath("received")), "/tmp/with space.log");
    // Programs of the desktop do not write where the viewer's logs lie.
    QCOMPARE(QFile::symLinkTarget(m_folder.filePath("temporary")), "/outside");
}

QTEST_MAIN(CLinkOpenerTest)

#include "tst_linkopener.moc"
