#include "updatefilebuilder.h"
#include "viewer/camerapool/updatefile/updatearchive.h"
#include "viewer/camerapool/updatefile/updatefileerror.h"

#include <QCryptographicHash>
#include <QTemporaryDir>
#include <QtTest>

#include <thread>

using namespace Viewer::CameraPool::UpdateFile;
using Test::CUpdateFileBuilder;

class CUpdateArchiveTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void streamsPayload_data();
    void streamsPayload();
    void readsTwoPayloadsInTurns();
    void withholdsEndOfPayloadWithOtherDigest();
    void keepsReadingTheFileThatWasOpened();
    void payloadOutlivesArchive();
    void worksOnAnotherThread();
    void refusesPayloadThatIsNotThere();

private:
    QScopedPointer<QTemporaryDir> m_folder;
    QString m_path;
};

static QByteArray makePayload(char first)
{
    QByteArray payload;
    for (int index = 0; index < 100000; ++index)
        payload += static_cast<char>(first + index % 251);
    return payload;
}

static CPayload describe(const QByteArray &content)
{
    return {QStringLiteral("firmware.img"), content.size(),
            QCryptographicHash::hash(content, QCryptographicHash::Sha256)};
}

void CUpdateArchiveTest::init()
{
    m_folder.reset(new QTemporaryDir);
    m_path = m_folder->filePath(QStringLiteral("update.guf"));
}

void CUpdateArchiveTest::streamsPayload_data()
{
    QTest::addColumn<int>("blockSize");

    QTest::newRow("byte by byte") << 1;
    QTest::newRow("blocks that do not fit the size") << 16384;
    QTest::newRow("one block of the right size") << 100000;
    QTest::newRow("more than there is") << 1000000;
}

void CUpdateArchiveTest::streamsPayload()
{
    QFETCH(int, blockSize);
    const QByteArray payload = makePayload('a');
    CUpdateFileBuilder::makeValid(payload).write(m_path);
    const CUpdateArchive archive(m_path);
    archive.checkPayload(describe(payload));

    const auto device = archive.openPayload(describe(payload));
    QVERIFY(device->isReadable());
    QVERIFY(device->isSequential());
    QCOMPARE(device->bytesAvailable(), qint64(payload.size()));
    QByteArray received;
    while (!device->atEnd()) {
        const QByteArray block = device->read(blockSize);
        QVERIFY(!block.isEmpty());
        received += block;
        QCOMPARE(device->bytesAvailable(), qint64(payload.size() - received.size()));
    }
    QVERIFY(received == payload);
    QVERIFY(device->read(1).isEmpty());
}

void CUpdateArchiveTest::readsTwoPayloadsInTurns()
{
    const QByteArray payload = makePayload('a');
    CUpdateFileBuilder::makeValid(payload).write(m_path);
    const CUpdateArchive archive(m_path);
    const auto first = archive.openPayload(describe(payload));
    const auto second = archive.openPayload(describe(payload));
    QByteArray firstBytes;
    QByteArray secondBytes;
    while (!second->atEnd()) {
        firstBytes += first->read(7000);
        secondBytes += second->read(3000);
    }
    QVERIFY(firstBytes == payload);
    QVERIFY(secondBytes == payload);
}

void CUpdateArchiveTest::withholdsEndOfPayloadWithOtherDigest()
{
    const QByteArray payload = makePayload('a');
    CUpdateFileBuilder::makeValid(payload).write(m_path);
    CPayload expected = describe(payload);
    expected.sha256[5] = static_cast<char>(expected.sha256.at(5) + 1);
    const CUpdateArchive archive(m_path);
    QVERIFY_EXCEPTION_THROWN(archive.checkPayload(expected), CUpdateFileError);

    const auto device = archive.openPayload(expected);
    QCOMPARE(device->read(99999).size(), 99999);
    char last = 0;
    QCOMPARE(device->read(&last, 1), qint64(-1));
    QCOMPARE(device->errorString(),
             QStringLiteral("Update file %1: the payload \"firmware.img\" does not match its "
                            "SHA-256 in update.json")
                 .arg(m_path));
    QVERIFY(device->atEnd());
    QCOMPARE(device->read(&last, 1), qint64(-1));
}

void CUpdateArchiveTest::keepsReadingTheFileThatWasOpened()
{
    const QByteArray payload = makePayload('a');
    CUpdateFileBuilder::makeValid(payload).write(m_path);
    const CUpdateArchive archive(m_path);

    const QString other = m_folder->filePath(QStringLiteral("other.guf"));
    CUpdateFileBuilder::makeValid(makePayload('b')).write(other);
    QVERIFY(QFile::remove(m_path));
    QVERIFY(QFile::rename(other, m_path));

    QVERIFY(archive.openPayload(describe(payload))->readAll() == payload);
}

void CUpdateArchiveTest::payloadOutlivesArchive()
{
    const QByteArray payload = makePayload('a');
    CUpdateFileBuilder::makeValid(payload).write(m_path);
    const auto device = CUpdateArchive(m_path).openPayload(describe(payload));
    QVERIFY(device->readAll() == payload);
}

void CUpdateArchiveTest::worksOnAnotherThread()
{
    const QByteArray payload = makePayload('a');
    CUpdateFileBuilder::makeValid(payload).write(m_path);
    const CUpdateArchive archive(m_path);
    QByteArray received;
    std::thread worker([&archive, &received, &payload] {
        received = archive.openPayload(describe(payload))->readAll();
    });
    worker.join();
    QVERIFY(received == payload);
    archive.checkPayload(describe(payload));
}

void CUpdateArchiveTest::refusesPayloadThatIsNotThere()
{
    const QByteArray payload = makePayload('a');
    CUpdateFileBuilder::makeValid(payload).write(m_path);
    const CUpdateArchive archive(m_path);
    CPayload longer = describe(payload);
    ++longer.size;
    QVERIFY_EXCEPTION_THROWN(archive.openPayload(longer), CUpdateFileError);
    CPayload renamed = describe(payload);
    renamed.name = QStringLiteral("other.img");
    QVERIFY_EXCEPTION_THROWN(archive.openPayload(renamed), CUpdateFileError);
}

QTEST_GUILESS_MAIN(CUpdateArchiveTest)
#include "tst_updatearchive.moc"
