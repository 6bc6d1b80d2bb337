#include "updatefilebuilder.h"
#include "viewer/updatefile/updatearchive.h"
#include "viewer/updatefile/updatefilecache.h"
#include "viewer/updatefile/updatefileerror.h"
#include "viewer/updatefile/updatefilereader.h"

#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <thread>

using namespace Viewer::UpdateFile;
using namespace TestSupport;

/// Looks at the reader, at the archive that it reads from and at the cache before it.
class CUpdateFileReaderTest : public QObject
{
    Q_OBJECT

private slots:
    void tellsFaultyArchives_data();
    void tellsFaultyArchives();
    void refusesWhatIsNoFile();
    void refusesTruncatedAndDamagedFiles();
    void streamsTheFileThatWasOpened();
    void withholdsEndOfPayloadWithOtherDigest();
    void readsAgainOnlyWhatChanged();

private:
    const QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath("update.guf");
};

/// Bytes that do not compress away, so that places in the archive are easy to tell apart.
static QByteArray getPayload()
{
    QByteArray payload;
    for (int index = 0; index < 200; ++index)
        payload += QCryptographicHash::hash(QByteArray::number(index), QCryptographicHash::Md5);
    return payload;
}

/// The sentence without the path, which it has to begin with.
static QString readCause(const QString &path, CUpdateFileCache *cache = nullptr)
{
    try {
        const CUpdateManifest manifest = cache ? *cache->read(path) : CUpdateFileReader::read(path);
        return manifest.updates.size() == 1 ? "no fault" : "no updates";
    } catch (const CUpdateFileError &error) {
        const QString message = error.getMessage();
        const QString cause = error.getCause().getEnglish();
        const bool isSentence = message == "Update file " + path + ": " + cause
            && !message.contains('\n') && !message.endsWith('.');
        return isSentence ? cause : "bad sentence: " + message;
    }
}

