#pragma once

#include "viewer/files/backgroundwork.h"

#include <QObject>
#include <QStringList>

class QMenu;

namespace Viewer::AppCore {

/// The update files that were read last, in a menu and from one start to the next, and the folder
/// of the last one.
class CRecentFiles : public QObject
{
    Q_OBJECT

public:
    static constexpr int CAPACITY = 8;

    /// Fills @p menu, which is borrowed and outlives this object.
    explicit CRecentFiles(QMenu &menu, QObject *parent = nullptr);
    ~CRecentFiles() override;

    /// The file at the absolute path @p path was read.
    void add(const QString &path);

    [[nodiscard]] QStringList getPaths() const;

    /// The folder of the file that was added last; empty: none, or nobody has seen it yet. It was
    /// there not long ago, so that a dialog can begin in it without waiting for a drive that has
    /// vanished.
    [[nodiscard]] QString getFolder() const;

signals:
    void chosen(const QString &path);

private:
    void look();
    void fill();
    void clear();
    void write() const;

    QMenu &m_menu;
    QStringList m_paths; ///< the newest first
    QStringList m_missing; ///< those of them that were not there when somebody looked
    QString m_folder;
    bool m_isFolderSeen = false;
    Files::CBackgroundWork m_looking;
};

} // namespace Viewer::AppCore
