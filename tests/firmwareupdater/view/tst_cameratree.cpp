#include "constants.h"
#include "support/accessiblereader.h"
#include "view/delegate/treeviewdetailsdelegate.h"
#include "view/delegate/treeviewlabeldelegate.h"
#include "view/delegate/treeviewresultdelegate.h"
#include "view/delegate/treeviewstatusdelegate.h"
#include "view/treeviewheaderview.h"
#include "viewfixture.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QLabel>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

using namespace TestSupport;
using namespace Plugin::FirmwareUpdater;
using namespace Internal::View;

/// Gives a test the content that a delegate chose for a cell.
template <typename TDelegate>
class CReadableDelegate : public TDelegate
{
public:
    using TDelegate::getContent;
};

/// The camera tree with its header and cells, and how the user ticks rows.
class CCameraTreeTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void rowsHaveTheirHeights();
    void rowsKeepStillUnderTheMouse();
    void hoverFollowsTheMouse();
    void valuesHaveNamesAndIcons();
    void hoverOpensOneEditor();
    void clicksReachTheModel();
    void disabledRowsCannotBeToggled();
    void spaceTogglesTheCurrentRow();
    void rowsAreSortedAfterEachRefresh();
    void rowsTellTheirState();
    void cellsAreNumberedAsInEvents();
    void scrollBarBeginsBelowTheHeader();
    void arrowPointsUpAtAscendingOrder();
    void iconsAreShownPixelByPixel();

private:
    /// The row "Layer l", "A", "Camera a1", ... of the dialog's tree.
    QModelIndex row(const char *name) const;
    /// Moves the mouse to a point of the tree's viewport, or beside it.
    void moveMouse(const QPoint &point) const;
    void hover(const char *name) const;
    QImage grab(const char *name) const;
    void click(const char *name, int x) const;
    QCheckBox *getEditorBox() const;
    /// Replaces the tree by a layer with @p cameras.
    void rebuild(const QVector<TestSupport::CCameraDescription> &cameras);
    QString getTicked() const;

    ModelPtr m_model;
    ModelPtr m_list;
    std::unique_ptr<CCameraSelectionDialog> m_dialog;
    std::unique_ptr<CUpdateSummaryDialog> m_summary;
    QTreeView *m_tree = nullptr;
};

void CCameraTreeTest::init()
{
    m_model = makeTree();
    m_list = makeList(2);
    m_dialog = std::make_unique<CCameraSelectionDialog>();
    m_summary = std::make_unique<CUpdateSummaryDialog>();
    m_summary->setModel(m_list);
    m_dialog->setModel(m_model);
    // Also where the screen is smaller.
    m_dialog->resize(570, 556);
    m_summary->resize(570, 556);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    m_tree = getTree(*m_dialog);
    // Wherever the mouse was in the dialog before.
    moveMouse(QPoint(-10, 0));
}

QModelIndex CCameraTreeTest::row(const char *name) const
{
    return findRow(*m_tree->model(), name);
}

