#include "support/accessiblereader.h"
#include "viewfixture.h"

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QLayout>
#include <QLineEdit>
#include <QPaintEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

using namespace TestSupport;
using namespace Plugin::FirmwareUpdater::Internal::View;
using TestSupport::CUpdaterFixture;

/// The size for which the forms were made.
static constexpr QSize STANDARD_SIZE(570, 556);

/// The dialogs of the five steps, and what they have from their base.
class CUpdateDialogsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void tellWhatWasClicked();
    void stayOpenWhenTheUserLeaves();
    void enterClicksNothingButNext();
    void controlsHaveNames();
    void tabGoesFromTopToBottom();
    void standardSizeIsThatOfTheForms();
    void surplusGoesToTheTrees();
    void columnsFillTheTree();
    void showEverythingAtEverySize();
    void showsTheFirstUpdate();
    void linksTellWhereTheyLead();
    void announcesThePathOfTheUser();
    void pathCanBeRead();
    void warningsCloseTheirGap();
    void showsProgressWhileItCannotBeClosed();
    void renewsOnlyWhatChanges();
    void showsTextsForTheOutcome();

    void open(const QUrl &url) { m_opened.append(url.toString()); }

private:
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// The places to which @p key leads, from top to bottom, beginning with the control that has
    /// the focus. Links are opened.
    static QString walk(QDialog &dialog, Qt::Key key);

    /// The dialog's signals that @p act leads to.
    template <typename TAct>
    static QString record(QDialog &dialog, const TAct &act);

    /// What is outside of the page, cut off or covered.
    static QStringList getFlaws(const QDialog &dialog);

    /// A plus for each of the widgets that is shown, a minus for each that is hidden.
    static QString getShown(const QDialog &dialog, const std::vector<const char *> &names);

    std::unique_ptr<CPages> m_dialogs;
    QRegion m_painted; ///< of what is watched
    QStringList m_opened;
};

void CUpdateDialogsTest::init()
{
    m_dialogs = std::make_unique<CPages>();
    for (CUpdateDialogBase *const dialog : m_dialogs->all)
        dialog->setModel(makeList(3));
    for (const char *scheme : {"http", "https", "mailto", "file", ""})
        QDesktopServices::setUrlHandler(scheme, this, "open");
}

template <typename TAct>
QString CUpdateDialogsTest::record(QDialog &dialog, const TAct &act)
{
    QString emitted;
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    for (int i = QDialog::staticMetaObject.methodCount(); i < dialog.metaObject()->methodCount();
         ++i) {
        const QMetaMethod method = dialog.metaObject()->method(i);
        if (method.methodType() == QMetaMethod::Signal)
            spies.push_back(std::make_unique<QSignalSpy>(&dialog, method));
    }
    act();
    for (const auto &spy : spies)
        emitted.append(QString(spy->signal()).repeated(spy->count()));
    return emitted;
}

QString CUpdateDialogsTest::getShown(const QDialog &dialog, const std::vector<const char *> &names)
{
    QString shown;
    for (const char *name : names)
        shown.append(find(dialog, name)->isHidden() ? '-' : '+');
    return shown;
}

void CUpdateDialogsTest::tellWhatWasClicked()
{
    const auto click = [](QDialog &dialog, const std::vector<const char *> &buttons) {
        QStringList emitted;
        dialog.show();
        for (const char *const button : buttons)
            emitted += record(
                dialog, [&] { QTest::mouseClick(getButton(dialog, button), Qt::LeftButton); });
        return emitted.join(' ');
    };
    auto &[selection, file, summary, update, result, all] = *m_dialogs;
    QCOMPARE(click(selection, {"Next", "Close", ""}),
             "nextClicked() closeClicked() refreshCamTreeClicked()");
    QCOMPARE(click(file, {"Back", "Next", "Close", "Browse"}),
             "backClicked() nextClicked() closeClicked() browseClicked()");
    QCOMPARE(click(summary, {"Back", "Next", "Close"}),
             "backClicked() nextClicked() closeClicked()");
    QCOMPARE(click(update, {"Cancel"}), "closeClicked()");
    QCOMPARE(click(result, {"Next", "Close"}), "nextClicked() closeClicked()");
    for (const QDialog *const dialog : all)
        QVERIFY(dialog->isVisible());
}

