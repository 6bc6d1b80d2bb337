#include "firmwareupdater/view/viewfixture.h"
#include "support/camerakinds.h"
#include "support/vieweroptions.h"

#include "view/cameraselectiondialog.h"
#include "view/firmwareupdatedialog.h"
#include "view/resultsummarydialog.h"
#include "view/updateselectiondialog.h"
#include "view/updatesummarydialog.h"
#include "viewer/appcore/languagefont.h"
#include "viewer/appcore/logfolder.h"
#include "viewer/appcore/loglistdialog.h"
#include "viewer/appcore/mainwindow.h"
#include "viewer/appcore/updatehistorydialog.h"
#include "viewer/appcore/viewer.h"
#include "viewer/camerapool/camerapool.h"
#include "viewer/text/language.h"

#include "camerapool/icameraenumerationservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QSettings>
#include <QtTest>

using namespace TestSupport;
namespace View = Plugin::FirmwareUpdater::Internal::View;
using Viewer::Text::CLanguage;

/// The catalogues, and what the windows look like with them.
class CTranslationsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void cataloguesAreComplete();
    void pagesShowTheirWholeTexts_data();
    void pagesShowTheirWholeTexts();
    void viewerSpeaksTheLanguage();

private:
    void speak(const QString &language);

    QTemporaryDir m_folder;
    std::unique_ptr<CLanguage> m_language;
    QTranslator m_pluginCatalogue;
};

/// Everything is done for each language.
void CTranslationsTest::initTestCase_data()
{
    QTest::addColumn<QString>("language");
    for (const Viewer::Text::CLanguageEntry &entry : CLanguage::getEntries())
        QTest::newRow(qPrintable(entry.code)) << entry.code;
}

void CTranslationsTest::speak(const QString &language)
{
    m_language.reset();
    m_language = std::make_unique<CLanguage>(language);
    QVERIFY(m_pluginCatalogue.load(":/translation/FirmwareUpdater_" + language + ".qm"));
    QCoreApplication::installTranslator(&m_pluginCatalogue);
    // What Qt asks for where no desktop says which font to use.
    QApplication::setFont(QFont("Sans Serif", 9));
    Viewer::AppCore::chooseLanguageFont(language);
    for (const char16_t letter : {u'펌', u'ア', u'固'})
        QVERIFY2(QFontMetrics(QApplication::font()).inFontUcs4(letter),
                 "Letters are missing: install fonts with Korean, Japanese and Chinese ones, such "
                 "as Debian's package fonts-noto-cjk.");
}

/// All of a text that is meant for the program and not for people, in a form to compare.
static QString getMarks(const QString &text)
{
    static const QRegularExpression inOrder("</?[abphr]+\\d?( [^>]*)?>|\n|\\.\\.\\.$");
    static const QRegularExpression inAnyOrder("%\\w|&[A-Za-z]");
    QStringList marks, sorted;
    for (auto i = inOrder.globalMatch(text); i.hasNext();)
        marks.append(i.next().captured());
    for (auto i = inAnyOrder.globalMatch(text); i.hasNext();)
        sorted.append(i.next().captured().toUpper());
    sorted.sort();
    return (marks + sorted).join(' ');
}

/// Words that a catalogue had and must not get again, and marks that are another language's;
/// docs/translations.md has those to use.
static QRegularExpression getUnwanted(const QString &language)
{
    static const QString touching(
        "|[ぁ-ヿ一-鿿][A-Za-z0-9]|([A-Za-z]|(?<!%)[0-9])[ぁ-ヿ一-鿿]");
    static const QMap<QString, QString> unwanted{
        {"ko", "재설정|실제로? 연결된|거부되었|보고합니다|까지만|반복|데이터 %1|뒤로|[가-힣] \\("},
        {"ja",
         "実機|実際に接続|メモリー|レジスター|他で使用中|繰り返す|画像を[^。]*録画|データ %1"
         "|[\"：（）]"
             + touching},
        {"zh",
         "电缆|重置|重复更新|应答|更新程序|实际连接|功能|^它|数据 %1|；请|: |\\((?!&|F\\d)|\""
             + touching}};
    return QRegularExpression(unwanted.value(language, "^$"));
}

