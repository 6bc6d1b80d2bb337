#include "virtualcameraprocess.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace TestSupport {

QHostAddress CVirtualCameraProcess::getOwnAddress(int number)
{
    const auto process = static_cast<quint32>(QCoreApplication::applicationPid() & 0xffff);
    return QHostAddress(0x7f000000 | process << 8 | static_cast<quint32>(number));
}

bool CVirtualCameraProcess::isOnUsb()
{
    return qEnvironmentVariableIsSet("CAMERAS_ON_USB");
}

QStringList CVirtualCameraProcess::getSearchOptions(const QHostAddress &address)
{
    return isOnUsb() ? QStringList{QStringLiteral("--network")}
                     : QStringList{QStringLiteral("--camera-address"), address.toString()};
}

CVirtualCameraProcess::CVirtualCameraProcess(const QHostAddress &address,
                                             const QStringList &arguments)
{
    const QStringList place = isOnUsb()
        ? QStringList{QStringLiteral("usb")}
        : QStringList{QStringLiteral("--address"), address.toString()};
    m_process.start(QStringLiteral(VIRTUAL_CAMERA), place + arguments);
    while (!m_output.contains(QLatin1String("READY"))) {
        if (!m_process.waitForReadyRead())
            qFatal("The virtual camera does not start: %s",
                   m_process.readAllStandardError().constData());
        readOutput();
    }
    // From now on this process and those that it starts see that bus.
    static const QRegularExpression bus(QStringLiteral("UMOCKDEV_DIR=(\\S+)"));
    if (const QRegularExpressionMatch match = bus.match(m_output); match.hasMatch())
        qputenv("UMOCKDEV_DIR", match.captured(1).toUtf8());
}

CVirtualCameraProcess::~CVirtualCameraProcess()
{
    end();
}

void CVirtualCameraProcess::command(const QByteArray &command)
{
    m_process.write(command + '\n');
    m_process.waitForBytesWritten();
}

void CVirtualCameraProcess::readOutput()
{
    m_output += QString::fromUtf8(m_process.readAllStandardOutput());
}

QStringList CVirtualCameraProcess::getEvents()
{
    m_process.waitForReadyRead(0);
    readOutput();
    const QString word = QStringLiteral("EVENT ");
    return m_output.split(QLatin1Char('\n'))
        .filter(QRegularExpression('^' + word))
        .replaceInStrings(word, QString());
}

QHash<QString, qint64> CVirtualCameraProcess::end()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.terminate();
        m_process.waitForFinished();
        readOutput();
    }
    static const QRegularExpression number(QStringLiteral("(\\w+)=(\\d+)"));
    QHash<QString, qint64> numbers;
    for (auto i = number.globalMatch(m_output.section(QLatin1String("STATS"), -1)); i.hasNext();) {
        const QRegularExpressionMatch match = i.next();
        numbers.insert(match.captured(1), match.captured(2).toLongLong());
    }
    return numbers;
}

} // namespace TestSupport