void CUpdateDialogsTest::stayOpenWhenTheUserLeaves()
{
    const auto pressEscape = [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); };
    for (CUpdateDialogBase *const dialog : m_dialogs->all) {
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        QCOMPARE(record(*dialog, [&] { dialog->close(); }), "closeClicked()");
        QCOMPARE(record(*dialog, pressEscape), "closeClicked()");
        QVERIFY(dialog->isVisible());
        dialog->hide();
    }
}

void CUpdateDialogsTest::enterClicksNothingButNext()
{
    const auto press = [](QDialog &dialog, const char *focus) {
        dialog.show();
        const QString emitted
            = record(dialog, [&] { QTest::keyClick(find(dialog, focus), Qt::Key_Return); });
        dialog.hide();
        return emitted;
    };
    for (const bool enable : {false, true, false}) {
        m_dialogs->selection.updateNextButton(enable);
        m_dialogs->file.updateCompatibility(enable, false);
        m_dialogs->summary.updateNextButton(enable);
        const QString wanted = enable ? "nextClicked()" : "";
        QCOMPARE(press(m_dialogs->selection, "cameraTreeView"), wanted);
        QCOMPARE(press(m_dialogs->file, "updateFileLineEdit"), wanted);
        QCOMPARE(press(m_dialogs->summary, "cameraTreeView"), wanted);
    }
    // Held down since Step 3, it does not cancel the updates that it has started.
    m_dialogs->update.enableButtons(true);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
    m_dialogs->update.show();
    QCOMPARE(record(m_dialogs->update,
                    [&] {
                        QCoreApplication::sendEvent(find(m_dialogs->update, "cameraTreeView"),
                                                    &repeated);
                    }),
             "");
    QCOMPARE(press(m_dialogs->update, "cameraTreeView"), "closeClicked()");
}

void CUpdateDialogsTest::controlsHaveNames()
{
    for (CUpdateDialogBase *const dialog : m_dialogs->all) {
        dialog->show();
        const auto widgets = dialog->findChildren<QWidget *>();
        for (QWidget *const widget : widgets)
            widget->setVisible(widget->objectName() != "updateNotesTextLabel");
        QCOMPARE(TestSupport::findNameless(*dialog), {});
        QCOMPARE(TestSupport::describe(QAccessible::queryAccessibleInterface(dialog)),
                 QString("Firmware Updater (%1)").arg(getText(*dialog, "stepTitleLabel")));
    }
    m_dialogs->update.updateOverallProgress(2, 3);
    QVERIFY(TestSupport::takeAnnouncements().contains("name Camera 2 of 3"));
}

QString CUpdateDialogsTest::walk(QDialog &dialog, Qt::Key key)
{
    const auto grab = [&dialog](QWidget *control) {
        QRect place = control->rect();
        for (const QWidget *i = control; i != &dialog; i = i->parentWidget())
            place = place.translated(i->pos()) & i->parentWidget()->rect();
        return dialog.grab(place.adjusted(-4, -4, 4, 4)).toImage();
    };
    QStringList stops;
    QStringList unseen;
    while (true) {
        QWidget *const control = QApplication::focusWidget();
        const auto *const label = qobject_cast<QLabel *>(control);
        const auto *const button = qobject_cast<QPushButton *>(control);
        const QString stop = label                ? label->selectedText()
            : button && !button->text().isEmpty() ? button->text().remove('&')
                                                  : control->objectName();
        if (stop == stops.value(0))
            break;
        stops.append(stop);
        if (label)
            QTest::keyClick(control, Qt::Key_Return);
        const QImage focused = grab(control);
        QTest::keyClick(control, key);
        // All buttons show it alike, by a frame around their text.
        const QRgb color = control->palette().color(QPalette::Highlight).rgb();
        const int edge = qRound(6 * focused.devicePixelRatio());
        const QRect frame = findPixels(focused, focused.rect().adjusted(edge, edge, -edge, -edge),
                                       [color](QRgb pixel) { return pixel == color; });
        if (grab(control) == focused || (button && frame.isEmpty()))
            unseen.append(stop);
    }
    if (key == Qt::Key_Backtab)
        std::reverse(stops.begin() + 1, stops.end());
    return stops.join(", ") + (unseen.isEmpty() ? "" : "; not seen: " + unseen.join(", "));
}

