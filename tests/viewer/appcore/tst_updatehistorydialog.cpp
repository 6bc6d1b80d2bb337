#include "support/widgets.h"

#include "viewer/appcore/textdialog.h"
#include "viewer/appcore/updatehistorydialog.h"
#include "viewer/text/csv.h"
#include "viewer/update/updaterecords.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QFileDialog>
#include <QHeaderView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTreeView>

#include <csignal>
#include <memory>
#include <sys/resource.h>

using namespace Viewer::AppCore;
using namespace Viewer::Update;

/// Clicks the real dialog.
class CUpdateHistoryDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void showsTextsOfCamerasAsPlainText();
    void sortsByWhatTheTextsMean();
    void filtersAllColumns();
    void opensTheLog();
    void exportsWhatItShows();
    void tellsWhyNothingWasExported();
    void tellsOfFaults();
    void writesCellsForSpreadsheets_data();
    void writesCellsForSpreadsheets();

private:
    void show(const CUpdateHistory::CContent &content);
    QString getColumn(int column) const;
    void filter(const QString &text);
    /// Clicks through the file dialog; what the file holds then.
    QByteArray exportAs(const QString &nameFilter, const QString &name);

    const QTemporaryDir m_folder;
    CUpdateHistory::CContent m_content;
    std::unique_ptr<CUpdateHistoryDialog> m_dialog;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    QTreeView *m_view = nullptr;
};

/// Newest first, as read: cameras 10, 9 and 2 with updates of 10, 9 and 2 minutes.
void CUpdateHistoryDialogTest::init()
{
    qputenv("TZ", "Asia/Tokyo");
    m_content = {};
    for (const int number : {10, 9, 2}) {
        m_content.records.append(makeUpdateRecord(number));
        m_content.records.last().begin = m_content.records.last().begin.addDays(number);
        m_content.records.last().end = m_content.records.last().end.addDays(number);
    }
    show(m_content);
}

