#include "viewer/update/updatejournal.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Viewer::Update;

static int warningCount = 0;

static void countWarnings(QtMsgType type, const QMessageLogContext &, const QString &)
{
    warningCount += type == QtWarningMsg ? 1 : 0;
}

static CUpdateRecord makeRecord(const QString &id)
{
    CUpdateRecord record;
    record.cameraId = id;
    // Like the place of the percentage, but within a text.
    record.address = "\"percent\":7";
    record.stepCount = 3;
    record.begin = QDateTime::currentDateTimeUtc();
    return record;
}

class CUpdateJournalTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_home.reset(new QTemporaryDir); }
    void tellsWhoeverLooks();
    void isReadOrSkippedCutAtAnyByte();
    void passesOverWhatIsNoJournal();
    void outlivesAKilledProcess();
    void fullDiskIsToldOnce();

private:
    [[nodiscard]] QString getFolder() const { return m_home->filePath("a/updates"); }
    [[nodiscard]] QStringList getNames() const
    {
        return QDir(getFolder())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    [[nodiscard]] QString getPath() const { return getFolder() + '/' + getNames().value(0); }

    QScopedPointer<QTemporaryDir> m_home;
};

void CUpdateJournalTest::tellsWhoeverLooks()
{
    const QString ids[] = {"gige-1", QString("../\n").repeated(1000)};
    std::vector<std::unique_ptr<CUpdateJournal>> journals;
    for (const QString &id : ids)
        journals.push_back(std::make_unique<CUpdateJournal>(getFolder(), makeRecord(id)));
    CUpdateJournal &journal = *journals.front();
    QVERIFY(CUpdateJournal(getFolder(), makeRecord("gige-1")).isForeign());
    QVERIFY(!journal.isForeign());
    const auto find = [this]() -> CUpdateRecord {
        for (const CJournalEntry &entry : readJournals(getFolder()).entries) {
            if (entry.record.cameraId == "gige-1" && entry.isRunning)
                return entry.record;
        }
        return {};
    };
    QCOMPARE(find().step, 0);
    journal.beginStep("CheckPreconditions");
    journal.beginStep("FileUpload");
    journal.setPercent(100);
    journal.setPercent(5); // within the same second
    QCOMPARE(find().percent, 100);
    QCOMPARE(find().stepName, QString("FileUpload"));
    QVERIFY(!find().hasWritten);
    journal.beginWriting();
    QVERIFY(find().hasWritten);
    QCOMPARE(find().step, 2);
    QCOMPARE(find().percent, 5);
    struct stat folder = {};
    struct stat file = {};
    QVERIFY(stat(QFile::encodeName(getFolder()), &folder) == 0);
    QVERIFY(stat(QFile::encodeName(getPath()), &file) == 0);
    QCOMPARE(folder.st_mode & ACCESSPERMS, mode_t(0700));
    QCOMPARE(file.st_mode & ACCESSPERMS, mode_t(0600));

    const CUpdateRecord end = journal.finish(EUpdateOutcome::Failed, true, "no power", "1.0");
    QCOMPARE(find().outcome, EUpdateOutcome::Failed);
    QCOMPARE(toJson(find()), toJson(end));
    removeJournal(getFolder(), "gige-1");
    QCOMPARE(getNames().size(), 2); // it still runs
    journals.front().reset();
    QCOMPARE(readJournals(getFolder()).entries.value(0).record.cameraId, ids[1]);
    QCOMPARE(getNames().size(), 1);
}

void CUpdateJournalTest::isReadOrSkippedCutAtAnyByte()
{
    CUpdateJournal(getFolder(), makeRecord("gige-1")).beginStep("FileUpload");
    QFile file(getPath());
    QVERIFY(file.open(QIODevice::ReadWrite));
    const qint64 whole = file.size();
    for (qint64 size = whole; size >= 0; --size) {
        QVERIFY(file.resize(size));
        const CJournals journals = readJournals(getFolder());
        QCOMPARE(journals.entries.size(), size == whole ? 1 : 0);
        QCOMPARE(journals.damagedCount, size == whole ? 0 : 1);
    }
}

