#include "view/customtreeview.h"
#include "view/treeviewheaderview.h"
#include "viewfixture.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QtTest>

using Plugin::FirmwareUpdater::Internal::View::CCustomTreeView;
using Plugin::FirmwareUpdater::Internal::View::CTreeViewHeaderView;

/// A tree whose protected operations a test can call.
class COpenTreeView : public CCustomTreeView
{
    Q_OBJECT

public:
    using CCustomTreeView::closeEditor;
};

class CCustomTreeViewTest : public QObject
{
    Q_OBJECT

private slots:
    void scrollBarBeginsBelowTheHeader();
    void editorsStayOpenOnCommit_data();
    void editorsStayOpenOnCommit();
    void announcedChangesAreRepainted();
    void headerIsTallAndBold();
};

static void fill(QStandardItemModel *model, int count)
{
    for (int i = 0; i < count; ++i) {
        model->appendRow(new QStandardItem(QStringLiteral("row %1").arg(i)));
    }
}

void CCustomTreeViewTest::scrollBarBeginsBelowTheHeader()
{
    CCustomTreeView view;
    view.setHeader(new CTreeViewHeaderView);
    QStandardItemModel model;
    fill(&model, 2);
    view.setModel(&model);
    view.resize(200, 200);
    view.show();
    const QScrollBar *bar = view.verticalScrollBar();
    const auto top = [&] { return bar->y(); };

    fill(&model, 100);
    QTRY_VERIFY(bar->isVisible());
    QTRY_COMPARE(top(), view.header()->height() + 14);
    view.resize(200, 300);
    QTRY_COMPARE(top(), view.header()->height() + 14);
    QCOMPARE(bar->geometry().bottom(), bar->parentWidget()->rect().bottom());
    view.hide();
    view.setVisible(true);
    QTRY_COMPARE(top(), view.header()->height() + 14);
}

void CCustomTreeViewTest::editorsStayOpenOnCommit_data()
{
    using Hint = QAbstractItemDelegate::EndEditHint;
    QTest::addColumn<int>("hint");
    QTest::addColumn<bool>("open");
    QTest::newRow("next item") << int(Hint::EditNextItem) << true;
    QTest::newRow("previous item") << int(Hint::EditPreviousItem) << false;
    QTest::newRow("no hint") << int(Hint::NoHint) << false;
    QTest::newRow("revert") << int(Hint::RevertModelCache) << false;
}

void CCustomTreeViewTest::editorsStayOpenOnCommit()
{
    QFETCH(int, hint);
    COpenTreeView view;
    QStandardItemModel model;
    fill(&model, 2);
    view.setModel(&model);
    view.show();
    view.edit(model.index(0, 0));
    QPointer<QLineEdit> editor = view.viewport()->findChild<QLineEdit *>();
    QVERIFY(editor);
    view.closeEditor(editor, QAbstractItemDelegate::EndEditHint(hint));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTEST(!editor.isNull(), "open");
    QVERIFY(!view.isPersistentEditorOpen(model.index(1, 0)));
}

void CCustomTreeViewTest::announcedChangesAreRepainted()
{
    CCustomTreeView view;
    QStandardItemModel model;
    fill(&model, 2);
    view.setModel(&model);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const QImage before = view.viewport()->grab().toImage();
    model.item(1)->setText(QStringLiteral("changed"));
    QVERIFY(view.viewport()->grab().toImage() != before);

    view.edit(model.index(0, 0));
    const auto *editor = view.viewport()->findChild<QLineEdit *>();
    QVERIFY(editor);
    model.item(0)->setText(QStringLiteral("reaches the editor"));
    QCOMPARE(editor->text(), QStringLiteral("reaches the editor"));
}

void CCustomTreeViewTest::headerIsTallAndBold()
{
    QStandardItemModel model(1, 2);
    for (const int size : {11, 20, 40}) {
        CTreeViewHeaderView header;
        QCOMPARE(header.font().pointSize(), 11);
        QVERIFY(header.font().bold());
        QFont font = header.font();
        font.setPixelSize(size);
        header.setFont(font);
        header.setModel(&model);
        const int base = header.QHeaderView::sizeHint().height();
        QCOMPARE(header.sizeHint().height(), base < 25 ? 36 : base + 11);
    }
}

QTEST_MAIN(CCustomTreeViewTest)
#include "tst_customtreeview.moc"