void CUpdateHistoryDialogTest::show(const CUpdateHistory::CContent &content)
{
    m_tester.reset();
    m_dialog = std::make_unique<CUpdateHistoryDialog>(content, QLocale("en"));
    m_view = m_dialog->findChild<QTreeView *>("historyView");
    m_tester = std::make_unique<QAbstractItemModelTester>(
        m_view->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

QString CUpdateHistoryDialogTest::getColumn(int column) const
{
    QStringList texts;
    for (int row = 0; row < m_view->model()->rowCount(); ++row)
        texts.append(m_view->model()->index(row, column).data().toString());
    return texts.join('|');
}

void CUpdateHistoryDialogTest::filter(const QString &text)
{
    auto *const edit = m_dialog->findChild<QLineEdit *>("filterEdit");
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

QByteArray CUpdateHistoryDialogTest::exportAs(const QString &nameFilter, const QString &name)
{
    QTest::mouseClick(m_dialog->findChild<QPushButton *>("exportButton"), Qt::LeftButton);
    auto *const files = m_dialog->findChild<QFileDialog *>("exportDialog");
    files->setDirectory(m_folder.path());
    files->selectNameFilter(files->nameFilters().filter(nameFilter).value(0));
    emit files->filterSelected(files->selectedNameFilter()); // as a click on it does
    auto *const nameEdit = files->findChild<QLineEdit *>("fileNameEdit");
    nameEdit->setText(name);
    QTest::keyClick(nameEdit, Qt::Key_Return);
    QFile file(m_folder.filePath(name) + '.' + nameFilter);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void CUpdateHistoryDialogTest::showsTextsOfCamerasAsPlainText()
{
    m_content.records[0].cameraName = m_content.records[0].error = "<b>\u202E\n</b>";
    show(m_content);
    QCOMPARE(getColumn(0), "<b>?\?</b>|VX-1400M 9|VX-1400M 2");
    const auto *const details = TestSupport::find<QLabel>(*m_dialog, "detailsLabel");
    QCOMPARE(details->text(), "<b>?\?</b>\nVX-1400M\n<b>?\?</b>\n/files/vx-1400m.guf");
    QCOMPARE(details->textFormat(), Qt::PlainText);
    QCOMPARE(getColumn(4), "Updated|Updated|Updated");
    QCOMPARE(getColumn(5), "1/25/26 3:42 PM|1/24/26 3:42 PM|1/17/26 3:42 PM");
    QCOMPARE(getColumn(6), "0:10:01|0:09:01|0:02:01");
    // The keyboard comes from the filter to the rows, and a screen reader has a name for both.
    auto *const edit = m_dialog->findChild<QLineEdit *>("filterEdit");
    QVERIFY(edit->hasFocus());
    QTest::keyClick(edit, Qt::Key_Tab);
    QVERIFY(m_view->hasFocus());
    QTest::keyClick(m_view, Qt::Key_Down);
    QCOMPARE(details->text(), "VX-1400M 9\nVX-1400M\n/files/vx-1400m.guf");
    for (QWidget *const widget : {static_cast<QWidget *>(edit), static_cast<QWidget *>(m_view)})
        QVERIFY(!QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).isEmpty());
}

void CUpdateHistoryDialogTest::sortsByWhatTheTextsMean()
{
    m_content.records[1].end = QDateTime(); // the duration is unknown
    // The text of the last time would be the first one.
    m_content.records[0].begin = QDateTime({2027, 1, 5}, {0, 0}, Qt::UTC);
    m_content.records[0].end = m_content.records[0].begin.addSecs(601);
    show(m_content);
    for (const auto &[column, order] :
         {std::pair(0, "2|9|10"), std::pair(1, "2|9|10"), std::pair(3, "2|9|10"),
          std::pair(5, "2|9|10"), std::pair(6, "9|2|10")}) {
        // The first click on another column sorts upwards.
        const int x = m_view->header()->sectionViewportPosition(column) + 5;
        m_view->sortByColumn(2, Qt::AscendingOrder);
        QTest::mouseClick(m_view->header()->viewport(), Qt::LeftButton, {}, {x, 5});
        QVERIFY2(getColumn(0).remove("VX-1400M ") == order, qPrintable(getColumn(column)));
    }
}

void CUpdateHistoryDialogTest::filtersAllColumns()
{
    m_content.records[1].outcome = EUpdateOutcome::Interrupted;
    show(m_content);
    for (const auto &[text, numbers] :
         {std::pair("1400m 2", "2"), std::pair("sn0010", "10"), std::pair("2.9.", "9"),
          std::pair("INTERR", "9"), std::pair("1/17/26", "2"), std::pair("0:10:01", "10"),
          std::pair("1.0.0", "10|9|2"), std::pair(".*", ""), std::pair("/files", "")}) {
        filter(text);
        QVERIFY2(getColumn(0).remove("VX-1400M ") == numbers, text);
        QCOMPARE(m_view->currentIndex().isValid(), *numbers != '\0');
        QCOMPARE(m_dialog->findChild<QPushButton *>("exportButton")->isEnabled(), *numbers != '\0');
    }
}

void CUpdateHistoryDialogTest::opensTheLog()
{
    QFile log(m_folder.filePath("a.log"));
    QVERIFY(log.open(QIODevice::WriteOnly) && log.write("lines") == 5);
    log.close();
    m_content.records[1].logPath = log.fileName();
    m_content.records[2].logPath = m_folder.filePath("removed.log");
    show(m_content);
    auto *const button = m_dialog->findChild<QPushButton *>("logButton");
    QVERIFY(!button->isEnabled());
    QTest::keyClick(m_view, Qt::Key_Down);
    QVERIFY(button->isEnabled());
    QTest::mouseClick(button, Qt::LeftButton);
    const auto *const shown = m_dialog->findChild<CTextDialog *>();
    QVERIFY(shown && shown->isVisible());
    QCOMPARE(shown->getText(), "lines");
    QTest::keyClick(m_view, Qt::Key_Down);
    QVERIFY(!button->isEnabled());
    QTest::keyClick(m_view, Qt::Key_Return);
    QCOMPARE(m_dialog->findChildren<CTextDialog *>().size(), 1);
}

void CUpdateHistoryDialogTest::exportsWhatItShows()
{
    m_content.records[0].cameraName = "=1+1";
    show(m_content);
    filter("2026"); // in no column
    filter("5/26");
    QCOMPARE(exportAs("csv", "one"),
             "\xEF\xBB\xBF"
             "Camera,Serial number,From,To,Outcome,Time,Duration\r\n"
             "'=1+1,SN0010,1.0.0,2.10.0,Updated,2026-01-25 15:42:11,0:10:01\r\n");
    QVERIFY(TestSupport::getText(*m_dialog, "detailsLabel").contains("one.csv"));
    filter("");
    m_view->sortByColumn(6, Qt::AscendingOrder);
    const QJsonArray records = QJsonDocument::fromJson(exportAs("json", "all")).array();
    QCOMPARE(records.size(), 3);
    QCOMPARE(QJsonDocument(records.at(2).toObject()).toJson(QJsonDocument::Compact),
             toJson(m_content.records.at(0)));
}

void CUpdateHistoryDialogTest::tellsWhyNothingWasExported()
{
    signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit small{100, limit.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    exportAs("csv", "full");
    setrlimit(RLIMIT_FSIZE, &limit);
    QVERIFY(!QFile::exists(m_folder.filePath("full.csv")));
    QVERIFY2(TestSupport::getText(*m_dialog, "detailsLabel").contains("there is room for 100 of"),
             qPrintable(TestSupport::getText(*m_dialog, "detailsLabel")));
}

void CUpdateHistoryDialogTest::tellsOfFaults()
{
    const auto *hint = TestSupport::find<QLabel>(*m_dialog, "hintLabel");
    QVERIFY(!hint->isVisible());
    m_content.damagedCount = 2;
    show(m_content);
    hint = TestSupport::find<QLabel>(*m_dialog, "hintLabel");
    QVERIFY2(hint->isVisible() && hint->text().startsWith("2 damaged"), qPrintable(hint->text()));
    show({});
    QCOMPARE(TestSupport::getText(*m_dialog, "detailsLabel"), "No updates yet.");
    QVERIFY(!m_dialog->findChild<QPushButton *>("exportButton")->isEnabled());
    CUpdateHistory::CContent unreadable;
    unreadable.error = "It cannot be read.";
    show(unreadable);
    QCOMPARE(TestSupport::getText(*m_dialog, "hintLabel"), unreadable.error);
    QCOMPARE(TestSupport::getText(*m_dialog, "detailsLabel"), "");
}

void CUpdateHistoryDialogTest::writesCellsForSpreadsheets_data()
{
    QTest::addColumn<QString>("cell");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("plain") << "a b;c" << QByteArray("a b;c");
    QTest::newRow("empty") << "" << QByteArray();
    QTest::newRow("comma") << "a,b" << QByteArray("\"a,b\"");
    QTest::newRow("quote") << "a\"b" << QByteArray("\"a\"\"b\"");
    QTest::newRow("line end") << "a\r\nb" << QByteArray("\"a\r\nb\"");
    QTest::newRow("Korean") << QString(u8"\uCE74") << QByteArray(u8"\uCE74");
    QTest::newRow("inner sign") << "a=1-2" << QByteArray("a=1-2");
    QTest::newRow("quoted formula") << "=A1,\"2\"" << QByteArray("\"'=A1,\"\"2\"\"\"");
    for (const char *const sign : {"=", "+", "-", "@", "\t"})
        QTest::newRow(sign) << QString(sign) + '1' << QByteArray("'") + sign + '1';
}

void CUpdateHistoryDialogTest::writesCellsForSpreadsheets()
{
    QFETCH(QString, cell);
    QFETCH(QByteArray, written);
    QCOMPARE(Viewer::Text::toCsv({{"x", cell}, {"y"}}), "\xEF\xBB\xBFx," + written + "\r\ny\r\n");
}

QTEST_MAIN(CUpdateHistoryDialogTest)
#include "tst_updatehistorydialog.moc"