void CCameraTreeTest::moveMouse(const QPoint &point) const
{
    const QWidget *window = m_tree->window();
    QTest::mouseMove(window->windowHandle(), m_tree->viewport()->mapTo(window, point));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void CCameraTreeTest::hover(const char *name) const
{
    moveMouse(m_tree->visualRect(row(name)).center());
}

QImage CCameraTreeTest::grab(const char *name) const
{
    return m_tree->viewport()->grab(m_tree->visualRect(row(name))).toImage();
}

void CCameraTreeTest::click(const char *name, int x) const
{
    hover(name);
    QTest::mouseClick(getEditorBox(), Qt::LeftButton, {}, QPoint(x, 10));
}

QCheckBox *CCameraTreeTest::getEditorBox() const
{
    const QList<QCheckBox *> boxes = m_tree->viewport()->findChildren<QCheckBox *>();
    return boxes.count() == 1 ? boxes.first() : nullptr;
}

void CCameraTreeTest::rebuild(const QVector<TestSupport::CCameraDescription> &cameras)
{
    m_model->setTransportLayerInfoVector({TestSupport::makeLayer("l", cameras)});
    m_dialog->setModel(m_model);
}

QString CCameraTreeTest::getTicked() const
{
    QStringList ids;
    for (const auto &camera : m_model->getSelectedCameraList())
        ids.append(camera->getCameraInfo()->getId());
    return ids.join(' ');
}

void CCameraTreeTest::rowsHaveTheirHeights()
{
    QCOMPARE(m_tree->visualRect(row("Layer l")).height(), 24);
    QCOMPARE(m_tree->visualRect(row("A")).height(), 25);
    QCOMPARE(m_tree->visualRect(row("Camera a1")).height(), 20);
    QCOMPARE(getTree(*m_summary)->visualRect(m_list->index(0, 0)).height(), 27);
    QCOMPARE(getTree(*m_summary)->visualRect(m_list->index(1, 0)).height(), 20);

    // The other columns have no part in it.
    QStyleOptionViewItem option;
    option.font.setPointSize(30);
    const auto getHint = [&](const QStyledItemDelegate &delegate) {
        return delegate.sizeHint(option, m_list->index(1, 0));
    };
    const QSize usual = getHint(QStyledItemDelegate());
    QCOMPARE(getHint(CTreeViewLabelDelegate()), QSize(usual.width(), 20));
    QCOMPARE(getHint(CTreeViewDetailsDelegate()), usual);
    QCOMPARE(getHint(CTreeViewStatusDelegate()), usual);
    QCOMPARE(getHint(CTreeViewResultDelegate()), usual);
}

void CCameraTreeTest::rowsKeepStillUnderTheMouse()
{
    const auto check = [this](const char *name) {
        // Between device pixels the edges of the live box on top of the painted one are darker.
        // What moves by one pixel differs by more than that.
        QImage last = grab(name);
        const auto isStill = [&] {
            const QImage image = grab(name);
            int difference = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    difference = qMax(difference,
                                      qAbs(qGray(image.pixel(x, y)) - qGray(last.pixel(x, y))));
            last = image;
            return difference < 60;
        };
        QHoverEvent enter(QEvent::HoverMove, m_tree->visualRect(row(name)).center(), QPoint());
        QCoreApplication::sendEvent(m_tree->viewport(), &enter);
        QVERIFY(isStill());
        hover(name);
        QVERIFY(getEditorBox() && isStill());
        click(name, 8);
        (void)isStill();
        getEditorBox()->parentWidget()->hide();
        QVERIFY(isStill());
    };
    check("A");
    check("Camera a1");
    check("B");
    m_summary->show();
    m_tree = getTree(*m_summary);
    check("Camera c0");
    check("Camera c1");
}

void CCameraTreeTest::hoverFollowsTheMouse()
{
    const auto isLight = [this](const char *name) {
        const QImage image = grab(name);
        return image.pixelColor(image.rect().center()) == Constants::LIGHT_BLUE_COLOR;
    };
    hover("Camera a1");
    QVERIFY(isLight("Camera a1"));
    // Back to a row whose editor is still open.
    moveMouse(QPoint(-10, m_tree->visualRect(row("Camera a1")).center().y()));
    QVERIFY(!isLight("Camera a1"));
    hover("Camera a1");
    QVERIFY(isLight("Camera a1"));
    m_summary->show();
    m_tree = getTree(*m_summary);
    hover("Camera c0");
    moveMouse(m_tree->visualRect(row("Camera c1").siblingAtColumn(3)).center());
    QVERIFY(isLight("Camera c1"));
    hover("Camera c0");
    QVERIFY(isLight("Camera c0"));
    QVERIFY(!isLight("Camera c1"));
}

void CCameraTreeTest::valuesHaveNamesAndIcons()
{
    const CReadableDelegate<CTreeViewDetailsDelegate> details;
    const CReadableDelegate<CTreeViewStatusDelegate> status;
    const CReadableDelegate<CTreeViewResultDelegate> result;
    Entity entity;
    QStringList shown;
    for (int value = 0; value < 4; ++value) {
        entity.setUpdateDetails(Plugin::CameraPool::EFirmwareUpdateDirection(value));
        entity.setUpdateStatus(Entity::EFirmwareUpdateStatus(value));
        entity.setUpdateResult(Entity::EFirmwareUpdateResult(value));
        const auto statusContent = status.getContent(entity, 6);
        const auto resultContent = result.getContent(entity, 7);
        shown << details.getContent(entity, 5).text << statusContent.text << statusContent.iconName
              << resultContent.text << resultContent.iconName;
    }
    QCOMPARE(shown.join(' '),
             "Upgrade Waiting  OK update_ok_icon_12x8_en "
             "Downgrade Updating refresh_black_icon_14x12_en "
             "<b>Failed</b> update_failed_icon_12x11_en "
             "Reinstall Complete update_ok_icon_12x8_en Skipped update_skipped_icon_12x3_en "
             "Unknown    ");
}

void CCameraTreeTest::hoverOpensOneEditor()
{
    hover("Layer l");
    QVERIFY(m_tree->viewport()->findChildren<QCheckBox *>().isEmpty());
    hover("Camera a1");
    hover("Camera a2");
    QVERIFY(getEditorBox());
    QCOMPARE(m_tree->currentIndex(), row("Camera a2"));
    // Opening and closing editors leaves the keyboard with the tree.
    QSignalSpy closeSpy(m_dialog.get(), &CUpdateDialogBase::closeClicked);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QCOMPARE(closeSpy.count(), 1);
}

void CCameraTreeTest::clicksReachTheModel()
{
    // Without an editor, as after a turn of the mouse wheel.
    const QPoint center = m_tree->visualRect(row("Camera a2")).center();
    QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, center);
    QCOMPARE(getTicked(), "a2");
    // The same editor is still there after a click and writes again.
    click("Camera a1", 80);
    QCOMPARE(getTicked(), "a1 a2");
    QTest::mouseClick(getEditorBox(), Qt::LeftButton, {}, QPoint(8, 10));
    QCOMPARE(getTicked(), "a2");
    click("A", 80);
    click("A", 8);
    QCOMPARE(getTicked(), "a1 a2");
    // A rebuild takes the open editor away.
    rebuild({{"z1"}});
    click("Camera z1", 80);
    QCOMPARE(getTicked(), "z1");
}

