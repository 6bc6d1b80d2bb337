#include "virtualcamera/commandline.h"
#include "virtualcamera/icameraobserver.h"
#include "virtualcamera/memorymap.h"
#include "virtualcamera/pattern.h"
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

/// What a packet of a stream is: "L4", "T4" (rows told), or its number; in front of it "again " or
/// "no " when that is its status.
QByteArray nameOf(const QByteArray &packet)
{
    const quint32 status = Gvcp::readWord(packet, 0) >> 16, infos = Gvcp::readWord(packet, 4);
    const QByteArray prefix = status == 0x0100 ? "again " : status == 0x800c ? "no " : "";
    switch (infos >> 24) {
    case 1:
        return prefix + 'L' + QByteArray::number(Gvcp::readWord(packet, 28));
    case 2:
        return prefix + 'T' + QByteArray::number(Gvcp::readWord(packet, 12));
    default:
        return prefix + QByteArray::number(infos & 0xffffff);
    }
}

QByteArray namesOf(const QList<QByteArray> &packets)
{
    QList<QByteArray> names;
    for (const QByteArray &packet : packets)
        names.append(nameOf(packet));
    return names.join(' ');
}

/// A sample of an image, as the names of formats have it.
quint32 readSample(const QByteArray &image, const QByteArray &format, int index)
{
    const auto byte = [&image](int offset) { return quint32(quint8(image.at(offset))); };
    const quint32 depth = format.contains("10") ? 10 : format.contains("12") ? 12 : 8;
    if (format.endsWith("Packed")) {
        const int at = index / 2 * 3;
        const quint32 rest = byte(at + 1) >> index % 2 * 4 & (depth == 10 ? 3 : 15);
        return byte(at + index % 2 * 2) << (depth - 8) | rest;
    }
    if (format.endsWith('p')) {
        quint32 sample = 0;
        for (quint32 bit = 0; bit < depth; ++bit) {
            const quint32 place = quint32(index) * depth + bit;
            sample |= (byte(int(place / 8)) >> place % 8 & 1) << bit;
        }
        return sample;
    }
    return format.endsWith('8') || format.startsWith("YUV")
        ? byte(index)
        : byte(2 * index) | byte(2 * index + 1) << 8;
}

CPixel readPixel(const QByteArray &image, const QByteArray &format, int index)
{
    const auto read = [&](int first, int second, int third) {
        return CPixel{quint16(readSample(image, format, first)),
                      quint16(second < 0 ? 0 : readSample(image, format, second)),
                      quint16(third < 0 ? 0 : readSample(image, format, third))};
    };
    const int pair = index / 2 * 4, right = index % 2 * 2;
    if (format == "RGB8")
        return read(3 * index, 3 * index + 1, 3 * index + 2);
    if (format == "BGR8")
        return read(3 * index + 2, 3 * index + 1, 3 * index);
    if (format == "YUV422_8")
        return read(pair + right, pair + 1, pair + 3);
    if (format == "YUV422_8_UYVY")
        return read(pair + 1 + right, pair, pair + 2);
    return read(index, -1, -1);
}

constexpr CPeer RECEIVER{0x7f000001, 6000};
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
    void streamsByteByByte();
    void streamsThePattern_data();
    void streamsThePattern();
    void streamsWithFaults_data();
    void streamsWithFaults();
    void resendsWhatItStillHas();
    void keepsItsPace();
    void endsItsStream();
    void locksWhatAnImageNeeds();

private:
    /// A new camera whose Owner has control, receives at RECEIVER, in packets of 576 bytes, and
    /// never falls silent.
    void makeStreaming(const QStringList &arguments);
    /// All packets from now until @p duration later, each as it is sent; their times are in
    /// m_packetTimes.
    QList<QByteArray> receive(std::chrono::milliseconds duration);

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
    QVector<Time> m_packetTimes;
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

void CVirtualCameraTest::makeStreaming(const QStringList &arguments)
{
    makeControlled(parse(arguments));
    QCOMPARE(write(MemoryMap::HEARTBEAT_TIMEOUT, 1'000'000), 0);
    QCOMPARE(write(MemoryMap::STREAM_ADDRESS, RECEIVER.address), 0);
    QCOMPARE(write(MemoryMap::STREAM_PORT, RECEIVER.port), 0);
    QCOMPARE(write(MemoryMap::STREAM_PACKET_SIZE, 576), 0);
}

