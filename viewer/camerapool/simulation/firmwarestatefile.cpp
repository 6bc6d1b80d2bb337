#include "firmwarestatefile.h"

#include "viewer/camerapool/logging.h"
#include "viewer/json/jsonfault.h"
#include "viewer/json/jsonscanner.h"
#include "viewer/json/messagetext.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace Viewer::CameraPool::Simulation {

// 200,000 cameras with long ids fit; anything larger is not ours.
static constexpr qint64 MaximumSize = 64 * 1024 * 1024;
static constexpr int MaximumVersionLength = 200;

static QHash<QString, QString> readVersions(Json::CJsonScanner &scanner)
{
    QHash<QString, QString> versions;
    QString camera;
    scanner.beginObject();
    while (scanner.nextMember(camera)) {
        const QString version = scanner.readText();
        if (version.isEmpty() || version.size() > MaximumVersionLength
            || version != version.simplified() || Json::hasUnprintable(version))
            scanner.fail(QStringLiteral("the version is not a text of one line"));
        versions.insert(camera, version);
    }
    return versions;
}

/// The versions that the text holds, or a sentence in @p fault.
static QHash<QString, QString> parse(const QByteArray &text, QString &fault)
{
    QHash<QString, QString> versions;
    bool hasFormat = false;
    bool hasVersions = false;
    try {
        Json::CJsonScanner scanner(text);
        QString name;
        scanner.beginObject();
        while (scanner.nextMember(name)) {
            if (name == QLatin1String("format")) {
                hasFormat = scanner.readInteger(1, 1) == 1;
            } else if (name == QLatin1String("firmware")) {
                versions = readVersions(scanner);
                hasVersions = true;
            } else {
                scanner.fail(QStringLiteral("unknown field"));
            }
        }
        scanner.expectEnd();
    } catch (const Json::CJsonFault &found) {
        fault = QStringLiteral("line %1, column %2: %3")
                    .arg(QString::number(found.line), QString::number(found.column), found.problem);
        return {};
    }
    if (hasFormat && hasVersions)
        return versions;
    fault = QStringLiteral("it is not a list of firmware versions of format 1");
    return {};
}

CFirmwareStateFile::CFirmwareStateFile(const QString &path)
    : m_path(path)
{
    load();
}

QString CFirmwareStateFile::getVersion(const QString &cameraId) const
{
    const std::lock_guard lock(m_mutex);
    return m_versions.value(cameraId);
}

void CFirmwareStateFile::setVersion(const QString &cameraId, const QString &version)
{
    const std::lock_guard lock(m_mutex);
    if (m_versions.value(cameraId) == version)
        return;
    m_versions.insert(cameraId, version);
    save();
}

void CFirmwareStateFile::clear()
{
    const std::lock_guard lock(m_mutex);
    m_versions.clear();
    if (!m_path.isEmpty() && QFile::exists(m_path) && !QFile::remove(m_path))
        qCWarning(cameraPoolLog).noquote()
            << QStringLiteral("The firmware versions of the simulated cameras in \"%1\" cannot be "
                              "forgotten: the file cannot be removed")
                   .arg(QDir::toNativeSeparators(m_path));
}

void CFirmwareStateFile::load()
{
    if (m_path.isEmpty() || !QFileInfo::exists(m_path))
        return;
    const QString name = QDir::toNativeSeparators(m_path);
    QString fault;
    QFile file(m_path);
    if (!QFileInfo(m_path).isFile())
        fault = QStringLiteral("it is not a regular file");
    else if (!file.open(QIODevice::ReadOnly))
        fault = file.errorString();
    else if (file.size() > MaximumSize)
        fault = QStringLiteral("it is larger than %1 bytes").arg(MaximumSize);
    else
        m_versions = parse(file.readAll(), fault);
    file.close();
    if (fault.isEmpty())
        return;

    const QString aside = m_path + QLatin1String(".damaged");
    QFile::remove(aside);
    const QString rescue = QFile::rename(m_path, aside)
        ? QStringLiteral("it was renamed to \"%1\"").arg(QDir::toNativeSeparators(aside))
        : QStringLiteral("it could not be put aside");
    qCWarning(cameraPoolLog).noquote()
        << QStringLiteral("The firmware versions of the simulated cameras in \"%1\" cannot be "
                          "read (%2); the cameras start as described, and %3")
               .arg(name, fault, rescue);
}

void CFirmwareStateFile::save()
{
    if (m_path.isEmpty())
        return;
    QJsonObject firmware;
    for (auto it = m_versions.constBegin(); it != m_versions.constEnd(); ++it)
        firmware.insert(it.key(), it.value());
    const QJsonObject root{{QStringLiteral("format"), 1}, {QStringLiteral("firmware"), firmware}};

    QDir().mkpath(QFileInfo(m_path).absolutePath());
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(root).toJson()) < 0
        || !file.commit())
        qCWarning(cameraPoolLog).noquote()
            << QStringLiteral("The firmware versions of the simulated cameras cannot be written to "
                              "\"%1\" (%2); the next start will show the old ones")
                   .arg(QDir::toNativeSeparators(m_path), file.errorString());
}

} // namespace Viewer::CameraPool::Simulation