void CCameraTreeTest::disabledRowsCannotBeToggled()
{
    click("Camera a1", 80);
    click("Camera b1", 8);
    QVERIFY(!getEditorBox()->isEnabled());
    QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {},
                      m_tree->visualRect(row("Camera b1")).center());
    QCOMPARE(getTicked(), "a1");
    QTest::keyClick(m_tree, Qt::Key_Space);
    QCOMPARE(getTicked(), "a1");
}

void CCameraTreeTest::spaceTogglesTheCurrentRow()
{
    m_tree->setCurrentIndex(row("Camera a2"));
    QTest::keyClick(m_tree, Qt::Key_Space);
    QCOMPARE(getTicked(), "a2");
    hover("Camera a1");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QCOMPARE(getTicked(), "a1 a2");
    QVERIFY(getEditorBox()->isChecked());
    // In a tree with several columns the current cell may be any of the row.
    m_summary->show();
    getTree(*m_summary)->setCurrentIndex(m_list->index(1, 3));
    QTest::keyClick(getTree(*m_summary), Qt::Key_Space);
    QCOMPARE(m_list->getSelectedCameraList().count(), 1);
}

void CCameraTreeTest::rowsAreSortedAfterEachRefresh()
{
    using ModelTester = QAbstractItemModelTester;
    const auto reporting = ModelTester::FailureReportingMode::QtTest;
    const ModelTester tester(m_model.data(), reporting);
    const ModelTester proxyTester(m_tree->model(), reporting);
    const auto read = [this] {
        QStringList rows;
        for (QModelIndex row = m_tree->model()->index(0, 0); row.isValid();
             row = m_tree->indexBelow(row))
            rows.append(row.data().toString().remove("Camera "));
        return rows.join(' ');
    };
    const auto clickHeader = [this] {
        QTest::mouseClick(m_tree->header()->viewport(), Qt::LeftButton, {}, QPoint(20, 10));
    };
    QCOMPARE(read(), "Layer l A a1 a2 B b1");
    rebuild({{"5", "B"}, {"7", "A"}, {"8", "A"}, {"6", "A"}, {"9", "C"}});
    QCOMPARE(read(), "Layer l A 6 7 8 B 5 C 9");
    clickHeader();
    QCOMPARE(read(), "Layer l C 9 B 5 A 8 7 6");
    click("Camera 8", 80);
    QCOMPARE(read(), "Layer l C 9 B 5 A 8 7 6");
    // The user's order ends with the tree that it was chosen for.
    rebuild({{"2", "B"}, {"4", "A"}, {"1", "A"}, {"3", "A"}});
    QCOMPARE(read(), "Layer l A 1 3 4 B 2");
    clickHeader();
    rebuild({});
    QCOMPARE(read(), "");
    rebuild({{"1", "B"}, {"3", "A"}, {"2", "A"}});
    QCOMPARE(read(), "Layer l A 2 3 B 1");
}

