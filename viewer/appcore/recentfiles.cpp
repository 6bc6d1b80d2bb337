#include "recentfiles.h"

#include "viewer/text/visibletext.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QSettings>

#include <algorithm>

namespace Viewer::AppCore {

static const QLatin1String PATHS_KEY("updateFiles/recent");
static const QLatin1String FOLDER_KEY("updateFiles/folder");
static constexpr int FOLDER_WIDTH = 40; // of a letter's width

CRecentFiles::CRecentFiles(QMenu &menu, QObject *parent)
    : QObject(parent)
    , m_menu(menu)
    , m_paths(QSettings().value(PATHS_KEY).toStringList().mid(0, CAPACITY))
    , m_folder(QSettings().value(FOLDER_KEY).toString())
{
    m_menu.setToolTipsVisible(true);
    connect(&m_menu, &QMenu::aboutToShow, this, &CRecentFiles::look);
    fill();
    look();
}

CRecentFiles::~CRecentFiles() = default;

void CRecentFiles::add(const QString &path)
{
    m_missing.removeAll(path);
    if (m_paths.value(0) == path && m_isFolderSeen)
        return;
    m_paths.removeAll(path);
    m_paths.prepend(path);
    m_paths = m_paths.mid(0, CAPACITY);
    m_folder = QFileInfo(path).path();
    m_isFolderSeen = true;
    write();
    fill();
}

QStringList CRecentFiles::getPaths() const
{
    return m_paths;
}

QString CRecentFiles::getFolder() const
{
    return m_isFolderSeen ? m_folder : QString();
}

void CRecentFiles::look()
{
    m_looking.start([this, paths = m_paths,
                     folder = m_folder](const Files::CBackgroundWork::Checkpoint &checkpoint) {
        QStringList missing;
        for (const QString &path : paths) {
            checkpoint();
            if (!QFileInfo(path).isFile())
                missing.append(path);
        }
        checkpoint();
        const bool isFolder = !folder.isEmpty() && QFileInfo(folder).isDir();
        return [this, folder, missing, isFolder] {
            if (folder == m_folder)
                m_isFolderSeen = isFolder;
            if (missing == m_missing)
                return;
            m_missing = missing;
            fill();
        };
    });
}

/// What tells the entries apart: the name, and where that is not enough the whole path.
static QString getText(const QStringList &paths, int place, const QFontMetrics &metrics)
{
    const auto getShort = [&metrics](const QString &path) {
        const QFileInfo info(path);
        const QString folder
            = metrics.elidedText(QDir::toNativeSeparators(info.path()), Qt::ElideMiddle,
                                 FOLDER_WIDTH * metrics.averageCharWidth());
        return QStringLiteral("%1   %2").arg(Text::shorten(info.fileName()), folder);
    };
    const QString &path = paths.at(place);
    const QString text = getShort(path);
    const bool isUnique
        = std::count_if(paths.cbegin(), paths.cend(),
                        [&](const QString &other) { return getShort(other) == text; })
        == 1;
    return isUnique ? text : Text::toSingleLine(QDir::toNativeSeparators(path));
}

void CRecentFiles::fill()
{
    m_menu.clear();
    m_menu.setEnabled(!m_paths.isEmpty());
    for (int i = 0; i < m_paths.size(); ++i) {
        const QString path = m_paths.at(i);
        QString text = getText(m_paths, i, m_menu.fontMetrics());
        text.replace(QLatin1Char('&'), QLatin1String("&&"));
        QAction *const action = m_menu.addAction(QStringLiteral("&%1  %2").arg(i + 1).arg(text));
        const bool isMissing = m_missing.contains(path);
        action->setEnabled(!isMissing);
        const QString shown = Text::toSingleLine(QDir::toNativeSeparators(path));
        action->setToolTip(isMissing ? tr("%1 is not there any more.").arg(shown) : shown);
        connect(action, &QAction::triggered, this, [this, path] { emit chosen(path); });
    }
    m_menu.addSeparator();
    m_menu.addAction(tr("&Clear list"), this, &CRecentFiles::clear);
}

void CRecentFiles::clear()
{
    m_paths.clear();
    m_missing.clear();
    write();
    fill();
}

void CRecentFiles::write() const
{
    QSettings settings;
    settings.setValue(PATHS_KEY, m_paths);
    settings.setValue(FOLDER_KEY, m_folder);
}

} // namespace Viewer::AppCore
