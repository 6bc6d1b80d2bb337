#pragma once

#include "updaterecord.h"

#include "viewer/text/errortext.h"

#include <QCoreApplication>
#include <QString>
#include <QVector>

namespace Viewer::Update {

/// The updates that have ended, of all viewers of this user: a file with one line for each, which
/// grows at its end and is never rewritten. Any thread, several processes at once; none waits for
/// another.
class CUpdateHistory
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::Update::CUpdateHistory)

public:
    /// What is read at most: so many records, and so many bytes from the end of the file.
    static constexpr int MAXIMUM_COUNT = 10000;
    static constexpr qint64 MAXIMUM_SIZE = 16 * 1024 * 1024;

    struct CContent
    {
        QVector<CUpdateRecord> records; ///< the newest one first
        int damagedCount = 0; ///< lines between them that are no records; they stay in the file
        QString error; ///< one sentence in the user's language; empty: the file was read
    };

    /// The history in @p folder, beside the journals; empty: none.
    [[nodiscard]] static QString getPath(const QString &folder);

    /// `updates/history.jsonl` in the folder of the viewer's state; empty if there is no place for
    /// it.
    [[nodiscard]] static QString getDefaultPath();

    /// Adds @p record to the history in @p folder. What goes wrong is a warning for developers.
    static void add(const QString &folder, const CUpdateRecord &record);

    explicit CUpdateHistory(const QString &path = getDefaultPath());

    /// Adds @p record and waits until the disk has it. Says why that failed, in one sentence;
    /// empty: the record is there.
    [[nodiscard]] Text::CErrorText append(const CUpdateRecord &record) const;

    /// A missing file is an empty history.
    [[nodiscard]] CContent read() const;

private:
    [[nodiscard]] Text::CErrorText write(const QByteArray &line) const;

    QString m_path; ///< empty: none
};

} // namespace Viewer::Update
