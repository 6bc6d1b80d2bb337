#include "viewer/appcore/language.h"

#include <QSettings>
#include <QStandardPaths>
#include <QtTest>

using Viewer::AppCore::CLanguage;

class CLanguageTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void choosesInOrder_data();
    void choosesInOrder();
    void qtTextsFollow();
};

void CLanguageTest::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName("NuvexTest");
    QCoreApplication::setApplicationName("tst_language");
}

void CLanguageTest::choosesInOrder_data()
{
    QTest::addColumn<QString>("override");
    QTest::addColumn<QString>("remembered");
    QTest::addColumn<QString>("chosen");
    // The tests' own locale is C, a desktop without a language.
    QTest::newRow("nothing said") << ""
                                  << ""
                                  << "en";
    QTest::newRow("remembered") << ""
                                << "ko"
                                << "ko";
    QTest::newRow("override wins") << "ja"
                                   << "ko"
                                   << "ja";
    QTest::newRow("remembered by a version with more languages") << ""
                                                                 << "fr"
                                                                 << "en";
    QTest::newRow("garbage in the settings") << ""
                                             << "../../x"
                                             << "en";
}

void CLanguageTest::choosesInOrder()
{
    QFETCH(const QString, override);
    QFETCH(const QString, remembered);
    QFETCH(const QString, chosen);
    QSettings().clear();
    if (!remembered.isEmpty())
        CLanguage::remember(remembered);
    QCOMPARE(CLanguage::choose(override), chosen);
}

void CLanguageTest::qtTextsFollow()
{
    const QString english = QCoreApplication::translate("QPlatformTheme", "Close");
    {
        const CLanguage korean("ko");
        QVERIFY(QCoreApplication::translate("QPlatformTheme", "Close") != english);
    }
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Close"), english);
}

QTEST_GUILESS_MAIN(CLanguageTest)

#include "tst_language.moc"
