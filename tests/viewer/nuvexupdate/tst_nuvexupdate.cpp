#include "support/loopbackonly.h"
#include "support/virtualcameraprocess.h"
#include "testmaker.h"
#include "viewer/update/updatehistory.h"
#include "viewer/update/updatejournal.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

using namespace Viewer::Update;

static constexpr int PROGRAM_TIME = 60000; // milliseconds; far more than it needs
static const QString UPDATE_FILE = SAMPLES "/vx-1400m_2.0.0.guf";
static const QString FIRST = "gige-40012345";

/// Runs the finished program, with simulated cameras in a home of their own.
class CNuvexUpdateTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void endsWithTheRightCode_data();
    void endsWithTheRightCode();
    void usesOnlySignedFiles();
    void leavesOutWhatIsDone();
    void beginsNoFurtherCamera_data();
    void beginsNoFurtherCamera();
    void finishesWhatRunsWhenStopped();
    void passesOverWhatIsBeingUpdated();
    void resumesWhatWasInterrupted();
    void updatesWithoutReadersAndFolders();
    void saysWhichFileHasVanished();
    void updatesCamerasOnUsb();
    void asksAtATerminal();
    void printsWhatTheSchemaSays();
    void completesEveryOption();

private:
    /// The default cameras with @p after in place of @p before, as an option.
    QString describeCameras(const QByteArray &before, const QByteArray &after) const;

    /// Begins "nuvexupdate <arguments>"; "FILE" among them is the update file.
    std::unique_ptr<QProcess> start(const QString &arguments) const;
    void run(const QString &arguments, int exitCode, const QString &sentence = {});
    void waitFor(QProcess &process, const QByteArray &text);
    QString readHistory() const;

    QTemporaryDir m_folder;
    int m_homeCount = 0;
    QDir m_home;
    QByteArray m_output;
};

void CNuvexUpdateTest::init()
{
    m_home.setPath(m_folder.filePath(QString::number(++m_homeCount)));
    QVERIFY(m_home.mkpath("."));
    for (const char *variable :
         {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "TMPDIR"})
        qputenv(variable, m_home.path().toUtf8());
}

QString CNuvexUpdateTest::describeCameras(const QByteArray &before, const QByteArray &after) const
{
    QFile source(DEFAULT_CAMERAS);
    QFile description(m_home.filePath("cameras.json"));
    if (!source.open(QIODevice::ReadOnly) || !description.open(QIODevice::WriteOnly))
        qFatal("no description of cameras");
    QByteArray cameras = source.readAll();
    if (!cameras.contains(before))
        qFatal("no %s in the description of cameras", before.constData());
    description.write(cameras.replace(before, after));
    return " --cameras " + description.fileName();
}

std::unique_ptr<QProcess> CNuvexUpdateTest::start(const QString &arguments) const
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::MergedChannels);
    process->setWorkingDirectory(m_home.path());
    QStringList list = arguments.split(' ', Qt::SkipEmptyParts);
    list.replaceInStrings("FILE", UPDATE_FILE);
    process->start(NUVEXUPDATE, list);
    return process;
}

void CNuvexUpdateTest::run(const QString &arguments, int exitCode, const QString &sentence)
{
    const auto process = start(arguments);
    QVERIFY(process->waitForFinished(PROGRAM_TIME));
    m_output = process->readAll();
    QCOMPARE(process->exitStatus(), QProcess::NormalExit);
    QVERIFY2(process->exitCode() == exitCode, m_output);
    QVERIFY2(m_output.contains(sentence.toUtf8()), m_output);
}

void CNuvexUpdateTest::waitFor(QProcess &process, const QByteArray &text)
{
    m_output.clear();
    while (!m_output.contains(text)) {
        QVERIFY2(process.waitForReadyRead(PROGRAM_TIME), m_output);
        m_output += process.readAll();
    }
}

