#include "viewer/camerapool/firmwareversion.h"

#include <QtTest>

using namespace Viewer::CameraPool;
using Plugin::CameraPool::EFirmwareUpdateDirection;

class CFirmwareVersionTest : public QObject
{
    Q_OBJECT

private slots:
    void ordersVersions_data();
    void ordersVersions();
    void refusesWhatIsNoVersion_data();
    void refusesWhatIsNoVersion();
    void tellsDirection_data();
    void tellsDirection();
    void comparesWithMinimum_data();
    void comparesWithMinimum();
};

void CFirmwareVersionTest::ordersVersions_data()
{
    QTest::addColumn<QString>("older");
    QTest::addColumn<QString>("newer");
    QTest::addColumn<bool>("equal");

    const auto row = [](const char *name, const char *older, const char *newer,
                        bool equal = false) {
        QTest::newRow(name) << QString::fromLatin1(older) << QString::fromLatin1(newer) << equal;
    };
    row("last number", "1.2.3", "1.2.4");
    row("numbers, not letters", "1.9.0", "1.10.0");
    row("numbers beyond a byte", "1.255.0", "1.256.0");
    row("a further number", "1.2", "1.2.1");
    row("zeros at the end do not count", "2.0", "2.0.0", true);
    row("white space around does not count", " 1.2 ", "1.2", true);
    row("before the release", "2.0.0-rc1", "2.0.0");
    row("after the release", "2.0.0", "2.0.0b");
    row("build after the release", "2.0.0", "2.0.0+17");
    row("number in the suffix", "2.0.0-rc9", "2.0.0-rc10");
    row("long number in the suffix", "2.0.0_99999999999999999998", "2.0.0_99999999999999999999");
    row("zeros before a number in the suffix", "2.0.0-rc01", "2.0.0-rc1", true);
    row("longer suffix", "2.0.0-rc", "2.0.0-rc1");
    row("the number wins over the suffix", "1.9.9z", "2.0.0-alpha");
}

void CFirmwareVersionTest::ordersVersions()
{
    QFETCH(QString, older);
    QFETCH(QString, newer);
    QFETCH(bool, equal);

    const auto left = CFirmwareVersion::parse(older);
    const auto right = CFirmwareVersion::parse(newer);
    QVERIFY(left);
    QVERIFY(right);
    QCOMPARE(*left == *right, equal);
    QCOMPARE(*left < *right, !equal);
    QVERIFY(*left <= *right);
    QCOMPARE(*left >= *right, equal);
    QCOMPARE(*right > *left, !equal);
    QCOMPARE(isSameVersion(older, newer), equal);
}

void CFirmwareVersionTest::refusesWhatIsNoVersion_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << QString();
    QTest::newRow("white space") << QStringLiteral("  ");
    QTest::newRow("word") << QStringLiteral("unknown");
    QTest::newRow("letter in front") << QStringLiteral("v1.2");
    QTest::newRow("negative") << QStringLiteral("-1.2");
    QTest::newRow("dot at the end") << QStringLiteral("1.2.");
    QTest::newRow("two dots") << QStringLiteral("1..2");
    QTest::newRow("number too large") << QStringLiteral("1.99999999999");
    QTest::newRow("first number too large") << QStringLiteral("99999999999.1");
    QTest::newRow("slash") << QStringLiteral("1.2/3");
    QTest::newRow("digits of another script") << QStringLiteral("\u0661.\u0662");
}

void CFirmwareVersionTest::refusesWhatIsNoVersion()
{
    QFETCH(QString, text);
    QVERIFY(!CFirmwareVersion::parse(text));
}

void CFirmwareVersionTest::tellsDirection_data()
{
    QTest::addColumn<QString>("current");
    QTest::addColumn<QString>("target");
    QTest::addColumn<EFirmwareUpdateDirection>("direction");

    const auto row = [](const char *name, const char *current, const char *target,
                        EFirmwareUpdateDirection direction) {
        QTest::newRow(name) << QString::fromLatin1(current) << QString::fromLatin1(target)
                            << direction;
    };
    row("newer", "1.2.0", "2.0.0", EFirmwareUpdateDirection::Upgrade);
    row("older", "2.0.0", "1.9.9", EFirmwareUpdateDirection::Downgrade);
    row("same", "2.0.0", "2.0.0", EFirmwareUpdateDirection::Reinstall);
    row("same, written otherwise", "2.0", "2.0.0", EFirmwareUpdateDirection::Reinstall);
    row("unreadable target", "1.2.0", "latest", EFirmwareUpdateDirection::Downgrade);
    row("unreadable current", "?", "1.0.0", EFirmwareUpdateDirection::Upgrade);
    row("no current", "", "1.0.0", EFirmwareUpdateDirection::Upgrade);
    row("both unreadable", "?", "latest", EFirmwareUpdateDirection::Downgrade);
    row("both unreadable and equal", "latest", "latest", EFirmwareUpdateDirection::Reinstall);
}

void CFirmwareVersionTest::tellsDirection()
{
    QFETCH(QString, current);
    QFETCH(QString, target);
    QTEST(getDirection(current, target), "direction");
}

void CFirmwareVersionTest::comparesWithMinimum_data()
{
    QTest::addColumn<QString>("current");
    QTest::addColumn<QString>("minimum");
    QTest::addColumn<bool>("below");

    QTest::newRow("older") << QStringLiteral("1.9") << QStringLiteral("2.0") << true;
    QTest::newRow("the minimum itself") << QStringLiteral("2.0") << QStringLiteral("2.0") << false;
    QTest::newRow("newer") << QStringLiteral("2.1") << QStringLiteral("2.0") << false;
    QTest::newRow("no minimum") << QStringLiteral("?") << QString() << false;
    QTest::newRow("unreadable current") << QStringLiteral("?") << QStringLiteral("2.0") << true;
    QTest::newRow("unreadable minimum") << QStringLiteral("2.0") << QStringLiteral("?") << true;
    QTest::newRow("same unreadable text") << QStringLiteral("?") << QStringLiteral("?") << false;
}

void CFirmwareVersionTest::comparesWithMinimum()
{
    QFETCH(QString, current);
    QFETCH(QString, minimum);
    QTEST(isBelow(current, minimum), "below");
}

QTEST_GUILESS_MAIN(CFirmwareVersionTest)
#include "tst_firmwareversion.moc"