void CUpdateJournalTest::passesOverWhatIsNoJournal()
{
    CUpdateJournal(getFolder(), makeRecord("gige-1")).beginStep("FileUpload");
    const QString path = getPath();
    const auto getName
        = [this](char digit) { return getFolder() + '/' + QString(16, digit) + ".json"; };
    QVERIFY(mkfifo(QFile::encodeName(getName('1')), S_IRWXU) == 0);
    QVERIFY(QDir().mkdir(getName('2')));
    QVERIFY(QFile::link(path, getName('3')));
    QCOMPARE(readJournals(getFolder()).damagedCount, 0);
    QVERIFY(QFile::copy(path, getName('4'))); // of a camera with another name
    QFile endless(getName('5'));
    QVERIFY(endless.open(QIODevice::WriteOnly) && endless.resize(qint64(1) << 40));
    QCOMPARE(readJournals(getFolder()).damagedCount, 2);
    QCOMPARE(readJournals(getFolder()).entries.size(), 1);
    QVERIFY(readJournals(m_home->filePath("nowhere")).entries.isEmpty());
}

void CUpdateJournalTest::outlivesAKilledProcess()
{
    int ends[2];
    QVERIFY(pipe(ends) == 0);
    const pid_t child = fork();
    if (child == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL); // should the test fail
        CUpdateJournal journal(getFolder(), makeRecord("gige-1"));
        journal.beginStep("FileUpload");
        journal.beginWriting();
        if (write(ends[1], "x", 1) == 1)
            pause();
        _exit(1);
    }
    char byte = 0;
    QCOMPARE(read(ends[0], &byte, 1), ssize_t(1));
    QVERIFY(readJournals(getFolder()).entries.value(0).isRunning);
    QVERIFY(CUpdateJournal(getFolder(), makeRecord("gige-1")).isForeign());
    kill(child, SIGKILL);
    QCOMPARE(waitpid(child, nullptr, 0), child);
    close(ends[0]);
    close(ends[1]);
    const QVector<CJournalEntry> entries = readJournals(getFolder()).entries;
    QCOMPARE(entries.size(), 1);
    QVERIFY(!entries.constFirst().isRunning && entries.constFirst().record.hasWritten);
    QCOMPARE(entries.constFirst().record.stepName, QString("FileUpload"));
    // A new update takes its place.
    {
        const CUpdateJournal again(getFolder(), makeRecord("gige-1"));
        QCOMPARE(readJournals(getFolder()).entries.value(0).record.step, 0);
    }
    removeJournal(getFolder(), "gige-1");
    QCOMPARE(getNames(), QStringList());
}

void CUpdateJournalTest::fullDiskIsToldOnce()
{
    rlimit before = {};
    QVERIFY(getrlimit(RLIMIT_FSIZE, &before) == 0);
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit full{100, before.rlim_max};
    QVERIFY(setrlimit(RLIMIT_FSIZE, &full) == 0);
    warningCount = 0;
    const auto oldMessages = qInstallMessageHandler(countWarnings);
    {
        CUpdateJournal journal(getFolder(), makeRecord("gige-1"));
        journal.beginStep("FileUpload");
        journal.setPercent(50);
        const CUpdateRecord end = journal.finish(EUpdateOutcome::Updated, true, {}, "2.0");
        setrlimit(RLIMIT_FSIZE, &before);
        qInstallMessageHandler(oldMessages);
        std::signal(SIGXFSZ, oldHandler);
        QCOMPARE(end.reportedVersion, QString("2.0"));
        QCOMPARE(warningCount, 1);
    }
    QCOMPARE(getNames(), QStringList());
}

QTEST_GUILESS_MAIN(CUpdateJournalTest)

#include "tst_updatejournal.moc"
