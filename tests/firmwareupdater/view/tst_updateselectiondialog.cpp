#include "view/updateselectiondialog.h"
#include "viewfixture.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest>

using namespace ViewFixture;
using Plugin::FirmwareUpdater::Internal::View::CUpdateSelectionDialog;

class CUpdateSelectionDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void judgesTheFile_data();
    void judgesTheFile();
    void showsTheFirstUpdate_data();
    void showsTheFirstUpdate();
    void showsThatThereIsNoUpdate();
    void linksTheWholeReleaseNotes();
    void announcesThePathBeforeItIsShown();
    void announcesOnlyTheUsersEdits();
    void mapsButtonsByMeaning();
    void enterDoesNotGoBack();
    void linksTheSupportPage();
};

void CUpdateSelectionDialogTest::judgesTheFile_data()
{
    QTest::addColumn<bool>("compatible");
    QTest::addColumn<bool>("noFile");
    QTest::addColumn<bool>("error");
    QTest::addColumn<bool>("next");
    QTest::newRow("no file") << false << true << false << false;
    QTest::newRow("no file, called compatible") << true << true << false << false;
    QTest::newRow("fits") << true << false << false << true;
    QTest::newRow("does not fit") << false << false << true << false;
}

void CUpdateSelectionDialogTest::judgesTheFile()
{
    QFETCH(bool, compatible);
    QFETCH(bool, noFile);
    CUpdateSelectionDialog dialog;
    dialog.updateCompatibility(!compatible, false);
    dialog.updateCompatibility(compatible, noFile);
    QTEST(isShown(dialog, "errorIconLabel"), "error");
    QTEST(isShown(dialog, "errorTextLabel"), "error");
    QTEST(getButton(dialog, QStringLiteral("Next"))->isEnabled(), "next");
}

void CUpdateSelectionDialogTest::showsTheFirstUpdate_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("notes");
    QTest::addColumn<QString>("shownDescription");
    QTest::addColumn<QString>("shownNotes");
    const auto row = [](const char *name, const char *version, const char *description,
                        const char *notes, const char *shownDescription, const char *shownNotes) {
        QTest::newRow(name) << QString::fromLatin1(version) << QString::fromLatin1(description)
                            << QString::fromLatin1(notes) << QString::fromLatin1(shownDescription)
                            << QString::fromLatin1(shownNotes);
    };
    row("plain", "2.0", "Fixes", "Faster", "Fixes", "Faster");
    row("no version", "", "Fixes", "Faster", "Fixes", "Faster");
    row("no description", "2.0", "", "Faster", "No details available", "Faster");
    row("no notes", "2.0", "Fixes", "", "Fixes", "");
    row("address in capitals", "2.0", "Fixes", "HTTPS://a.example/n", "Fixes",
        "<a href=\"HTTPS://a.example/n\">Firmware Release Notes</a>");
    row("address in prose", "2.0", "Fixes", "see http %2 there", "Fixes",
        "<a href=\"see http %2 there\">Firmware Release Notes</a>");
}

void CUpdateSelectionDialogTest::showsTheFirstUpdate()
{
    QFETCH(QString, version);
    QFETCH(QString, description);
    QFETCH(QString, notes);
    CUpdateSelectionDialog dialog;
    using TestSupport::CFakeUpdateInfo;
    dialog.updateFirmwareUpdateInfo(
        {QSharedPointer<CFakeUpdateInfo>::create(version, description, notes),
         QSharedPointer<CFakeUpdateInfo>::create(QStringLiteral("9"))},
        false);
    QTEST(find<QLabel>(dialog, "updateDescriptionTextLabel")->text(), "shownDescription");
    QVERIFY(isShown(dialog, "updateDescriptionLabel"));
    QCOMPARE(isShown(dialog, "updateVersionLabel"), !version.isEmpty());
    QCOMPARE(isShown(dialog, "updateVersionTextLabel"), !version.isEmpty());
    QCOMPARE(find<QLabel>(dialog, "updateVersionTextLabel")->text(), version);
    QTEST(find<QLabel>(dialog, "updateNotesTextLabel")->text(), "shownNotes");
    QCOMPARE(isShown(dialog, "updateNotesLabel"), !notes.isEmpty());
    QCOMPARE(isShown(dialog, "updateNotesTextLabel"), !notes.isEmpty());
}

void CUpdateSelectionDialogTest::showsThatThereIsNoUpdate()
{
    CUpdateSelectionDialog dialog;
    for (const bool noFile : {true, false}) {
        dialog.updateFirmwareUpdateInfo({}, noFile);
        QCOMPARE(find<QLabel>(dialog, "updateDescriptionTextLabel")->text(),
                 noFile ? QStringLiteral("No file selected")
                        : QStringLiteral("No details available"));
        for (const char *name : {"updateVersionLabel", "updateVersionTextLabel", "updateNotesLabel",
                                 "updateNotesTextLabel"}) {
            QVERIFY2(!isShown(dialog, name), name);
        }
    }
}