/// "40012345 1 2.0.0": the serial number, the outcome, the version reported last; by serial number.
QString CNuvexUpdateTest::readHistory() const
{
    QStringList lines;
    const QString folder = m_home.filePath("nuvexviewer/updates");
    for (const auto &record : CUpdateHistory(CUpdateHistory::getPath(folder)).read().records)
        lines.append(QString("%1 %2 %3")
                         .arg(record.serialNumber)
                         .arg(int(record.outcome))
                         .arg(record.reportedVersion));
    lines.sort();
    return lines.join(", ");
}

void CNuvexUpdateTest::endsWithTheRightCode_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("sentence");
    const auto row = [](const QString &arguments, int exitCode, const char *sentence) {
        QTest::newRow(qPrintable(arguments)) << arguments << exitCode << QString(sentence);
    };
    row("--help", 0, "list|check|update|resume|history [file.guf]");
    row("list", 0, "gige-40012345  Line 1 left   VX-1400M  40012345");
    row("check FILE", 0, "gige-40012345  Line 1 left   upgrade 1.2.0 -> 2.0.0");
    row("check FILE", 0, "Microscope    does not fit: it is for the model VX-1400M");
    row("update FILE --all --dry-run", 0, "6 would be updated, 6 left alone");
    row("history", 0, "Serial number");
    row("resume", 0, "No update was interrupted.");
    row("", 2, "No command is given; there are list, check,");
    row("paint", 2, "There is no command \"paint\"");
    row("check", 2, "\"check\" needs an update file.");
    row("list FILE", 2, "Unexpected argument");
    row("list --csv", 2, "\"list\" has no option --csv.");
    row("check FILE --all", 2, "\"check\" has no option --all.");
    row("resume --all", 2, "\"resume\" has no option --all.");
    row("update FILE", 2, "Say which cameras: --camera, --model or --all.");
    row("update FILE --all --camera x", 2, "exclude each other");
    row("update FILE --all --parallel 0", 2, "--parallel takes a number from 1 to 256, not \"0\".");
    row("update FILE --all --max-failures -1", 2, "--max-failures takes a number");
    row("update FILE --all --canary x", 2, "--canary takes a number of cameras, not \"x\".");
    row("update FILE --all", 2, "There is no terminal to ask at");
    row("list --cameras nowhere.json", 2, "nowhere.json");
    row("list --no-simulation", 3, "No camera was found.");
    row("update FILE --camera gige-4001234 --yes", 3,
        "the nearest are gige-40012345 (40012345), gige-40012346 (40012346), gige-4001235");
    row("update FILE --camera usb-22900117 --yes", 3,
        "The file does not fit camera Microscope: it is for the model VX-1400M.");
    row("update FILE --model X --yes", 3, "There is no camera of the model \"X\".");
    row("update " SAMPLES "/gv-1400m_2.0.0.guf --all --yes", 3, "12 left alone");
    row("check nowhere.guf", 4, "nowhere.guf");
    row("update " DEFAULT_CAMERAS " --all --yes", 4, "default.json");
    row("update " SAMPLES "/ux-900m_1.6.0.guf --all --yes --speed 100", 5,
        "Test bench (22900118)    1.5.0  1.5.0           not updated: its status is 16: the boot "
        "loader is too old");
}

void CNuvexUpdateTest::endsWithTheRightCode()
{
    QFETCH(QString, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, sentence);
    run(arguments, exitCode, sentence);
}