QList<QByteArray> CVirtualCameraTest::receive(std::chrono::milliseconds duration)
{
    const Time end = m_now + duration;
    QList<QByteArray> packets;
    m_packetTimes.clear();
    CPacketBatch batch;
    for (auto next = m_camera->getNextDeadline(); next && *next <= end;
         next = m_camera->getNextDeadline()) {
        m_now = qMax(m_now, *next);
        if (!m_camera->tick(m_now).isEmpty())
            qFatal("Nobody has been asked for an answer.");
        m_camera->takePackets(m_now, batch);
        for (int i = 0; i < batch.getCount(); ++i) {
            if (batch.getReceiver() != RECEIVER)
                qFatal("A packet goes to somebody else.");
            const CPacketBatch::CPacket &packet = batch.getPacket(i);
            packets.append(QByteArray(reinterpret_cast<char *>(packet.bytes), packet.size));
            m_packetTimes.append(m_now);
        }
    }
    m_now = end;
    return packets;
}

void CVirtualCameraTest::streamsByteByByte()
{
    makeStreaming({"--size", "16x2"});
    write(MemoryMap::OFFSET_Y, 4);
    m_now = Time(0x123456789aLL);
    write(MemoryMap::ACQUISITION_START, 1);
    const QList<QByteArray> packets = receive(0ms);
    QCOMPARE(packets.size(), 3);
    QCOMPARE(packets[0],
             QByteArray::fromHex(
                 "00000001 01000000 00000001 00000012 3456789a 01080001 00000010 00000002 "
                 "00000000 00000004 00000000"));
    QCOMPARE(packets[1],
             QByteArray::fromHex("00000001 03000001 06060606 07070707 08080808 09090909 "
                                 "07070707 08080808 09090909 0a0a0a0a"));
    QCOMPARE(packets[2], QByteArray::fromHex("00000001 02000002 00000001 00000002"));
}

void CVirtualCameraTest::streamsThePattern_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("size");
    for (const CPixelFormat &format : PIXEL_FORMATS) {
        const QByteArray name = format.name;
        const int bits = name.endsWith("10p")                 ? 10
            : name.endsWith("12p") || name.endsWith("Packed") ? 12
            : name == "RGB8" || name == "BGR8"                ? 24
            : name.endsWith('8') && !name.startsWith("YUV")   ? 8
                                                              : 16;
        QTest::newRow(format.name) << name << 64 * 6 * bits / 8;
    }
}

void CVirtualCameraTest::streamsThePattern()
{
    QFETCH(QByteArray, name);
    QFETCH(int, size);
    const QRect region(2044, 6, 64, 6); // where stripes begin anew
    for (const ETestPattern pattern :
         {ETestPattern::Off, ETestPattern::Black, ETestPattern::White}) {
        makeStreaming({"--size", "64x6", "--pixel-format", name});
        write(MemoryMap::OFFSET_X, 2044);
        write(MemoryMap::OFFSET_Y, 6);
        write(MemoryMap::TEST_PATTERN, quint32(pattern));
        QCOMPARE(read(MemoryMap::PAYLOAD_SIZE), quint32(size));
        write(MemoryMap::ACQUISITION_MODE, 2);
        write(MemoryMap::ACQUISITION_FRAME_COUNT, 2);
        write(MemoryMap::ACQUISITION_START, 1);
        QByteArray images;
        for (const QByteArray &packet : receive(1000ms)) {
            if (packet.at(4) == 3)
                images += packet.mid(8);
            else if (packet.at(4) == 1)
                QCOMPARE(Gvcp::readWord(packet, 20), findPixelFormat(name)->code);
        }
        QCOMPARE(images.size(), 2 * size);
        for (const quint32 frame : {1, 2}) {
            for (int i = 0; i < region.width() * region.height(); ++i) {
                QCOMPARE(readPixel(images, name, i),
                         computePixel(frame, region.x() + i % 64, region.y() + i / 64,
                                      *findPixelFormat(name), pattern));
            }
            images.remove(0, size);
        }
    }
}

void CVirtualCameraTest::streamsWithFaults_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("packets");
    const auto row = [](const char *option, const char *value, const char *packets) {
        QTest::newRow(option) << QStringList{option, value} << QByteArray(packets);
    };
    row("--fps", "25", "L12 1 2 3 4 T12 L12 1 2 3 4 T12");
    row("--lose-packet", "3", "L12 1 2 4 T12 L12 1 3 4 T12");
    row("--swap-packets", "3", "L12 1 2 4 3 T12 L12 1 3 2 4 T12");
    row("--stop-in-frame", "2", "L12 1 2 3 4 T12 L12 1 2");
    row("--wrong-leader-size", "2", "L12 1 2 3 4 T12 L24 1 2 3 4 T12");
    row("--wrong-trailer-size", "2", "L12 1 2 3 4 T12 L12 1 2 3 4 T6");
}

void CVirtualCameraTest::streamsWithFaults()
{
    QFETCH(QStringList, arguments);
    makeStreaming(QStringList{"--size", "180x12"} + arguments);
    write(MemoryMap::ACQUISITION_MODE, 2);
    write(MemoryMap::ACQUISITION_FRAME_COUNT, 2);
    write(MemoryMap::ACQUISITION_START, 1);
    QTEST(namesOf(receive(1000ms)), "packets");
}