void CUpdateSelectionDialogTest::linksTheWholeReleaseNotes()
{
    const QString notes = QStringLiteral("say \"hi\" & read http://a.example/?a=1&copy=2");
    CUpdateSelectionDialog dialog;
    dialog.updateFirmwareUpdateInfo({QSharedPointer<TestSupport::CFakeUpdateInfo>::create(
                                        QStringLiteral("2.0"), QString(), notes)},
                                    false);
    dialog.show();
    auto *label = find<QLabel>(dialog, "updateNotesTextLabel");
    label->setOpenExternalLinks(false);
    QSignalSpy linkSpy(label, &QLabel::linkActivated);
    QTest::mouseClick(label, Qt::LeftButton, {}, QPoint(20, label->height() / 2));
    QCOMPARE(linkSpy.count(), 1);
    QCOMPARE(linkSpy.first().first().toString(), notes);
}

void CUpdateSelectionDialogTest::announcesThePathBeforeItIsShown()
{
    CUpdateSelectionDialog dialog;
    QStringList paths;
    bool wasVisible = true;
    connect(&dialog, &CUpdateSelectionDialog::pathChanged, &dialog, [&](const QString &path) {
        paths.append(path);
        wasVisible = dialog.isVisible();
    });
    dialog.show();
    QCOMPARE(paths, {QDir::toNativeSeparators(QDir::homePath())});
    QVERIFY(!wasVisible);
    dialog.hide();
    QCOMPARE(paths.count(), 1);
}

void CUpdateSelectionDialogTest::announcesOnlyTheUsersEdits()
{
    CUpdateSelectionDialog dialog;
    auto *lineEdit = find<QLineEdit>(dialog, "updateFileLineEdit");
    QSignalSpy pathSpy(&dialog, &CUpdateSelectionDialog::pathChanged);
    dialog.updateFileSelection(QStringLiteral("/a.guf"));
    QCOMPARE(pathSpy.count(), 0);

    lineEdit->setCursorPosition(2);
    dialog.updateFileSelection(QStringLiteral("/a.guf"));
    QCOMPARE(lineEdit->cursorPosition(), 2);

    QTest::keyClick(lineEdit, Qt::Key_X);
    QCOMPARE(pathSpy.count(), 1);
    QCOMPARE(pathSpy.first().first().toString(), QStringLiteral("/ax.guf"));
}

void CUpdateSelectionDialogTest::mapsButtonsByMeaning()
{
    CUpdateSelectionDialog dialog;
    dialog.show();
    QSignalSpy backSpy(&dialog, &CUpdateSelectionDialog::backClicked);
    QSignalSpy nextSpy(&dialog, &CUpdateSelectionDialog::nextClicked);
    QSignalSpy closeSpy(&dialog, &CUpdateSelectionDialog::closeClicked);
    QSignalSpy browseSpy(&dialog, &CUpdateSelectionDialog::browseClicked);
    const auto counts = [&] {
        return QVector<int>{backSpy.count(), nextSpy.count(), closeSpy.count(), browseSpy.count()};
    };
    QTest::mouseClick(getButton(dialog, QStringLiteral("Back")), Qt::LeftButton);
    QCOMPARE(counts(), (QVector<int>{1, 0, 0, 0}));
    QTest::mouseClick(getButton(dialog, QStringLiteral("Next")), Qt::LeftButton);
    QCOMPARE(counts(), (QVector<int>{1, 1, 0, 0}));
    QTest::mouseClick(getButton(dialog, QStringLiteral("Close")), Qt::LeftButton);
    QCOMPARE(counts(), (QVector<int>{1, 1, 1, 0}));
    QTest::mouseClick(find<QPushButton>(dialog, "browseButton"), Qt::LeftButton);
    QCOMPARE(counts(), (QVector<int>{1, 1, 1, 1}));
}

void CUpdateSelectionDialogTest::enterDoesNotGoBack()
{
    CUpdateSelectionDialog dialog;
    dialog.updateCompatibility(false, true);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QSignalSpy backSpy(&dialog, &CUpdateSelectionDialog::backClicked);
    QSignalSpy closeSpy(&dialog, &CUpdateSelectionDialog::closeClicked);
    QSignalSpy nextSpy(&dialog, &CUpdateSelectionDialog::nextClicked);
    auto *lineEdit = find<QLineEdit>(dialog, "updateFileLineEdit");
    lineEdit->setFocus();
    QTest::keyClick(lineEdit, Qt::Key_Return);
    QCOMPARE(backSpy.count() + closeSpy.count() + nextSpy.count(), 0);
    dialog.updateCompatibility(true, false);
    QTest::keyClick(lineEdit, Qt::Key_Return);
    QCOMPARE(nextSpy.count(), 1);
}

void CUpdateSelectionDialogTest::linksTheSupportPage()
{
    CUpdateSelectionDialog dialog;
    dialog.setKorvaneSupportUrl(QStringLiteral("https://a.example/en"));
    QCOMPARE(find<QLabel>(dialog, "infoTextLabel")->text(),
             QStringLiteral("To update the firmware of your cameras, you need a firmware update "
                            "file from <a href=\"https://a.example/en\">Korvane Support</a>."));
}

QTEST_MAIN(CUpdateSelectionDialogTest)
#include "tst_updateselectiondialog.moc"
