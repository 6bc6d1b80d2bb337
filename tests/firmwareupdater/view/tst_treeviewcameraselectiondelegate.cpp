#include "constants.h"
#include "view/cameraselectiondialog.h"
#include "view/treeviewcameraselectiondelegate.h"
#include "view/updatesummarydialog.h"
#include "viewfixture.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QPainter>
#include <QSignalSpy>
#include <QtTest>

using namespace ViewFixture;
using namespace Plugin::FirmwareUpdater;
using Internal::View::CCameraSelectionDialog;
using Internal::View::CTreeViewCameraSelectionDelegate;
using Internal::View::CUpdateSummaryDialog;

class CTreeViewCameraSelectionDelegateTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void rowsHaveFixedHeights();
    void paintsStates_data();
    void paintsStates();
    void paintsTheSameInAView();
    void hoverOpensOneEditor();
    void clickOnTheTextTogglesAndReachesTheModel();
    void clickWithoutEditorToggles();
    void disabledRowsCannotBeToggled();
    void spaceTogglesTheCurrentRow();
    void writesOnlyDifferences();
    void editorShowsWhereTheRowPaintsItsBox();
    void survivesARebuild();
    void marksTheRowReachedByKeyboard();

private:
    /// The row "layer", "A", "a1", ... of the dialog's tree.
    [[nodiscard]] QModelIndex row(const QString &name) const;
    [[nodiscard]] CFirmwareUpdateEntity *entity(const QString &name) const;
    void hover(const QModelIndex &index) const;
    [[nodiscard]] QCheckBox *editorBox() const;
    [[nodiscard]] QStringList selectedIds() const;

    std::unique_ptr<CCameraSelectionDialog> m_dialog;
    ModelPtr m_model;
    QTreeView *m_tree = nullptr;
};

void CTreeViewCameraSelectionDelegateTest::init()
{
    m_model = makeTree();
    m_dialog = std::make_unique<CCameraSelectionDialog>();
    m_dialog->setModel(m_model);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    m_tree = getTree(*m_dialog);
}

void CTreeViewCameraSelectionDelegateTest::cleanup()
{
    m_dialog.reset();
}

QModelIndex CTreeViewCameraSelectionDelegateTest::row(const QString &name) const
{
    const QAbstractItemModel *model = m_tree->model();
    const QModelIndex layer = model->index(0, 0);
    if (name == QLatin1String("layer")) {
        return layer;
    }
    for (int group = 0; group < model->rowCount(layer); ++group) {
        const QModelIndex groupIndex = model->index(group, 0, layer);
        if (groupIndex.data().toString() == name) {
            return groupIndex;
        }
        for (int camera = 0; camera < model->rowCount(groupIndex); ++camera) {
            const QModelIndex cameraIndex = model->index(camera, 0, groupIndex);
            if (cameraIndex.data().toString() == QStringLiteral("Camera ") + name) {
                return cameraIndex;
            }
        }
    }
    return {};
}

CFirmwareUpdateEntity *CTreeViewCameraSelectionDelegateTest::entity(const QString &name) const
{
    return getEntity(qobject_cast<QAbstractProxyModel *>(m_tree->model())->mapToSource(row(name)));
}