void CUpdateDialogsTest::tabGoesFromTopToBottom()
{
    const auto check = [this](int page, bool isFilled, const char *stops, const char *links = "") {
        CPages pages;
        const ModelPtr noCameras = makeList(0);
        if (!isFilled) {
            pages.selection.setModel(noCameras);
        } else {
            const QString lines = QString("Words<br>").repeated(40);
            pages.fill(3,
                       lines + "<a href='mailto:one'>one</a> " + lines
                           + "<a href='mailto:two'>two</a><br>" + lines + "Words");
            pages.file.updateCompatibility(true, false);
        }
        QDialog &dialog = *pages.all.at(page);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QWidget *const first = dialog.focusWidget();
        // Words can be marked, and then Tab begins with the first link nevertheless.
        auto *const notes = find<QLabel>(dialog, "updateNotesTextLabel");
        if (notes && isFilled) {
            QTest::mouseDClick(notes, Qt::LeftButton, {}, {10, notes->height() - 5});
            QCOMPARE(notes->selectedText(), "Words");
            first->setFocus();
        }

        // The controls show the focus to those who use the keyboard.
        QTest::keyClick(first, Qt::Key_Backtab);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        m_opened.clear();
        QCOMPARE(walk(dialog, Qt::Key_Tab), stops);
        QCOMPARE(m_opened.join(' '), links);
        QCOMPARE(walk(dialog, Qt::Key_Backtab), stops);

        // Whichever control was used last, the page comes back with its first one.
        dialog.hide();
        dialog.show();
        QCOMPARE(dialog.focusWidget(), first);
    };
    check(0, false, "cameraTreeView, refreshButton, Next, Close");
    check(0, true, "cameraTreeView, refreshButton, Next, Close");
    check(1, false, "updateFileLineEdit, Browse, Back, Next, Close");
    check(1, true,
          "updateFileLineEdit, Browse, scrollArea, one, two, Korvane Support, Back, Next, Close",
          "mailto:one mailto:two https://a.example");
    check(2, true, "cameraTreeView, Back, Next, Close");
    check(3, true, "cameraTreeView, Cancel");
    check(4, true, "cameraTreeView, log file, Korvane Support, Next, Close",
          "/tmp/a.log https://a.example");
}

void CUpdateDialogsTest::standardSizeIsThatOfTheForms()
{
    m_dialogs->summary.updateDowngradeInfo(false);
    m_dialogs->summary.updateSidegradeInfo(false);
    m_dialogs->result.updateView();
    CPages filled;
    filled.fill(60, "Text");
    const auto check = [&](int page, bool isFilled, const QString &gaps) {
        QDialog &dialog = *(isFilled ? filled : *m_dialogs).all.at(page);
        dialog.setMinimumSize(STANDARD_SIZE);
        dialog.show();
        dialog.resize(STANDARD_SIZE);

        const auto *const content = find<QVBoxLayout>(dialog, "contentVerticalLayout");
        QStringList found;
        int bottom = 0;
        int shortage = 0;
        for (int i = 0; i < content->count(); ++i) {
            QLayoutItem *const item = content->itemAt(i);
            const int height = item->geometry().height();
            if (const QSpacerItem *const gap = item->spacerItem()) {
                const int hint = gap->sizeHint().height();
                found.append(QString::number(hint));
                // Where the rows are higher than the page, the tree gives way as much as each gap.
                if (!(gap->expandingDirections() & Qt::Vertical))
                    QCOMPARE(height, hint);
                else if (shortage == 0)
                    QVERIFY(height >= hint);
                else
                    QVERIFY(qAbs(hint - height - qMin(shortage, hint)) <= 1);
            } else if (item->widget() && item->widget() == getTree(dialog) && page > 0) {
                shortage = 192 - height;
                QVERIFY(shortage >= 0);
            }
            // Nothing stands between rows and gaps, and nothing else is in them.
            if (item->spacerItem() || !item->isEmpty()) {
                QCOMPARE(item->geometry().top(), bottom + 1);
                bottom += height;
            }
            const QMargins margins = item->layout() ? item->layout()->contentsMargins()
                : item->widget()                    ? item->widget()->contentsMargins()
                                                    : QMargins();
            QCOMPARE(margins.top() + margins.bottom(), 0);
        }
        QCOMPARE(found.join(' '), gaps);
        QCOMPARE(bottom + 1, find(dialog, "bottomSpaceLine")->y());
    };
    check(0, true, "63 24 19");
    check(1, true, "63 37 47 38 18 20 17 65");
    check(2, true, "63 21 40 13 13 15 24"); // warnings
    check(2, false, "63 21 40 0 0 15 24");
    check(3, true, "63 21 26 5 18 20 42 25");
    check(4, true, "63 21 42 40 5 5 20 0 16 36"); // a failure
    check(4, false, "63 21 42 40 5 5 20 16 16 36");
}

