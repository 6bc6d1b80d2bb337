#include "commandline.h"

#include "viewer/text/language.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QNetworkInterface>

namespace Viewer::AppCore {

using Text::CLanguage;

static QString absolutePath(const QString &path)
{
    return path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
}

// Not several devices at once, and not nobody.
static bool isAddressOfOne(const QHostAddress &address)
{
    if (address.protocol() != QAbstractSocket::IPv4Protocol || address.toIPv4Address() >> 24 == 0
        || address.isBroadcast() || address.isMulticast())
        return false;
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface &networkInterface : interfaces) {
        const QList<QNetworkAddressEntry> entries = networkInterface.addressEntries();
        for (const QNetworkAddressEntry &entry : entries) {
            if (entry.broadcast() == address)
                return false;
        }
    }
    return true;
}

CCommandLine::EResult CCommandLine::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Shows cameras and lets plug-ins work with them."));
    // Qt has these two options as well, but not in every language.
    const QCommandLineOption helpOption({QStringLiteral("h"), QStringLiteral("help")},
                                        tr("Show this help and quit."));
    const QCommandLineOption versionOption({QStringLiteral("v"), QStringLiteral("version")},
                                           tr("Show the version and quit."));
    const QCommandLineOption camerasOption(
        QStringLiteral("cameras"), tr("Simulate the cameras described in <file>."), tr("file"));
    const QCommandLineOption resetOption(
        QStringLiteral("reset-cameras"),
        tr("Forget the firmware that earlier updates wrote to the simulated cameras."));
    const QCommandLineOption speedOption(QStringLiteral("speed"),
                                         tr("Let the simulated cameras work <n> times as fast as "
                                            "real ones (default 1; with --demo %1).")
                                             .arg(DemoSpeedFactor),
                                         tr("n"));
    const QCommandLineOption noSimulationOption(QStringLiteral("no-simulation"),
                                                tr("Leave out the simulated cameras."));
    const QCommandLineOption networkOption(
        QStringLiteral("network"),
        tr("Search the network (by broadcast) and USB for cameras this time."));
    const QCommandLineOption addressOption(
        QStringLiteral("camera-address"),
        tr("Ask for a camera at <address>, without a broadcast; can be given several times."),
        tr("address"));
    const QCommandLineOption pluginsOption(
        QStringLiteral("plugins"),
        tr("Look for plug-ins in <dir>, too; can be given several times."), tr("dir"));
    const QCommandLineOption languageOption(
        QStringLiteral("language"),
        tr("Use the language <code> this time: %1.").arg(CLanguage::getCodeList()), tr("code"));
    const QCommandLineOption samplesOption(QStringLiteral("samples"),
                                           tr("Use <dir> as the folder of sample update files."),
                                           tr("dir"));
    const QCommandLineOption demoOption(
        QStringLiteral("demo"),
        tr("Walk through the firmware update wizard, save pictures into <dir> and quit."),
        tr("dir"));
    parser.addOptions({helpOption, versionOption, camerasOption, resetOption, speedOption,
                       noSimulationOption, networkOption, addressOption, pluginsOption,
                       languageOption, samplesOption, demoOption});

    const bool understood = parser.parse(arguments);
    m_options.language = parser.value(languageOption);
    if (!understood) {
        m_message = parser.errorText();
        return EResult::Error;
    }
    if (parser.isSet(languageOption) && !CLanguage::isKnown(m_options.language)) {
        m_message = tr("The language \"%1\" is unknown; there are %2.")
                        .arg(m_options.language, CLanguage::getCodeList());
        return EResult::Error;
    }
    if (parser.isSet(helpOption)) {
        m_message = parser.helpText().trimmed();
        return EResult::Message;
    }
    if (parser.isSet(versionOption)) {
        m_message = QStringLiteral("nuvexviewer %1").arg(QCoreApplication::applicationVersion());
        return EResult::Message;
    }
    if (!parser.positionalArguments().isEmpty()) {
        m_message
            = tr("Unexpected argument \"%1\".").arg(parser.positionalArguments().constFirst());
        return EResult::Error;
    }
    m_options.demoDirectory = absolutePath(parser.value(demoOption));
    if (parser.isSet(demoOption) && m_options.demoDirectory.isEmpty()) {
        m_message = tr("No folder is given for the demonstration's pictures.");
        return EResult::Error;
    }
    m_options.pool.speedFactor = m_options.demoDirectory.isEmpty() ? 1.0 : DemoSpeedFactor;
    if (parser.isSet(speedOption)) {
        bool valid = false;
        const double speed = parser.value(speedOption).toDouble(&valid);
        if (!valid || !(speed >= 0.01 && speed <= 10000.0)) {
            m_message = tr("The speed \"%1\" is not a number from 0.01 to 10000.")
                            .arg(parser.value(speedOption));
            return EResult::Error;
        }
        m_options.pool.speedFactor = speed;
    }
    m_options.pool.descriptionFile = absolutePath(parser.value(camerasOption));
    m_options.pool.resetCameras = parser.isSet(resetOption);
    m_options.pool.simulates = !parser.isSet(noSimulationOption);
    m_options.pool.searchesNetwork = parser.isSet(networkOption);
    const QStringList addresses = parser.values(addressOption);
    for (const QString &text : addresses) {
        const QHostAddress address(text);
        // In full: "1.2.3" would be taken for 1.2.0.3.
        if (address.toString() != text || !isAddressOfOne(address)) {
            m_message
                = tr("\"%1\" is not a camera address; it has the form 192.168.0.10.").arg(text);
            return EResult::Error;
        }
        m_options.pool.cameraAddresses.append(address);
    }
    const bool wantsRealCameras
        = m_options.pool.searchesNetwork || !m_options.pool.cameraAddresses.isEmpty();
    if (wantsRealCameras && !CameraPool::CCameraPool::canSearchNetwork()) {
        m_message = tr("This viewer was built without the library for real cameras.");
        return EResult::Error;
    }
    const QStringList pluginDirectories = parser.values(pluginsOption);
    // An empty folder would stand for the current one, in which anything may lie.
    if (pluginDirectories.contains(QString())) {
        m_message = tr("No folder is given for the plug-ins.");
        return EResult::Error;
    }
    for (const QString &directory : pluginDirectories)
        m_options.pluginDirectories.append(absolutePath(directory));
    m_options.samplesDirectory = absolutePath(parser.value(samplesOption));
    return EResult::Start;
}

const CCommandLineOptions &CCommandLine::getOptions() const
{
    return m_options;
}

QString CCommandLine::getMessage() const
{
    return m_message;
}

} // namespace Viewer::AppCore
