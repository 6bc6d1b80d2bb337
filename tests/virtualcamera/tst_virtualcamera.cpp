#include "virtualcamera/commandline.h"
#include "virtualcamera/icameraobserver.h"
#include "virtualcamera/memorymap.h"
#include "virtualcamera/virtualcamera.h"

#include <QtTest>

#include <limits>
#include <zip.h>

using namespace VirtualCamera;
using namespace std::chrono_literals;
using Gvcp::ECommand;

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

/// The content of an archive's only file without the blanks at its end; null when it cannot be
/// unpacked. @p size is the unpacked one. Of what is larger than @p enough only the beginning is
/// unpacked.
QByteArray unpack(const QByteArray &archive, qint64 enough, qint64 &size)
{
    zip_error_t error;
    zip_source_t *const source
        = zip_source_buffer_create(archive.constData(), zip_uint64_t(archive.size()), 0, &error);
    zip_t *const zip = zip_open_from_source(source, ZIP_RDONLY | ZIP_CHECKCONS, &error);
    if (!zip)
        return {};
    zip_stat_t status{};
    zip_stat_index(zip, 0, 0, &status);
    size = static_cast<qint64>(status.size);
    zip_file_t *const file = zip_fopen_index(zip, 0, 0);
    QByteArray content(1024 * 1024, '\0'), rest = content;
    content.resize(static_cast<int>(zip_fread(file, content.data(), zip_uint64_t(content.size()))));
    zip_int64_t length = size <= enough ? 1 : 0;
    while (length > 0)
        length = zip_fread(file, rest.data(), zip_uint64_t(rest.size()));
    zip_fclose(file);
    zip_discard(zip);
    return length == 0 ? content.trimmed() : QByteArray();
}

constexpr CPeer OWNER{0x7f000001, 4000};
constexpr CPeer STRANGER{0x7f000001, 4001};

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
    void announcesForEver();
    void goesThroughAReset();
    void restartsAnotherCamera();
    void checksFileOperations();
    void wantsItsOperationsAwaited();
    void wantsItsActivationAwaited();
    void noticesWhatIsNotPadded();
    void keepsItsLimits();
    void describesItself();
    void givesOutAFile();

private:
    QByteArray ask(const QByteArray &datagram, const CPeer &sender = OWNER);
    QByteArray ask(ECommand command, const QByteArray &payload, const CPeer &sender = OWNER);
    int write(quint32 address, quint32 value, const CPeer &sender = OWNER);
    quint32 read(quint32 address, const CPeer &sender = OWNER);
    int writeMemory(quint32 address, const QByteArray &bytes);
    QByteArray readMemory(quint32 address, int size);
    bool operate(EFileOperation operation);
    void upload(const QByteArray &image);

    /// A new camera that nobody controls, with a buffer for 512 bytes.
    void make(const CCameraSettings &settings = parse({}));
    /// The same, but Owner has control.
    void makeControlled(const CCameraSettings &settings = parse({}));
    /// The settings of a command line, after --buffer 512.
    static CCameraSettings parse(const QStringList &arguments);

    CRecorder m_recorder;
    std::unique_ptr<CVirtualCamera> m_camera;
    Time m_now{0};
    quint16 m_id = 0;
};

void CVirtualCameraTest::make(const CCameraSettings &settings)
{
    m_recorder = {};
    m_now = Time(0);
    m_camera = std::make_unique<CVirtualCamera>(settings, m_recorder);
}

void CVirtualCameraTest::makeControlled(const CCameraSettings &settings)
{
    make(settings);
    QCOMPARE(write(MemoryMap::CONTROL_PRIVILEGE, 2), 0);
}

