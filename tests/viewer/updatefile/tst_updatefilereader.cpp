#include "updatefilebuilder.h"
#include "viewer/camerapool/updatefile/updatefileerror.h"
#include "viewer/camerapool/updatefile/updatefilereader.h"

#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using namespace Viewer::CameraPool::UpdateFile;
using Test::CUpdateFileBuilder;
using EPacking = CUpdateFileBuilder::EPacking;

class CUpdateFileReaderTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void readsFaultlessFiles_data();
    void readsFaultlessFiles();
    void refusesFaultyArchives_data();
    void refusesFaultyArchives();
    void refusesTruncatedFilesOfEveryLength();
    void survivesDamagedBytes();
    void refusesWhatIsNoFile_data();
    void refusesWhatIsNoFile();
    void refusesUnreadableFile();

private:
    QScopedPointer<QTemporaryDir> m_folder;
    QString m_path;
};

static const QString MANIFEST = QStringLiteral("update.json");
static const QString IMAGE = QStringLiteral("firmware.img");

/// Bytes that do not compress away, so that places in the archive are easy to tell apart.
static QByteArray getPayload()
{
    QByteArray payload;
    for (int index = 0; index < 200; ++index)
        payload += QCryptographicHash::hash(QByteArray::number(index), QCryptographicHash::Md5);
    return payload;
}

/// A faultless manifest for getPayload().
static QByteArray getManifest(const QString &payloadName = IMAGE)
{
    return CUpdateFileBuilder::makeManifest(payloadName, getPayload());
}

/// The sentence without the path, which it has to begin with.
static QString readCause(const QString &path)
{
    try {
        const CUpdateManifest manifest = CUpdateFileReader::read(path);
        return QStringLiteral("no fault");
    } catch (const CUpdateFileError &error) {
        const QString message = error.getMessage();
        const QString begin = QStringLiteral("Update file %1: ").arg(path);
        const bool isSentence = message == begin + error.getCause()
            && !message.contains(QLatin1Char('\n')) && !message.endsWith(QLatin1Char('.'));
        return isSentence ? error.getCause() : QStringLiteral("bad sentence: ") + message;
    }
}

void CUpdateFileReaderTest::init()
{
    m_folder.reset(new QTemporaryDir);
    m_path = m_folder->filePath(QStringLiteral("update.guf"));
}

void CUpdateFileReaderTest::readsFaultlessFiles_data()
{
    QTest::addColumn<QByteArray>("archive");

    QTest::newRow("compressed") << CUpdateFileBuilder::makeValid(getPayload()).getBytes();
    QTest::newRow("stored")
        << CUpdateFileBuilder::makeValid(getPayload(), EPacking::Stored).getBytes();
    QTest::newRow("payload in a folder with an entry of its own")
        << CUpdateFileBuilder()
               .add(QStringLiteral("images/"), QByteArray())
               .add(QStringLiteral("images/a.img"), getPayload())
               .add(MANIFEST, getManifest(QStringLiteral("images/a.img")))
               .getBytes();
}

void CUpdateFileReaderTest::readsFaultlessFiles()
{
    QFETCH(QByteArray, archive);
    Test::writeFile(m_path, archive);
    const CUpdateManifest manifest = CUpdateFileReader::read(m_path);
    QCOMPARE(manifest.updates.size(), 1);
    QCOMPARE(manifest.updates.constFirst().version, QStringLiteral("2.0.0"));
}