void CUpdateDialogsTest::surplusGoesToTheTrees()
{
    m_dialogs = std::make_unique<CPages>();
    m_dialogs->fill(60, "Text");
    for (CUpdateDialogBase *const dialog : m_dialogs->all) {
        const QTreeView *const tree = getTree(*dialog);
        if (!tree)
            continue;
        dialog->setMinimumSize(STANDARD_SIZE);
        dialog->show();
        for (const int width : {570, 1280}) {
            dialog->resize(width, STANDARD_SIZE.height());
            const int standard = tree->height();
            for (const int surplus : {1, 2, 44, 449, 1, 0}) {
                dialog->resize(width, STANDARD_SIZE.height() + surplus);
                QCOMPARE(tree->height(), standard + surplus);
            }
        }
    }
    const QRect counter = find(m_dialogs->update, "progressIndicatorLabel")->geometry();
    QCOMPARE(counter.left(), 29);
    QCOMPARE(counter.width(), 1280 - 2 * 29);
}

void CUpdateDialogsTest::columnsFillTheTree()
{
    const auto getWidths = [](CUpdateDialogBase &dialog, int treeWidth) {
        const QTreeView *const tree = getTree(dialog);
        dialog.show();
        dialog.resize(dialog.width() + treeWidth - tree->width(), dialog.height());
        QVector<int> widths;
        for (int column = 0; column < tree->model()->columnCount(); ++column)
            if (!tree->isColumnHidden(column))
                widths.append(tree->columnWidth(column));
        return widths;
    };
    QCOMPARE(getWidths(m_dialogs->selection, 600), {600});
    QCOMPARE(getWidths(m_dialogs->summary, 512), QVector<int>({115, 142, 148, 107}));
    QCOMPARE(getWidths(m_dialogs->update, 512), QVector<int>({94, 142, 148, 128}));
    QCOMPARE(getWidths(m_dialogs->result, 512), QVector<int>({185, 152, 175}));
}

QStringList CUpdateDialogsTest::getFlaws(const QDialog &dialog)
{
    QStringList flaws;
    QRegion covered;
    const auto widgets = dialog.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *const widget : widgets) {
        if (widget->isHidden())
            continue;
        const auto *const label = qobject_cast<QLabel *>(widget);
        if (!dialog.rect().contains(widget->geometry()))
            flaws.append(widget->objectName() + " is outside");
        if (covered.intersects(widget->geometry()))
            flaws.append(widget->objectName() + " is covered");
        if (label
            && (label->wordWrap() ? label->heightForWidth(label->width()) > label->height()
                                  : label->sizeHint().width() > label->width()))
            flaws.append(widget->objectName() + " is cut off");
        covered += widget->geometry();
    }
    const auto *const box = dialog.findChild<QDialogButtonBox *>();
    if (!box->rect().contains(box->childrenRect()))
        flaws.append("buttons are cut off");
    return flaws;
}

