#include "testmaker.h"
#include "updatefilebuilder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

using TestSupport::writeFile;

/// Runs the built program in a folder of its own.
class CGufToolTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void packsFillsInAndShows();
    void signsAndVerifies();
    void asksForThePassphrase();
    void addsTimeStamps();
    void refusesFaultySources();
    void speaksTheUsersLanguage();
    void saysWhenDigestsCannotBeComputed();

private:
    QScopedPointer<QTemporaryDir> m_folder;
};

static const QByteArray PAYLOAD = QByteArray(100000, 'p'); // more than is read at a time
static const QByteArray MANIFEST
    = TestSupport::makeManifest(QStringLiteral("images/a.img"), PAYLOAD);

/// A manifest that leaves out what can be filled in.
static QByteArray getSource()
{
    const int begin = MANIFEST.indexOf("\"size\"");
    return QByteArray(MANIFEST).remove(begin, MANIFEST.indexOf("\"targetFile\"") - begin);
}

/// Whether @p command, in this folder, starts and ends well.
static bool runProgram(const QString &command)
{
    QStringList parts = command.split(' ');
    return QProcess::execute(parts.takeFirst(), parts) == 0;
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
    QVERIFY(run("inspect a.guf")
                .contains("by size  images/a.img (100000 bytes) to FirmwareImage  [Image]\n"));
}