CCameraSettings CVirtualCameraTest::parse(const QStringList &arguments)
{
    CCommandLine commandLine;
    const auto result
        = commandLine.parse(QStringList{"virtualcamera", "--buffer", "512"} + arguments);
    if (result != CCommandLine::EResult::Start)
        qFatal("%s", qPrintable(commandLine.message));
    return commandLine.settings;
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

int CVirtualCameraTest::writeMemory(quint32 address, const QByteArray &bytes)
{
    return statusOf(ask(ECommand::WriteMemory, words({address}) + bytes));
}

QByteArray CVirtualCameraTest::readMemory(quint32 address, int size)
{
    QByteArray bytes;
    while (bytes.size() < size) {
        const int length = qMin(Gvcp::MAXIMUM_BLOCK, (size - bytes.size() + 3) / 4 * 4);
        const QByteArray answer
            = ask(ECommand::ReadMemory,
                  words({address + quint32(bytes.size()), static_cast<quint32>(length)}));
        if (answer.size() != length + 12)
            return {};
        bytes += answer.mid(12);
    }
    return bytes;
}

void CVirtualCameraTest::upload(const QByteArray &image)
{
    write(MemoryMap::FILE_OPEN_MODE, 1);
    QVERIFY(operate(EFileOperation::Open));
    QCOMPARE(writeMemory(MemoryMap::FILE_ACCESS_BUFFER, image.leftJustified(512, '\0')), 0);
    QCOMPARE(write(MemoryMap::FILE_ACCESS_LENGTH, quint32(image.size())), 0);
    QVERIFY(operate(EFileOperation::Write));
    QVERIFY(operate(EFileOperation::Close));
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
    row("memory over an end", "42010084 00080009 00000d24 00000008", "80030085 00000009");
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
    const auto drop = [this](const QByteArray &datagram, quint32 sender = OWNER.address) {
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
    QCOMPARE(write(MemoryMap::CONTROL_PRIVILEGE, 2, STRANGER), 0x8006);
    QCOMPARE(write(MemoryMap::CONTROL_PRIVILEGE, 0, STRANGER), 0x8006);
    QCOMPARE(write(MemoryMap::REVERSE_X, 1, STRANGER), 0x8006);
    QCOMPARE(read(MemoryMap::HEARTBEAT_TIMEOUT, STRANGER), 3000U);
    QCOMPARE(write(MemoryMap::CONTROL_PRIVILEGE, 1), 0);
    QCOMPARE(read(MemoryMap::HEARTBEAT_TIMEOUT, STRANGER), 0xdeadbeef);
    QCOMPARE(read(MemoryMap::CONTROL_PRIVILEGE, STRANGER), 1U);
    QCOMPARE(write(MemoryMap::REVERSE_X, 1), 0);
    QCOMPARE(write(MemoryMap::DEVICE_STATUS, 1), 0x8004);
    QCOMPARE(write(MemoryMap::CONTROL_PRIVILEGE, 0), 0);
    QCOMPARE(write(MemoryMap::CONTROL_PRIVILEGE, 2, STRANGER), 0);
}

void CVirtualCameraTest::takesControlFromASilentApplication()
{
    makeControlled();
    m_now += 2999ms;
    read(MemoryMap::CONTROL_PRIVILEGE); // any request is a sign of life
    m_now += 2999ms;
    QCOMPARE(*m_camera->getNextDeadline(), m_now + 1ms);
    QCOMPARE(write(MemoryMap::CONTROL_PRIVILEGE, 2, STRANGER), 0x8006);
    m_now += 1ms;
    QVERIFY(m_camera->tick(m_now).isEmpty());
    QVERIFY(m_recorder.events.contains("control timeout"));
    QCOMPARE(write(MemoryMap::REVERSE_X, 1), 0x8006);
    QCOMPARE(write(MemoryMap::CONTROL_PRIVILEGE, 2, STRANGER), 0);
}

void CVirtualCameraTest::executesARepeatedRequestOnce()
{
    makeControlled(parse({"--lose-ack", "1"}));
    write(MemoryMap::FILE_OPEN_MODE, 1);
    const QByteArray first = ask(OPEN);
    QCOMPARE(statusOf(first), 0);
    QCOMPARE(ask(OPEN), first);
    QCOMPARE(m_recorder.events.count("open FirmwareImage"), 1);
    QCOMPARE(m_camera->getStatistics().repeated, 1);
    // The same bytes of somebody else are another request, and do not displace the first one.
    QCOMPARE(statusOf(ask(OPEN, STRANGER)), 0x8006);
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
    const QByteArray header = "0000008900040063";
    const auto check
        = [&](int duration, const QByteArray &announcement, const QByteArray &aSecondLater) {
              makeControlled(parse({"--open-ms", QString::number(duration)}));
              write(MemoryMap::FILE_OPEN_MODE, 1);
              QCOMPARE(ask(OPEN).toHex(), header + announcement);
              m_now += 1000ms;
              QCOMPARE(ask(OPEN).toHex(), header + aSecondLater);
              QCOMPARE(statusOf(ask(ECommand::ReadRegister, words({0x938}))), 0x8007);
              m_now = *m_camera->getNextDeadline();
              QCOMPARE(m_now, Time(std::chrono::milliseconds(duration)));
              const QVector<CDatagram> answers = m_camera->tick(m_now);
              QCOMPARE(answers.size(), 1);
              QCOMPARE(answers[0].bytes.toHex(), QByteArray("000000830004006300000001"));
              // The wait does not count as silence.
              QCOMPARE(read(MemoryMap::CONTROL_PRIVILEGE), 2U);
              QCOMPARE(m_recorder.events.count("open FirmwareImage"), 1);
          };
    check(4000, "00000fa0", "00000bb8");
    check(65000, "0000fde8", "0000fa00");
}

void CVirtualCameraTest::announcesForEver()
{
    makeControlled(parse({"--never-open", "--open-ms", "4000"}));
    write(MemoryMap::FILE_OPEN_MODE, 1);
    const QByteArray announcement = "000000890004006300000fa0";
    QCOMPARE(ask(OPEN).toHex(), announcement);
    for (int i = 1; i <= 1000; ++i) {
        m_now = *m_camera->getNextDeadline();
        QCOMPARE(m_now, Time(i * 2000ms)); // before anybody gives up
        const QVector<CDatagram> answers = m_camera->tick(m_now);
        QCOMPARE(answers.size(), 1);
        QCOMPARE(answers[0].bytes.toHex(), announcement);
    }
    QCOMPARE(statusOf(ask(ECommand::ReadRegister, words({0x938}))), 0x8007);
}

void CVirtualCameraTest::goesThroughAReset()
{
    const auto check = [this](const QStringList &arguments, const QStringList &expected) {
        makeControlled(parse(arguments));
        QCOMPARE(write(MemoryMap::FIRMWARE_ACTIVATE, 1), 0x8fff); // no image has been uploaded
        QCOMPARE(write(MemoryMap::DEVICE_RESET, 1), 0);
        QStringList seen;
        for (const int after : {0, 499, 500, 1999, 2000, 2499, 2500}) {
            m_now = std::chrono::milliseconds(after);
            const QByteArray answer = ask(ECommand::Discovery, {});
            seen.append(answer.isEmpty() ? QString()
                                         : QString::fromLatin1(answer.constData() + 8 + 0x68) + ' '
                                + QString::fromLatin1(answer.constData() + 8 + 0xd8));
        }
        QCOMPARE(seen, expected);
        // Whoever had control keeps it as long as the camera is there.
        const bool stays = arguments.contains("--ignore-reset");
        QCOMPARE(write(MemoryMap::REVERSE_X, 1), stays ? 0 : 0x8006);
        QCOMPARE(m_recorder.events.contains("back 1.2.0"), !stays);
    };
    const QString same = "GV-1400M 50000001", other = "GV-1400M 7", none;
    check({}, {none, none, none, none, same, same, same});
    check({"--reset-delay-ms", "500"}, {same, same, none, none, none, none, same});
    check({"--ignore-reset"}, {same, same, same, same, same, same, same});
    check({"--return-serial", "7"}, {none, none, none, none, other, other, other});
    check({"--return-model", "X", "--reset-delay-ms", "500"},
          {same, same, none, none, none, none, "X 50000001"});
}

void CVirtualCameraTest::restartsAnotherCamera()
{
    make(parse({"--serial", "2", "--return-serial", "1"}));
    CVirtualCamera first(
        parse({"--serial", "1", "--return-serial", "2", "--restart-too", "127.0.0.3"}), m_recorder);
    const auto tell = [&](quint32 address, quint32 value) {
        return first.handle(makeRequest(ECommand::WriteRegister, ++m_id, words({address, value})),
                            OWNER, m_now);
    };
    tell(MemoryMap::CONTROL_PRIVILEGE, 2);
    const QVector<CDatagram> sent = tell(MemoryMap::DEVICE_RESET, 1);
    QCOMPARE(sent.size(), 2);
    QCOMPARE(sent[0].receiver, (CPeer{0x7f000003, 3956}));
    QCOMPARE(sent[0].bytes.toHex(), QByteArray("4200c00000000001"));
    QVERIFY(ask(sent[0].bytes, STRANGER).isEmpty());
    QVERIFY(ask(ECommand::Discovery, {}).isEmpty());
    m_now += CCameraSettings().resetDuration;
    QCOMPARE(ask(ECommand::Discovery, {}).mid(8 + 0xd8, 2), QByteArray("1\0", 2));
}

void CVirtualCameraTest::wantsItsOperationsAwaited()
{
    makeControlled(parse({"--operation-reads", "3"}));
    write(MemoryMap::FILE_OPEN_MODE, 1);
    QCOMPARE(statusOf(ask(OPEN)), 0);
    QCOMPARE(writeMemory(MemoryMap::FILE_ACCESS_BUFFER, "abcd"), 0x8007);
    QCOMPARE(write(MemoryMap::FILE_OPERATION_EXECUTE, 1), 0x8007);
    QCOMPARE(read(MemoryMap::FILE_OPERATION_STATUS), 1U); // not yet the true one
    QCOMPARE(read(MemoryMap::FILE_OPERATION_EXECUTE), 1U);
    QCOMPARE(read(MemoryMap::FILE_OPERATION_EXECUTE), 1U);
    QCOMPARE(read(MemoryMap::FILE_OPERATION_EXECUTE), 0U);
    QCOMPARE(read(MemoryMap::FILE_OPERATION_STATUS), 0U);
    QCOMPARE(writeMemory(MemoryMap::FILE_ACCESS_BUFFER, "abcd"), 0);
    write(MemoryMap::FILE_ACCESS_LENGTH, 4);
    QVERIFY(!operate(EFileOperation::Write)); // asks for the status at once
    QCOMPARE(read(MemoryMap::FILE_OPERATION_RESULT), 0U);
    QCOMPARE(read(MemoryMap::FILE_OPERATION_RESULT), 0U);
    QCOMPARE(read(MemoryMap::FILE_OPERATION_RESULT), 4U);
}

void CVirtualCameraTest::wantsItsActivationAwaited()
{
    const auto getVersion = [this](const char *duration, const char *wanted, int reads) {
        makeControlled(parse({"--activate-ms", duration, "--activate-reads", wanted}));
        upload("version: 2.0.0\n");
        write(MemoryMap::FIRMWARE_ACTIVATE, 1);
        for (int i = 0; i < reads; ++i)
            if (read(MemoryMap::FIRMWARE_ACTIVATE) != 1)
                return QByteArray("done too early");
        write(MemoryMap::DEVICE_RESET, 1);
        m_now += CCameraSettings().resetDuration;
        return readMemory(MemoryMap::FIRMWARE_VERSION, 32).left(5);
    };
    QCOMPARE(getVersion("0", "2", 0), QByteArray("1.2.0"));
    QCOMPARE(getVersion("0", "2", 1), QByteArray("1.2.0"));
    QCOMPARE(getVersion("0", "2", 2), QByteArray("2.0.0"));
    QCOMPARE(getVersion("200", "0", 2), QByteArray("1.2.0"));
    QCOMPARE(getVersion("0", "0", 0), QByteArray("2.0.0"));
}

void CVirtualCameraTest::noticesWhatIsNotPadded()
{
    makeControlled(parse({"--buffer", "513"}));
    const QByteArray image = "version: 2.0.0\nsize: 25\n\n";
    QCOMPARE(image.size(), 25);
    QCOMPARE(writeMemory(MemoryMap::FILE_ACCESS_BUFFER, image), 0x8005);
    QCOMPARE(m_recorder.events.last(), QByteArray("refuse unaligned 25"));
    // Nothing lies behind the buffer's last byte.
    QCOMPARE(writeMemory(MemoryMap::FILE_ACCESS_BUFFER + 508, "abcd"), 0);
    QCOMPARE(writeMemory(MemoryMap::FILE_ACCESS_BUFFER + 512, "abcd"), 0x8003);
    QCOMPARE(write(MemoryMap::FILE_ACCESS_LENGTH, 513), 0);
    QCOMPARE(write(MemoryMap::FILE_ACCESS_LENGTH, 514), 0x8002);
    // Bytes that only fill up a word do not belong to the file.
    upload(image + QByteArray(3, '\0'));
    QCOMPARE(write(MemoryMap::FIRMWARE_ACTIVATE, 1), 0x8fff);
    upload(image);
    QCOMPARE(write(MemoryMap::FIRMWARE_ACTIVATE, 1), 0);
}

void CVirtualCameraTest::keepsItsLimits()
{
    makeControlled();
    const auto check = [this](quint32 address, quint32 value, bool isGood) {
        const quint32 before = read(address);
        QCOMPARE(write(address, value), isGood ? 0 : 0x8002);
        QCOMPARE(read(address), isGood ? value : before);
        // What stands in front of a bad value is not written either.
        QVERIFY(isGood || writeMemory(address - 4, words({1, value})) != 0);
        QCOMPARE(read(address), isGood ? value : before);
    };
    constexpr quint32 EXPOSURE = MemoryMap::EXPOSURE_TIME, GAIN = MemoryMap::GAIN;
    for (const float good : {10.F, 1e6F})
        check(EXPOSURE, Gvcp::toWord(good), true);
    for (const float bad : {9.99F, 1e30F, std::numeric_limits<float>::quiet_NaN()})
        check(EXPOSURE, Gvcp::toWord(bad), false);
    for (const float good : {0.F, 24.F})
        check(GAIN, Gvcp::toWord(good), true);
    for (const float bad : {-0.1F, std::numeric_limits<float>::infinity()})
        check(GAIN, Gvcp::toWord(bad), false);
    check(MemoryMap::FIRMWARE_UPDATE_MODE, 1, true);
    check(MemoryMap::FIRMWARE_UPDATE_MODE, 2, false);
    check(MemoryMap::REVERSE_X, 2, false);
    check(MemoryMap::FILE_SELECTOR, 1, false);
    check(MemoryMap::FILE_ACCESS_OFFSET, 0x4000001, false); // behind every file
}

void CVirtualCameraTest::describesItself()
{
    const auto check = [this](const char *kind, const QByteArray &url, const QByteArray &part = {},
                              qint64 size = 0, bool isWellFormed = true) {
        makeControlled(parse({"--description", kind}));
        const QByteArray given(readMemory(MemoryMap::FIRST_URL, MemoryMap::URL_SIZE).constData());
        QVERIFY2(given.startsWith(url), kind);
        if (!url.startsWith("Local:")) {
            QCOMPARE(given, url);
            return;
        }
        QCOMPARE(write(MemoryMap::DESCRIPTION, 0), 0x8004);
        const int packedSize = given.mid(url.size()).toInt(nullptr, 16);
        QByteArray description = readMemory(MemoryMap::DESCRIPTION, packedSize).left(packedSize);
        qint64 unpackedSize = description.size();
        if (url.contains(".zip")) {
            QVERIFY2(packedSize < 2 * 1024 * 1024, kind);
            description = unpack(description, 100'000'000, unpackedSize);
        }
        QVERIFY2((size == 0 || unpackedSize == size) && description.contains(part), kind);
        QXmlStreamReader reader(description);
        while (!reader.atEnd())
            reader.readNext();
        QVERIFY2(reader.hasError() != isWellFormed, kind);
    };
    const QByteArray xml = "Local:camera.xml;10000000;", zip = "Local:camera.zip;10000000;";
    check("sound", xml, "<Address>0x100020<");
    check("zip", zip, "<Address>0x100020<");
    check("self-value", xml,
          "<Integer Name=\"DeviceStatusAgain\">\n    <pValue>DeviceStatus</pValue>");
    check("self-address", xml, "<pAddress>DeviceStatus</pAddress>");
    check("self-feature", xml, "<pFeature>Root</pFeature>");
    check("bomb-100", zip, {}, 100'000'000);
    check("bomb-1000", zip, {}, 1'000'000'000);
    check("large", xml, {}, 16 * 1024 * 1024 + 4);
    check("broken", xml, {}, 0, false);
    check("file", "File:///dev/zero");
    check("http", "http://127.0.0.1:9/camera.xml");
}

void CVirtualCameraTest::givesOutAFile()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("hello");
    file.close();
    make(parse({"--description", file.fileName()}));
    const QByteArray url = "Local:" + QFileInfo(file).fileName().toUtf8() + ";10000000;5";
    QCOMPARE(QByteArray(readMemory(MemoryMap::FIRST_URL, MemoryMap::URL_SIZE).constData()), url);
    QCOMPARE(readMemory(MemoryMap::DESCRIPTION, 5), QByteArray("hello\0\0\0", 8));
    CCommandLine commandLine;
    QCOMPARE(commandLine.parse({"virtualcamera", "--description", "/dev/null"}),
             CCommandLine::EResult::Error);
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
    QVERIFY(!operate(static_cast<EFileOperation>(7))); // there is no such operation
}

QTEST_GUILESS_MAIN(CVirtualCameraTest)
#include "tst_virtualcamera.moc"
