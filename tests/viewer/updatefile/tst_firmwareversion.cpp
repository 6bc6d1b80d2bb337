#include "viewer/updatefile/firmwareversion.h"

#include <QtTest>

using namespace Viewer::UpdateFile;
using EDirection = Plugin::CameraPool::EFirmwareUpdateDirection;

class CFirmwareVersionTest : public QObject
{
    Q_OBJECT

private slots:
    void ordersVersions();
    void refusesWhatIsNoVersion();
    void placesWhatIsNoVersion();
};

void CFirmwareVersionTest::ordersVersions()
{
    const QString versions = "1.2 1.2.1 1.2.3 1.9.9z 1.10.0 1.255.0 1.256.0 2.0.0-alpha 2.0.0-rc "
                             "2.0.0-rc1 2.0.0-rc9 2.0.0-rc10 2.0.0 2.0.0+17 "
                             "2.0.0_99999999999999999998 2.0.0_99999999999999999999 2.0.0b";
    const QStringList ascending = versions.split(' ');
    for (int left = 0; left < ascending.size(); ++left) {
        for (int right = 0; right < ascending.size(); ++right) {
            const auto older = CFirmwareVersion::parse(ascending.at(left));
            const auto newer = CFirmwareVersion::parse(ascending.at(right));
            const bool isRight = older && newer && (*older < *newer) == (left < right)
                && (*older <= *newer) == (left <= right) && (*older == *newer) == (left == right);
            QVERIFY2(isRight, qPrintable(ascending.at(left) + " and " + ascending.at(right)));
        }
    }
    QVERIFY(isSameVersion("2.0", "2.0.0"));
    QVERIFY(isSameVersion(" 1.2 ", "1.2"));
    QVERIFY(isSameVersion("2.0.0-rc01", "2.0.0-rc1"));
}

void CFirmwareVersionTest::refusesWhatIsNoVersion()
{
    for (const char *text : {"", "  ", "unknown", "v1.2", "-1.2", "1.2.", "1..2", "1.99999999999",
                             "99999999999.1", "1.2/3", "\u0661.\u0662"})
        QVERIFY2(!CFirmwareVersion::parse(text), text);
}

void CFirmwareVersionTest::placesWhatIsNoVersion()
{
    // An unreadable version is another one, but never a newer one.
    QCOMPARE(getDirection("1.2.0", "latest"), EDirection::Downgrade);
    QCOMPARE(getDirection("?", "1.0.0"), EDirection::Upgrade);

    QVERIFY(!isBelow("2.0", "2.0"));
    QVERIFY(!isBelow("?", ""));
    QVERIFY(isBelow("2.0", "?"));
}

QTEST_GUILESS_MAIN(CFirmwareVersionTest)
#include "tst_firmwareversion.moc"
