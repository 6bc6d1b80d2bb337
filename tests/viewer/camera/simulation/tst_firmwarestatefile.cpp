#include "viewer/camera/simulation/firmwarestatefile.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <thread>

using Viewer::Camera::Simulation::CFirmwareStateFile;

class CFirmwareStateFileTest : public QObject
{
    Q_OBJECT

private slots:
    void remembersAndForgets();
    void putsDamagedFileAside();
    void severalViewersLoseNothing();
    void makesUpForWhatALockKeptOut();
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

void CFirmwareStateFileTest::severalViewersLoseNothing()
{
    const QString path = m_folder.filePath("shared.json");
    const auto write = [&path](const QString &camera, const QString &version) {
        CFirmwareStateFile state(path);
        for (int i = 0; i < 10; ++i)
            state.setVersion(camera + QString::number(i), version);
    };
    CFirmwareStateFile early(path);
    std::thread other(write, "x", "1.0");
    write("y", "2.0");
    other.join();
    early.setVersion("z", "3.0");
    early.setVersion("x0", "3.0"); // the last one to write a camera has written it
    const CFirmwareStateFile all(path);
    QCOMPARE(all.getVersion("x0"), QString("3.0"));
    QCOMPARE(all.getVersion("z"), QString("3.0"));
    for (int i = 1; i < 10; ++i) {
        QCOMPARE(all.getVersion("x" + QString::number(i)), QString("1.0"));
        QCOMPARE(all.getVersion("y" + QString::number(i)), QString("2.0"));
    }

    // What another viewer has forgotten does not come back with the next camera.
    CFirmwareStateFile(path).clear();
    early.setVersion("w", "4.0");
    QCOMPARE(CFirmwareStateFile(path).getVersion("z"), QString());
}

void CFirmwareStateFileTest::makesUpForWhatALockKeptOut()
{
    const QString path = m_folder.filePath("locked.json");
    CFirmwareStateFile state(path, std::chrono::milliseconds(1));
    state.setVersion("a", "1.0");
    QLockFile lock(path + ".lock");
    QVERIFY(lock.lock());
    const QString holder = QString("process %1").arg(QCoreApplication::applicationPid());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be written to .*" + holder));
    state.setVersion("a", "2.0");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be forgotten: .*" + holder));
    CFirmwareStateFile(path).clear();
    QCOMPARE(CFirmwareStateFile(path).getVersion("a"), QString("1.0"));
    lock.unlock();
    state.setVersion("b", "3.0");
    QCOMPARE(CFirmwareStateFile(path).getVersion("a"), QString("2.0"));
}

void CFirmwareStateFileTest::keepsOldFileWhenWritingFails()
{
    const QString path = m_folder.filePath("full.json");
    CFirmwareStateFile state(path);
    state.setVersion("a", "1.0");
    // As if the disk were full; the lock file has room.
    signal(SIGXFSZ, SIG_IGN);
    rlimit old{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &old), 0);
    const rlimit small{1000, old.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be written to .*full.json"));
    state.setVersion(QString(2000, 'b'), "2.0");
    setrlimit(RLIMIT_FSIZE, &old);
    QCOMPARE(CFirmwareStateFile(path).getVersion("a"), QString("1.0"));
    state.setVersion("c", "3.0");
    QCOMPARE(CFirmwareStateFile(path).getVersion(QString(2000, 'b')), QString("2.0"));
}

QTEST_GUILESS_MAIN(CFirmwareStateFileTest)
#include "tst_firmwarestatefile.moc"
