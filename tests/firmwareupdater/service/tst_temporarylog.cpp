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
    void writesLevelAndMessage_data();
    void writesLevelAndMessage();
    void opensOnDemandButNotForNothing();
    void closesAndForgetsTheFailure();
    void dropsLinesThatItCannotWrite();
};

void CTemporaryLogTest::namesTheFileByTime()
{
    CUpdaterFixture fixture;
    QCOMPARE(fixture.service->getCurrentTemporaryLogFilePath(), "");
    fixture.service->openTemporaryLogFile();
    const QString path = fixture.service->getCurrentTemporaryLogFilePath();
    const QRegularExpression format("^" + QRegularExpression::escape(QDir::tempPath())
                                    + "/NuvexFirmwareUpdaterGUI_\\d{8}_\\d{6}\\.log$");
    QVERIFY2(format.match(path).hasMatch(), qPrintable(path));
    QVERIFY(QFile::exists(path));
}

void CTemporaryLogTest::writesLevelAndMessage_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("word");
    QTest::newRow("debug") << 0 << "DEBUG";
    QTest::newRow("info") << 1 << "INFO";
    QTest::newRow("warning") << 2 << "WARNING";
    QTest::newRow("critical") << 3 << "CRITICAL";
    QTest::newRow("unknown level") << 7 << "INFO";
}

void CTemporaryLogTest::writesLevelAndMessage()
{
    QFETCH(int, level);
    QFETCH(QString, word);
    CUpdaterFixture fixture;
    const QString message = QString::fromUtf8("100%1 of %3 \xc3\xa4\xed\x95\x9c");
    QCOMPARE(fixture.service->addTemporaryLogMessage(static_cast<ELogLevel>(level), message),
             message);
    QCOMPARE(fixture.getLog(), QStringList({word + " " + message}));
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
