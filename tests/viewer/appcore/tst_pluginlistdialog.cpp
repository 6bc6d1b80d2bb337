#include "viewer/appcore/pluginlistdialog.h"

#include <QLabel>
#include <QTreeWidget>
#include <QtTest>

using namespace Viewer::AppCore;
using Viewer::PluginSystem::CPluginSpec;

class CPluginListDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void saysWhyAPluginIsNotAvailable();
};

void CPluginListDialogTest::saysWhyAPluginIsNotAvailable()
{
    CPluginListDialog dialog(
        {CPluginSpec::createBuiltIn("AppCore", "1.2.0", "1.0.0", "Menus"),
         CPluginSpec::createBroken("/plugins/broken.so", "The file <b>is</b> damaged.")});
    auto *const tree = dialog.findChild<QTreeWidget *>("pluginTree");
    const auto *const details = dialog.findChild<QLabel *>("detailsLabel");
    QCOMPARE(tree->topLevelItemCount(), 2);
    QCOMPARE(tree->topLevelItem(0)->text(1), "1.2.0");
    QCOMPARE(details->text(), "Menus");
    tree->setFocus();
    QTest::keyClick(tree, Qt::Key_Down);
    QCOMPARE(tree->currentItem()->text(0), "broken");
    QCOMPARE(details->text(), "/plugins/broken.so\nThe file <b>is</b> damaged.");
    QCOMPARE(details->textFormat(), Qt::PlainText);
}

QTEST_MAIN(CPluginListDialogTest)

#include "tst_pluginlistdialog.moc"
