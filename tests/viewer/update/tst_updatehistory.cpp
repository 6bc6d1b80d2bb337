#include "updaterecords.h"

#include "viewer/update/updatehistory.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <cstdlib>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace Viewer::Update;

class CUpdateHistoryTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void keepsRecordsInAPrivateFile();
    void countsWhatIsNoRecord();
    void goesOnBehindATornLine();
    void readsTheNewestOnly();
    void severalWritersLoseNothing();
    void fullDiskTearsOneLineOnly();
    void tellsWhatIsInTheWay_data();
    void tellsWhatIsInTheWay();

private:
    void write(const QByteArray &text) const;
    QByteArray readBytes() const;

    std::unique_ptr<QTemporaryDir> m_home;
    QString m_path;
};

void CUpdateHistoryTest::init()
{
    // In memory: each record waits until the disk has it.
    m_home = std::make_unique<QTemporaryDir>("/dev/shm/updatehistory-XXXXXX");
    qputenv("XDG_STATE_HOME", m_home->filePath("state").toUtf8());
    m_path = m_home->filePath("state/nuvexviewer/updates/history.jsonl");
}

void CUpdateHistoryTest::write(const QByteArray &text) const
{
    QDir().mkpath(QFileInfo(m_path).path());
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

QByteArray CUpdateHistoryTest::readBytes() const
{
    QFile file(m_path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void CUpdateHistoryTest::keepsRecordsInAPrivateFile()
{
    const CUpdateHistory history;
    QCOMPARE(history.read().records.size() + history.read().error.size(), 0);
    // Cut off within a pair of surrogates, and a half of one: neither may damage the line.
    CUpdateRecord odd = makeUpdateRecord(1);
    odd.cameraName = QString(4095, 'x') + QString::fromUtf8("\U0001F4F7");
    odd.error = QString("a\nb\"") + QChar(0xD83D);
    odd.end = QDateTime();
    for (const CUpdateRecord &record : {odd, makeUpdateRecord(2)})
        QCOMPARE(history.append(record).getEnglish(), QString());
    for (const auto &[path, mode] :
         {std::pair(m_path, 0600U), std::pair(QFileInfo(m_path).path(), 0700U)}) {
        struct stat info = {};
        QCOMPARE(stat(path.toUtf8(), &info), 0);
        QCOMPARE(info.st_mode & 07777, mode);
    }
    const CUpdateHistory::CContent content = history.read();
    QCOMPARE(content.damagedCount, 0);
    QCOMPARE(content.records.size(), 2);
    QCOMPARE(toJson(content.records.at(0)), toJson(makeUpdateRecord(2)));
    QCOMPARE(content.records.at(1).cameraName.left(4095), QString(4095, 'x'));
    QVERIFY(content.records.at(1).error.startsWith("a\nb\""));
}

void CUpdateHistoryTest::countsWhatIsNoRecord()
{
    const QByteArray first = toJson(makeUpdateRecord(1)), second = toJson(makeUpdateRecord(2));
    const QByteArray text = QByteArray(200, '\0') + '\n' + first + "\n\n{}\n" + first + second
        + '\n' + second.left(second.size() / 2) + '\n'
        + QByteArray(second).replace("\"updated\"", "\"melted\"") + '\n' + second;
    write(text);
    const CUpdateHistory::CContent content = CUpdateHistory().read();
    QCOMPARE(content.damagedCount, 5);
    QCOMPARE(content.records.size(), 2);
    QCOMPARE(toJson(content.records.constFirst()), second);
    QCOMPARE(readBytes(), text);
}

void CUpdateHistoryTest::goesOnBehindATornLine()
{
    const QByteArray line = toJson(makeUpdateRecord(1)) + '\n';
    // The power may fail at any byte.
    for (int size = 0; size <= line.size(); ++size) {
        write(line + line.left(size));
        QVERIFY(CUpdateHistory().append(makeUpdateRecord(2)).isEmpty());
        const CUpdateHistory::CContent content = CUpdateHistory().read();
        QVERIFY2(toJson(content.records.constFirst()) == toJson(makeUpdateRecord(2)),
                 qPrintable(QString::number(size)));
        QCOMPARE(content.records.size() + content.damagedCount, size == 0 ? 2 : 3);
        QVERIFY(readBytes().startsWith(line + line.left(size)));
    }
}

void CUpdateHistoryTest::readsTheNewestOnly()
{
    const QByteArray line = toJson(makeUpdateRecord(1)) + '\n';
    const QByteArray last = toJson(makeUpdateRecord(2)) + '\n';
    write("damaged\n" + line.repeated(CUpdateHistory::MAXIMUM_COUNT) + last);
    CUpdateHistory::CContent content = CUpdateHistory().read();
    QCOMPARE(content.records.size(), CUpdateHistory::MAXIMUM_COUNT);
    QCOMPARE(content.damagedCount, 0);
    QCOMPARE(toJson(content.records.constFirst()) + '\n', last);

    // More bytes than are read; the line in which the part begins is none of the damaged ones.
    write(line + QByteArray(CUpdateHistory::MAXIMUM_SIZE, 'x') + "\ndamaged\n" + last);
    content = CUpdateHistory().read();
    QCOMPARE(content.records.size(), 1);
    QCOMPARE(content.damagedCount, 1);
}

void CUpdateHistoryTest::severalWritersLoseNothing()
{
    static constexpr int COUNT = 100;
    const auto append = [](int first) {
        int failures = 0;
        for (int i = first; i < first + COUNT; ++i)
            failures += CUpdateHistory().append(makeUpdateRecord(i)).isEmpty() ? 0 : 1;
        return failures;
    };
    write("torn");
    const pid_t child = fork();
    if (child == 0)
        _exit(append(0));
    int threadFailures = 0;
    std::thread other([&] { threadFailures = append(COUNT); });
    const int failures = append(2 * COUNT);
    other.join();
    int status = -1;
    QCOMPARE(waitpid(child, &status, 0), child);
    QCOMPARE(status + failures + threadFailures, 0);

    const CUpdateHistory::CContent content = CUpdateHistory().read();
    QCOMPARE(content.damagedCount, 1);
    QSet<QString> ids;
    for (const CUpdateRecord &record : content.records)
        ids.insert(record.cameraId);
    QCOMPARE(content.records.size(), 3 * COUNT);
    QCOMPARE(ids.size(), 3 * COUNT);
}

void CUpdateHistoryTest::fullDiskTearsOneLineOnly()
{
    const CUpdateHistory history;
    QVERIFY(history.append(makeUpdateRecord(1)).isEmpty());
    signal(SIGXFSZ, SIG_IGN);
    rlimit old{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &old), 0);
    const rlimit small{static_cast<rlim_t>(readBytes().size()) + 10, old.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    const QString part = history.append(makeUpdateRecord(2)).getEnglish();
    const QString none = history.append(makeUpdateRecord(3)).getEnglish();
    setrlimit(RLIMIT_FSIZE, &old);
    QVERIFY2(part.contains(m_path) && part.contains("there is room for 10 of its"),
             qPrintable(part));
    QVERIFY2(none.contains("File too large"), qPrintable(none));
    QVERIFY(history.append(makeUpdateRecord(4)).isEmpty());
    QCOMPARE(history.read().records.size(), 2);
    QCOMPARE(history.read().damagedCount, 1);
}

void CUpdateHistoryTest::tellsWhatIsInTheWay_data()
{
    QTest::addColumn<QString>("obstacle");
    QTest::addColumn<QString>("append");
    QTest::addColumn<QString>("read");
    QTest::newRow("FIFO") << "fifo"
                          << "not a regular file"
                          << "not a regular file";
    QTest::newRow("folder") << "folder"
                            << "Is a directory"
                            << "not a regular file";
    QTest::newRow("file above") << "file"
                                << "Not a directory"
                                << "Not a directory";
    QTest::newRow("loop") << "loop"
                          << "symbolic links"
                          << "symbolic links";
    QTest::newRow("no home") << "home"
                             << "no home folder"
                             << "";
}

void CUpdateHistoryTest::tellsWhatIsInTheWay()
{
    QFETCH(QString, obstacle);
    QFETCH(QString, append);
    QFETCH(QString, read);
    const QByteArray home = qgetenv("HOME");
    QDir().mkpath(QFileInfo(m_path).path());
    if (obstacle == "fifo") {
        QCOMPARE(mkfifo(m_path.toUtf8(), 0600), 0);
    } else if (obstacle == "folder") {
        QVERIFY(QDir().mkpath(m_path));
    } else if (obstacle == "file") {
        qputenv("XDG_STATE_HOME", "/dev/null");
    } else if (obstacle == "loop") {
        QVERIFY(QFile::link(m_path, m_path));
    } else {
        qunsetenv("HOME");
        qunsetenv("XDG_STATE_HOME");
    }
    const CUpdateHistory history;
    qputenv("HOME", home);
    const QString fault = history.append(makeUpdateRecord(1)).getEnglish();
    QVERIFY2(fault.contains(append) && fault.endsWith('.'), qPrintable(fault));
    const CUpdateHistory::CContent content = history.read();
    QVERIFY2(content.error.contains(read) && content.error.isEmpty() == read.isEmpty(),
             qPrintable(content.error));
    QCOMPARE(content.records.size(), 0);
}

QTEST_GUILESS_MAIN(CUpdateHistoryTest)
#include "tst_updatehistory.moc"