void CVirtualCameraTest::resendsWhatItStillHas()
{
    const auto askFor = [this](quint32 block, quint32 first, quint32 last,
                               const CPeer &sender = {RECEIVER.address, 6001}) {
        ask(ECommand::PacketResend, words({block, first, last}), sender);
        return receive(0ms);
    };
    const auto startStream = [this](const QStringList &arguments) {
        makeStreaming(QStringList{"--size", "180x12", "--lose-packet", "2"} + arguments);
        write(MemoryMap::ACQUISITION_START, 1);
        return receive(39ms);
    };
    const QList<QByteArray> first = startStream({});
    QCOMPARE(namesOf(first), QByteArray("L12 1 3 T12"));
    const QList<QByteArray> again = askFor(1, 0, 5);
    QCOMPARE(namesOf(again), QByteArray("again L12 again 1 again 2 again 3 again 4 again T12"));
    QCOMPARE(again[3].mid(4), first[2].mid(4));
    QCOMPARE(namesOf(askFor(1, 4, 0xffffff)), QByteArray("again 4 again T12"));
    QCOMPARE(namesOf(askFor(1, 3, 1)), QByteArray());
    QCOMPARE(askFor(9, 2, 4).value(0), QByteArray::fromHex("800c0009 03000002"));
    QCOMPARE(m_camera->getStatistics().dropped, 0);
    QVERIFY(askFor(1, 1, 1, {0x7f000005, 6001}).isEmpty()); // nobody who receives
    ask(ECommand::PacketResend, words({1, 1}));
    ask(ECommand::PacketResend, words({0x10001, 1, 1})); // another channel
    QVERIFY(receive(0ms).isEmpty());
    QCOMPARE(m_camera->getStatistics().dropped, 3);
    // Asked for far too much, it sends some of it, while others wait.
    for (int i = 0; i < 1000; ++i)
        ask(ECommand::PacketResend, words({1, 0, 5}));
    QCOMPARE(receive(0ms).size(), 256 * 6);

    receive(8 * 40ms); // frames 2 to 9 have begun
    QCOMPARE(namesOf(askFor(1, 2, 2)), QByteArray("no 2"));
    QCOMPARE(namesOf(askFor(2, 2, 2)), QByteArray("again 2"));
    startStream({"--stop-in-frame", "1"});
    QCOMPARE(namesOf(askFor(1, 2, 3)), QByteArray("again 2 no 3")); // the last not sent yet
    startStream({"--no-resend"});
    QVERIFY(askFor(1, 2, 2).isEmpty());
}

