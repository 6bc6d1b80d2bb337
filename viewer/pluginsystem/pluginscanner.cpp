#include "pluginscanner.h"

#include "viewer/files/pathtrust.h"

#include "core/iplugin.h"

#include <QDir>
#include <QPluginLoader>
#include <QSet>

namespace Viewer::PluginSystem {

// The part of the interface id before its number: what makes a library claim to be one of ours.
static QString interfaceFamily()
{
    return QStringLiteral(NUVEX_VIEWER_PLUGIN_IID).section(QLatin1Char('/'), 0, 0);
}

/// The major version of another Qt that the plug-in of the viewer @p path was built with; 0 when it
/// is no such plug-in. Each Qt hides its plug-ins' metadata where another one may not find it, but
/// the id of the interface stands in it as it is, and each library that a library needs is named in
/// it as a whole word.
static int findOtherQt(const QString &path)
{
    static constexpr qint64 MAXIMUM_SIZE = 64 * 1024 * 1024;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray library = file.read(MAXIMUM_SIZE);
    if (!library.contains(interfaceFamily().toLatin1() + '/'))
        return 0;
    for (const int major : {5, 6}) {
        const QString name = QStringLiteral("libQt%1Core.so.%1").arg(major);
        if (major != QT_VERSION_MAJOR && library.contains('\0' + name.toLatin1() + '\0'))
            return major;
    }
    return 0;
}

QString CPluginScanner::findFault(const QString &directory, const QFileInfo &library)
{
    // The library's own folder is another one when a link leads to it.
    for (const QString &folder : {directory, library.path()}) {
        const QString fault = Files::findPathFault(folder).getLocalized();
        if (!fault.isEmpty())
            return tr("Its folder \"%1\" is not safe: %2.")
                .arg(QDir::toNativeSeparators(folder), fault);
    }
    const QString fault = Files::findPathFault(library.filePath()).getLocalized();
    return fault.isEmpty() ? QString() : tr("Its file is not safe: %1.").arg(fault);
}

QList<CPluginSpec> CPluginScanner::scan(const QStringList &directories)
{
    QList<CPluginSpec> specs;
    QSet<QString> seen;
    for (const QString &directory : directories) {
        const QFileInfoList files = QDir(directory).entryInfoList(
            {QStringLiteral("*.so")}, QDir::Files | QDir::Readable, QDir::Name);
        for (const QFileInfo &file : files) {
            const QString path = file.canonicalFilePath();
            if (path.isEmpty() || seen.contains(path))
                continue;
            seen.insert(path);
            const QString fault = findFault(directory, QFileInfo(path));
            if (!fault.isEmpty()) {
                specs.append(CPluginSpec::createBroken(path, fault));
                continue;
            }
            const QPluginLoader loader(path);
            const QJsonObject metaData = loader.metaData();
            if (metaData.isEmpty()) {
                if (const int major = findOtherQt(path)) {
                    specs.append(CPluginSpec::createOfOtherQt(path, major));
                    continue;
                }
                // A sound library without metadata is no plug-in. A file that is no sound library
                // at all could have been one, and somebody would miss it.
                if (loader.errorString().contains(QLatin1String("ELF")))
                    specs.append(CPluginSpec::createBroken(
                        path, tr("The file is damaged or is not a library.")));
                continue;
            }
            const QString interfaceId = metaData.value(QLatin1String("IID")).toString();
            if (interfaceId.section(QLatin1Char('/'), 0, 0) == interfaceFamily())
                specs.append(CPluginSpec::createFromMetaData(path, metaData));
        }
    }
    return specs;
}

} // namespace Viewer::PluginSystem
