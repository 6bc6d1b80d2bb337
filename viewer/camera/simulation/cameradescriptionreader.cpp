#include "cameradescriptionreader.h"

#include "core/baseexception.h"
#include "viewer/json/jsonfault.h"
#include "viewer/json/jsonmembers.h"
#include "viewer/text/visibletext.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <limits>

// Not inside a namespace: the macro declares a function of the global one. Without this call a
// static library's resources would be left out by the linker.
static void initResources()
{
    Q_INIT_RESOURCE(cameras);
}

namespace Viewer::Camera::Simulation {

using Core::Exception::BaseException;
using Json::CJsonFields;
using Json::CJsonMembers;
using Json::CJsonScanner;
using Json::CTextRule;
using Text::CErrorText;

namespace {

class CReader
{
public:
    explicit CReader(const QByteArray &text)
        : m_scanner(text)
    {
    }

    CCameraDescription read()
    {
        CCameraDescription description;
        static const CJsonFields FIELDS{{QStringLiteral("format"), QStringLiteral("layers")}, {}};
        CJsonMembers members(m_scanner, FIELDS);
        QString name;
        while (members.next(name)) {
            if (name == QLatin1String("format")) {
                const qint64 format = m_scanner.readInteger(0, std::numeric_limits<qint32>::max());
                if (format != 1)
                    m_scanner.fail(CErrorText::tr("format %1 is unknown, only format 1 can be read")
                                       .arg(QString::number(format)));
            } else if (name == QLatin1String("layers")) {
                readLayers(description);
            }
        }
        m_scanner.expectEnd();
        return description;
    }

private:
    void readLayers(CCameraDescription &description)
    {
        m_scanner.beginArray();
        while (m_scanner.nextElement()) {
            if (description.layers.size() == CCameraDescriptionReader::MAXIMUM_LAYER_COUNT)
                m_scanner.fail(
                    CErrorText::tr("more than %1 transport layers")
                        .arg(QString::number(CCameraDescriptionReader::MAXIMUM_LAYER_COUNT)));
            description.layers.append(readLayer());
        }
    }

    CLayerDescription readLayer()
    {
        CLayerDescription layer;
        static const CJsonFields FIELDS{
            {QStringLiteral("id"), QStringLiteral("displayName"), QStringLiteral("cameras")}, {}};
        CJsonMembers members(m_scanner, FIELDS);
        QString name;
        while (members.next(name)) {
            if (name == QLatin1String("id"))
                layer.id = readId();
            else if (name == QLatin1String("displayName"))
                layer.displayName = readText();
            else if (name == QLatin1String("cameras"))
                readCameras(layer);
        }
        return layer;
    }

    void readCameras(CLayerDescription &layer)
    {
        m_scanner.beginArray();
        while (m_scanner.nextElement()) {
            if (++m_cameraCount > CCameraDescriptionReader::MAXIMUM_CAMERA_COUNT)
                m_scanner.fail(
                    CErrorText::tr("more than %1 cameras")
                        .arg(QString::number(CCameraDescriptionReader::MAXIMUM_CAMERA_COUNT)));
            layer.cameras.append(readCamera());
        }
    }

    CCameraDescriptionEntry readCamera()
    {
        CCameraDescriptionEntry entry;
        CCameraSnapshot &camera = entry.camera;
        entry.uploadSpeed = CCameraDescriptionReader::DEFAULT_UPLOAD_SPEED;
        static const CJsonFields FIELDS{
            {QStringLiteral("id"), QStringLiteral("displayName"), QStringLiteral("model"),
             QStringLiteral("serialNumber"), QStringLiteral("deviceVersion"),
             QStringLiteral("firmwareVersion")},
            {QStringLiteral("statusCode"), QStringLiteral("statusReason"),
             QStringLiteral("uploadSpeed"), QStringLiteral("faults")}};
        CJsonMembers members(m_scanner, FIELDS);
        QString name;
        while (members.next(name)) {
            if (name == QLatin1String("id"))
                camera.id = readId();
            else if (name == QLatin1String("displayName"))
                camera.displayName = readText();
            else if (name == QLatin1String("model"))
                camera.modelName = readText();
            else if (name == QLatin1String("serialNumber"))
                camera.serialNumber = readText();
            else if (name == QLatin1String("deviceVersion"))
                camera.deviceVersion = readText();
            else if (name == QLatin1String("firmwareVersion"))
                camera.firmwareVersion = readText();
            else if (name == QLatin1String("statusCode"))
                camera.statusCode = static_cast<qint32>(m_scanner.readInteger(
                    std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()));
            else if (name == QLatin1String("statusReason"))
                camera.statusReason = readText();
            else if (name == QLatin1String("uploadSpeed"))
                entry.uploadSpeed
                    = m_scanner.readInteger(1, CCameraDescriptionReader::MAXIMUM_UPLOAD_SPEED);
            else if (name == QLatin1String("faults"))
                entry.faults = readFaults();
        }
        return entry;
    }