void CTranslationsTest::cataloguesAreComplete()
{
    QFETCH_GLOBAL(QString, language);
    static const QRegularExpression entry("<source>(.*?)</source>.*?<translation(.*?)>(.*?)"
                                          "</translation>",
                                          QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression markup("<[a-z/][^>]*>|\\\\u");
    static const QRegularExpression plural("\\s*</?numerusform>\\s*");
    // The same in every language: a product's name, a placeholder's, and punctuation.
    const QStringList kept{"Nuvex Viewer", "n", "%1.", "%1: %2.", "%1: %2", "\"%1\""};
    QStringList files{"firmwareupdater/resources/translations/FirmwareUpdater_%1.ts"};
    if (language != "en")
        files.append("viewer/translations/viewer_%1.ts");
    for (const QString &file : qAsConst(files)) {
        const QString merged = m_folder.filePath("merged.ts");
        QFile::remove(merged);
        QVERIFY(QFile::copy(SOURCE_FOLDER "/" + file.arg(language), merged));
        // Marks what is missing as unfinished, and what is no longer needed as vanished.
        QCOMPARE(QProcess::execute(LUPDATE,
                                   {"-silent", SOURCE_FOLDER "/" + file.section('/', 0, 0), "-I",
                                    SOURCE_FOLDER, "-ts", merged}),
                 0);
        QFile catalogue(merged);
        QVERIFY(catalogue.open(QIODevice::ReadOnly));
        QString all = QString::fromUtf8(catalogue.readAll()).replace("&lt;", "<");
        all.replace("&gt;", ">").replace("&quot;", "\"").replace("&apos;", "'");
        int count = 0;
        for (auto i = entry.globalMatch(all.replace("&amp;", "&")); i.hasNext(); ++count) {
            const QRegularExpressionMatch match = i.next();
            const QString source = match.captured(1);
            const QStringList texts = match.captured(3).split(plural, Qt::SkipEmptyParts);
            QVERIFY2(match.captured(2).isEmpty() && !texts.isEmpty(),
                     qPrintable(match.captured(2) + " or missing: " + source));
            for (const QString &text : texts) {
                QCOMPARE(getMarks(text), getMarks(source));
                QVERIFY2(text != source || kept.contains(text) || language == "en",
                         qPrintable("not translated: " + source));
                const auto found = getUnwanted(language).match(QString(text).replace(markup, " "));
                QVERIFY2(!found.hasMatch(), qPrintable(found.captured() + " in: " + text));
            }
        }
        QVERIFY(count > 50);
    }
}

/// What @p window says; not the rows of its lists.
static QStringList getTexts(const QWidget &window)
{
    QStringList texts(window.windowTitle());
    const auto widgets = window.findChildren<QWidget *>();
    for (const QWidget *const widget : widgets) {
        texts << widget->toolTip() << widget->windowTitle() << widget->accessibleName();
        for (const char *property : {"text", "title"})
            if (!qobject_cast<const QLineEdit *>(widget))
                texts.append(widget->property(property).toString());
        const auto *const view = qobject_cast<const QTreeView *>(widget);
        for (int i = 0; view && view->model() && i < view->model()->columnCount(); ++i)
            if (!view->isColumnHidden(i))
                texts.append(view->model()->headerData(i, Qt::Horizontal).toString());
    }
    const auto actions = window.findChildren<QAction *>() + window.actions();
    for (const QAction *const action : actions)
        if (!action->objectName().startsWith("language_"))
            texts << action->text() << action->iconText() << action->toolTip();
    return texts;
}

/// The first of @p texts with an English word in it that is no name.
static QString findEnglish(QStringList texts)
{
    static const QRegularExpression names("<[^>]*>|\t.*|Nuvex Viewer|Korvane|IP |MAC |"
                                          "Line \\d \\w+|\\(F\\d\\)|\\.guf|Ctrl\\+|Alt\\+");
    return texts.replaceInStrings(names, {}).filter(QRegularExpression("[A-Za-z]{2}")).value(0);
}

/// The first text of @p window that does not fit its place.
static QString findCutText(const QWidget &window)
{
    const auto widgets = window.findChildren<QWidget *>();
    for (const QWidget *const widget : widgets) {
        if (!widget->isVisible())
            continue;
        // A button and a header's section have four pixels of their own on both sides.
        const auto getSize = [widget](const QString &text) {
            return widget->fontMetrics().size(Qt::TextShowMnemonic, text) + QSize(8, 0);
        };
        const auto *const label = qobject_cast<const QLabel *>(widget);
        const QString text = widget->property("text").toString();
        const QSize hint = label && label->wordWrap()
            ? QSize(label->minimumSizeHint().width(), label->heightForWidth(label->width()))
            : label ? label->sizeHint()
                    : getSize(text);
        if ((label || qobject_cast<const QPushButton *>(widget)) && !text.isEmpty()
            && hint.expandedTo(widget->size()) != widget->size())
            return text;
        const auto *const header = qobject_cast<const QHeaderView *>(widget);
        for (int i = 0; header && i < header->count(); ++i) {
            const QString title = header->model()->headerData(i, Qt::Horizontal).toString();
            if (!header->isSectionHidden(i) && getSize(title).width() > header->sectionSize(i))
                return title;
        }
    }
    return {};
}

/// The first cell of the dialog's tree that looks different when it gets more room.
static QString findCutCell(QDialog &dialog)
{
    const QTreeView *const tree = getTree(dialog);
    const auto grab = [tree](int row, int column, int width) {
        const QRect cell = tree->visualRect(tree->model()->index(row, column));
        // Without the separator at the right edge.
        return tree->viewport()->grab({cell.topLeft(), QSize(width - 3, 20)}).toImage();
    };
    QMap<QPair<int, int>, QImage> narrow;
    for (int row = 0; tree && row < tree->model()->rowCount(); ++row)
        for (int column = 0; column < tree->model()->columnCount(); ++column)
            if (!tree->isColumnHidden(column))
                narrow[{row, column}] = grab(row, column, tree->columnWidth(column));
    dialog.resize(dialog.width() * 2, dialog.height());
    for (auto i = narrow.begin(); i != narrow.end(); ++i)
        if (grab(i.key().first, i.key().second, i->width() + 3) != *i)
            return QString("row %1, column %2").arg(i.key().first).arg(i.key().second);
    return {};
}

void CTranslationsTest::pagesShowTheirWholeTexts_data()
{
    QTest::addColumn<QString>("font");
    QTest::newRow("the language's font") << QString();
    // As on a desktop whose font borrows the letters of the language from another one.
    QTest::newRow("a Latin font") << "Liberation Sans";
}

void CTranslationsTest::pagesShowTheirWholeTexts()
{
    QFETCH_GLOBAL(QString, language);
    QFETCH(QString, font);
    speak(language);
    if (!font.isEmpty())
        QApplication::setFont(QFont(font, 9));

    const ModelPtr model = makeList(4);
    for (int row = 0; row < 4; ++row) {
        const QModelIndex index = model->index(row, 0);
        static_cast<Entity *>(index.internalPointer())
            ->setUpdateDetails(static_cast<Plugin::CameraPool::EFirmwareUpdateDirection>(row));
        model->setData(index.siblingAtColumn(Entity::UpdateStatus), row % 3, Qt::EditRole);
        model->setData(index.siblingAtColumn(Entity::UpdateResult), row % 3, Qt::EditRole);
    }
    View::CCameraSelectionDialog selection;
    View::CUpdateSelectionDialog file, wrongFile, noFile;
    View::CUpdateSummaryDialog summary;
    View::CFirmwareUpdateDialog update;
    View::CResultSummaryDialog success, failure, lastFailure;
    const std::vector<View::CUpdateDialogBase *> pages{&selection, &file,    &wrongFile,
                                                       &noFile,    &summary, &update,
                                                       &success,   &failure, &lastFailure};
    for (View::CUpdateDialogBase *const page : pages)
        page->setModel(page == &success ? makeList(1) : model);
    for (auto *const page : {&file, &wrongFile, &noFile})
        page->setKorvaneSupportUrl("https:");
    file.updateFirmwareUpdateInfo(
        {TestSupport::UpdateInfoPtr(new TestSupport::CFakeUpdateInfo("2", "", "http:"))}, false);
    wrongFile.updateCompatibility(false, false);
    noFile.updateFirmwareUpdateInfo({}, true);
    update.updateOverallProgress(100, 100);
    TestSupport::CUpdaterFixture fixture;
    fixture.service->setUpdateFailureMessage(
        "Internal error: Firmware update is missing and could not be applied.");
    for (auto *const page : {&success, &failure, &lastFailure}) {
        page->updateView();
        page->setInfoTextData("https:", "file:");
        page->setErrorTextData(fixture.service->getUpdateFailureMessage(), page == &lastFailure);
    }

    for (View::CUpdateDialogBase *const page : pages) {
        page->resize(page->minimumSize());
        page->show();
        QVERIFY(QTest::qWaitForWindowExposed(page));
        QCOMPARE(page->size(), QSize(570, 556));
        QCOMPARE(findCutText(*page), QString());
        QCOMPARE(findCutCell(*page), QString());
        QCOMPARE(language == "en" ? QString() : findEnglish(getTexts(*page)), QString());
        // What a sentence tells the user to click is there under this name.
        static const QRegularExpression bold("<b>(.*?)</b>");
        const QStringList sentences = getTexts(*page).filter(bold);
        for (const QString &sentence : sentences)
            QVERIFY2(getButton(*page, bold.match(sentence).captured(1).toUtf8()),
                     qPrintable(sentence));
        page->hide();
    }
}

void CTranslationsTest::viewerSpeaksTheLanguage()
{
    QFETCH_GLOBAL(QString, language);
    if (language == "en")
        return;
    speak(language);
    QFileDialog files;
    files.setOption(QFileDialog::DontUseNativeDialog);
    QMessageBox question(QMessageBox::Question, {}, {}, QMessageBox::Yes | QMessageBox::No);
    QLineEdit lineEdit;
    const std::unique_ptr<QMenu> menu(lineEdit.createStandardContextMenu());
    for (const QWidget *const ofQt : std::vector<QWidget *>{&files, &question, menu.get()})
        QCOMPARE(findEnglish(getTexts(*ofQt)), QString());

    qputenv("XDG_STATE_HOME", m_folder.path().toUtf8());
    QSettings().clear();
    const Viewer::AppCore::CLogFolder logs;
    Viewer::AppCore::CLogListDialog logList(logs);
    Viewer::AppCore::CUpdateHistoryDialog history({{}, 2, {}}, QLocale(language));
    for (QDialog *const dialog :
         {static_cast<QDialog *>(&logList), static_cast<QDialog *>(&history)}) {
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        QCOMPARE(findEnglish(getTexts(*dialog)), QString());
        QCOMPARE(findCutText(*dialog), QString());
        dialog->close();
    }

    Viewer::AppCore::CViewer viewer(
        TestSupport::readOptions({"--speed", "1000", "--samples", m_folder.path()}), language,
        &logs);
    const auto &window = viewer.getMainWindow();
    const auto enumeration = viewer.getEnumerationService();
    QSignalSpy spy(enumeration.data(),
                   &Plugin::CameraPool::ICameraEnumerationService::enumerationChanged);
    QStringList failures;
    QVERIFY(viewer.start(failures));
    QVERIFY(spy.wait());
    QStringList texts = getTexts(window);
    const auto layers = enumeration->getTransportLayerInfoVector();
    for (const auto &layer : layers)
        for (const auto &camera : layer->getCameraInfoList())
            texts.removeAll(camera->getDisplayName());
    QCOMPARE(findEnglish(texts), QString());
    QTRY_COMPARE(findCutText(window), QString());
    QVERIFY(!window.findChild<QWidget *>("qt_toolbar_ext_button")->isVisible());

    // Jobs report in English, for the log; looked up in the catalogues it is another matter.
    const auto updates = viewer.getUpdateService();
    const auto camera = layers.at(0)->getCameraInfoList().at(0);
    const auto job = updates->createDeviceFirmwareUpdate(
        camera, updates->getFirmwareUpdateInfos(SAMPLE_FILE, {}).at(0));
    QSignalSpy errors(job.data(), &Plugin::CameraPool::IDeviceFirmwareUpdate::firmwareUpdateError);
    QVERIFY(TestSupport::setSwitch(viewer.getCameraPool(), "busy:" + camera->getId(), true));
    for (int execution = 0; execution < 2; ++execution) {
        job->executeFirmwareUpdate();
        const QByteArray error = errors.value(execution).value(0).toByteArray();
        QVERIFY(!findEnglish({error}).isEmpty());
        QCOMPARE(findEnglish({QCoreApplication::translate("Any", error)}), QString());
    }
}

QTEST_MAIN(CTranslationsTest)
#include "tst_translations.moc"
