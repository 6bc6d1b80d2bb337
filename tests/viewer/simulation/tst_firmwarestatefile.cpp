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
    void remembersAndForgets();
    void putsDamagedFileAside();
    void keepsOldFileWhenWritingFails();

private:
    const QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath("some/where/firmware.json");
};

void CFirmwareStateFileTest::remembersAndForgets()
{
    CFirmwareStateFile first(m_path);
    first.setVersion("\u00FC \"b\"", "2.0");
    first.setVersion("a", "3.0");
    CFirmwareStateFile second(m_path);
    QCOMPARE(second.getVersion("\u00FC \"b\""), QString("2.0"));
    // No temporary file is left behind.
    QCOMPARE(QFileInfo(m_path).dir().entryList(QDir::Files | QDir::Hidden).size(), 1);
    second.clear();
    QCOMPARE(CFirmwareStateFile(m_path).getVersion("a"), QString());
}

void CFirmwareStateFileTest::putsDamagedFileAside()
{
    for (const QByteArray &content :
         {QByteArray(R"({"format": 1, "firmware": {"a": "1.)"),
          QByteArray(R"({"format": 2, "firmware": {}})"),
          QByteArray(R"({"format": 1, "firmware": {"a": 1}})"),
          QByteArray(R"({"format": 1, "firmware": {"a": "1\n2"}})"), QByteArray("\0\1\2\xFF", 4)}) {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        file.close();
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression("cannot be read .*renamed to .*json\\.damaged"));
        CFirmwareStateFile state(m_path);
        QCOMPARE(state.getVersion("a"), QString());
        QFile aside(m_path + ".damaged");
        QVERIFY(aside.open(QIODevice::ReadOnly));
        QCOMPARE(aside.readAll(), content);
        state.setVersion("a", "1.0"); // from then on it works as ever
        QCOMPARE(CFirmwareStateFile(m_path).getVersion("a"), QString("1.0"));
    }
}

void CFirmwareStateFileTest::keepsOldFileWhenWritingFails()
{
    // A folder in the file's place cannot be replaced, not even by root.
    const QString path = m_folder.filePath("taken");
    CFirmwareStateFile state(path);
    QVERIFY(QDir().mkpath(path + "/inner"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be written to .*taken"));
    state.setVersion("a", "1.0");
    QCOMPARE(state.getVersion("a"), QString("1.0"));
    QVERIFY(QDir(path + "/inner").exists());
}

QTEST_GUILESS_MAIN(CFirmwareStateFileTest)
#include "tst_firmwarestatefile.moc"