void CVirtualCameraTest::keepsItsPace()
{
    // When frames begin, in ms.
    const auto getStarts = [this](std::chrono::milliseconds duration) {
        QVector<int> starts;
        const QList<QByteArray> packets = receive(duration);
        for (int i = 0; i < packets.size(); ++i) {
            if (packets[i].at(4) == 1)
                starts.append(int(m_packetTimes[i] / 1ms));
        }
        return starts;
    };
    makeStreaming({"--size", "180x12", "--fps", "50"});
    write(MemoryMap::ACQUISITION_START, 1);
    QCOMPARE(getStarts(59ms), (QVector<int>{0, 20, 40}));
    write(MemoryMap::FRAME_RATE, Gvcp::toWord(100));
    QCOMPARE(getStarts(21ms), (QVector<int>{59, 69, 79}));
    write(MemoryMap::EXPOSURE_TIME, Gvcp::toWord(50'000));
    QCOMPARE(read(MemoryMap::FRAME_RATE), Gvcp::toWord(20));
    QCOMPARE(getStarts(100ms), (QVector<int>{129, 179}));
    write(MemoryMap::FRAME_RATE_ENABLE, 0);
    write(MemoryMap::EXPOSURE_TIME, Gvcp::toWord(10));
    receive(1ms);
    QCOMPARE(getStarts(100ms).size(), 100); // as fast as it can

    write(MemoryMap::TRIGGER_MODE, 1);
    receive(1ms);
    QCOMPARE(getStarts(100ms), QVector<int>());
    write(MemoryMap::TRIGGER_SOFTWARE, 1);
    QCOMPARE(getStarts(100ms).size(), 1);

    write(MemoryMap::STREAM_PACKET_DELAY, 1'000'000);
    write(MemoryMap::TRIGGER_SOFTWARE, 1);
    const Time start = m_now;
    receive(100ms);
    QCOMPARE(
        m_packetTimes,
        (QVector<Time>{start, start + 1ms, start + 2ms, start + 3ms, start + 4ms, start + 5ms}));
}

void CVirtualCameraTest::endsItsStream()
{
    const auto startStream = [this](int mode) {
        makeStreaming({"--size", "180x12"});
        write(MemoryMap::STREAM_PACKET_DELAY, 1'000'000);
        write(MemoryMap::ACQUISITION_MODE, quint32(mode));
        write(MemoryMap::ACQUISITION_START, 1);
        return namesOf(receive(2ms));
    };
    const QByteArray begin = "L12 1 2", rest = "3 4 T12";
    QCOMPARE(startStream(1), begin); // a single frame
    QCOMPARE(read(MemoryMap::ACQUISITION_ACTIVE), 1U);
    QCOMPARE(namesOf(receive(1000ms)), rest);
    QCOMPARE(read(MemoryMap::ACQUISITION_ACTIVE), 0U);

    QCOMPARE(startStream(0), begin);
    write(MemoryMap::ACQUISITION_STOP, 1);
    QCOMPARE(namesOf(receive(1000ms)), rest);
    QCOMPARE(read(MemoryMap::ACQUISITION_ACTIVE), 0U);

    for (const bool resets : {false, true}) {
        QCOMPARE(startStream(0), begin);
        QCOMPARE(
            resets ? write(MemoryMap::DEVICE_RESET, 1) : write(MemoryMap::CONTROL_PRIVILEGE, 0), 0);
        QVERIFY(receive(4000ms).isEmpty());
        QCOMPARE(read(MemoryMap::STREAM_PORT), 0U);
    }
    QCOMPARE(startStream(0), begin);
    write(MemoryMap::HEARTBEAT_TIMEOUT, 500);
    QCOMPARE(namesOf(receive(4000ms)).count("L12"), 12); // at 40, 80... 480 ms
}

void CVirtualCameraTest::locksWhatAnImageNeeds()
{
    constexpr quint32 PACKET_SIZE = MemoryMap::STREAM_PACKET_SIZE;
    makeStreaming({"--size", "4096x3000"});
    QCOMPARE(write(MemoryMap::OFFSET_X, 4), 0x8002); // over the edge
    QCOMPARE(write(MemoryMap::WIDTH, 4092), 0);
    QCOMPARE(write(MemoryMap::OFFSET_X, 4), 0);
    QCOMPARE(write(MemoryMap::WIDTH, 4096), 0x8002);
    QCOMPARE(write(MemoryMap::WIDTH, 4090), 0x8002); // no multiple of 4
    // In one command, of which each part would do.
    QCOMPARE(write(MemoryMap::OFFSET_X, 0), 0);
    QCOMPARE(write(MemoryMap::WIDTH, 16), 0);
    QCOMPARE(writeMemory(MemoryMap::WIDTH, words({4096, 3000, 4})), 0x8002);
    QCOMPARE(read(MemoryMap::OFFSET_X), 0U);
    QCOMPARE(write(MemoryMap::PIXEL_FORMAT, 0x01080002), 0x8002);
    QCOMPARE(write(MemoryMap::STREAM_ADDRESS, 0xc0a80001), 0x8002); // of another machine
    QCOMPARE(write(MemoryMap::TRIGGER_SOFTWARE, 1), 0x8006); // only with TriggerMode
    for (const quint32 bad : {0U, 572U, 577U, 9004U})
        QCOMPARE(write(PACKET_SIZE, bad), 0x8002);
    QCOMPARE(write(PACKET_SIZE, 0xc0000000U | 8996U), 0);
    const QList<QByteArray> test = receive(0ms);
    QCOMPARE(test.size(), 1);
    QCOMPARE(test[0].size(), 8996 - 28);
    QCOMPARE(read(PACKET_SIZE), 0x40000000U | 8996U);

    const auto check = [this](int status) {
        for (const quint32 address :
             {MemoryMap::WIDTH, MemoryMap::HEIGHT, MemoryMap::OFFSET_X, MemoryMap::OFFSET_Y,
              MemoryMap::PIXEL_FORMAT, MemoryMap::ACQUISITION_MODE, PACKET_SIZE})
            QCOMPARE(write(address, address == PACKET_SIZE ? 1500 : read(address)), status);
        QCOMPARE(write(PACKET_SIZE, 8996), 0); // the same
    };
    write(MemoryMap::TL_PARAMS_LOCKED, 1);
    check(0x8006);
    write(MemoryMap::ACQUISITION_START, 1);
    write(MemoryMap::TL_PARAMS_LOCKED, 0);
    QCOMPARE(write(PACKET_SIZE, 1500), 0x8006);
    check(0x8006);
    write(MemoryMap::ACQUISITION_STOP, 1);
    receive(100ms);
    check(0);
}

QTEST_GUILESS_MAIN(CVirtualCameraTest)
#include "tst_virtualcamera.moc"