void CGufToolTest::signsAndVerifies()
{
    const TestSupport::CTestMaker maker("Maker");
    const TestSupport::CTestMaker other("Other");
    QVERIFY(QDir().mkpath("trust") && QDir().mkpath("others"));
    maker.write("maker");
    writeFile("trust/maker.pem", maker.getCertificate());
    writeFile("others/other.pem", other.getCertificate());
    writeFile("locked.key", maker.getKey("a passphrase"));
    writeFile("passphrase", "a passphrase\n");
    QVERIFY(run("pack source a.guf").startsWith("0 "));
    QVERIFY(
        QFile::setPermissions("a.guf", QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
    const auto check = [](const QString &command, const QString &end) {
        const QString result = run(command);
        QVERIFY2(result.startsWith(end.left(2)) && result.contains(end.mid(2)), qPrintable(result));
    };
    check("verify a.guf", "0 faultless");
    check("verify a.guf --trust trust", "3 a.guf: it is not signed\n");
    check("inspect a.guf", "0 State:            it is not signed\n");
    QFile file("a.guf");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    other.write("other");
    check("sign a.guf --certificate maker.pem --key other.key", "1 is not that of the certificate");
    check("sign a.guf --certificate maker.pem --key locked.key --passphrase-file maker.pem",
          "1 its passphrase is wrong");
    check("sign source/images/a.img --certificate maker.pem --key maker.key",
          "1 not a ZIP archive");
    check("sign a.guf --certificate maker.pem", "2 --certificate and --key");
    check("pack source b.guf --key maker.key", "2 has no option --key");
    check("verify a.guf --trust nowhere", "2 is not a folder");
    QVERIFY(file.seek(0) && file.readAll() == before);

    check("sign a.guf --certificate maker.pem --key locked.key --passphrase-file passphrase",
          "0 Signed a.guf\n");
    check("pack source b.guf --sign --certificate other.pem --key other.key", "0 Packed b.guf");
    check("verify a.guf", "0 faultless");
    check("verify a.guf --trust trust", "0 Signed by CN=Maker, SHA-256 fingerprint ");
    check("verify a.guf --trust others", "3 CN=Maker is not among the trusted makers\n");
    check("inspect a.guf --trust trust", "0 Issuer:           CN=Maker\n");
    check("inspect a.guf --json --trust trust", "0 \"state\": \"trusted\"");
    check("sign b.guf --certificate maker.pem --key maker.key", "0 Signed b.guf\n");
    check("verify b.guf --trust trust", "0 Signed by CN=Maker");
    check("verify b.guf --trust others", "0 Signed by CN=Other");
    QVERIFY(QFile::permissions("a.guf") & QFile::ReadOther);
}

void CGufToolTest::asksForThePassphrase()
{
    // script(1) makes a terminal; what is written to it is typed.
    const TestSupport::CTestMaker maker("Maker");
    maker.write("maker");
    writeFile("locked.key", maker.getKey("a passphrase"));
    QVERIFY(run("pack source a.guf").startsWith("0 "));
    QProcess terminal;
    terminal.start(
        "script",
        {"-qec", GUFTOOL_PATH " sign a.guf --certificate maker.pem --key locked.key", "/dev/null"});
    QByteArray screen;
    while (!screen.contains("Passphrase of the key:")) {
        QVERIFY2(terminal.waitForReadyRead(), screen);
        screen += terminal.readAll();
    }
    terminal.write("a passphrase\n");
    QVERIFY(terminal.waitForFinished());
    screen += terminal.readAll();
    QVERIFY2(terminal.exitCode() == 0 && !screen.contains("a passphrase"), screen);
}

void CGufToolTest::addsTimeStamps()
{
    if (QStandardPaths::findExecutable("openssl").isEmpty())
        QSKIP("openssl is not installed");
    TestSupport::CTestMaker::COptions options;
    options.purpose = "critical,timeStamping";
    const TestSupport::CTestMaker maker("Maker");
    const TestSupport::CTestMaker clock("Clock", options);
    QVERIFY(QDir().mkpath("trust"));
    maker.write("trust/maker");
    clock.write("trust/clock");
    writeFile("serial", "01\n");
    writeFile("ts.cnf",
              "[tsa]\nserial = serial\nsigner_cert = trust/clock.pem\nsigner_key = "
              "trust/clock.key\nsigner_digest = sha256\ndefault_policy = 1.2.3.4\ndigests = "
              "sha256\n");
    QVERIFY(run("pack source a.guf").startsWith("0 "));
    QCOMPARE(run("stamp a.guf --query a.tsq"), QString("1 Update file a.guf: it is not signed\n"));
    QVERIFY(run("sign a.guf --certificate trust/maker.pem --key trust/maker.key").startsWith("0 "));
    QVERIFY(run("stamp a.guf --query a.tsq").contains("a.tsq, for an authority"));
    QVERIFY(
        runProgram("openssl ts -reply -config ts.cnf -section tsa -queryfile a.tsq -out a.tsr"));
    QVERIFY(run("stamp a.guf --response a.tsq").startsWith("1 "));
    QCOMPARE(run("stamp a.guf --response a.tsr"), QString("0 Stamped a.guf\n"));
    QVERIFY(run("stamp a.guf --query a.tsq").startsWith("1 "));
    QVERIFY(run("inspect a.guf --trust trust").contains("  Time stamp:       20"));
}

void CGufToolTest::refusesFaultySources()
{
    writeFile("a.guf", "no archive");
    const QString noZip = "this is not an update file, as it is not a ZIP archive\n";
    const auto refuse
        = [&noZip](const char *before, const QByteArray &after, const QString &fault) {
              writeFile("source/update.json", getSource().replace(before, after));
              const QString result = run("pack source a.guf");
              const bool isOneLine = result.startsWith("1 ") && result.count('\n') == 1;
              QVERIFY2(isOneLine && result.endsWith(fault + '\n'), qPrintable(result));
              QVERIFY(run("verify a.guf").endsWith("/a.guf: " + noZip)); // what was there before
          };
    refuse("\"updates\":", "\"updates\"", R"(expected a colon after "updates", found "[")");
    refuse("a.img", "b.img", R"(the payload "images/b.img" is missing in the folder)");
    refuse("images/a.img", "../a.img", "has an empty part or one of dots only; use a plain path");
    refuse("\"targetFile\"", "\"size\": 99999, \"targetFile\"", "where update.json says 99999");
    refuse("\"targetFile\"", "\"sha256\": \"" + QByteArray(64, '0') + "\", \"targetFile\"",
           "does not match its SHA-256 in update.json; one of the two was replaced");
    // Refused before anything is packed. The file has no blocks on the disk.
    const qint64 largest = 511 * 1024 * 1024;
    QVERIFY(QFile::resize("source/images/a.img", largest + 1));
    refuse("", "",
           QString("the payloads have %1 bytes together; at most %2 are allowed")
               .arg(largest + 1)
               .arg(largest));
    for (const char *command : {"verify a.guf", "inspect a.guf", "inspect --json a.guf"})
        QCOMPARE(run(command), "1 Update file " + m_folder->path() + "/a.guf: " + noZip);
    QVERIFY(run("unpack a.guf").startsWith("2 "));
    for (const char *target : {"missing/a.guf", "source"})
        QVERIFY(run(QString("pack source ") + target).startsWith("1 "));
}

void CGufToolTest::speaksTheUsersLanguage()
{
    const QStringList commands{"--help", "unpack a", "pack source a.guf", "verify a.guf"};
    QStringList english;
    for (const QString &command : commands)
        english += run(command).split('\n', Qt::SkipEmptyParts);
    QVERIFY(QDir().mkdir("faulty"));
    writeFile("faulty/update.json", "{ \"a\": tru }");
    const QMap<QByteArray, QString> faults{
        {"ko",
         "업데이트 파일 faulty: update.json의 1행 8열, 필드 \"a\": "
         "true 또는 false이(가) 필요하지만 \"tru\"이(가) 있습니다"},
        {"ja",
         "更新ファイル faulty: update.json、1 行 8 列、フィールド「a」: "
         "true または false の値が必要ですが、「tru」があります"},
        {"zh",
         "更新文件 faulty：update.json，第 1 行第 8 列，字段“a”："
         "应为布尔值 true 或 false，但实际为“tru”"}};
    for (const QByteArray &language : faults.keys()) {
        qputenv("LANGUAGE", language);
        QCOMPARE(run("pack faulty b.guf"), "1 " + faults.value(language) + '\n');
        for (const QString &command : commands) {
            const QStringList lines = run(command).split('\n', Qt::SkipEmptyParts);
            for (const QString &line : lines)
                QVERIFY2(!english.contains(line), qPrintable(line));
        }
    }
    qunsetenv("LANGUAGE");
}

void CGufToolTest::saysWhenDigestsCannotBeComputed()
{
    QVERIFY(run("pack source a.guf").startsWith("0 "));
    // OpenSSL as somebody may have set it up: without the provider that has the algorithms.
    writeFile("openssl.cnf",
              "openssl_conf = a\n[a]\nproviders = b\n[b]\nbase = c\n[c]\nactivate = 1\n");
    qputenv("OPENSSL_CONF", QFile::encodeName(m_folder->filePath("openssl.cnf")));
    for (const char *command : {"verify a.guf", "pack source b.guf"}) {
        const QString result = run(command);
        QVERIFY2(result.startsWith("1 ")
                     && result.contains(
                         "the SHA-256 of the payload \"images/a.img\" cannot be computed"),
                 qPrintable(result));
    }
    qunsetenv("OPENSSL_CONF");
}

QTEST_GUILESS_MAIN(CGufToolTest)
#include "tst_guftool.moc"
