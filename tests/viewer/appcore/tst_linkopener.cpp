#include "viewer/appcore/linkopener.h"
#include "viewer/appcore/textdialog.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

using namespace Viewer::AppCore;

/// Clicks links as the wizard's modal dialogs show them.
class CLinkOpenerTest : public QObject
{
    Q_OBJECT

private slots:
    void logIsShownWithoutAProgram_data();
    void logIsShownWithoutAProgram();
    void addressIsShownBesideTheModalDialog();
    void desktopProgramGetsTheLink();
    void showsWhatItCanOfAFile();

private:
    QString makeFile(const QString &name, const QByteArray &text) const;
    void clickLink(const QString &address);

    QTemporaryDir m_folder;
    QDialog m_wizard;
    QPointer<CTextDialog> m_shown; ///< what the last click opened
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
    delete m_shown;
    m_wizard.setModal(true);
    m_wizard.show();
    QLabel label(QString("<a href=\"%1\">a link wide enough to hit</a>").arg(address), &m_wizard);
    label.setOpenExternalLinks(true);
    label.show();
    QTest::mouseClick(&label, Qt::LeftButton, {}, label.rect().center());
}

#define WAIT_FOR_DIALOG() QTRY_VERIFY(m_shown = m_wizard.findChild<CTextDialog *>())

void CLinkOpenerTest::logIsShownWithoutAProgram_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::newRow("no program") << QByteArray();
    QTest::newRow("program that fails") << QByteArray("#!/bin/sh\nexit 3\n");
    QTest::newRow("program that crashes") << QByteArray("#!/bin/sh\nkill -KILL $$\n");
}

void CLinkOpenerTest::logIsShownWithoutAProgram()
{
    QFETCH(const QByteArray, script);
    const CLinkOpener opener(script.isEmpty() ? "/nowhere" : makeFile("open-link", script));
    const QString log = makeFile("update.log", "first line\nsecond line \xc3\xa4\n");
    clickLink(log);
    WAIT_FOR_DIALOG();
    QCOMPARE(m_shown->windowTitle(), log);
    QCOMPARE(m_shown->getText(), QString("first line\nsecond line ä\n"));
}

void CLinkOpenerTest::addressIsShownBesideTheModalDialog()
{
    const CLinkOpener opener("/nowhere");
    clickLink("https://support.example/en/?a=1&amp;b=%C3%A4");
    WAIT_FOR_DIALOG();
    QCOMPARE(QApplication::activeModalWidget(), &m_wizard);
    QTest::mouseClick(m_shown->findChild<QPushButton *>("copyButton"), Qt::LeftButton);
    QCOMPARE(QApplication::clipboard()->text(), "https://support.example/en/?a=1&b=%C3%A4");
    const auto *const buttons = m_shown->findChild<QDialogButtonBox *>();
    QTest::mouseClick(buttons->button(QDialogButtonBox::Close), Qt::LeftButton);
    QTRY_VERIFY(!m_shown);
    QVERIFY(m_wizard.isVisible());
}

void CLinkOpenerTest::desktopProgramGetsTheLink()
{
    const QByteArray script = "#!/bin/sh\ncd '" + m_folder.path().toUtf8()
        + "'\nprintf %s \"$1\" > new\nmv new received\n";
    const CLinkOpener opener(makeFile("open-link", script));
    clickLink("/tmp/with space.log");
    QFile file(m_folder.filePath("received"));
    QTRY_VERIFY(file.exists());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()), "/tmp/with space.log");
}

void CLinkOpenerTest::showsWhatItCanOfAFile()
{
    const CLinkOpener opener("/nowhere");
    clickLink(m_folder.filePath("gone.log"));
    WAIT_FOR_DIALOG();
    QVERIFY(m_shown->getText().contains("cannot be read"));
    const QByteArray lines
        = QByteArray("0123456789abcde\n").repeated(CLinkOpener::MaximumTextSize / 16);
    clickLink(makeFile("long.log", lines + "the end"));
    WAIT_FOR_DIALOG();
    QVERIFY(m_shown->getText().endsWith("the end"));
    QCOMPARE(m_shown->getText().size(), CLinkOpener::MaximumTextSize);
}

QTEST_MAIN(CLinkOpenerTest)

#include "tst_linkopener.moc"