void CUpdateDialogsTest::showEverythingAtEverySize()
{
    const QFont usualFont = QApplication::font();
    const auto check = [&](const QSize &size, qreal textScale) {
        QFont font = usualFont;
        font.setPointSizeF(font.pointSizeF() * textScale);
        QApplication::setFont(font);
        const auto restoreFont = qScopeGuard([&] { QApplication::setFont(usualFont); });
        m_dialogs = std::make_unique<CPages>();
        m_dialogs->fill(60, QString("Some words of a long text. ").repeated(185));

        for (CUpdateDialogBase *const dialog : m_dialogs->all) {
            dialog->show();
            QVERIFY(dialog->screen()->availableGeometry().contains({QPoint(1, 1), dialog->size()}));
            dialog->setMinimumSize(size);
            dialog->resize(size);
            QCOMPARE(dialog->size(), size);
            QCOMPARE(getFlaws(*dialog).join(", "), QString());
            if (const QTreeView *const tree = getTree(*dialog)) {
                QVERIFY(tree->verticalScrollBar()->isVisible());
                QVERIFY(tree->viewport()->height() >= 50);
                QCOMPARE(tree->horizontalScrollBar()->maximum(), 0);
            }
        }
        const auto *const area = find<QScrollArea>(m_dialogs->file, "scrollArea");
        QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
        const auto *const path = find(m_dialogs->file, "updateFileLineEdit");
        QVERIFY(path->fontMetrics().height() < path->height() - 1);
        QVERIFY(find(m_dialogs->file, "browseButton")->x() - path->geometry().right() < 10);
    };
    check(STANDARD_SIZE, 1);
    check(STANDARD_SIZE, 1.5);
    check({570, 472}, 1); // 1024 x 768 at 150 %
    check({1280, 1005}, 1); // maximized
}

void CUpdateDialogsTest::showsTheFirstUpdate()
{
    CUpdateSelectionDialog &dialog = m_dialogs->file;
    const auto show = [&](const char *version, const char *description, const char *notes) {
        using TestSupport::CFakeUpdateInfo;
        dialog.updateFirmwareUpdateInfo(
            {QSharedPointer<CFakeUpdateInfo>::create(version, description, notes),
             QSharedPointer<CFakeUpdateInfo>::create("9")},
            false);
        return getText(dialog, "updateDescriptionTextLabel") + '|'
            + getText(dialog, "updateVersionTextLabel") + '|'
            + getText(dialog, "updateNotesTextLabel") + '|'
            + getShown(dialog,
                       {"updateVersionLabel", "updateVersionTextLabel", "updateNotesLabel",
                        "updateNotesTextLabel"});
    };
    QCOMPARE(show("2.0", "Fixes", "Faster"), "Fixes|2.0|Faster|++++");
    QCOMPARE(show("", "Fixes", "- a < b\n- c"), "Fixes||- a &lt; b<br>- c|--++");
    QCOMPARE(show("", "Fixes", "<b>Fast</b>\ner"), "Fixes||<b>Fast</b>\ner|--++");
    QCOMPARE(show("2.0", "", ""), "No details available|2.0||++--");
    QCOMPARE(show("2.0", "Fixes", "HTTPS://a.example/n"),
             "Fixes|2.0|<a href=\"HTTPS://a.example/n\">Firmware Release Notes</a>|++++");
    QCOMPARE(show("", "Fixes", "\"see\" http %2"),
             "Fixes||<a href=\"&quot;see&quot; http %2\">Firmware Release Notes</a>|--++");
    // Nothing is read for notes, and what no browser opens is no link.
    QCOMPARE(show("", "Fixes", "<b>a</b><img src=/dev/zero>"), "Fixes||<b>a</b>|--++");
    QCOMPARE(show("", "Fixes", "file:///http"), "Fixes||file:///http|--++");
    QCOMPARE(show("", "Fixes", "<a href='file:///x'>x</a>"), "Fixes||<a>x</a>|--++");
    dialog.updateFirmwareUpdateInfo({}, true);
    QCOMPARE(getShown(dialog, {"updateVersionLabel", "updateNotesLabel"}), "--");
}

