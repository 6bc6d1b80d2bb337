#include "viewer/demo/inputdriver.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTreeView>
#include <QtTest>

using Viewer::Demo::CInputDriver;

class CInputDriverTest : public QObject
{
    Q_OBJECT

private slots:
    void typesAsAPersonDoes();
    void clicksOnlyWhatCanBeClicked();
    void ticksTheBoxInTheRow();
};

void CInputDriverTest::typesAsAPersonDoes()
{
    QLineEdit lineEdit("old text");
    lineEdit.show();
    const QSignalSpy spy(&lineEdit, &QLineEdit::textEdited);
    CInputDriver::type(&lineEdit, "/tmp/Ä b.guf");
    QCOMPARE(lineEdit.text(), "/tmp/Ä b.guf");
    QVERIFY2(spy.count() >= 12, "the text was set, not typed");
}

void CInputDriverTest::clicksOnlyWhatCanBeClicked()
{
    QPushButton button("Next");
    const QSignalSpy spy(&button, &QPushButton::clicked);
    QVERIFY(!CInputDriver::click(nullptr));
    QVERIFY(!CInputDriver::click(&button));
    button.show();
    button.setEnabled(false);
    QVERIFY(!CInputDriver::click(&button));
    button.setEnabled(true);
    QVERIFY(CInputDriver::click(&button));
    QCOMPARE(spy.count(), 1);
}

void CInputDriverTest::ticksTheBoxInTheRow()
{
    QStandardItemModel model(3, 1);
    QTreeView view;
    view.setModel(&model);
    auto *const second = new QCheckBox;
    view.setIndexWidget(model.index(1, 0), second);
    view.resize(300, 200);
    view.show();
    QVERIFY(!CInputDriver::tick(&view, model.index(0, 0)));
    QVERIFY(CInputDriver::tick(&view, model.index(1, 0)));
    QVERIFY(second->isChecked());
    QVERIFY2(!CInputDriver::tick(&view, model.index(1, 0)), "a ticked box must stay ticked");
    QVERIFY(second->isChecked());
    second->setChecked(false);
    second->setEnabled(false);
    QVERIFY(!CInputDriver::tick(&view, model.index(1, 0)));
}

QTEST_MAIN(CInputDriverTest)

#include "tst_inputdriver.moc"
