#include "viewer/camerapool/simulation/firmwarestatefile.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using Viewer::CameraPool::Simulation::CFirmwareStateFile;

class CFirmwareStateFileTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void remembersAcrossObjects();
    void makesMissingFolder();
    void forgets();
    void putsDamagedFileAside_data();
    void putsDamagedFileAside();
    void keepsOldFileWhenWritingFails();
    void worksWithoutFile();

private:
    QScopedPointer<QTemporaryDir> m_folder;
    QString m_path;
};

void CFirmwareStateFileTest::init()
{
    m_folder.reset(new QTemporaryDir);
    m_path = m_folder->filePath(QStringLiteral("firmware.json"));
}

void CFirmwareStateFileTest::remembersAcrossObjects()
{
    CFirmwareStateFile first(m_path);
    QCOMPARE(first.getVersion(QStringLiteral("a")), QString());
    first.setVersion(QStringLiteral("a"), QStringLiteral("1.0"));
    first.setVersion(QString::fromUtf8("\xC3\xBC \"b\""), QStringLiteral("2.0"));
    first.setVersion(QStringLiteral("a"), QStringLiteral("3.0"));

    const CFirmwareStateFile second(m_path);
    QCOMPARE(second.getVersion(QStringLiteral("a")), QStringLiteral("3.0"));
    QCOMPARE(second.getVersion(QString::fromUtf8("\xC3\xBC \"b\"")), QStringLiteral("2.0"));
    QCOMPARE(second.getVersion(QStringLiteral("c")), QString());
    // No temporary file is left behind.
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
             QStringList(QStringLiteral("firmware.json")));
}

void CFirmwareStateFileTest::makesMissingFolder()
{
    const QString path = m_folder->filePath(QStringLiteral("some/where/firmware.json"));
    CFirmwareStateFile(path).setVersion(QStringLiteral("a"), QStringLiteral("1.0"));
    QCOMPARE(CFirmwareStateFile(path).getVersion(QStringLiteral("a")), QStringLiteral("1.0"));
}

void CFirmwareStateFileTest::forgets()
{
    CFirmwareStateFile file(m_path);
    file.setVersion(QStringLiteral("a"), QStringLiteral("1.0"));
    file.clear();
    QCOMPARE(file.getVersion(QStringLiteral("a")), QString());
    QCOMPARE(CFirmwareStateFile(m_path).getVersion(QStringLiteral("a")), QString());
}

void CFirmwareStateFileTest::putsDamagedFileAside_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut off") << QByteArray("{\"format\": 1, \"firmware\": {\"a\": \"1.");
    QTest::newRow("no object") << QByteArray("[1, 2]");
    QTest::newRow("other format") << QByteArray("{\"format\": 2, \"firmware\": {}}");
    QTest::newRow("no list of versions") << QByteArray("{\"format\": 1, \"firmware\": 3}");
    QTest::newRow("version is a number") << QByteArray("{\"format\":1,\"firmware\":{\"a\":1}}");
    QTest::newRow("version with a line break")
        << QByteArray("{\"format\":1,\"firmware\":{\"a\":\"1\\n2\"}}");
    QTest::newRow("binary") << QByteArray("\0\1\2\xFF", 4);
}

void CFirmwareStateFileTest::putsDamagedFileAside()
{
    QFETCH(QByteArray, content);
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();

    QTest::ignoreMessage(
        QtWarningMsg,
        QRegularExpression(QStringLiteral("firmware\\.json\" cannot be read .*"
                                          "renamed to .*firmware\\.json\\.damaged")));
    CFirmwareStateFile state(m_path);
    QCOMPARE(state.getVersion(QStringLiteral("a")), QString());
    QFile aside(m_path + QStringLiteral(".damaged"));
    QVERIFY(aside.open(QIODevice::ReadOnly));
    QCOMPARE(aside.readAll(), content);

    // From then on it works as ever, without a warning.
    state.setVersion(QStringLiteral("a"), QStringLiteral("1.0"));
    QCOMPARE(CFirmwareStateFile(m_path).getVersion(QStringLiteral("a")), QStringLiteral("1.0"));
}

void CFirmwareStateFileTest::keepsOldFileWhenWritingFails()
{
    // A folder in the file's place cannot be replaced, not even by root.
    const QString path = m_folder->filePath(QStringLiteral("taken"));
    CFirmwareStateFile state(path);
    QVERIFY(QDir().mkpath(path + QStringLiteral("/inner")));
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("cannot be written to .*taken")));
    state.setVersion(QStringLiteral("a"), QStringLiteral("1.0"));
    QCOMPARE(state.getVersion(QStringLiteral("a")), QStringLiteral("1.0"));
    QVERIFY(QDir(path + QStringLiteral("/inner")).exists());
}

void CFirmwareStateFileTest::worksWithoutFile()
{
    CFirmwareStateFile state{QString()};
    state.setVersion(QStringLiteral("a"), QStringLiteral("1.0"));
    QCOMPARE(state.getVersion(QStringLiteral("a")), QStringLiteral("1.0"));
    state.clear();
    QCOMPARE(state.getVersion(QStringLiteral("a")), QString());
}

QTEST_GUILESS_MAIN(CFirmwareStateFileTest)
#include "tst_firmwarestatefile.moc"