void CUpdateFileReaderTest::refusesFaultyArchives_data()
{
    QTest::addColumn<QByteArray>("archive");
    QTest::addColumn<QString>("cause");

    const auto row = [](const char *name, const QByteArray &archive, const char *cause) {
        QTest::newRow(name) << archive << QString::fromUtf8(cause);
    };
    const auto valid = [](EPacking packing = EPacking::Deflated) {
        return CUpdateFileBuilder::makeValid(getPayload(), packing);
    };
    /// A faultless file with one entry more, whose name is patched to one of the same length.
    const auto withName = [](const QByteArray &name) {
        const QByteArray placeholder(name.size(), 'P');
        return CUpdateFileBuilder::makeValid(getPayload())
            .add(QString::fromLatin1(placeholder), "x")
            .patch(placeholder, name)
            .getBytes();
    };
    const auto withManifest = [](const QByteArray &manifest) {
        return CUpdateFileBuilder().add(MANIFEST, manifest).add(IMAGE, getPayload()).getBytes();
    };
    const quint32 size = static_cast<quint32>(getPayload().size());
    QByteArray changed = getPayload();
    changed[1600] = static_cast<char>(~changed.at(1600));

    row("nothing", QByteArray(), "the file is empty");
    row("text", "This is no archive", "this is not an update file, as it is not a ZIP archive");
    row("zeros", QByteArray(100000, '\0'),
        "this is not an update file, as it is not a ZIP archive");
    row("cut off", valid().getBytes().chopped(30),
        "the archive is cut off at its end; copy the file again");
    row("empty archive", QByteArray("PK\x05\x06").leftJustified(22, '\0'),
        "there is no update.json in the archive");
    row("no manifest", CUpdateFileBuilder().add(IMAGE, getPayload()).getBytes(),
        "there is no update.json in the archive");
    row("manifest in a folder",
        CUpdateFileBuilder().add(QStringLiteral("vx/update.json"), getManifest()).getBytes(),
        "update.json lies in a folder of the archive (\"vx/update.json\"); it has to lie at the "
        "top");
    row("empty manifest", withManifest(QByteArray()), "update.json is empty");
    row("manifest is no JSON", withManifest("{\n  version"),
        "update.json is not JSON at line 2, column 3: a name in quotation marks, a comma or a "
        "closing brace is missing");
    row("manifest breaks a rule", withManifest(getManifest().replace("\"VX-2\"", "7")),
        "update.json: the field \"updates[0].models[1]\" is a number where a text is wanted");
    row("large manifest", withManifest(getManifest().leftJustified(1024 * 1024 + 1, ' ')),
        "update.json has 1048577 bytes; 1048576 are allowed");

    row("payload missing", CUpdateFileBuilder().add(MANIFEST, getManifest()).getBytes(),
        "the payload \"firmware.img\" is missing in the archive");
    row("payload too short",
        CUpdateFileBuilder()
            .add(MANIFEST, getManifest())
            .add(IMAGE, getPayload().chopped(1))
            .getBytes(),
        "the payload \"firmware.img\" is too short: it has 3199 bytes where update.json says 3200");
    row("payload too long",
        CUpdateFileBuilder().add(MANIFEST, getManifest()).add(IMAGE, getPayload() + "x").getBytes(),
        "the payload \"firmware.img\" is too long: it has 3201 bytes where update.json says 3200");
    row("payload with another digest",
        CUpdateFileBuilder().add(MANIFEST, getManifest()).add(IMAGE, changed).getBytes(),
        "the payload \"firmware.img\" does not match its SHA-256 in update.json");
    row("payload changed in the archive",
        valid(EPacking::Stored).patch(getPayload(), changed).getBytes(),
        "the file \"firmware.img\" is damaged and cannot be unpacked");
    row("payload unpacks to more than declared",
        CUpdateFileBuilder()
            .add(MANIFEST, getManifest())
            .add(IMAGE, getPayload() + QByteArray(1000000, '\0'))
            .patchNumber(size + 1000000, size)
            .getBytes(),
        "the file \"firmware.img\" unpacks to more bytes than the archive declares");
    row("payload unpacks to less than declared",
        CUpdateFileBuilder()
            .add(MANIFEST, getManifest())
            .add(IMAGE, getPayload().chopped(100))
            .patchNumber(size - 100, size)
            .getBytes(),
        "the file \"firmware.img\" is damaged and cannot be unpacked");
    row("manifest unpacks to more than declared",
        CUpdateFileBuilder()
            .add(MANIFEST, getManifest().leftJustified(5000000, ' '))
            .add(IMAGE, getPayload())
            .patchNumber(5000000, 5000)
            .getBytes(),
        "the file \"update.json\" unpacks to more bytes than the archive declares");
    row("declared sizes beyond all limits", valid().patchNumber(size, 0x7fffffff).getBytes(),
        "the archive unpacks to more than 536870912 bytes");
    row("largest 32-bit size declared", valid().patchNumber(size, 0xfffffffe).getBytes(),
        "the archive unpacks to more than 536870912 bytes");
    row("file that nothing uploads",
        valid().add(QStringLiteral("readme.txt"), "Read me").getBytes(),
        "the archive has a file \"readme.txt\" that no step uploads");
    row("file twice",
        valid()
            .add(QStringLiteral("firmware.imG"), getPayload())
            .patch("firmware.imG", "firmware.img")
            .getBytes(),
        "the archive has two entries named \"firmware.img\"");
    row("file and folder of one name", valid().add(QStringLiteral("firmware.img/"), "").getBytes(),
        "the archive has two entries named \"firmware.img\"");
    row("encrypted payload", valid(EPacking::Encrypted).getBytes(),
        "the entry \"firmware.img\" is encrypted; pack it without a password");
    row("encrypted manifest",
        CUpdateFileBuilder().add(MANIFEST, getManifest(), EPacking::Encrypted).getBytes(),
        "the entry \"update.json\" is encrypted; pack it without a password");
    QByteArray otherMethod = CUpdateFileBuilder().add(IMAGE, getPayload()).getBytes();
    constexpr char BZIP2 = 12;
    otherMethod[otherMethod.indexOf("PK\x03\x04") + 8] = BZIP2;
    otherMethod[otherMethod.indexOf("PK\x01\x02") + 10] = BZIP2;
    row("other compression", otherMethod,
        "the entry \"firmware.img\" is compressed by a method other than Deflate");

    row("name leads outside", withName("../evil.img"),
        "the entry name \"../evil.img\" has an empty part or one of dots only; use a plain path");
    row("name leads outside in the middle", withName("a/../../b"),
        "the entry name \"a/../../b\" has an empty part or one of dots only; use a plain path");
    row("absolute name", withName("/etc/passwd"),
        "the entry name \"/etc/passwd\" is an absolute path; use one inside the archive");
    row("name with a backslash", withName("..\\evil.img"),
        "the entry name \"..\\evil.img\" has a backslash; use forward slashes");
    row("name with a drive", withName("C:evil.img"),
        "the entry name \"C:evil.img\" has a colon; drive letters are not allowed");
    row("name with a line break", withName("evil\nimg"),
        "the entry name \"evil?img\" has a control character");
    row("name that is no UTF-8", withName("evil\xff.img"),
        "entry 3 of the archive has no name, or one that is not UTF-8");
    row("long name", withName(QByteArray(201, 'n')),
        QStringLiteral("the entry name \"%1...\" is longer than 200 characters")
            .arg(QString(80, QLatin1Char('n')))
            .toUtf8());

    CUpdateFileBuilder crowd = valid();
    for (int index = 0; index < 255; ++index)
        crowd.add(QString::number(index), "x");
    row("too many entries", crowd.getBytes(), "the archive has 257 entries; 256 are allowed");
}