    CScriptedFaults readFaults()
    {
        CScriptedFaults faults;
        static const CJsonFields FIELDS{
            {},
            {QStringLiteral("preconditionNotMet"), QStringLiteral("writeRefused"),
             QStringLiteral("uploadFailsAtByte"), QStringLiteral("vanishesAtByte"),
             QStringLiteral("assertFails"), QStringLiteral("neverReturnsFromReset"),
             QStringLiteral("returnsLate"), QStringLiteral("returnsWithOldVersion")}};
        CJsonMembers members(m_scanner, FIELDS);
        QString name;
        while (members.next(name)) {
            if (name == QLatin1String("preconditionNotMet"))
                faults.preconditionNotMet = m_scanner.readBoolean();
            else if (name == QLatin1String("writeRefused"))
                faults.writeRefused = m_scanner.readBoolean();
            else if (name == QLatin1String("uploadFailsAtByte"))
                faults.uploadFailsAtByte = readByteCount();
            else if (name == QLatin1String("vanishesAtByte"))
                faults.vanishesAtByte = readByteCount();
            else if (name == QLatin1String("assertFails"))
                faults.assertFails = m_scanner.readBoolean();
            else if (name == QLatin1String("neverReturnsFromReset"))
                faults.neverReturnsFromReset = m_scanner.readBoolean();
            else if (name == QLatin1String("returnsLate"))
                faults.returnsLate = m_scanner.readBoolean();
            else if (name == QLatin1String("returnsWithOldVersion"))
                faults.returnsWithOldVersion = m_scanner.readBoolean();
        }
        return faults;
    }

    QString readId()
    {
        const QString id = readText();
        const auto other = m_idPositions.constFind(id);
        if (other != m_idPositions.constEnd())
            m_scanner.fail(CErrorText::tr("the id \"%1\" is already used in line %2")
                               .arg(Text::shorten(id), QString::number(m_scanner.getLine(*other))));
        m_idPositions.insert(id, m_scanner.getPosition());
        return id;
    }

    QString readText()
    {
        CTextRule rule;
        rule.maximumLength = CCameraDescriptionReader::MAXIMUM_TEXT_LENGTH;
        rule.mayHaveSpaceAround = true;
        return m_scanner.readText(rule);
    }

    qint64 readByteCount() { return m_scanner.readInteger(0, std::numeric_limits<qint32>::max()); }

    CJsonScanner m_scanner;
    int m_cameraCount = 0;
    QHash<QString, int> m_idPositions; // of cameras and layers, which share one space
};

/// Told where the viewer was started, so in the user's language.
[[noreturn]] void fail(const CErrorText &text)
{
    throw BaseException(text.getLocalized());
}

} // namespace

CCameraDescription CCameraDescriptionReader::readBuiltIn()
{
    initResources();
    return readFile(QStringLiteral(":/camerapool/cameras.json"));
}

CCameraDescription CCameraDescriptionReader::readFile(const QString &path)
{
    const QString name = QDir::toNativeSeparators(path);
    QFile file(path);
    // Asked before opening, since a pipe would be waited for.
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile())
        fail(CErrorText::tr("Camera description \"%1\" cannot be read: it is not a regular file")
                 .arg(name));
    const CErrorText unreadable = CErrorText::tr("Camera description \"%1\" cannot be read: %2");
    if (!file.open(QIODevice::ReadOnly))
        fail(unreadable.arg(name, file.errorString()));
    // One byte more than allowed is enough to know, whatever size the file claims to have.
    const QByteArray text = file.read(MAXIMUM_FILE_SIZE + 1);
    if (file.error() != QFileDevice::NoError)
        fail(unreadable.arg(name, file.errorString()));
    return read(text, name);
}

CCameraDescription CCameraDescriptionReader::read(const QByteArray &text, const QString &name)
{
    if (text.size() > MAXIMUM_FILE_SIZE)
        fail(CErrorText::tr("Camera description \"%1\" is larger than %2 bytes")
                 .arg(name, QString::number(MAXIMUM_FILE_SIZE)));
    try {
        return CReader(text).read();
    } catch (const Json::CJsonFault &fault) {
        fail(CErrorText::tr("Camera description \"%1\", %2").arg(name, fault.describe()));
    }
}

} // namespace Viewer::Camera::Simulation