void CTreeViewCameraSelectionDelegateTest::hover(const QModelIndex &index) const
{
    QMouseEvent event(QEvent::MouseMove, m_tree->visualRect(index).center(), Qt::NoButton,
                      Qt::NoButton, {});
    QCoreApplication::sendEvent(m_tree->viewport(), &event);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QCheckBox *CTreeViewCameraSelectionDelegateTest::editorBox() const
{
    const QList<QCheckBox *> boxes = m_tree->viewport()->findChildren<QCheckBox *>();
    return boxes.count() == 1 ? boxes.first() : nullptr;
}

QStringList CTreeViewCameraSelectionDelegateTest::selectedIds() const
{
    QStringList ids;
    for (const auto &camera : m_model->getSelectedCameraList()) {
        ids.append(camera->getCameraInfo()->getId());
    }
    return ids;
}

void CTreeViewCameraSelectionDelegateTest::rowsHaveFixedHeights()
{
    QCOMPARE(m_tree->visualRect(row(QStringLiteral("layer"))).height(), 24);
    QCOMPARE(m_tree->visualRect(row(QStringLiteral("A"))).height(), 25);
    QCOMPARE(m_tree->visualRect(row(QStringLiteral("a1"))).height(), 20);
    QCOMPARE(m_tree->visualRect(row(QStringLiteral("a2"))).height(), 20);

    CUpdateSummaryDialog summary;
    const ModelPtr list = makeList(2);
    summary.setModel(list);
    QCOMPARE(getTree(summary)->visualRect(list->index(0, 0)).height(), 27);
    QCOMPARE(getTree(summary)->visualRect(list->index(1, 0)).height(), 20);
}

void CTreeViewCameraSelectionDelegateTest::paintsStates_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("position");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QColor>("background");
    QTest::addColumn<bool>("separator");
    QTest::addColumn<bool>("frame");
    const int none = 0;
    const int hovered = QStyle::State_MouseOver;
    const int selected = QStyle::State_Selected;
    const int only = QStyleOptionViewItem::OnlyOne;
    const int first = QStyleOptionViewItem::Beginning;
    const QColor white(Qt::white);
    for (const qreal ratio : {1.0, 2.0}) {
        const auto add = [&](const char *name, const char *row, int state, int position,
                             const QColor &background, bool separator, bool frame) {
            QTest::addRow("%s, ratio %g", name, ratio)
                << QString::fromLatin1(row) << state << position << ratio << background << separator
                << frame;
        };
        add("layer, hovered", "layer", hovered, only, white, false, false);
        add("camera", "a1", none, only, white, false, false);
        add("camera with columns behind", "a1", none, first, white, true, false);
        add("camera, hovered", "a1", hovered, only, Constants::LIGHT_BLUE_COLOR, false, false);
        add("group, selected", "A", selected, only, Constants::BLUE_COLOR, false, false);
        add("camera, hovered and selected", "a1", hovered | selected, only, Constants::BLUE_COLOR,
            false, true);
    }
}