void CNuvexUpdateTest::usesOnlySignedFiles()
{
    const TestSupport::CTestMaker maker("Maker");
    QVERIFY(m_home.mkpath("nuvexviewer/trust.d"));
    maker.write(m_home.filePath("nuvexviewer/trust.d/maker"));
    QVERIFY(QFile::remove(m_home.filePath("nuvexviewer/trust.d/maker.key")));
    maker.write(m_home.filePath("maker"));
    QVERIFY(QFile::copy(UPDATE_FILE, m_home.filePath("own.guf")));
    const QString update = "update own.guf --camera 40012345 --yes --speed 100";
    const QString refused = "own.guf: it is not signed; only update files of trusted makers can be "
                            "used here\n";
    run("check own.guf", 0, "own.guf: it is not signed\n");
    run("check own.guf --require-signature", 4, refused);
    run(update + " --require-signature", 4, refused);
    QFile policy(m_home.filePath("nuvexviewer/policy.conf"));
    QVERIFY(policy.open(QIODevice::WriteOnly) && policy.write("signatures = require\n") > 0);
    policy.close();
    run(update, 4, refused);
    QCOMPARE(
        QProcess::execute(GUFTOOL,
                          {"sign", m_home.filePath("own.guf"), "--certificate",
                           m_home.filePath("maker.pem"), "--key", m_home.filePath("maker.key")}),
        0);
    run("check own.guf", 0, "own.guf: it is signed by CN=Maker\n");
    run(update, 0, "1 updated");
    const QDir logs(m_home.filePath("nuvexviewer/logs"));
    QFile log(logs.filePath(logs.entryList({"nuvexupdate_*.log"}).value(0)));
    QVERIFY(log.open(QIODevice::ReadOnly));
    QVERIFY(log.readAll().contains("own.guf: it is signed by CN=Maker\n"));
    QVERIFY(
        QFile::setPermissions(m_home.filePath("nuvexviewer/trust.d"), QFile::Permissions(0x7777)));
    run("resume --yes", 0);
    run(update + " --allow-reinstall", 4, "trust.d\" is not read: users other than its owner");
}

void CNuvexUpdateTest::leavesOutWhatIsDone()
{
    run("update FILE --all --yes --speed 100", 0, "6 updated, 6 left alone");
    run("update FILE --all --yes --speed 100", 0, "12 left alone");
    QCOMPARE(m_output.count("it has version 2.0.0 already (--allow-reinstall)"), 6);
    const QString older = "update " SAMPLES "/vx-1400m_1.1.0.guf --camera 40012345";
    run(older + " --yes", 0, "it has the newer version 2.0.0 (--allow-downgrade)");
    run(older + " --yes --allow-downgrade --speed 100", 0, "1 updated");
    run("history --csv", 0, "Line 1 left,40012345,2.0.0,1.1.0,Updated,");
    QCOMPARE(m_output.count('\n'), 8);
    const QStringList logs
        = QDir(m_home.filePath("nuvexviewer/logs")).entryList({"nuvexupdate_*.log"});
    QCOMPARE(logs.size(), 2);
}

void CNuvexUpdateTest::beginsNoFurtherCamera_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("counts");
    QTest::newRow("after the first failure") << "--parallel 1"
                                             << "1 failed, 5 not begun";
    QTest::newRow("after two") << "--parallel 1 --max-failures 2"
                               << "4 updated, 2 failed";
    QTest::newRow("after canaries that fail") << "--canary 2 --max-failures 9"
                                              << "1 updated, 1 failed, 4 not begun";
    QTest::newRow("but all after canaries that succeed")
        << "--canary 2 --max-failures 9 --allow-downgrade"
        << "5 updated, 1 failed";
}

void CNuvexUpdateTest::beginsNoFurtherCamera()
{
    QFETCH(QString, options);
    QFETCH(QString, counts);
    // The first camera fails, or the last one.
    const bool isLast = options.contains("downgrade");
    const QByteArray name = isLast ? "\"Line 3 side\"" : "\"Line 1 left\"";
    QString cameras
        = describeCameras(name + ',', name + ", \"faults\": {\"uploadFailsAtByte\": 1000},");
    if (counts.contains("2 failed")) {
        QFile description(m_home.filePath("cameras.json"));
        QVERIFY(description.open(QIODevice::ReadWrite));
        const QByteArray both = description.readAll().replace(
            "\"Line 3 side\",", "\"Line 3 side\", \"faults\": {\"uploadFailsAtByte\": 1000},");
        QVERIFY(description.seek(0) && description.write(both) == both.size());
    }
    run("update FILE --model VX-1400M --yes --speed 100 " + options + cameras, 1, counts);
    QVERIFY2(m_output.contains("FAILED: Camera Line "), m_output);
    QVERIFY2(m_output.contains("so repeat it before the camera is used"), m_output);
}

