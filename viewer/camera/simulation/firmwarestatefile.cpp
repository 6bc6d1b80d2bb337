#include "firmwarestatefile.h"

#include "viewer/camera/logging.h"
#include "viewer/files/replacefile.h"
#include "viewer/json/jsonfault.h"
#include "viewer/json/jsonmembers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>

namespace Viewer::Camera::Simulation {

// 200,000 cameras with long ids fit; anything larger is not ours.
static constexpr qint64 MAXIMUM_SIZE = 64 * 1024 * 1024;
static constexpr int MAXIMUM_VERSION_LENGTH = 200;
// At the start, where somebody waits for the window.
static constexpr std::chrono::milliseconds START_PATIENCE(1000);

static QHash<QString, QString> readVersions(Json::CJsonScanner &scanner)
{
    QHash<QString, QString> versions;
    QString camera;
    scanner.beginObject();
    while (scanner.nextMember(camera))
        versions.insert(camera, scanner.readText({MAXIMUM_VERSION_LENGTH}));
    return versions;
}

/// The versions that the text holds. Throws CJsonFault.
static QHash<QString, QString> parse(const QByteArray &text)
{
    static const Json::CJsonFields FIELDS{{QStringLiteral("format"), QStringLiteral("firmware")},
                                          {}};
    QHash<QString, QString> versions;
    Json::CJsonScanner scanner(text);
    Json::CJsonMembers members(scanner, FIELDS);
    QString name;
    while (members.next(name)) {
        if (name == QLatin1String("format"))
            static_cast<void>(scanner.readInteger(1, 1));
        else
            versions = readVersions(scanner);
    }
    scanner.expectEnd();
    return versions;
}

namespace {

/// Makes the file its holder's alone among all viewers. The lock of a viewer that has died is taken
/// over.
class CStateFileLock
{
public:
    CStateFileLock(const QString &path, std::chrono::milliseconds patience)
        : m_lock(path + QLatin1String(".lock"))
    {
        m_lock.tryLock(static_cast<int>(patience.count()));
    }

    /// Why there is no lock; empty: it is held.
    [[nodiscard]] QString getFault() const
    {
        if (m_lock.error() == QLockFile::NoError)
            return {};
        if (m_lock.error() != QLockFile::LockFailedError)
            return QStringLiteral("its lock file cannot be made");
        qint64 process = 0;
        QString host;
        QString application;
        if (!m_lock.getLockInfo(&process, &host, &application))
            return QStringLiteral("another viewer is writing it");
        return QStringLiteral("another viewer, process %1 on \"%2\", is writing it")
            .arg(QString::number(process), host);
    }

private:
    QLockFile m_lock;
};

} // namespace

CFirmwareStateFile::CFirmwareStateFile(const QString &path, std::chrono::milliseconds patience)
    : m_path(path)
    , m_patience(patience)
{
    load();
}

QString CFirmwareStateFile::getVersion(const QString &cameraId) const
{
    const std::lock_guard lock(m_mutex);
    return m_unsaved.value(cameraId, m_versions.value(cameraId));
}

void CFirmwareStateFile::setVersion(const QString &cameraId, const QString &version)
{
    const std::lock_guard lock(m_mutex);
    m_unsaved.insert(cameraId, version);
    save();
}

void CFirmwareStateFile::clear()
{
    const std::lock_guard lock(m_mutex);
    m_versions.clear();
    m_unsaved.clear();
    if (m_path.isEmpty() || !QFile::exists(m_path))
        return;
    const CStateFileLock fileLock(m_path, START_PATIENCE);
    QString fault = fileLock.getFault();
    if (fault.isEmpty() && !QFile::remove(m_path))
        fault = QStringLiteral("the file cannot be removed");
    if (!fault.isEmpty())
        qCWarning(cameraLog).noquote()
            << QStringLiteral("The firmware versions of the simulated cameras in \"%1\" cannot be "
                              "forgotten: %2")
                   .arg(QDir::toNativeSeparators(m_path), fault);
}

/// What is wrong with the file; empty: @p versions is what it holds. A missing file holds nothing.
QString CFirmwareStateFile::read(Versions &versions) const
{
    versions.clear();
    if (!QFileInfo::exists(m_path))
        return {};
    QFile file(m_path);
    if (!QFileInfo(m_path).isFile())
        return QStringLiteral("it is not a regular file");
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    if (file.size() > MAXIMUM_SIZE)
        return QStringLiteral("it is larger than %1 bytes").arg(MAXIMUM_SIZE);
    try {
        versions = parse(file.readAll());
        return {};
    } catch (const Json::CJsonFault &fault) {
        return fault.describe().getEnglish();
    }
}

void CFirmwareStateFile::load()
{
    if (m_path.isEmpty() || read(m_versions).isEmpty())
        return;
    // Another viewer may have replaced the damaged file in the meantime.
    const CStateFileLock fileLock(m_path, START_PATIENCE);
    const QString fault = read(m_versions);
    if (!fault.isEmpty())
        putAside(fault, fileLock.getFault().isEmpty());
}

void CFirmwareStateFile::save()
{
    if (m_path.isEmpty())
        return;
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    const CStateFileLock fileLock(m_path, m_patience);
    if (!fileLock.getFault().isEmpty()) {
        warnAboutWriting(fileLock.getFault());
        return;
    }
    Versions versions;
    const QString fault = read(versions);
    if (!fault.isEmpty()) {
        putAside(fault, true);
        versions = m_versions;
    }
    for (auto it = m_unsaved.constBegin(); it != m_unsaved.constEnd(); ++it)
        versions.insert(it.key(), it.value());
    m_versions = versions;

    QJsonObject firmware;
    for (auto it = versions.constBegin(); it != versions.constEnd(); ++it)
        firmware.insert(it.key(), it.value());
    const QJsonObject root{{QStringLiteral("format"), 1}, {QStringLiteral("firmware"), firmware}};
    const QByteArray text = QJsonDocument(root).toJson();
    const Text::CErrorText writeFault = Files::replaceFile(m_path, text);
    if (writeFault.isEmpty())
        m_unsaved.clear();
    else
        warnAboutWriting(writeFault.getEnglish());
}

void CFirmwareStateFile::putAside(const QString &fault, bool locked) const
{
    const QString aside = m_path + QLatin1String(".damaged");
    QString rescue = QStringLiteral("it could not be put aside");
    if (locked) {
        QFile::remove(aside);
        if (QFile::rename(m_path, aside))
            rescue
                = QStringLiteral("it was renamed to \"%1\"").arg(QDir::toNativeSeparators(aside));
    }
    qCWarning(cameraLog).noquote()
        << QStringLiteral("The firmware versions of the simulated cameras in \"%1\" cannot be "
                          "read (%2); the cameras start as described, and %3")
               .arg(QDir::toNativeSeparators(m_path), fault, rescue);
}

void CFirmwareStateFile::warnAboutWriting(const QString &reason) const
{
    qCWarning(cameraLog).noquote()
        << QStringLiteral("The firmware versions of the simulated cameras cannot be written to "
                          "\"%1\" (%2); the next start will show the old ones")
               .arg(QDir::toNativeSeparators(m_path), reason);
}

} // namespace Viewer::Camera::Simulation
