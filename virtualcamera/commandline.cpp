#include "commandline.h"

#include "featuredescription.h"

#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>
#include <QHostAddress>

#include <functional>
#include <limits>
#include <vector>

namespace VirtualCamera {

namespace {

/// One option and what it does with its value; false: the value is no good.
struct COption
{
    const char *name;
    const char *valueName; ///< null: a switch
    QByteArray description;
    std::function<bool(const QString &)> take;
};

bool readNumber(const QString &text, qint64 minimum, qint64 maximum, qint64 &number)
{
    bool isNumber = false;
    number = text.toLongLong(&isNumber);
    return isNumber && number >= minimum && number <= maximum;
}

template <typename T>
auto takeNumber(T &target, qint64 minimum, qint64 maximum)
{
    return [&target, minimum, maximum](const QString &text) {
        qint64 number = 0;
        if (!readNumber(text, minimum, maximum, number))
            return false;
        target = T(number);
        return true;
    };
}

auto takeText(QByteArray &target, int maximumSize)
{
    return [&target, maximumSize](const QString &text) {
        target = text.toUtf8();
        return target.size() <= maximumSize;
    };
}

auto takeSwitch(bool &target)
{
    return [&target](const QString &) {
        target = true;
        return true;
    };
}

} // namespace

CCommandLine::EResult CCommandLine::parse(const QStringList &arguments)
{
    constexpr qint64 longest = 3'600'000; // an hour
    constexpr qint64 largest = std::numeric_limits<int>::max();
    const auto takeAddress = [](quint32 &target) {
        return [&target](const QString &text) {
            bool isAddress = false;
            target = QHostAddress(text).toIPv4Address(&isAddress);
            return isAddress && target >> 24 == 127;
        };
    };
    const auto takeDescription = [this](const QString &text) {
        if (const auto description = findDescription(text.toUtf8())) {
            settings.description = *description;
            return true;
        }
        constexpr qint64 longestDescription = 64 * 1024 * 1024;
        QFile file(text);
        if (!QFileInfo(text).isFile() || !file.open(QIODevice::ReadOnly)
            || file.size() > longestDescription)
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
    const auto takeFlashFile = [this](const QString &text) {
        flashFile = text;
        return !text.isEmpty();
    };

    const auto takeBytes = [](std::optional<qint64> &target) {
        return [&target](const QString &text) {
            return readNumber(text, 0, largest, target.emplace());
        };
    };

    const std::vector<COption> options = {
        {"address", "A.B.C.D", "Loopback address to answer at.", takeAddress(settings.address)},
        {"vendor", "TEXT", "Vendor name.", takeText(settings.vendor, 31)},
        {"model", "TEXT", "Model name.", takeText(settings.model, 31)},
        {"serial", "TEXT", "Serial number.", takeText(settings.serialNumber, 15)},
        {"user-name", "TEXT", "Name given by the user.", takeText(settings.userName, 15)},
        {"firmware", "VERSION", "Firmware version.", takeText(settings.firmwareVersion, 31)},
        {"status", "NUMBER", "Status; 0: can be updated.", takeNumber(settings.status, 0, largest)},
        {"buffer", "BYTES", "File access buffer, 512 to 65536.",
         takeNumber(settings.bufferLength, 512, 65536)},
        {"flash", "FILE", "Keep what was uploaded in FILE.", takeFlashFile},
        {"description", "KIND",
         "Description of the features: " + getDescriptionNames() + ", or the path of a file.",
         takeDescription},
        {"reset-delay-ms", "MS", "Answer on for so long after the command for a reset.",
         takeNumber(settings.resetDelay, 0, longest)},
        {"reset-ms", "MS", "Silence during a reset.",
         takeNumber(settings.resetDuration, 0, longest)},
        {"activate-ms", "MS", "Duration of the command FirmwareActivate.",
         takeNumber(settings.activationDuration, 0, longest)},
        {"activate-reads", "N", "Let FirmwareActivate read as running N times.",
         takeNumber(settings.activationReads, 0, largest)},
        {"operation-reads", "N", "Let each file operation read as running N times.",
         takeNumber(settings.operationReads, 0, largest)},
        {"open-ms", "MS", "Announce the opening of the file as pending for so long.",
         takeNumber(settings.openDuration, 0, 65535)},
        {"die-after", "BYTES", "Fall silent for ever after so many uploaded bytes.",
         takeBytes(settings.diesAfterBytes)},
        {"lose-control", "BYTES", "Somebody else takes control after so many uploaded bytes.",
         takeBytes(settings.losesControlAfterBytes)},
        {"never-open", nullptr, "Announce the opening as pending again and again, without end.",
         takeSwitch(settings.neverOpens)},
        {"ignore-reset", nullptr, "Say that a reset is done, and go on as before.",
         takeSwitch(settings.ignoresReset)},
        {"restart-too", "A.B.C.D", "Restart the virtual camera at this address with this one.",
         takeAddress(settings.restartsToo)},
        {"return-model", "TEXT", "Return from a reset as this model.",
         takeText(settings.returnsWithModel, 31)},
        {"return-serial", "TEXT", "Return from a reset with this serial number.",
         takeText(settings.returnsWithSerialNumber, 15)},
        {"never-return", nullptr, "Stay away after a reset.", takeSwitch(settings.neverReturns)},
        {"old-version", nullptr, "Return from a reset with the old firmware.",
         takeSwitch(settings.returnsWithOldVersion)},
        {"refuse", "COMMAND", "Refuse DeviceReset, FirmwareActivate or FileOperationExecute.",
         takeRefusedCommand},
        {"lose-every", "N", "Lose each N-th request.", takeNumber(settings.losesEvery, 2, largest)},
        {"lose-ack", "N", "Lose the answer to the N-th write of memory.",
         takeNumber(settings.losesAcknowledge, 1, largest)},
        {"max-seconds", "S", "End by itself after so long, otherwise after 600.",
         takeNumber(maximumSeconds, 1, 86400)},
    };

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "A camera without a lens: speaks the control protocol of GigE Vision on a loopback "
        "address.\nPrints READY with its address, EVENT lines, and STATS at its end."));
    for (const COption &option : options) {
        parser.addOption(QCommandLineOption(
            QString::fromLatin1(option.name), QString::fromLatin1(option.description),
            option.valueName ? QString::fromLatin1(option.valueName) : QString()));
    }
    const QCommandLineOption help(QStringLiteral("help"), QStringLiteral("Show this text."));
    parser.addOption(help);

    if (!parser.parse(arguments)) {
        message = parser.errorText();
        return EResult::Error;
    }
    if (parser.isSet(help)) {
        message = parser.helpText();
        return EResult::Help;
    }
    if (!parser.positionalArguments().isEmpty()) {
        message = QStringLiteral("Unexpected argument \"%1\".")
                      .arg(parser.positionalArguments().constFirst());
        return EResult::Error;
    }
    for (const COption &option : options) {
        const QString name = QString::fromLatin1(option.name);
        if (!parser.isSet(name) || option.take(parser.value(name)))
            continue;
        message = QStringLiteral("\"%1\" is no good value for --%2.").arg(parser.value(name), name);
        return EResult::Error;
    }
    // What is announced must take some time.
    if (settings.neverOpens && settings.openDuration.count() == 0)
        settings.openDuration = std::chrono::seconds(1);
    return EResult::Start;
}

} // namespace VirtualCamera