void CCameraTreeTest::rowsTellTheirState()
{
    const QString rows = "Layer l|A %1 (Layer l)|Camera a1 %2 (A, Layer l)|"
                         "Camera a2 %3 (A, Layer l)|B %4 (Layer l)|Camera b1 %4 (B, Layer l)";
    const auto read = [this] { return TestSupport::readRows(m_tree).join('|'); };
    QCOMPARE(read(), rows.arg("[ ]", "[ ]", "[ ]", "[ ]"));
    (void)TestSupport::takeAnnouncements();
    click("Camera a1", 8);
    QCOMPARE(read(), rows.arg("[-]", "[x]", "[ ]", "[ ] off"));
    QAccessibleInterface *const cell
        = QAccessible::queryAccessibleInterface(m_tree)->tableInterface()->cellAt(3, 0);
    const QAccessible::Id id = QAccessible::uniqueId(cell);
    cell->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCOMPARE(read(), rows.arg("[x]", "[x]", "[x]", "[ ] off"));
    const QStringList told = TestSupport::takeAnnouncements();
    for (const char *row : {"A [-] (Layer l)", "A [x] (Layer l)", "Camera a1 [x] (A, Layer l)",
                            "Camera b1 [ ] off (B, Layer l)"})
        QCOMPARE(told.count(QString("state ") + row), 1);
    // The live box on top of a row has the row's name.
    QVERIFY(TestSupport::findNameless(*m_dialog).isEmpty());
    // A rebuild leaves no cell of the old tree.
    rebuild({{"z1", "Z"}});
    QVERIFY(!QAccessible::accessibleInterface(id));
    QCOMPARE(read(), "Layer l|Z [ ] (Layer l)|Camera z1 [ ] (Z, Layer l)");
}

void CCameraTreeTest::cellsAreNumberedAsInEvents()
{
    m_summary->show();
    QVERIFY(QTest::qWaitForWindowActive(m_summary.get()));
    QAccessibleInterface *const tree = QAccessible::queryAccessibleInterface(getTree(*m_summary));
    (void)TestSupport::takeAnnouncements();
    // The view itself announces the current cell by its number.
    QTest::keyClick(getTree(*m_summary), Qt::Key_Down);
    QCOMPARE(TestSupport::takeAnnouncements().constFirst(),
             "focus " + TestSupport::describe(tree->tableInterface()->cellAt(1, 0)));
    QCOMPARE(tree->childCount(), 3 * 8);
    for (int i = 0; i < tree->childCount(); ++i) {
        QAccessibleInterface *const child = tree->child(i);
        QCOMPARE(tree->indexOfChild(child), i);
        if (child->state().invisible)
            continue;
        QCOMPARE(tree->childAt(child->rect().center().x(), child->rect().center().y()), child);
        if (const auto *const cell = child->tableCellInterface())
            QCOMPARE(tree->tableInterface()->cellAt(cell->rowIndex(), cell->columnIndex()), child);
    }
}

void CCameraTreeTest::scrollBarBeginsBelowTheHeader()
{
    rebuild(QVector<TestSupport::CCameraDescription>(50, {"z"}));
    const QHeaderView *const header = m_tree->header();
    QCOMPARE(header->height(), qMax(36, header->QHeaderView::sizeHint().height() + 11));
    const QScrollBar *const bar = m_tree->verticalScrollBar();
    for (const int height : {600, 700, 700}) {
        QTRY_COMPARE(bar->y(), header->height() + 14);
        QCOMPARE(bar->geometry().bottom(), bar->parentWidget()->rect().bottom());
        m_dialog->resize(600, height);
    }
}

void CCameraTreeTest::arrowPointsUpAtAscendingOrder()
{
    QHeaderView *const header = m_tree->header();
    const QFontMetrics metrics(header->font());
    const QString title = m_tree->model()->headerData(0, Qt::Horizontal).toString();
    const QPoint place(metrics.horizontalAdvance(title) + 5, metrics.ascent() - 7);
    const QImage stored = loadIcon("sort_icon_10x7_en", m_tree->devicePixelRatioF());
    const auto isShown = [&](const QImage &arrow, Qt::SortOrder order) {
        header->setSortIndicator(0, order);
        const QImage image = header->grab({place, QSize(11, 8)}).toImage();
        return image.convertToFormat(arrow.format()).copy(arrow.rect()) == arrow;
    };
    QVERIFY(isShown(stored, Qt::DescendingOrder));
    QVERIFY(isShown(stored.mirrored(true, true), Qt::AscendingOrder));
    QVERIFY(stored != stored.mirrored(true, true));
}

void CCameraTreeTest::iconsAreShownPixelByPixel()
{
    CPages pages;
    pages.fill(1, "text");
    const auto isShown = [](CUpdateDialogBase &page, const QString &name) {
        const QImage icon = loadIcon(name, page.devicePixelRatioF());
        const QList<QLabel *> labels = page.findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
                           [&](QLabel *label) { return shows(label->grab().toImage(), icon); });
    };
    QVERIFY(isShown(pages.selection, "info_icon_24x24_en"));
    QVERIFY(isShown(pages.update, "warning_icon_24x24_en"));
    QVERIFY(isShown(pages.result, "error_icon_24x24_en"));
}

QTEST_MAIN(CCameraTreeTest)
#include "tst_cameratree.moc"
