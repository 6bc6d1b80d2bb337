#pragma once

#include <QCoreApplication>
#include <QDateTime>
#include <QProcessEnvironment>
#include <QString>
#include <QVector>

namespace Viewer::AppCore {

/// A log of the firmware updater, as it lies in the folder of logs.
struct CLogFile
{
    QString path;
    QDateTime time; ///< of the begin, as the clock on the wall showed it
    bool inUse = false; ///< the viewer that writes it still runs
};

/// Keeps the logs of firmware updates. The plug-in writes them to the temporary folder of the
/// process under names that can be foretold; so each viewer makes a folder of its own for them,
/// which nobody else can read or write, and lets TMPDIR lead there. GUI thread.
class CLogFolder
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::AppCore::CLogFolder)

public:
    /// How many logs of all viewers are kept.
    static constexpr int MAXIMUM_COUNT = 200;

    /// Remembers the environment. Create it before there are threads, which may read the
    /// environment while open() changes it.
    CLogFolder();

    /// Gives TMPDIR back, and removes the folder of this process unless a log or anything else lies
    /// in it.
    ~CLogFolder();

    CLogFolder(const CLogFolder &) = delete;
    CLogFolder &operator=(const CLogFolder &) = delete;

    /// Makes the folder of this process, writes into it to see that this works, and removes the
    /// oldest logs that are too many, with folders that are empty then; nothing of viewers that
    /// still run, nothing behind a link, nothing that is not a log. False: getFault() says why
    /// there is no folder, and TMPDIR leads where no file can be made.
    bool open();

    /// One sentence in the user's language; empty: logs are kept.
    [[nodiscard]] const QString &getFault() const;

    /// The folder with the folders of all viewers; empty if there is no place for it.
    [[nodiscard]] const QString &getRoot() const;

    /// The path of the newest log of this process; empty: none. Any thread, after open().
    [[nodiscard]] QString findOwnLog() const;

    /// The logs of all viewers, the newest one first.
    [[nodiscard]] QVector<CLogFile> getLogs() const;

    /// The environment for programs that the viewer starts: their temporary files are no logs.
    [[nodiscard]] const QProcessEnvironment &getOutsideEnvironment() const;

private:
    [[nodiscard]] QString makeOwnFolder();
    [[nodiscard]] int lockOwnFolder();
    void removeOldLogs() const;

    const QProcessEnvironment m_outsideEnvironment;
    const QString m_root;
    QString m_ownFolder; ///< empty: none
    QString m_fault;
    int m_lock = -1; ///< held until the process ends, however it ends
};

} // namespace Viewer::AppCore