void CUpdateDialogsTest::linksTellWhereTheyLead()
{
    CUpdateSelectionDialog &dialog = m_dialogs->file;
    dialog.show();
    QLabel *const label = find<QLabel>(dialog, "updateNotesTextLabel");
    const auto check = [&](const QString &notes, const QString &opened) {
        dialog.updateFirmwareUpdateInfo(
            {QSharedPointer<TestSupport::CFakeUpdateInfo>::create("2.0", "Fixes", notes)}, false);
        dialog.grab();
        for (const QPoint &place : {QPoint(-5, 5), QPoint(10, 5)})
            QTest::mouseMove(dialog.windowHandle(), label->mapTo(&dialog, place));
        QTRY_COMPARE(label->toolTip(), "<qt>" + notes.toHtmlEscaped() + "</qt>");
        m_opened.clear();
        QTest::mouseClick(label, Qt::LeftButton, {}, {10, 5});
        QCOMPARE(m_opened.join(' '), opened);
    };
    check("https://a.example/n", "https://a.example/n");
    check("<b>See</b> http://a.example/n (or not)", "http://a.example/n");
    check("Fewer http faults", "");
    check("/tmp/http.desktop", "");
}

void CUpdateDialogsTest::announcesThePathOfTheUser()
{
    CUpdateSelectionDialog &dialog = m_dialogs->file;
    QStringList paths;
    connect(&dialog, &CUpdateSelectionDialog::pathChanged, this, [&](const QString &path) {
        paths.append(path + (dialog.isVisible() ? ", visible" : ", hidden"));
    });
    dialog.show();
    auto *const lineEdit = find<QLineEdit>(dialog, "updateFileLineEdit");
    dialog.updateFileSelection("/a.guf");
    lineEdit->setCursorPosition(2);
    dialog.updateFileSelection("/a.guf");
    QTest::keyClick(lineEdit, Qt::Key_X);
    // By speech, or by a program that fills fields in.
    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(lineEdit);
    QAccessibleEditableTextInterface *const editor = accessible->editableTextInterface();
    editor->replaceText(0, accessible->textInterface()->characterCount(), "/b.guf");
    editor->insertText(2, "c");
    editor->deleteText(3, 99);
    accessible->setText(QAccessible::Value, "/d.guf");
    lineEdit->setText("/e.guf");
    dialog.hide();
    QCOMPARE(paths.takeFirst(), QDir::toNativeSeparators(QDir::homePath()) + ", hidden");
    QCOMPARE(paths.join(' ').remove(", visible"), "/ax.guf /b.guf /bc.guf /bc /d.guf");
}

void CUpdateDialogsTest::pathCanBeRead()
{
    auto *const lineEdit = find<QLineEdit>(m_dialogs->file, "updateFileLineEdit");
    m_dialogs->file.show();
    lineEdit->setText(QString("/folder").repeated(40));
    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(lineEdit);
    QAccessibleTextInterface *const text = accessible->textInterface();
    QCOMPARE(accessible->text(QAccessible::Value), lineEdit->text());
    QCOMPARE(text->text(270, text->characterCount()), "der/folder");
    // The end of the long path; a field scrolls to its cursor when it is painted.
    text->setCursorPosition(280);
    lineEdit->grab();
    const QRect last = text->characterRect(279);
    QVERIFY(accessible->rect().contains(last));
    QCOMPARE(text->offsetAtPoint({last.left() + 1, last.center().y()}), 279);
    text->setSelection(0, 3, 6);
    int start = 0, end = 0;
    text->selection(0, &start, &end);
    QCOMPARE(lineEdit->selectedText() + QString("%1 %2").arg(start).arg(end), "lde3 6");
}

void CUpdateDialogsTest::warningsCloseTheirGap()
{
    const QLayout *const layout = find<QLayout>(m_dialogs->summary, "contentVerticalLayout");
    m_dialogs->summary.show();
    for (const bool isShown : {true, false}) {
        m_dialogs->summary.updateDowngradeInfo(isShown);
        m_dialogs->summary.updateSidegradeInfo(isShown);
        int gaps = 0;
        for (int i = 0; i < layout->count(); ++i)
            gaps += layout->itemAt(i)->sizeHint().height() == 13 ? 1 : 0;
        QCOMPARE(gaps, isShown ? 2 : 0);
        QCOMPARE(getShown(m_dialogs->summary, {"warningIconLabel_1", "warningIconLabel_2"}),
                 isShown ? "++" : "--");
    }
}

