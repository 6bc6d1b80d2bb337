#include "updatefilebuilder.h"
#include "viewer/camerapool/updatefile/updatefilecache.h"
#include "viewer/camerapool/updatefile/updatefileerror.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Viewer::CameraPool::UpdateFile;
using Test::CUpdateFileBuilder;

/// The cache is observed from outside: an overwritten file whose size and time were put back to
/// what they were is told from a remembered one only by being read.
class CUpdateFileCacheTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void readsAnUnchangedFileOnce();
    void readsAFileOfAnotherTimeAgain();
    void readsAFileOfAnotherSizeAgain();
    void remembersFaults();
    void looksForAMissingFileEachTime();
    void acceptsRelativePaths();
    void forgetsTheOneAskedForLeastRecently();

private:
    [[nodiscard]] QString getPath(int number) const;
    void write(const QString &path, const QByteArray &bytes) const;

    QScopedPointer<QTemporaryDir> m_folder;
    CUpdateFileCache m_cache;
};

static QByteArray getValid()
{
    return CUpdateFileBuilder::makeValid("firmware").getBytes();
}

/// As long as getValid().
static QByteArray getGarbage()
{
    return QByteArray(getValid().size(), 'x');
}

static QString readMessage(CUpdateFileCache &cache, const QString &path)
{
    try {
        const auto manifest = cache.read(path);
        return QString();
    } catch (const CUpdateFileError &error) {
        return error.getMessage();
    }
}

void CUpdateFileCacheTest::init()
{
    m_folder.reset(new QTemporaryDir);
    m_cache = CUpdateFileCache();
}

QString CUpdateFileCacheTest::getPath(int number) const
{
    return m_folder->filePath(QStringLiteral("%1.guf").arg(number));
}

void CUpdateFileCacheTest::write(const QString &path, const QByteArray &bytes) const
{
    Test::writeFile(path, bytes);
    QFile file(path);
    const QDateTime time(QDate(2026, 1, 1), QTime(12, 0));
    QVERIFY(file.open(QIODevice::ReadWrite)
            && file.setFileTime(time, QFileDevice::FileModificationTime));
}

void CUpdateFileCacheTest::readsAnUnchangedFileOnce()
{
    write(getPath(1), getValid());
    const auto first = m_cache.read(getPath(1));
    write(getPath(1), getGarbage());
    const auto second = m_cache.read(getPath(1));
    QCOMPARE(second, first);
    QCOMPARE(second->updates.size(), 1);
    QCOMPARE(m_cache.read(QDir::toNativeSeparators(getPath(1))), first);
}

void CUpdateFileCacheTest::readsAFileOfAnotherTimeAgain()
{
    write(getPath(1), getValid());
    const auto first = m_cache.read(getPath(1));
    QFile file(getPath(1));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime(QDate(2026, 1, 1), QTime(12, 0, 0, 500)),
                             QFileDevice::FileModificationTime));
    QVERIFY(m_cache.read(getPath(1)) != first);
}

void CUpdateFileCacheTest::readsAFileOfAnotherSizeAgain()
{
    write(getPath(1), getValid());
    QCOMPARE(readMessage(m_cache, getPath(1)), QString());
    write(getPath(1), getGarbage() + "x");
    QVERIFY(!readMessage(m_cache, getPath(1)).isEmpty());
}

void CUpdateFileCacheTest::remembersFaults()
{
    write(getPath(1), getGarbage());
    const QString message = readMessage(m_cache, getPath(1));
    QCOMPARE(
        message,
        QStringLiteral("Update file %1: this is not an update file, as it is not a ZIP archive")
            .arg(getPath(1)));
    write(getPath(1), getValid());
    QCOMPARE(readMessage(m_cache, getPath(1)), message);
}

void CUpdateFileCacheTest::looksForAMissingFileEachTime()
{
    QVERIFY(readMessage(m_cache, getPath(1)).endsWith(QStringLiteral("the file does not exist")));
    QVERIFY(readMessage(m_cache, m_folder->path())
                .endsWith(QStringLiteral("this is a folder, not a file")));
    write(getPath(1), getValid());
    QCOMPARE(readMessage(m_cache, getPath(1)), QString());
    QVERIFY(QFile::remove(getPath(1)));
    QVERIFY(readMessage(m_cache, getPath(1)).endsWith(QStringLiteral("the file does not exist")));
}

void CUpdateFileCacheTest::acceptsRelativePaths()
{
    write(getPath(1), getValid());
    const QString relative = QDir::current().relativeFilePath(getPath(1));
    QVERIFY(QDir::isRelativePath(relative));
    QCOMPARE(m_cache.read(relative), m_cache.read(getPath(1)));
}

void CUpdateFileCacheTest::forgetsTheOneAskedForLeastRecently()
{
    for (int number = 0; number <= CUpdateFileCache::CAPACITY; ++number)
        write(getPath(number), getValid());
    for (int number = 0; number < CUpdateFileCache::CAPACITY; ++number)
        QCOMPARE(readMessage(m_cache, getPath(number)), QString());
    // Asked for again, number 0 is the newest and number 1 has to go.
    QCOMPARE(readMessage(m_cache, getPath(0)), QString());
    QCOMPARE(readMessage(m_cache, getPath(CUpdateFileCache::CAPACITY)), QString());

    write(getPath(0), getGarbage());
    write(getPath(1), getGarbage());
    QCOMPARE(readMessage(m_cache, getPath(0)), QString());
    QVERIFY(!readMessage(m_cache, getPath(1)).isEmpty());
}

QTEST_GUILESS_MAIN(CUpdateFileCacheTest)
#include "tst_updatefilecache.moc"
