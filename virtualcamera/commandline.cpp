#include "commandline.h"

#include "featuredescription.h"
#include "featurelimits.h"
#include "memorymap.h"
#include "pixelformat.h"
#include "viewer/commandline/takers.h"

#include <QFile>
#include <QFileInfo>
#include <QHostAddress>

#include <limits>

namespace VirtualCamera {

using Viewer::CommandLine::COption;
using Viewer::CommandLine::COptionReader;
using Viewer::CommandLine::takeInteger;
using Viewer::CommandLine::takeSwitch;
using Viewer::CommandLine::takeUtf8;

namespace {

COption makeOption(const char *name, const char *valueName, const QByteArray &description,
                   const Viewer::CommandLine::CTaker &take)
{
    return {QString::fromLatin1(name), QString::fromLatin1(valueName),
            QString::fromLatin1(description), take};
}

Viewer::CommandLine::CTaker takeAddress(quint32 &target)
{
    return [&target](const QString &text) {
        bool isAddress = false;
        target = QHostAddress(text).toIPv4Address(&isAddress);
        return isAddress && target >> 24 == 127;
    };
}

constexpr qint64 LONGEST = 3'600'000; // an hour, in milliseconds
constexpr qint64 LARGEST = std::numeric_limits<int>::max();

} // namespace

CCommandLine::EResult CCommandLine::parse(QStringList arguments)
{
    if (arguments.value(1) == QLatin1String("usb")) {
        settings.transport = ETransport::Usb;
        arguments.removeAt(1);
        if (const int end = arguments.indexOf(QStringLiteral("--")); end >= 0) {
            usbCommand = arguments.mid(end + 1);
            arguments = arguments.mid(0, end);
        }
    }
    const bool isUsb = settings.transport == ETransport::Usb;
    COptionReader reader(
        isUsb ? QStringLiteral("virtualcamera usb") : QStringLiteral("virtualcamera"), {},
        isUsb ? QStringLiteral(
            "A camera without a lens: speaks the control and the stream protocol of USB3 Vision on "
            "an emulated USB, which programs see that run in the environment that is printed "
            "behind READY, or the one whose command follows behind --.\nPrints EVENT lines, and "
            "STATS at its end. Without a command, a line \"unplug\" or \"plug\" on standard "
            "input pulls the plug or puts it in.")
              : QStringLiteral(
                  "A camera without a lens: speaks the control and the stream protocol of GigE "
                  "Vision on a loopback address.\nPrints READY with its address, EVENT lines, and "
                  "STATS at its end.\n\"virtualcamera usb --help\": the same on an emulated USB."));
    reader.add(getOptions());
    reader.add(isUsb ? getUsbOptions() : getEthernetOptions());
    const EResult result = reader.parse(arguments);
    message = reader.getMessage();
    // The parser knows the name of the program only.
    const QString options = QStringLiteral(" [options]");
    if (isUsb && result == EResult::Message)
        message.replace(message.indexOf(options), options.size(),
                        QStringLiteral(" usb [options] [-- command]"));
    // What is announced must take some time.
    if (settings.neverOpens && settings.openDuration.count() == 0)
        settings.openDuration = std::chrono::seconds(1);
    return result;
}

QVector<COption> CCommandLine::getOptions()
{
    const auto takeDescription = [this](const QString &text) {
        if (const auto description = findDescription(text.toUtf8())) {
            settings.description = *description;
            return true;
        }
        constexpr qint64 LONGEST_DESCRIPTION = 64 * 1024 * 1024;
        QFile file(text);
        if (!QFileInfo(text).isFile() || !file.open(QIODevice::ReadOnly)
            || file.size() > LONGEST_DESCRIPTION)
            return false;
        settings.description = EDescription::Given;
        settings.descriptionName = QFileInfo(text).fileName().toUtf8();
        settings.descriptionContent = file.readAll();
        return true;
    };
    const auto takeRefusedCommand = [this](const QString &text) {
        settings.refusedCommand = text.toUtf8();
        return text == QLatin1String("DeviceReset") || text == QLatin1String("FirmwareActivate")
            || text == QLatin1String("FileOperationExecute");
    };
    const auto takeSize = [this](const QString &text) {
        const QStringList numbers = text.split(QLatin1Char('x'));
        settings.width = numbers.value(0).toInt();
        settings.height = numbers.value(1).toInt();
        return numbers.size() == 2
            && isWithinLimits(MemoryMap::WIDTH, static_cast<quint32>(settings.width))
            && isWithinLimits(MemoryMap::HEIGHT, static_cast<quint32>(settings.height));
    };
    const auto takePixelFormat = [this](const QString &text) {
        const CPixelFormat *const format = findPixelFormat(text.toUtf8());
        if (format)
            settings.pixelFormat = format->code;
        return format != nullptr;
    };
    const auto takeFlashFile = [this](const QString &text) {
        flashFile = text;
        return !text.isEmpty();
    };

    const auto takeBytes
        = [](std::optional<qint64> &target) { return takeInteger(target, 0, LARGEST); };

    return {
        makeOption("vendor", "TEXT", "Vendor name.", takeUtf8(settings.vendor, 31)),
        makeOption("model", "TEXT", "Model name.", takeUtf8(settings.model, 31)),
        makeOption("serial", "TEXT", "Serial number.", takeUtf8(settings.serialNumber, 15)),
        makeOption("user-name", "TEXT", "Name given by the user.", takeUtf8(settings.userName, 15)),
        makeOption("firmware", "VERSION", "Firmware version.",
                   takeUtf8(settings.firmwareVersion, 31)),
        makeOption("status", "NUMBER", "Status; 0: can be updated.",
                   takeInteger(settings.status, 0, LARGEST)),
        makeOption("size", "WxH", "Region of the sensor, up to 4096x3000; multiples of 4 and 2.",
                   takeSize),
        makeOption("pixel-format", "NAME", "Pixel format: Mono8, BayerRG12p, RGB8, YUV422_8...",
                   takePixelFormat),
        makeOption("fps", "N", "Frames a second, 1 to 1000.",
                   takeInteger(settings.frameRate, 1, 1000)),
        makeOption("buffer", "BYTES", "File access buffer, 512 to 65536.",
                   takeInteger(settings.bufferLength, 512, 65536)),
        makeOption("flash", "FILE", "Keep what was uploaded in FILE.", takeFlashFile),
        makeOption("description", "KIND",
                   "Description of the features: " + getDescriptionNames()
                       + ", or the path of a file.",
                   takeDescription),
        makeOption("answer-ms", "MS", "Take so long for each answer.",
                   takeInteger(settings.answerDelay, 0, 1000)),
        makeOption("reset-delay-ms", "MS", "Answer on for so long after the command for a reset.",
                   takeInteger(settings.resetDelay, 0, LONGEST)),
        makeOption("reset-ms", "MS", "Silence during a reset.",
                   takeInteger(settings.resetDuration, 0, LONGEST)),
        makeOption("activate-ms", "MS", "Duration of the command FirmwareActivate.",
                   takeInteger(settings.activationDuration, 0, LONGEST)),
        makeOption("activate-reads", "N", "Let FirmwareActivate read as running N times.",
                   takeInteger(settings.activationReads, 0, LARGEST)),
        makeOption("operation-reads", "N", "Let each file operation read as running N times.",
                   takeInteger(settings.operationReads, 0, LARGEST)),
        makeOption("open-ms", "MS", "Announce the opening of the file as pending for so long.",
                   takeInteger(settings.openDuration, 0, 65535)),
        makeOption("die-after", "BYTES", "Fall silent for ever after so many uploaded bytes.",
                   takeBytes(settings.diesAfterBytes)),
        makeOption("never-open", "",
                   "Announce the opening as pending again and again, without end.",
                   takeSwitch(settings.neverOpens)),
        makeOption("ignore-reset", "", "Say that a reset is done, and go on as before.",
                   takeSwitch(settings.ignoresReset)),
        makeOption("return-model", "TEXT", "Return from a reset as this model.",
                   takeUtf8(settings.returnsWithModel, 31)),
        makeOption("return-serial", "TEXT", "Return from a reset with this serial number.",
                   takeUtf8(settings.returnsWithSerialNumber, 15)),
        makeOption("never-return", "", "Stay away after a reset.",
                   takeSwitch(settings.neverReturns)),
        makeOption("old-version", "", "Return from a reset with the old firmware.",
                   takeSwitch(settings.returnsWithOldVersion)),
        makeOption("refuse", "COMMAND",
                   "Refuse DeviceReset, FirmwareActivate or FileOperationExecute.",
                   takeRefusedCommand),
        makeOption("lose-ack", "N", "Lose the answer to the N-th write of memory.",
                   takeInteger(settings.losesAcknowledge, 1, LARGEST)),
        makeOption("stop-in-frame", "N", "Stop the stream in the middle of its N-th frame.",
                   takeInteger(settings.stopsInFrame, 1, LARGEST)),
        makeOption("wrong-leader-size", "N", "Tell of twice as many rows in each N-th leader.",
                   takeInteger(settings.wrongLeaderSize, 1, LARGEST)),
        makeOption("wrong-trailer-size", "N", "Tell of half as many rows in each N-th trailer.",
                   takeInteger(settings.wrongTrailerSize, 1, LARGEST)),
        makeOption("max-seconds", "S", "End by itself after so long, otherwise after 600.",
                   takeInteger(maximumSeconds, 1, 86400)),
    };
}

QVector<COption> CCommandLine::getEthernetOptions()
{
    return {
        makeOption("address", "A.B.C.D", "Loopback address to answer at.",
                   takeAddress(settings.address)),
        makeOption("lose-control", "BYTES",
                   "Somebody else takes control after so many uploaded bytes.",
                   takeInteger(settings.losesControlAfterBytes, 0, LARGEST)),
        makeOption("restart-too", "A.B.C.D",
                   "Restart the virtual camera at this address with this one.",
                   takeAddress(settings.restartsToo)),
        makeOption("lose-every", "N", "Lose each N-th request.",
                   takeInteger(settings.losesEvery, 2, LARGEST)),
        makeOption("lose-packet", "N", "Lose each N-th packet of payload of the stream.",
                   takeInteger(settings.losesPacket, 1, LARGEST)),
        makeOption("swap-packets", "N", "Send each N-th packet of payload behind the next one.",
                   takeInteger(settings.swapsPacket, 1, LARGEST)),
        makeOption("no-resend", "", "Do not answer who asks for packets again.",
                   takeSwitch(settings.neverResends)),
        makeOption("stream-from", "A.B.C.D", "Stream from another loopback address.",
                   takeAddress(settings.streamsFrom)),
    };
}

QVector<COption> CCommandLine::getUsbOptions()
{
    return {
        makeOption("twin", "", "Plug in a second camera that says that it is the same one.",
                   takeSwitch(hasTwin)),
        makeOption("no-access", "", "Give nobody the right to open the camera.",
                   takeSwitch(isForbidden)),
        makeOption("unplug-after", "BYTES", "Unplug the camera after so many uploaded bytes.",
                   takeInteger(settings.unplugsAfterBytes, 0, LARGEST)),
        makeOption("stall-after", "BYTES",
                   "Stall the control channel after so many uploaded bytes.",
                   takeInteger(settings.stallsAfterBytes, 0, LARGEST)),
        makeOption("cut-ack", "N", "Send half of the answer to the N-th write of memory.",
                   takeInteger(settings.cutsAnswer, 1, LARGEST)),
        makeOption("mistake-ack", "N",
                   "Answer the N-th write of memory as if it were another command.",
                   takeInteger(settings.mistakesAnswer, 1, LARGEST)),
        makeOption("unplug-in-frame", "N", "Unplug the camera in the middle of its N-th frame.",
                   takeInteger(settings.unplugsInFrame, 1, LARGEST)),
        makeOption("plug-in-after-ms", "MS",
                   "Plug it in again so long after that, otherwise never.",
                   takeInteger(settings.plugsInAfter, 1, LONGEST)),
    };
}

} // namespace VirtualCamera