void CTreeViewCameraSelectionDelegateTest::paintsStates()
{
    QFETCH(QString, name);
    QFETCH(int, state);
    QFETCH(int, position);
    QFETCH(qreal, ratio);
    QFETCH(QColor, background);
    QFETCH(bool, separator);
    QFETCH(bool, frame);
    QImage image((QSizeF(220, 60) * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    QStyleOptionViewItem option;
    option.rect = QRect(10, 10, 200, 20);
    option.state = QStyle::State_Enabled | QStyle::State(state);
    option.viewItemPosition = QStyleOptionViewItem::ViewItemPosition(position);
    QPainter painter(&image);
    painter.setPen(Qt::red);
    m_tree->itemDelegateForColumn(0)->paint(&painter, option, row(name));
    QVERIFY(painter.isActive());
    QCOMPARE(painter.pen().color(), QColor(Qt::red));
    painter.end();

    const auto pixel
        = [&](qreal x, qreal y) { return image.pixelColor(qRound(x * ratio), qRound(y * ratio)); };
    QCOMPARE(pixel(190, 20), background);
    QCOMPARE(pixel(190, 5), QColor(Qt::magenta));
    QCOMPARE(pixel(190, 35), QColor(Qt::magenta));
    QCOMPARE(pixel(209, 20) == Constants::LIGHT_GREY_COLOR, separator);
    QCOMPARE(pixel(190, 10) == Constants::ULTRA_LIGHT_BLUE_COLOR, frame);
    QCOMPARE(pixel(190, 29) == Constants::ULTRA_LIGHT_BLUE_COLOR, frame);
    QCOMPARE(pixel(30, 20) == Constants::ULTRA_LIGHT_BLUE_COLOR, frame);
}

void CTreeViewCameraSelectionDelegateTest::paintsTheSameInAView()
{
    const QModelIndex index = row(QStringLiteral("a1"));
    const QRect rect = m_tree->visualRect(index);
    const QImage dialog = m_dialog->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const qreal ratio = dialog.devicePixelRatio();
    const QPoint offset = m_tree->viewport()->mapTo(m_dialog.get(), rect.topLeft());

    QImage image(rect.size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    QStyleOptionViewItem option;
    option.rect = QRect(QPoint(), rect.size());
    option.state = QStyle::State_Enabled;
    option.viewItemPosition = QStyleOptionViewItem::OnlyOne;
    QPainter painter(&image);
    m_tree->itemDelegateForColumn(0)->paint(&painter, option, index);
    painter.end();
    QCOMPARE(dialog.copy(QRect(offset * ratio, image.size())), image);
}

void CTreeViewCameraSelectionDelegateTest::hoverOpensOneEditor()
{
    hover(row(QStringLiteral("layer")));
    QVERIFY(m_tree->viewport()->findChildren<QCheckBox *>().isEmpty());
    hover(row(QStringLiteral("a1")));
    QVERIFY(editorBox());
    hover(row(QStringLiteral("a2")));
    QVERIFY(editorBox());
    QVERIFY(m_tree->isPersistentEditorOpen(row(QStringLiteral("a2"))));
    QVERIFY(!m_tree->isPersistentEditorOpen(row(QStringLiteral("a1"))));
    QCOMPARE(m_tree->currentIndex(), row(QStringLiteral("a2")));
    // Opening and closing editors leaves the keyboard with the tree.
    QCOMPARE(QApplication::focusWidget(), m_tree);
}

void CTreeViewCameraSelectionDelegateTest::clickOnTheTextTogglesAndReachesTheModel()
{
    hover(row(QStringLiteral("a1")));
    QTest::mouseClick(editorBox(), Qt::LeftButton, {}, QPoint(80, 10));
    QCOMPARE(selectedIds(), {QStringLiteral("a1")});
    QVERIFY(entity(QStringLiteral("A"))->isSelected());
    QVERIFY(!entity(QStringLiteral("B"))->isEnabled());
    // The same editor is still there and writes again.
    QVERIFY(editorBox());
    QTest::mouseClick(editorBox(), Qt::LeftButton, {}, QPoint(8, 10));
    QCOMPARE(selectedIds(), QStringList());
    QVERIFY(entity(QStringLiteral("B"))->isEnabled());

    hover(row(QStringLiteral("A")));
    QTest::mouseClick(editorBox(), Qt::LeftButton, {}, QPoint(80, 10));
    QCOMPARE(selectedIds(), (QStringList{QStringLiteral("a1"), QStringLiteral("a2")}));
}

void CTreeViewCameraSelectionDelegateTest::clickWithoutEditorToggles()
{
    const QPoint center = m_tree->visualRect(row(QStringLiteral("a2"))).center();
    QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, center);
    QCOMPARE(selectedIds(), {QStringLiteral("a2")});
    QTest::mousePress(m_tree->viewport(), Qt::LeftButton, {}, center);
    QTest::mouseRelease(m_tree->viewport(), Qt::LeftButton, {},
                        m_tree->visualRect(row(QStringLiteral("a1"))).center());
    QCOMPARE(selectedIds(), {QStringLiteral("a2")});
}

void CTreeViewCameraSelectionDelegateTest::disabledRowsCannotBeToggled()
{
    hover(row(QStringLiteral("a1")));
    QTest::mouseClick(editorBox(), Qt::LeftButton, {}, QPoint(80, 10));
    hover(row(QStringLiteral("b1")));
    QVERIFY(editorBox());
    QVERIFY(!editorBox()->isEnabled());
    QTest::mouseClick(editorBox(), Qt::LeftButton, {}, QPoint(8, 10));
    QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {},
                      m_tree->visualRect(row(QStringLiteral("b1"))).center());
    QTest::keyClick(m_tree, Qt::Key_Space);
    QCOMPARE(selectedIds(), {QStringLiteral("a1")});
    // The rows above can still be hovered and toggled.
    hover(row(QStringLiteral("a2")));
    QTest::mouseClick(editorBox(), Qt::LeftButton, {}, QPoint(80, 10));
    QCOMPARE(selectedIds(), (QStringList{QStringLiteral("a1"), QStringLiteral("a2")}));
}

void CTreeViewCameraSelectionDelegateTest::spaceTogglesTheCurrentRow()
{
    m_tree->setFocus();
    m_tree->setCurrentIndex(row(QStringLiteral("a2")));
    QTest::keyClick(m_tree, Qt::Key_Space);
    QCOMPARE(selectedIds(), {QStringLiteral("a2")});
    QVERIFY(entity(QStringLiteral("A"))->isSelected());
    QTest::keyClick(m_tree, Qt::Key_Space);
    QCOMPARE(selectedIds(), QStringList());

    hover(row(QStringLiteral("a1")));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QCOMPARE(selectedIds(), {QStringLiteral("a1")});
    QVERIFY(editorBox()->isChecked());

    // In a tree with several columns the current cell may be any of the row.
    CUpdateSummaryDialog summary;
    const ModelPtr list = makeList(2);
    summary.setModel(list);
    summary.show();
    getTree(summary)->setCurrentIndex(list->index(1, 3));
    QTest::keyClick(getTree(summary), Qt::Key_Space);
    QCOMPARE(list->getSelectedCameraList().count(), 1);
}

void CTreeViewCameraSelectionDelegateTest::writesOnlyDifferences()
{
    hover(row(QStringLiteral("a1")));
    auto *delegate = m_tree->itemDelegateForColumn(0);
    QSignalSpy changeSpy(m_model.data(), &QAbstractItemModel::dataChanged);
    QWidget *editor = editorBox()->parentWidget();
    delegate->setModelData(editor, m_tree->model(), row(QStringLiteral("a1")));
    QCOMPARE(changeSpy.count(), 0);
    editorBox()->toggle();
    QVERIFY(changeSpy.count() > 0);
    QCOMPARE(selectedIds(), {QStringLiteral("a1")});
    editorBox()->toggle();
    QCOMPARE(selectedIds(), QStringList());
}

void CTreeViewCameraSelectionDelegateTest::editorShowsWhereTheRowPaintsItsBox()
{
    // The check mark is the only dark thing in front of a row's text.
    const auto findMark = [](const QImage &picture, int width) {
        QImage image(picture.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter(&image).drawImage(0, 0, picture);
        QRegion mark;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < width; ++x) {
                if (qGray(image.pixel(x, y)) < 100) {
                    mark += QRect(x, y, 1, 1);
                }
            }
        }
        return mark.boundingRect();
    };
    for (const char *name : {"A", "a1"}) {
        const QModelIndex index = row(QLatin1String(name));
        const QRect rect = m_tree->visualRect(index);
        const int indent = name[1] ? 22 : 2;
        entity(QLatin1String(name))->setSelected(true);
        hover(row(QStringLiteral("b1")));
        const QRect painted = findMark(m_tree->viewport()->grab(rect).toImage(), indent + 16);
        hover(index);
        QVERIFY(editorBox()->isChecked());
        const QPoint box = editorBox()->mapTo(m_tree->viewport(), QPoint()) - rect.topLeft();
        const QRect shown = findMark(editorBox()->grab().toImage(), 16).translated(box);
        QVERIFY(painted.isValid());
        QCOMPARE(shown.size(), painted.size());
        QVERIFY2((painted.topLeft() - shown.topLeft()).manhattanLength() <= 1, name);
    }
}

