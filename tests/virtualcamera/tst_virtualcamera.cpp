#include "virtualcamera/icameraobserver.h"
#include "virtualcamera/memorymap.h"
#include "virtualcamera/virtualcamera.h"

#include <QtTest>

using namespace VirtualCamera;
using namespace std::chrono_literals;
using Gvcp::ECommand;
using Gvcp::EStatus;

namespace {

struct CRecorder : ICameraObserver
{
    void onEvent(const QByteArray &event) override { events.append(event); }
    void onFileClosed(const QByteArray &) override { }

    QList<QByteArray> events;
};

QByteArray words(std::initializer_list<quint32> values)
{
    QByteArray bytes;
    for (const quint32 value : values)
        Gvcp::appendWord(bytes, value);
    return bytes;
}

QByteArray makeRequest(ECommand command, quint16 id, const QByteArray &payload)
{
    QByteArray bytes("\x42\x01", 2);
    Gvcp::appendHalfWord(bytes, static_cast<quint16>(command));
    Gvcp::appendHalfWord(bytes, static_cast<quint16>(payload.size()));
    Gvcp::appendHalfWord(bytes, id);
    return bytes + payload;
}

int statusOf(const QByteArray &answer)
{
    return answer.size() < Gvcp::HEADER_SIZE ? -1
                                             : static_cast<int>(Gvcp::readWord(answer, 0) >> 16);
}

constexpr CPeer Owner{0x7f000001, 4000};
constexpr CPeer Stranger{0x7f000001, 4001};

const QByteArray OPEN
    = makeRequest(ECommand::WriteRegister, 99, words({MemoryMap::FILE_OPERATION_EXECUTE, 1}));

} // namespace

class CVirtualCameraTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { make(); }
    void answersByteByByte_data();
    void answersByteByByte();
    void dropsWhatIsNoRequest();
    void givesControlToOneAtATime();
    void takesControlFromASilentApplication();
    void executesARepeatedRequestOnce();
    void announcesWhatTakesLong();
    void resetEndsControl();
    void checksFileOperations();

private:
    QByteArray ask(const QByteArray &datagram, const CPeer &sender = Owner);
    QByteArray ask(ECommand command, const QByteArray &payload, const CPeer &sender = Owner);
    int write(quint32 address, quint32 value, const CPeer &sender = Owner);
    quint32 read(quint32 address, const CPeer &sender = Owner);
    bool operate(EFileOperation operation);

    /// A new camera that nobody controls, with a buffer for 512 bytes.
    void make(CCameraSettings settings = {});
    /// The same, but Owner has control.
    void makeControlled(const CCameraSettings &settings = {});

    CRecorder m_recorder;
    std::unique_ptr<CVirtualCamera> m_camera;
    Time m_now{0};
    quint16 m_id = 0;
};

void CVirtualCameraTest::make(CCameraSettings settings)
{
    settings.bufferLength = 512;
    m_recorder = {};
    m_now = Time(0);
    m_camera = std::make_unique<CVirtualCamera>(settings, m_recorder);
}

void CVirtualCameraTest::makeControlled(const CCameraSettings &settings)
{
    make(settings);
    QCOMPARE(write(MemoryMap::CONTROL_PRIVILEGE, 2), 0);
}

QByteArray CVirtualCameraTest::ask(const QByteArray &datagram, const CPeer &sender)
{
    const QVector<CDatagram> answers = m_camera->handle(datagram, sender, m_now);
    return answers.isEmpty() || answers.last().receiver != sender ? QByteArray()
                                                                  : answers.last().bytes;
}

QByteArray CVirtualCameraTest::ask(ECommand command, const QByteArray &payload, const CPeer &sender)
{
    return ask(makeRequest(command, ++m_id, payload), sender);
}

int CVirtualCameraTest::write(quint32 address, quint32 value, const CPeer &sender)
{
    return statusOf(ask(ECommand::WriteRegister, words({address, value}), sender));
}

quint32 CVirtualCameraTest::read(quint32 address, const CPeer &sender)
{
    const QByteArray answer = ask(ECommand::ReadRegister, words({address}), sender);
    return answer.size() == 12 ? Gvcp::readWord(answer, 8) : 0xdeadbeef;
}

bool CVirtualCameraTest::operate(EFileOperation operation)
{
    return write(MemoryMap::FILE_OPERATION_SELECTOR, static_cast<quint32>(operation)) == 0
        && write(MemoryMap::FILE_OPERATION_EXECUTE, 1) == 0
        && read(MemoryMap::FILE_OPERATION_STATUS) == 0;
}

