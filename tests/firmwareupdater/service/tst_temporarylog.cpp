#include "support/updaterfixture.h"

#include <QDateTime>
#include <QDir>
#include <QRegularExpression>
#include <QtTest>

using Core::Logging::ELogLevel;
using TestSupport::CUpdaterFixture;

class CTemporaryLogTest : public QObject
{
    Q_OBJECT

private slots:
    void namesTheFileByTime();
    void writesLevelAndMessage();
    void tellsTheTimeOfEachLine();
    void opensOnDemandButNotForNothing();
    void closesAndForgetsTheFailure();
    void dropsLinesThatItCannotWrite();
};

void CTemporaryLogTest::namesTheFileByTime()
{
    CUpdaterFixture fixture;
    fixture.service->openTemporaryLogFile();
    const QString path = fixture.service->getCurrentTemporaryLogFilePath();
    const QRegularExpression format("^" + QRegularExpression::escape(QDir::tempPath())
                                    + "/NuvexFirmwareUpdaterGUI_\\d{8}_\\d{6}\\.log$");
    QVERIFY2(format.match(path).hasMatch(), qPrintable(path));
    QVERIFY(QFile::exists(path));
}

void CTemporaryLogTest::writesLevelAndMessage()
{
    CUpdaterFixture fixture;
    const QString message = QString::fromUtf8("100%1 of %3 \xc3\xa4\xed\x95\x9c");
    for (const int level : {0, 1, 2, 3, 7})
        QCOMPARE(fixture.service->addTemporaryLogMessage(ELogLevel(level), message), message);
    // An unknown level counts as INFO.
    QCOMPARE(fixture.getLog(),
             QStringList({"DEBUG " + message, "INFO " + message, "WARNING " + message,
                          "CRITICAL " + message, "INFO " + message}));
}

void CTemporaryLogTest::tellsTheTimeOfEachLine()
{
    CUpdaterFixture fixture;
    fixture.service->openTemporaryLogFile();
    QFile log(fixture.service->getCurrentTemporaryLogFilePath());
    QVERIFY(log.open(QIODevice::ReadOnly));
    const auto getTime = [] { return QDateTime::currentDateTime().toString(Qt::TextDate); };
    const auto writeLine = [&] {
        const QString earliest = getTime();
        fixture.service->addTemporaryLogMessage(ELogLevel::Info, "x");
        const QStringList possible{earliest + " INFO x\n", getTime() + " INFO x\n"};
        const QString written = QString::fromUtf8(log.readAll());
        QVERIFY2(possible.contains(written), qPrintable(possible.last() + written));
    };
    for (const char *const zone : {"Asia/Seoul", "America/St_Johns", ""}) {
        qputenv("TZ", zone);
        writeLine();
    }
    qunsetenv("TZ");
    writeLine();
    const QString last = getTime();
    QTRY_VERIFY(getTime() != last);
    writeLine();
}

void CTemporaryLogTest::opensOnDemandButNotForNothing()
{
    CUpdaterFixture fixture;
    fixture.service->addTemporaryLogMessage(ELogLevel::Critical, "");
    QCOMPARE(fixture.service->getCurrentTemporaryLogFilePath(), "");
    QVERIFY(QDir(fixture.temporaryFolder.path()).isEmpty());
    fixture.service->addTemporaryLogMessage(ELogLevel::Critical, "lost");
    QCOMPARE(fixture.getLog(), QStringList({"CRITICAL lost"}));
}

void CTemporaryLogTest::closesAndForgetsTheFailure()
{
    CUpdaterFixture fixture;
    fixture.service->setUpdateFailureMessage("Camera is on fire");
    // Nothing to close: the message stays.
    fixture.service->closeTemporaryLogFile();
    QCOMPARE(fixture.service->getUpdateFailureMessage(), "Camera is on fire");

    fixture.service->openTemporaryLogFile();
    const QString path = fixture.service->getCurrentTemporaryLogFilePath();
    fixture.service->closeTemporaryLogFile();
    QCOMPARE(fixture.service->getUpdateFailureMessage(), "");
    QCOMPARE(fixture.service->getCurrentTemporaryLogFilePath(), "");
    QVERIFY(QFile::exists(path));
}

void CTemporaryLogTest::dropsLinesThatItCannotWrite()
{
    CUpdaterFixture fixture;
    // Folders with the names of the files of the next minute.
    for (int second = 0; second < 60; ++second) {
        const QDateTime time = QDateTime::currentDateTime().addSecs(second);
        QVERIFY(
            QDir(fixture.temporaryFolder.path())
                .mkpath("NuvexFirmwareUpdaterGUI_" + time.toString("yyyyMMdd_HHmmss") + ".log"));
    }
    fixture.service->openTemporaryLogFile();
    QCOMPARE(fixture.service->addTemporaryLogMessage(ELogLevel::Info, "line"), "line");
    const QString path = fixture.service->getCurrentTemporaryLogFilePath();
    QVERIFY(QFileInfo(path).isDir());
    fixture.service->closeTemporaryLogFile();
    QCOMPARE(fixture.service->getCurrentTemporaryLogFilePath(), "");
}

QTEST_MAIN(CTemporaryLogTest)
#include "tst_temporarylog.moc"
