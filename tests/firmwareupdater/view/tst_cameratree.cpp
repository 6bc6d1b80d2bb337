#include "style/icons.h"
#include "support/accessiblereader.h"
#include "view/treeviewdetailsdelegate.h"
#include "view/treeviewheaderview.h"
#include "view/treeviewresultdelegate.h"
#include "view/treeviewstatusdelegate.h"
#include "viewfixture.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

using namespace ViewFixture;
using namespace Plugin::FirmwareUpdater;
using namespace Internal::Style;
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

private:
    /// The row "Layer l", "A", "Camera a1", ... of the dialog's tree.
    QModelIndex row(const char *name) const;
    void hover(const char *name) const;
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
}

QModelIndex CCameraTreeTest::row(const char *name) const
{
    return findRow(*m_tree->model(), name);
}

void CCameraTreeTest::hover(const char *name) const
{
    QMouseEvent event(QEvent::MouseMove, m_tree->visualRect(row(name)).center(), Qt::NoButton,
                      Qt::NoButton, {});
    QCoreApplication::sendEvent(m_tree->viewport(), &event);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
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
}

void CCameraTreeTest::rowsKeepStillUnderTheMouse()
{
    const auto check = [this](const char *name, int textBegin) {
        const QRect cell = m_tree->visualRect(row(name));
        const int split = qRound(textBegin * m_tree->devicePixelRatioF());
        // Where the row's box and its text are.
        const auto find = [&] {
            const QImage image = m_tree->viewport()->grab(cell).toImage();
            return QVector<QRect>{findInk(image, QRect(0, 0, split, image.height())),
                                  findInk(image, image.rect().adjusted(split, 0, 0, 0))};
        };
        const QVector<QRect> places = find();
        QVERIFY(!places.contains(QRect()));
        QHoverEvent enter(QEvent::HoverMove, cell.center(), QPoint());
        QCoreApplication::sendEvent(m_tree->viewport(), &enter);
        QCOMPARE(find(), places);
        hover(name);
        QVERIFY(getEditorBox());
        QCOMPARE(find(), places);
        click(name, textBegin);
        QCOMPARE(find(), places);
    };
    check("A", 20);
    check("Camera a1", 40);
    check("B", 20);
    m_summary->show();
    m_tree = getTree(*m_summary);
    check("Camera c0", 20);
    check("Camera c1", 20);
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
    const auto read = [this] { return AccessibleReader::readRows(m_tree).join('|'); };
    QCOMPARE(read(), rows.arg("[ ]", "[ ]", "[ ]", "[ ]"));
    (void)AccessibleReader::takeAnnouncements();
    click("Camera a1", 8);
    QCOMPARE(read(), rows.arg("[-]", "[x]", "[ ]", "[ ] off"));
    QAccessibleInterface *const cell
        = QAccessible::queryAccessibleInterface(m_tree)->tableInterface()->cellAt(3, 0);
    const QAccessible::Id id = QAccessible::uniqueId(cell);
    cell->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCOMPARE(read(), rows.arg("[x]", "[x]", "[x]", "[ ] off"));
    const QStringList told = AccessibleReader::takeAnnouncements();
    for (const char *row : {"A [-] (Layer l)", "A [x] (Layer l)", "Camera a1 [x] (A, Layer l)",
                            "Camera b1 [ ] off (B, Layer l)"})
        QCOMPARE(told.count(QString("state ") + row), 1);
    // The live box on top of a row has the row's name.
    QVERIFY(AccessibleReader::findNameless(*m_dialog).isEmpty());
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
    (void)AccessibleReader::takeAnnouncements();
    // The view itself announces the current cell by its number.
    QTest::keyClick(getTree(*m_summary), Qt::Key_Down);
    QCOMPARE(AccessibleReader::takeAnnouncements().constFirst(),
             "focus " + AccessibleReader::describe(tree->tableInterface()->cellAt(1, 0)));
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
    const QRect place(metrics.horizontalAdvance(title) + 5, metrics.ascent() - 7, 10, 7);
    const auto show = [&](Qt::SortOrder order) {
        header->setSortIndicator(0, order);
        return header->grab(place).toImage();
    };
    QImage stored = show(Qt::DescendingOrder);
    stored.fill(Qt::white);
    QPainter(&stored).drawPixmap(0, 0, getIconPixmap("sort_icon_10x7_en"));
    QCOMPARE(show(Qt::DescendingOrder), stored);
    QCOMPARE(show(Qt::AscendingOrder), stored.mirrored(true, true));
    QVERIFY(stored != stored.mirrored(true, true));
}

QTEST_MAIN(CCameraTreeTest)
#include "tst_cameratree.moc"