void CVirtualCameraTest::answersByteByByte_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<QByteArray>("answer");
    const auto row = [](const char *name, const char *request, const char *answer) {
        QTest::newRow(name) << QByteArray::fromHex(request) << QByteArray::fromHex(answer);
    };
    row("one register", "42010080 00040001 00000938", "00000081 00040001 00000bb8");
    row("two registers", "42010080 00080002 00000938 00000a00",
        "00000081 00080002 00000bb8 00000000");
    row("second register unknown", "42010080 00080003 00000938 0ffffff0",
        "80030081 00040003 00000bb8");
    row("register between two", "42010080 00040004 00000939", "80050081 00000004");
    row("half an address", "42010080 00020005 0000", "800e0081 00000005");
    row("memory", "42010084 00080006 00000068 00000008",
        "00000085 000c0006 00000068 47562d31 3430304d");
    row("no memory", "42010084 00080007 00000068 00000000", "80020085 00000007");
    row("too much memory", "42010084 00080008 00000000 0000021c", "80020085 00000008");
    row("memory over an end", "42010084 00080009 00000afc 00000008", "80030085 00000009");
    row("write without control", "42010082 0008000a 00100028 00000001",
        "80060083 0004000a 00000000");
    row("control", "42010082 0008000b 00000a00 00000002", "00000083 0004000b 00000001");
    row("unknown command", "420100c0 0000000c", "800100c1 0000000c");
    row("shorter than it says", "42010080 0008000d 00000938", "800e0081 0000000d");
    row("longer than it says", "42010080 0004000e 00000938 00000938", "800e0081 0000000e");
    row("number 0", "42010080 00040000 00000938", "800e0081 00000000");
    row("no answer wanted", "42000080 0004000f 00000938", "");
}

void CVirtualCameraTest::answersByteByByte()
{
    QFETCH(QByteArray, request);
    QTEST(ask(request), "answer");
}

void CVirtualCameraTest::dropsWhatIsNoRequest()
{
    const QByteArray discovery = makeRequest(ECommand::Discovery, 1, {});
    const auto drop = [this](const QByteArray &datagram, quint32 sender = Owner.address) {
        make();
        QVERIFY(ask(datagram, {sender, 4000}).isEmpty());
        QCOMPARE(m_camera->getStatistics().dropped, 1);
        // It goes on working.
        const QByteArray answer = ask(ECommand::Discovery, {});
        QCOMPARE(answer.size(), 256);
        QCOMPARE(answer.mid(8 + 0x68, 9), QByteArray("GV-1400M\0", 9));
    };
    drop({});
    drop(discovery.left(7));
    drop("\x43" + discovery.mid(1));
    drop(discovery, 0xc0a80001); // from another machine
    drop(QByteArray(65507, '\x42'), 0x0a000001);
}

void CVirtualCameraTest::givesControlToOneAtATime()
{
    QCOMPARE(write(MemoryMap::CONTROL_PRIVILEGE, 2), 0);
    QCOMPARE(write(MemoryMap::CONTROL_PRIVILEGE, 2, Stranger), 0x8006);
    QCOMPARE(write(MemoryMap::CONTROL_PRIVILEGE, 0, Stranger), 0x8006);
    QCOMPARE(write(MemoryMap::REVERSE_X, 1, Stranger), 0x8006);
    QCOMPARE(read(MemoryMap::HEARTBEAT_TIMEOUT, Stranger), 3000U);
    QCOMPARE(write(MemoryMap::CONTROL_PRIVILEGE, 1), 0);
    QCOMPARE(read(MemoryMap::HEARTBEAT_TIMEOUT, Stranger), 0xdeadbeef);
    QCOMPARE(read(MemoryMap::CONTROL_PRIVILEGE, Stranger), 1U);
    QCOMPARE(write(MemoryMap::REVERSE_X, 1), 0);
    QCOMPARE(write(MemoryMap::DEVICE_STATUS, 1), 0x8004);
    QCOMPARE(write(MemoryMap::CONTROL_PRIVILEGE, 0), 0);
    QCOMPARE(write(MemoryMap::CONTROL_PRIVILEGE, 2, Stranger), 0);
}