void CNuvexUpdateTest::finishesWhatRunsWhenStopped()
{
    const auto process = start("update FILE --model VX-1400M --yes --speed 10 --parallel 2");
    waitFor(*process, "FileUpload");
    kill(pid_t(process->processId()), SIGINT);
    waitFor(*process, "No further camera begins.");
    kill(pid_t(process->processId()), SIGTERM);
    waitFor(*process, "No further camera begins.");
    QVERIFY(process->waitForFinished(PROGRAM_TIME));
    QCOMPARE(process->exitCode(), 6);
    m_output = process->readAll();
    QVERIFY2(m_output.contains("2 updated, 4 not begun"), m_output);
    QCOMPARE(readHistory(), QString("40012345 1 2.0.0, 40012346 1 2.0.0"));
}

void CNuvexUpdateTest::passesOverWhatIsBeingUpdated()
{
    CUpdateRecord record;
    record.cameraId = FIRST;
    record.begin = QDateTime::currentDateTimeUtc();
    const CUpdateJournal other(m_home.filePath("nuvexviewer/updates"), record);
    run("update FILE --model VX-1400M --yes --speed 100", 5, "5 updated, 1 in use");
    QVERIFY2(m_output.contains("its status is 1002: being updated (0 %)"), m_output);
}

void CNuvexUpdateTest::resumesWhatWasInterrupted()
{
    const QString folder = m_home.filePath("nuvexviewer/updates");
    const QString own = m_home.filePath("own.guf");
    QVERIFY(QFile::copy(UPDATE_FILE, own));
    const auto process = start("update own.guf --camera 40012345 --yes --speed 10");
    QTRY_VERIFY_WITH_TIMEOUT(readJournals(folder).entries.value(0).record.hasWritten, PROGRAM_TIME);
    // The worker is in a session of its own.
    QCOMPARE(QProcess::execute("pkill", {"-KILL", "-P", QString::number(process->processId())}), 0);
    QVERIFY(process->waitForFinished(PROGRAM_TIME));
    QCOMPARE(process->exitCode(), 1);

    QVERIFY(QFile::rename(own, own + "2") && QFile::copy(SAMPLES "/vx-1400m_1.1.0.guf", own));
    run("resume --yes", 4, "is not the one any more with which its update was begun");
    QVERIFY(QFile::remove(own) && QFile::rename(own + "2", own));
    run("resume --yes --no-simulation", 3, "Camera Line 1 left does not answer.");
    run("resume --dry-run", 0, "1 would be updated");
    run("resume --yes --speed 100", 0, "1 updated");
    run("resume --yes", 0, "No update was interrupted.");
    QCOMPARE(readHistory(), QString("40012345 1 2.0.0, 40012345 4 "));
}

