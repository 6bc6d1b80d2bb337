#pragma once

#include <QByteArray>
#include <QFile>
#include <QPointer>
#include <QString>

namespace Plugin::FirmwareUpdater::Internal::Service {

/// The record of a run of the wizard: a text file in the temporary directory, which stays there.
/// Takes no lock: whoever writes from several threads serializes them.
class CTemporaryLog
{
public:
    CTemporaryLog();
    ~CTemporaryLog();

    /// Begins a new file, named by the local time; one of the same name is lost. A file that cannot
    /// be opened is held nevertheless, and drops its lines. Only without a file.
    void open();

    /// Whether there is a file, be it one that could not be opened.
    [[nodiscard]] bool isHeld() const;

    /// Appends "<local time> @p level @p message", which the system has when the call returns.
    void addLine(const QString &level, const QString &message);

    void close();

    /// Absolute path of the file; empty when there is none.
    [[nodiscard]] QString getFilePath() const;

private:
    Q_DISABLE_COPY(CTemporaryLog)

    [[nodiscard]] const QString &getTimeText();

    QPointer<QFile> m_file;

    // The time's text costs more than the rest of a line together; it holds for a second in a zone.
    QString m_timeText;
    qint64 m_timeTextSecond = 0;
    QByteArray m_timeTextZone;
};

} // namespace Plugin::FirmwareUpdater::Internal::Service