void CUpdateFileReaderTest::tellsFaultyArchives_data()
{
    QTest::addColumn<QByteArray>("archive");
    QTest::addColumn<QString>("cause");

    const auto row = [](const QByteArray &archive, const QString &cause) {
        QTest::newRow(qPrintable(cause)) << archive << cause;
    };
    const QByteArray payload = getPayload();
    const auto size = static_cast<quint32>(payload.size());
    const QByteArray manifest = makeManifest("firmware.img", payload);
    const auto packOne = [](const QString &name, const QByteArray &content) {
        return makeArchive({{name, content}});
    };
    const auto pack = [](const QByteArray &json, const QByteArray &content) {
        return makeArchive({{"update.json", json}, {"folder/", ""}, {"firmware.img", content}});
    };
    const auto packAlso = [&payload](const QByteArray &name) {
        return makeValid(payload, EPacking::Deflated, {{name, "x"}});
    };
    const QByteArray valid = pack(manifest, payload);
    const QByteArray stored = makeValid(payload, EPacking::Stored);
    QByteArray changed = payload;
    changed[1600] = static_cast<char>(~changed.at(1600));

    row(valid, "no fault");
    row("", "the file is empty");
    row("This is no archive", "it is not a ZIP archive");
    row(valid.chopped(30), "the archive is cut off at its end");
    row(QByteArray("PK\x05\x06").leftJustified(22, '\0'), "there is no update.json in the archive");
    row(packOne("firmware.img", payload), "there is no update.json in the archive");
    row(packOne("vx/update.json", manifest), "in a folder of the archive (\"vx/update.json\")");

    row(packOne("update.json", manifest), "payload \"firmware.img\" is missing in the archive");
    row(pack(manifest, payload.chopped(1)), "it has 3199 bytes where update.json says 3200");
    row(pack(manifest, payload + "x"), "it has 3201 bytes where update.json says 3200");
    row(pack(manifest, changed), "\"firmware.img\" does not match its SHA-256 in update.json");
    row(patch(stored, payload, changed), "file \"firmware.img\" is damaged and cannot be unpacked");
    row(patch(pack(manifest, payload.chopped(100)), size - 100, size), "cannot be unpacked");
    row(patch(pack(manifest, payload + QByteArray(1000000, '\0')), size + 1000000, size),
        "\"firmware.img\" unpacks to more bytes than the archive declares");
    row(patch(pack(manifest.leftJustified(5000000, ' '), payload), 5000000, 5000),
        "\"update.json\" unpacks to more bytes than the archive declares");
    row(patch(valid, size, 0xfffffffe), "the archive unpacks to more than 536870912 bytes");

    row(packAlso("readme.txt"), "has a file \"readme.txt\" that no step uploads");
    row(packAlso("update.json.p7s"), "no fault");
    row(packAlso("sub/update.json.p7s"), "has a file \"sub/update.json.p7s\" that no step uploads");
    row(makeValid(payload, EPacking::Deflated,
                  {{"update.json.p7s", QByteArray(1024 * 1024 + 1, 's')}}),
        "update.json.p7s has 1048577 bytes; at most 1048576 are allowed");
    const CEntry signature{"update.json.p7s", "x"};
    for (const char *other : {"update.jsoN", "update.json.p7S"})
        row(patch(makeValid(payload, EPacking::Deflated, {signature, {other, "x"}}), other,
                  QByteArray(other).toLower()),
            "two entries named \"" + QString(other).toLower());
    row(packAlso("firmware.img/"), "two entries named \"firmware.img\"");
    row(patch(packAlso("firmware.imG"), "firmware.imG", "firmware.img"), "two entries named");
    row(makeValid(payload, EPacking::Encrypted), "is encrypted");
    QByteArray otherMethod = valid;
    constexpr char BZIP2 = 12;
    otherMethod[otherMethod.lastIndexOf("PK\x01\x02") + 10] = BZIP2;
    row(otherMethod, "is compressed by a method other than Deflate");

    // Names that no packing program would take, so they are put in place of others as long.
    row(patch(packAlso("PPPevil.img"), "PPPevil.img", "../evil.img"),
        "\"../evil.img\" has an empty");
    row(patch(packAlso("evilPimg"), "evilPimg", "evil\nimg"),
        "\"evil?img\" has a control character");
    // The library takes this one for a blank.
    row(patch(packAlso("nulPimg"), "nulPimg", QByteArray("nul\0img", 7)),
        "\"nul?img\" has a control character");
    row(packAlso(QByteArray(201, 'n')), "nnn...\" is longer than 200 characters");
    row(patch(packAlso("evil!.img"), "evil!", "evil\xff"), "entry 3 of the archive has no name");
    // What the library would read before it could be asked for the number.
    const QByteArray end("PK\x05\x06");
    QByteArray crowded = valid;
    crowded[crowded.lastIndexOf(end) + 11] = 0x10;
    row(crowded, "the archive has 4099 entries; at most 256 are allowed");
    QByteArray locator = QByteArray("PK\x06\x07").leftJustified(20, '\0');
    locator[10] = 1;
    row(QByteArray(valid).insert(valid.lastIndexOf(end), locator), "the archive is damaged; copy");
    row(valid + end.leftJustified(22, '\0').repeated(100), "the archive is damaged; copy");
    QVector<CEntry> crowd;
    for (int index = 0; index < 257; ++index)
        crowd.append({QString::number(index), "x"});
    row(makeArchive(crowd), "the archive has 257 entries; at most 256 are allowed");
}

void CUpdateFileReaderTest::tellsFaultyArchives()
{
    QFETCH(QByteArray, archive);
    QFETCH(QString, cause);
    writeFile(m_path, archive);
    const QString found = readCause(m_path);
    QVERIFY2(found.contains(cause) && !found.startsWith("bad sentence"), qPrintable(found));
}

void CUpdateFileReaderTest::refusesWhatIsNoFile()
{
    const QString path = m_folder.filePath("other");
    QCOMPARE(readCause(path), QString("the file does not exist"));
    QCOMPARE(readCause(m_folder.path()), QString("this is a folder, not a file"));
    QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    QCOMPARE(readCause(path), QString("this is not a regular file"));
    QVERIFY(QFile::remove(path));
    writeFile(path, "");
    QVERIFY(QFile::resize(path, 513 * 1024 * 1024 + 1));
    QCOMPARE(readCause(path),
             QString("the file has 537919489 bytes; at most 537919488 are allowed"));
}

