#include "updatefilebuilder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using Test::writeFile;

/// Runs the built program in a folder of its own.
class CGufToolTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void packsFillsInAndShows();
    void packsTheSameBytesAgain();
    void refusesFaultySources();
    void reportsFaultyFile();
    void tellsUsage();

private:
    QScopedPointer<QTemporaryDir> m_folder;
};

static const QByteArray PAYLOAD = QByteArray(5000, 'p');
static const QByteArray MANIFEST
    = Test::CUpdateFileBuilder::makeManifest(QStringLiteral("images/a.img"), PAYLOAD);

/// A manifest that leaves out what can be filled in.
static QByteArray getSource()
{
    const int begin = MANIFEST.indexOf("\"size\"");
    return QByteArray(MANIFEST).remove(begin, MANIFEST.indexOf("\"targetFile\"") - begin);
}

static QByteArray readFile(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The exit code and what was printed, which has to be on the error output when the code is not 0.
static QString run(const QString &arguments)
{
    QProcess process;
    process.start(GUFTOOL_PATH, arguments.split(' ', Qt::SkipEmptyParts));
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return process.errorString();
    const QByteArray output = process.readAllStandardOutput();
    const QByteArray errorOutput = process.readAllStandardError();
    if (!(process.exitCode() == 0 ? errorOutput : output).isEmpty())
        return "Printed on both: " + output + errorOutput;
    return QString::number(process.exitCode()) + ' ' + output + errorOutput;
}

void CGufToolTest::init()
{
    m_folder.reset(new QTemporaryDir);
    QVERIFY(QDir::setCurrent(m_folder->path()) && QDir().mkpath("source/images"));
    writeFile("source/update.json", getSource());
    writeFile("source/images/a.img", PAYLOAD);
    writeFile("source/notes.txt", "not packed");
}

void CGufToolTest::packsFillsInAndShows()
{
    QVERIFY(run("pack source a.guf").startsWith("0 "));
    // Nothing of the work is left beside the file.
    const QStringList names = QDir().entryList(QDir::AllEntries | QDir::Hidden);
    QCOMPARE(names, QStringList({".", "..", "a.guf", "source"}));

    // What is shown is the manifest itself with what its source left out.
    const auto getUpdate = [](const QByteArray &json) {
        return QJsonDocument::fromJson(json).object().value("updates").toArray().at(0).toObject();
    };
    const QString json = run("inspect --json a.guf").mid(2).remove("\"description\": \"\",");
    QCOMPARE(getUpdate(json.toUtf8()), getUpdate(MANIFEST));
    const QString text = run("inspect a.guf");
    QVERIFY(text.contains("  Release notes:    - One\n                    - Two\n"));
    QVERIFY(text.contains("by size  images/a.img (5000 bytes) to FirmwareImage  [Image]\n"));
}

void CGufToolTest::packsTheSameBytesAgain()
{
    run("pack source a.guf");
    QFile image("source/images/a.img");
    const QDateTime time(QDate(2001, 1, 1), QTime(1, 1));
    QVERIFY(image.open(QIODevice::ReadWrite));
    QVERIFY(image.setFileTime(time, QFileDevice::FileModificationTime));
    run("pack source b.guf");
    QVERIFY(!readFile("a.guf").isEmpty() && readFile("a.guf") == readFile("b.guf"));
}

void CGufToolTest::refusesFaultySources()
{
    writeFile("a.guf", "packed before");
    const auto refuse = [](const char *before, const QByteArray &after, const QString &fault) {
        writeFile("source/update.json", getSource().replace(before, after));
        const QString result = run("pack source a.guf");
        const bool isOneLine = result.startsWith("1 ") && result.count('\n') == 1;
        QVERIFY2(isOneLine && result.endsWith(fault + '\n'), qPrintable(result));
        QCOMPARE(readFile("a.guf"), QByteArray("packed before"));
    };
    refuse("\"updates\":", "\"updates\"",
           R"(line 3, column 13: expected a colon after "updates", found "[")");
    refuse("\"updates\": [", "\"updates\": {}, \"x\": [",
           R"(update.json: the field "x" is unknown; known here are formatVersion, updates)");
    refuse("a.img", "b.img", R"(the payload "images/b.img" is missing in the folder)");
    refuse("images/a.img", "../a.img",
           "steps[3].payload\" has an empty part or one of dots only; use a plain path");
    refuse("\"targetFile\"", "\"size\": 4999, \"targetFile\"",
           R"("images/a.img" is too long: it has 5000 bytes where update.json says 4999)");
    refuse("\"targetFile\"", "\"sha256\": \"" + QByteArray(64, '0') + "\", \"targetFile\"",
           R"(the payload "images/a.img" does not match its SHA-256 in update.json)");
}

void CGufToolTest::reportsFaultyFile()
{
    writeFile("a.guf", "no archive");
    const QString noZip = "/a.guf: this is not an update file, as it is not a ZIP archive\n";
    for (const char *command : {"verify a.guf", "inspect a.guf", "inspect --json a.guf"})
        QCOMPARE(run(command), "1 Update file " + m_folder->path() + noZip);
    const QString result = run("pack source missing/a.guf");
    QVERIFY(result.endsWith(": its folder does not exist or is read-only\n"));
    QVERIFY(run("pack source source").startsWith("1 "));
}

void CGufToolTest::tellsUsage()
{
    for (const char *arguments :
         {"", "unpack a", "verify --fast a", "verify --json a", "verify", "inspect a b", "pack a"})
        QVERIFY2(run(arguments).startsWith("2 ") && run(arguments).contains("Usage: guftool"),
                 arguments);
    QVERIFY(run("--help").startsWith("0 Usage: guftool"));
}

QTEST_GUILESS_MAIN(CGufToolTest)
#include "tst_guftool.moc"