void CUpdateDialogsTest::showsProgressWhileItCannotBeClosed()
{
    CFirmwareUpdateDialog &dialog = m_dialogs->update;
    dialog.show();
    const QSignalSpy blinkSpy(dialog.windowHandle(), &QWindow::visibleChanged);
    for (const bool enable : {true, false}) {
        dialog.enableButtons(enable);
        QVERIFY(blinkSpy.isEmpty());
        // The same buttons as on a dialog that gets them before it is shown.
        Qt::WindowFlags flags
            = Qt::Dialog | Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint;
        QDialog hidden;
        hidden.setWindowFlags(flags.setFlag(Qt::WindowCloseButtonHint, enable));
        QCOMPARE(dialog.windowFlags(), hidden.windowFlags());
        QCOMPARE(dialog.windowHandle()->flags(), hidden.windowFlags());
        QCOMPARE(getButton(dialog, "Cancel")->isEnabled(), enable);
        QCOMPARE(record(dialog, [&] { QTest::keyClick(&dialog, Qt::Key_Escape); }),
                 "closeClicked()");
        QVERIFY(dialog.isVisible());
    }
}

bool CUpdateDialogsTest::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint)
        m_painted += static_cast<QPaintEvent *>(event)->region();
    return QObject::eventFilter(watched, event);
}

void CUpdateDialogsTest::renewsOnlyWhatChanges()
{
    CFirmwareUpdateDialog dialog;
    const ModelPtr list = makeList(100);
    dialog.setModel(list);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTreeView *const tree = getTree(dialog);
    tree->viewport()->installEventFilter(this);
    // The rows that a change of the state in row @p row leads to.
    const auto change = [&](int row) {
        QCoreApplication::processEvents();
        m_painted = QRegion();
        list->setData(list->index(row, 6), 1, Qt::EditRole);
        QCoreApplication::processEvents();
        return m_painted.boundingRect();
    };
    const QRect first = tree->visualRect(list->index(0, 0));
    QCOMPARE(change(0), QRect(0, first.top(), tree->viewport()->width(), first.height()));
    QCOMPARE(change(90), QRect());
    tree->scrollTo(list->index(90, 0));
    QVERIFY(!change(90).isEmpty());
    QCOMPARE(change(0), QRect());

    const auto isExpanded = [&] { return tree->isExpanded(list->index(0, 0)); };
    tree->collapseAll();
    QVERIFY(!isExpanded());
    dialog.setModel(list);
    QVERIFY(isExpanded());
    list->setCameraDeviceList({CUpdaterFixture::makeTickedCamera({"new"})});
    QVERIFY(!isExpanded());
    dialog.setModel(list);
    QVERIFY(isExpanded());
}

void CUpdateDialogsTest::showsTextsForTheOutcome()
{
    using Result = Entity::EFirmwareUpdateResult;
    CResultSummaryDialog &dialog = m_dialogs->result;
    const auto show = [&dialog](const QVector<Result> &results) {
        for (int row = 0; row < results.size(); ++row)
            static_cast<Entity *>(dialog.getModel()->index(row, 0).internalPointer())
                ->setUpdateResult(results.at(row));
        dialog.updateView();
        return getShown(dialog,
                        {"infoTextLabel_1", "infoIconLabel_1", "infoTextLabel_2", "infoIconLabel_2",
                         "errorTextLabel", "errorIconLabel", "infoTextLabel_3", "infoIconLabel_3",
                         "successfulUpdatesLabel", "failedUpdatesLabel", "skippedUpdatesLabel"});
    };
    QCOMPARE(show({Result::OK, Result::OK, Result::Skipped}), "++++----+--");
    QCOMPARE(show({Result::Failed, Result::Skipped, Result::Skipped}), "----+++++++");

    dialog.setInfoTextData("https://a.example/%1", "/tmp/%2.log");
    QCOMPARE(getText(dialog, "infoTextLabel_3"),
             "For more information, see the <a href=\"/tmp/%2.log\">log file</a>. If you require "
             "assistance, contact the <a href=\"https://a.example/%1\">Korvane Support</a>.");
}

QTEST_MAIN(CUpdateDialogsTest)
#include "tst_updatedialogs.moc"
