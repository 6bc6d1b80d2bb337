#include "viewer/appcore/linkopener.h"
#include "viewer/appcore/textdialog.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace Viewer::AppCore;

class CLinkOpenerTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void clickedLogLinkShowsTheText_data();
    void clickedLogLinkShowsTheText();
    void clickedAddressIsShownToCopy();
    void desktopProgramGetsTheLink_data();
    void desktopProgramGetsTheLink();
    void missingFileIsSaid();
    void folderIsShownToCopy();
    void longFileShowsItsEnd();
    void windowIsUsableBesideAModalDialog();

private:
    QString makeProgram(const QByteArray &script) const;
    QString makeLog(const QByteArray &text) const;
    void clickLink(const QString &address);
    static CTextDialog *findDialog();

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<QLabel> m_label;
};

void CLinkOpenerTest::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
}

void CLinkOpenerTest::cleanup()
{
    m_label.reset();
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *const window : windows) {
        if (qobject_cast<CTextDialog *>(window))
            delete window;
    }
}

QString CLinkOpenerTest::makeProgram(const QByteArray &script) const
{
    QFile file(m_directory->filePath("open-link"));
    file.open(QIODevice::WriteOnly);
    file.write("#!/bin/sh\n" + script + "\n");
    file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    return file.fileName();
}

QString CLinkOpenerTest::makeLog(const QByteArray &text) const
{
    QFile file(m_directory->filePath("update.log"));
    file.open(QIODevice::WriteOnly);
    file.write(text);
    return file.fileName();
}

// A link as the wizard's dialogs show it.
void CLinkOpenerTest::clickLink(const QString &address)
{
    m_label = std::make_unique<QLabel>(
        QString("<a href=\"%1\">a link that is wide enough to hit</a>").arg(address));
    m_label->setOpenExternalLinks(true);
    m_label->show();
    QTest::mouseClick(m_label.get(), Qt::LeftButton, {}, m_label->rect().center());
}

CTextDialog *CLinkOpenerTest::findDialog()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *const window : windows) {
        auto *const dialog = qobject_cast<CTextDialog *>(window);
        if (dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

void CLinkOpenerTest::clickedLogLinkShowsTheText_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::newRow("no program") << QByteArray();
    QTest::newRow("program that fails") << QByteArray("exit 3");
    QTest::newRow("program that crashes") << QByteArray("kill -KILL $$");
}

void CLinkOpenerTest::clickedLogLinkShowsTheText()
{
    QFETCH(const QByteArray, script);
    const CLinkOpener opener(script.isEmpty() ? m_directory->filePath("none")
                                              : makeProgram(script));
    const QString log = makeLog("first line\nsecond line \xc3\xa4\n");
    clickLink(log);
    QTRY_VERIFY(findDialog());
    QCOMPARE(findDialog()->windowTitle(), log);
    QCOMPARE(findDialog()->getText(), QString("first line\nsecond line ä\n"));
}

void CLinkOpenerTest::clickedAddressIsShownToCopy()
{
    const CLinkOpener opener(m_directory->filePath("none"));
    clickLink("https://support.example/en/?a=1&amp;b=%C3%A4");
    QTRY_VERIFY(findDialog());
    QCOMPARE(findDialog()->getText(), "https://support.example/en/?a=1&b=%C3%A4");
    QTest::mouseClick(findDialog()->findChild<QPushButton *>("copyButton"), Qt::LeftButton);
    QCOMPARE(QApplication::clipboard()->text(), "https://support.example/en/?a=1&b=%C3%A4");
}

void CLinkOpenerTest::desktopProgramGetsTheLink_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("web page") << "https://support.example/en/";
    QTest::newRow("bare path") << "/tmp/with space.log";
    QTest::newRow("file address") << "file:///tmp/update.log";
}

void CLinkOpenerTest::desktopProgramGetsTheLink()
{
    QFETCH(const QString, address);
    const QString received = m_directory->filePath("received");
    const CLinkOpener opener(makeProgram("printf %s \"$1\" > '" + received.toUtf8() + ".new'\nmv '"
                                         + received.toUtf8() + ".new' '" + received.toUtf8()
                                         + "'"));
    clickLink(address);
    QTRY_VERIFY(QFile::exists(received));
    QFile file(received);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()), address);
    QVERIFY(!findDialog());
}

void CLinkOpenerTest::missingFileIsSaid()
{
    const CLinkOpener opener(m_directory->filePath("none"));
    clickLink(m_directory->filePath("gone.log"));
    QTRY_VERIFY(findDialog());
    QVERIFY(findDialog()->getText().contains("cannot be read"));
}

void CLinkOpenerTest::folderIsShownToCopy()
{
    CLinkOpener opener(m_directory->filePath("none"));
    opener.open(QUrl::fromLocalFile(m_directory->path()));
    QTRY_VERIFY(findDialog());
    QCOMPARE(findDialog()->getText(), m_directory->path());
}

void CLinkOpenerTest::longFileShowsItsEnd()
{
    CLinkOpener opener(m_directory->filePath("none"));
    const QByteArray line("0123456789abcde\n");
    const QString log
        = makeLog(line.repeated(int(CLinkOpener::MaximumTextSize / line.size()) + 10) + "the end");
    opener.open(QUrl(log));
    QTRY_VERIFY(findDialog());
    QVERIFY(findDialog()->getText().endsWith("the end"));
    QCOMPARE(findDialog()->getText().size(), CLinkOpener::MaximumTextSize);
}

void CLinkOpenerTest::windowIsUsableBesideAModalDialog()
{
    QDialog wizard;
    wizard.setModal(true);
    wizard.show();
    CLinkOpener opener(m_directory->filePath("none"));
    opener.open(QUrl(makeLog("text")));
    QPointer<CTextDialog> dialog;
    QTRY_VERIFY(dialog = wizard.findChild<CTextDialog *>());
    QCOMPARE(QApplication::activeModalWidget(), &wizard);
    QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Close),
                      Qt::LeftButton);
    QTRY_VERIFY(!dialog);
    QVERIFY(wizard.isVisible());
}

QTEST_MAIN(CLinkOpenerTest)

#include "tst_linkopener.moc"