void CNuvexUpdateTest::updatesWithoutReadersAndFolders()
{
    // A reader that goes after the first line.
    QProcess shell;
    shell.start("sh",
                {"-c",
                 QString("%1 update %2 --model VX-1400M --yes --speed 20 | head -n 1")
                     .arg(NUVEXUPDATE, UPDATE_FILE)});
    QVERIFY(shell.waitForFinished(PROGRAM_TIME));
    QCOMPARE(readHistory().count(" 1 2.0.0"), 6);
    QVERIFY(shell.readAllStandardError().contains("the updates go on, see the history"));

    // No place for logs, journals and history.
    QVERIFY(QDir(m_home.filePath("nuvexviewer")).removeRecursively());
    QFile file(m_home.filePath("nuvexviewer"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    run("update FILE --camera 40012345 --yes --speed 100 --allow-reinstall", 0, "1 updated");
    QVERIFY2(m_output.contains("cannot be written: Not a directory; the updates go on"), m_output);
    QVERIFY2(m_output.contains("should the update be interrupted, the next start"), m_output);
    run("list --network --no-simulation --camera-address 300.1.1.1", 2, "300.1.1.1");
}

void CNuvexUpdateTest::saysWhichFileHasVanished()
{
    QVERIFY(QFile::copy(UPDATE_FILE, m_home.filePath("own.guf")));
    const auto process = start("update own.guf --model VX-1400M --yes --speed 10 --parallel 1");
    waitFor(*process, "FileUpload");
    QVERIFY(QFile::remove(m_home.filePath("own.guf")));
    QVERIFY(process->waitForFinished(PROGRAM_TIME));
    QCOMPARE(process->exitCode(), 1);
    m_output = process->readAll();
    QVERIFY2(m_output.contains("1 updated, 1 failed, 4 not begun"), m_output);
    QVERIFY2(m_output.contains("FAILED: Camera Line 1 right: ")
                 && m_output.contains("own.guf: the file does not exist"),
             m_output);
}

void CNuvexUpdateTest::updatesCamerasOnUsb()
{
    if (!TestSupport::CVirtualCameraProcess::isOnUsb())
        QSKIP("It is about USB.");
    SKIP_IF_OTHERS_HEAR_IT();
    struct CRun
    {
        const char *options;
        int exitCode;
        const char *sentence;
        QString flash{};
        QProcess bus{};
    };
    // A device that has restarted has another address on the bus.
    CRun runs[]{{"", 0, "updated, 1.2.0 -> 2.0.0, in "},
                {"--lose-ack 30 --cut-ack 40 --mistake-ack 50", 0, "1 updated"},
                {"--unplug-after 20480", 1, "\"FirmwareImage\" failed at byte 16384: "},
                {"--stall-after 20480", 1, "\"FirmwareImage\" failed at byte 16384: "},
                {"--refuse FirmwareActivate", 1, "\"FirmwareActivate\" could not be executed"},
                {"--old-version", 1, "is \"1.2.0\" instead of \"2.0.0\"; the update had"},
                {"--never-return", 1, "it did not come back from its reset; switch it off"},
                {"--never-open", 1, "it did not answer in time; switch it off and on and"},
                {"--twin", 5, "status is 1001: same serial number as another camera"},
                {"--no-access", 5,
                 "status is 1003: no right to open it: the rule "
                 "70-nuvexviewer-usb3vision.rules for udev is missing"}};
    // All at once, since what never comes is awaited for a minute.
    for (CRun &run : runs) {
        init();
        run.flash = m_home.filePath("flash");
        QStringList arguments = QString(run.options).split(' ', Qt::SkipEmptyParts);
        arguments << "--flash" << run.flash << "--" << NUVEXUPDATE << "update"
                  << SAMPLES "/gv-1400m_2.0.0.guf"
                  << "--all"
                  << "--yes"
                  << "--network"
                  << "--no-simulation";
        run.bus.setProcessChannelMode(QProcess::MergedChannels);
        run.bus.start(VIRTUAL_CAMERA, QStringList("usb") + arguments);
    }
    QFile payload(SAMPLE_PAYLOAD);
    QVERIFY(payload.open(QIODevice::ReadOnly));
    const QByteArray image = payload.readAll();
    for (CRun &run : runs) {
        QVERIFY(run.bus.waitForFinished(3 * PROGRAM_TIME));
        m_output = run.options + ('\n' + run.bus.readAll());
        QVERIFY2(run.bus.exitCode() == run.exitCode && m_output.contains(run.sentence), m_output);
        QFile flash(run.flash);
        QVERIFY2(run.exitCode != 0 || flash.open(QIODevice::ReadOnly), m_output);
        QVERIFY2(run.exitCode != 0 || flash.readAll() == image, m_output);
    }
}

void CNuvexUpdateTest::asksAtATerminal()
{
    // script(1) makes a terminal; what is written to it is typed. The update lasts longer than the
    // pause between two looks at its progress.
    qputenv("TERM", "xterm");
    QProcess terminal;
    const QString command
        = QString("%1 update %2 --camera 40012345 --speed 10").arg(NUVEXUPDATE, UPDATE_FILE);
    for (const auto &[answer, exitCode] : {std::pair("n\n", 6), {"y\n", 0}}) {
        terminal.start("script", {"-qec", "stty cols 60; " + command, "/dev/null"});
        waitFor(terminal, "Update 1 camera? [y/N] ");
        terminal.write(answer);
        QVERIFY(terminal.waitForFinished(PROGRAM_TIME));
        QCOMPARE(terminal.exitCode(), exitCode);
    }
    const QString screen = QString::fromUtf8(terminal.readAll());
    QVERIFY2(screen.contains(QRegularExpression(" \\d+ %  ?\\d+:\\d\\d left  \\d/7 ")),
             qPrintable(screen));
    QVERIFY2(screen.contains("\x1b[32mLine 1 left (40012345): updated, 1.2.0 -> 2.0.0"),
             qPrintable(screen));
}

void CNuvexUpdateTest::printsWhatTheSchemaSays()
{
    const QString check = R"(
import json, sys, jsonschema
schema = json.load(open(sys.argv[1]))
jsonschema.Draft202012Validator.check_schema(schema)
validator = jsonschema.Draft202012Validator(schema)
for line in open(sys.argv[2]):
    for error in validator.iter_errors(json.loads(line)):
        sys.exit(f"{error.message[:300]} in {line}")
)";
    if (QProcess::execute("python3", {"-c", "import jsonschema"}) != 0)
        QSKIP("python3-jsonschema is not installed");
    const QString cameras
        = describeCameras("\"Line 1 right\",",

                          "\"Line 1 right\", \"faults\": {\"neverReturnsFromReset\": true},");
    QFile lines(m_home.filePath("lines.json"));
    QVERIFY(lines.open(QIODevice::WriteOnly));
    QHash<QString, int> events;
    const auto add = [&](const QString &arguments, int exitCode) {
        run(arguments + cameras + " --json --speed 100", exitCode);
        lines.write(m_output);
        QJsonObject last;
        for (const QByteArray &line : m_output.trimmed().split('\n')) {
            last = QJsonDocument::fromJson(line).object();
            ++events[last.value("event").toString()];
        }
        QVERIFY2(last.value("exitCode").toInt(-1) == exitCode, m_output);
    };
    add("list", 0);
    add("check FILE", 0);
    add("update FILE --all --dry-run", 0);
    add("update FILE --all --yes --parallel 2", 1);
    add("update FILE --camera 1 --yes", 3);
    add("resume", 0);
    add("history", 0);
    lines.close();
    QProcess python;
    python.start("python3", {"-c", check, SCHEMA, lines.fileName()});
    QVERIFY(python.waitForFinished(PROGRAM_TIME));
    QVERIFY2(python.exitCode() == 0, python.readAllStandardError());
    for (const char *event : {"camera", "signature", "entry", "verdict", "message", "begin", "step",
                              "progress", "end", "history", "summary"})
        QVERIFY2(events.value(event) > 0, event);
}

void CNuvexUpdateTest::completesEveryOption()
{
    const auto complete = [](const QString &words) {
        QProcess bash;
        bash.start("bash",
                   {"-c",
                    QString("source %1; COMP_WORDS=(nuvexupdate %2); "
                            "COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _nuvexupdate; "
                            "printf '%s\\n' \"${COMPREPLY[@]}\" | sort")
                        .arg(COMPLETION, words)});
        bash.waitForFinished(PROGRAM_TIME);
        return QString::fromUtf8(bash.readAll()).split('\n', Qt::SkipEmptyParts);
    };
    run("--help", 0);
    QStringList options;
    const QRegularExpression option("--[a-z-]+(?=[ ,]{2}| <)");
    for (auto match = option.globalMatch(m_output); match.hasNext();)
        options.append(match.next().captured());
    options.sort();
    QStringList completed = complete("--") + complete("update --") + complete("history --");
    completed.removeDuplicates();
    completed.sort();
    QCOMPARE(completed, options);
    QCOMPARE(complete("update --c"),
             QStringList({"--camera", "--camera-address", "--cameras", "--canary"}));
    QCOMPARE(complete("h"), QStringList("history"));
    QVERIFY(complete("check " SAMPLES "/").contains(SAMPLES "/vx-1400m_2.0.0.guf"));
}

QTEST_GUILESS_MAIN(CNuvexUpdateTest)
#include "tst_nuvexupdate.moc"