void CVirtualCameraTest::takesControlFromASilentApplication()
{
    makeControlled();
    m_now += 2999ms;
    read(MemoryMap::CONTROL_PRIVILEGE); // any request is a sign of life
    m_now += 2999ms;
    QCOMPARE(*m_camera->getNextDeadline(), m_now + 1ms);
    QCOMPARE(write(MemoryMap::CONTROL_PRIVILEGE, 2, Stranger), 0x8006);
    m_now += 1ms;
    QVERIFY(m_camera->tick(m_now).isEmpty());
    QVERIFY(m_recorder.events.contains("control timeout"));
    QCOMPARE(write(MemoryMap::REVERSE_X, 1), 0x8006);
    QCOMPARE(write(MemoryMap::CONTROL_PRIVILEGE, 2, Stranger), 0);
}

void CVirtualCameraTest::executesARepeatedRequestOnce()
{
    CCameraSettings settings;
    settings.losesAcknowledge = 1;
    makeControlled(settings);
    write(MemoryMap::FILE_OPEN_MODE, 1);
    const QByteArray first = ask(OPEN);
    QCOMPARE(statusOf(first), 0);
    QCOMPARE(ask(OPEN), first);
    QCOMPARE(m_recorder.events.count("open FirmwareImage"), 1);
    QCOMPARE(m_camera->getStatistics().repeated, 1);
    // The same bytes of somebody else are another request, and do not displace the first one.
    QCOMPARE(statusOf(ask(OPEN, Stranger)), 0x8006);
    QCOMPARE(ask(OPEN), first);
    QCOMPARE(m_recorder.events.count("open FirmwareImage"), 1);

    const QByteArray block = makeRequest(ECommand::WriteMemory, 99,
                                         words({MemoryMap::FILE_ACCESS_BUFFER, 0x01020304}));
    QVERIFY(ask(block).isEmpty()); // its answer is lost
    QCOMPARE(ask(block).toHex(), QByteArray("000000870004006300000004"));
    QCOMPARE(m_camera->getStatistics().memoryWrites, 1);
}

void CVirtualCameraTest::announcesWhatTakesLong()
{
    CCameraSettings settings;
    settings.openDuration = 4000ms;
    makeControlled(settings);
    write(MemoryMap::FILE_OPEN_MODE, 1);
    QCOMPARE(ask(OPEN).toHex(), QByteArray("000000890004006300000fa0"));
    m_now += 1000ms;
    QCOMPARE(ask(OPEN).toHex(), QByteArray("000000890004006300000bb8"));
    QCOMPARE(statusOf(ask(ECommand::ReadRegister, words({0x938}))), 0x8007);
    m_now += 3000ms;
    const QVector<CDatagram> answers = m_camera->tick(m_now);
    QCOMPARE(answers.size(), 1);
    QCOMPARE(answers[0].bytes.toHex(), QByteArray("000000830004006300000001"));
    // The wait does not count as silence.
    QCOMPARE(read(MemoryMap::CONTROL_PRIVILEGE), 2U);
    QCOMPARE(m_recorder.events.count("open FirmwareImage"), 1);
}

void CVirtualCameraTest::resetEndsControl()
{
    makeControlled();
    QCOMPARE(write(MemoryMap::FIRMWARE_ACTIVATE, 1), 0x8fff); // no image has been uploaded
    QCOMPARE(write(MemoryMap::DEVICE_RESET, 1), 0);
    QVERIFY(ask(ECommand::Discovery, {}).isEmpty());
    m_now += CCameraSettings().resetDuration;
    QCOMPARE(ask(ECommand::Discovery, {}).mid(8 + 0x88, 6), QByteArray("1.2.0\0", 6));
    QCOMPARE(m_recorder.events.last(), QByteArray("back 1.2.0"));
    QCOMPARE(write(MemoryMap::REVERSE_X, 1), 0x8006);
}

void CVirtualCameraTest::checksFileOperations()
{
    makeControlled();
    QVERIFY(!operate(EFileOperation::Write));
    QVERIFY(!operate(EFileOperation::Close));
    write(MemoryMap::FILE_OPEN_MODE, 1);
    QVERIFY(operate(EFileOperation::Open));
    QVERIFY(!operate(EFileOperation::Open));
    write(MemoryMap::FILE_ACCESS_OFFSET, 1); // behind the end of an empty file
    QVERIFY(!operate(EFileOperation::Write));
    QCOMPARE(write(MemoryMap::FILE_ACCESS_LENGTH, 513), 0x8002);
    QVERIFY(!operate(static_cast<EFileOperation>(7)));
}

QTEST_GUILESS_MAIN(CVirtualCameraTest)
#include "tst_virtualcamera.moc"