void CTreeViewCameraSelectionDelegateTest::survivesARebuild()
{
    const QAbstractItemModelTester tester(m_tree->model());
    hover(row(QStringLiteral("a1")));
    QPointer<QCheckBox> box = editorBox();
    m_model->setTransportLayerInfoVector(
        {TestSupport::makeLayer(QStringLiteral("l"), {{QStringLiteral("z1")}})});
    m_dialog->setModel(m_model);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!box);
    hover(row(QStringLiteral("z1")));
    QTest::mouseClick(editorBox(), Qt::LeftButton, {}, QPoint(80, 10));
    QCOMPARE(selectedIds(), {QStringLiteral("z1")});
}

void CTreeViewCameraSelectionDelegateTest::marksTheRowReachedByKeyboard()
{
    const QModelIndex index = row(QStringLiteral("a1"));
    m_tree->setFocus();
    m_tree->setCurrentIndex(row(QStringLiteral("A")));
    const QRect rect = m_tree->visualRect(index);
    const QImage before = m_tree->viewport()->grab(rect).toImage();
    QTest::keyClick(m_tree, Qt::Key_Down);
    QCOMPARE(m_tree->currentIndex(), index);
    QVERIFY(m_tree->viewport()->grab(rect).toImage() != before);
    hover(row(QStringLiteral("b1")));
    QCOMPARE(m_tree->viewport()->grab(rect).toImage(), before);
}

QTEST_MAIN(CTreeViewCameraSelectionDelegateTest)
#include "tst_treeviewcameraselectiondelegate.moc"