void CUpdateFileReaderTest::refusesTruncatedAndDamagedFiles()
{
    const QByteArray archive = makeValid(getPayload(), EPacking::Stored);
    for (int size = 0; size < archive.size(); size += size < 200 ? 1 : 13) {
        writeFile(m_path, archive.left(size));
        QVERIFY2(readCause(m_path) != "no fault", qPrintable(QString::number(size)));
    }

    const int payloadBegin = archive.indexOf(getPayload());
    for (int position = 0; position < archive.size(); position += 3) {
        QByteArray damaged = archive;
        damaged[position] = static_cast<char>(~damaged.at(position));
        writeFile(m_path, damaged);
        const QString cause = readCause(m_path);
        QVERIFY2(!cause.startsWith("bad sentence"), qPrintable(cause));
        // Elsewhere a byte may lie in a field that nobody reads, like a time.
        if (position >= payloadBegin && position < payloadBegin + getPayload().size())
            QVERIFY2(cause.endsWith("is damaged and cannot be unpacked"), qPrintable(cause));
    }
}

/// Two readers in turns, on another thread, after the file was replaced and its archive closed.
void CUpdateFileReaderTest::streamsTheFileThatWasOpened()
{
    const QByteArray payload = getPayload();
    for (const int blockSize : {1, 1000, 3200, 100000}) {
        writeFile(m_path, makeValid(payload));
        auto archive = std::make_unique<CUpdateArchive>(m_path);
        const CUpdateManifest manifest = CUpdateFileReader::read(*archive);
        const CPayload described = manifest.updates.at(0).steps.at(3).payload;
        QVERIFY(QFile::remove(m_path));
        writeFile(m_path, makeValid("other"));
        QByteArray received[2];
        std::thread worker([&] {
            const auto first = archive->openPayload(described);
            const auto second = archive->openPayload(described);
            archive.reset();
            while (!first->atEnd() || !second->atEnd()) {
                received[0] += first->read(700);
                received[1] += second->read(blockSize);
            }
        });
        worker.join();
        QVERIFY(received[0] == payload && received[1] == payload);
    }
}

void CUpdateFileReaderTest::withholdsEndOfPayloadWithOtherDigest()
{
    const QByteArray payload = getPayload();
    writeFile(m_path, makeValid(payload));
    CPayload expected = CUpdateFileReader::read(m_path).updates.at(0).steps.at(3).payload;
    expected.sha256[5] = static_cast<char>(~expected.sha256.at(5));
    const auto device = CUpdateArchive(m_path).openPayload(expected);
    QCOMPARE(device->read(3199), payload.left(3199));
    QCOMPARE(device->read(1), QByteArray());
    QVERIFY(device->errorString().contains("does not match its SHA-256 in update.json"));
    QVERIFY(device->atEnd());
}

/// Observed from outside: an overwritten file whose size and time were put back to what they were
/// is told from a remembered one only by being read.
void CUpdateFileReaderTest::readsAgainOnlyWhatChanged()
{
    const QByteArray valid = makeValid("firmware");
    const QByteArray garbage(valid.size(), 'x');
    const QString noZip = "this is not an update file, as it is not a ZIP archive";
    CUpdateFileCache cache;
    const auto writeAndRead = [this, &cache](const QByteArray &bytes, int millisecond) {
        writeFile(m_path, bytes);
        QFile file(m_path);
        const QDateTime time(QDate(2026, 1, 1), QTime(12, 0, 0, millisecond));
        const bool isSet = file.open(QIODevice::ReadWrite)
            && file.setFileTime(time, QFileDevice::FileModificationTime);
        return isSet ? readCause(m_path, &cache) : "the time of the file cannot be set";
    };
    QCOMPARE(writeAndRead(valid, 0), QString("no fault"));
    QCOMPARE(writeAndRead(garbage, 0), QString("no fault"));
    QVERIFY(cache.read(QDir::current().relativeFilePath(m_path)) == cache.read(m_path));
    QCOMPARE(writeAndRead(garbage, 500), noZip);
    QCOMPARE(writeAndRead(valid, 500), noZip);
    QCOMPARE(writeAndRead(makeValid("x"), 500), QString("no fault"));
    QCOMPARE(writeAndRead(garbage, 1), noZip);
}

QTEST_GUILESS_MAIN(CUpdateFileReaderTest)
#include "tst_updatefilereader.moc"