void CUpdateFileReaderTest::refusesFaultyArchives()
{
    QFETCH(QByteArray, archive);
    Test::writeFile(m_path, archive);
    QTEST(readCause(m_path), "cause");
}

void CUpdateFileReaderTest::refusesTruncatedFilesOfEveryLength()
{
    const QByteArray archive = CUpdateFileBuilder::makeValid(getPayload()).getBytes();
    for (int size = 0; size < archive.size(); size += size < 200 ? 1 : 13) {
        Test::writeFile(m_path, archive.left(size));
        QVERIFY2(readCause(m_path) != QLatin1String("no fault"), qPrintable(QString::number(size)));
    }
}

void CUpdateFileReaderTest::survivesDamagedBytes()
{
    const QByteArray archive
        = CUpdateFileBuilder::makeValid(getPayload(), EPacking::Stored).getBytes();
    const int payloadBegin = archive.indexOf(getPayload());
    QVERIFY(payloadBegin > 0);
    for (int position = 0; position < archive.size(); position += 3) {
        QByteArray damaged = archive;
        damaged[position] = static_cast<char>(~damaged.at(position));
        Test::writeFile(m_path, damaged);
        const QString cause = readCause(m_path);
        QVERIFY2(!cause.startsWith(QLatin1String("bad sentence")), qPrintable(cause));
        // Elsewhere a byte may lie in a field that nobody reads, like a time.
        if (position >= payloadBegin && position < payloadBegin + getPayload().size())
            QCOMPARE(cause,
                     QStringLiteral("the file \"firmware.img\" is damaged and cannot be unpacked"));
    }
}

void CUpdateFileReaderTest::refusesWhatIsNoFile_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("cause");

    QTest::newRow("nothing there")
        << QStringLiteral("nothing") << QStringLiteral("the file does not exist");
    QTest::newRow("folder") << QStringLiteral("folder")
                            << QStringLiteral("this is a folder, not a file");
    QTest::newRow("pipe that nobody writes to")
        << QStringLiteral("pipe") << QStringLiteral("this is not a regular file");
    QTest::newRow("huge file") << QStringLiteral("huge")
                               << QStringLiteral("the file has 268435457 bytes; 268435456 are "
                                                 "allowed");
}

void CUpdateFileReaderTest::refusesWhatIsNoFile()
{
    QFETCH(QString, kind);
    if (kind == QLatin1String("folder"))
        QVERIFY(QDir().mkdir(m_path));
    if (kind == QLatin1String("pipe"))
        QCOMPARE(mkfifo(QFile::encodeName(m_path).constData(), 0600), 0);
    if (kind == QLatin1String("huge")) {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.resize(256 * 1024 * 1024 + 1));
    }
    QTEST(readCause(m_path), "cause");
}

void CUpdateFileReaderTest::refusesUnreadableFile()
{
    CUpdateFileBuilder::makeValid(getPayload()).write(m_path);
    QVERIFY(QFile::setPermissions(m_path, QFile::Permissions()));
    if (QFile(m_path).open(QIODevice::ReadOnly))
        QSKIP("This user may read every file");
    QCOMPARE(readCause(m_path),
             QStringLiteral("the file cannot be opened; check its access rights"));
}

QTEST_GUILESS_MAIN(CUpdateFileReaderTest)
#include "tst_updatefilereader.moc"
