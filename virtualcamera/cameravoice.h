#pragma once

#include "icameraobserver.h"
#include "statistics.h"

#include <QString>

#include <cstdio>

namespace VirtualCamera {

/// Tells what happens to a camera: a line for each event, and a file that holds what was uploaded.
/// Any thread, one at a time.
class CCameraVoice : public ICameraObserver
{
public:
    /// Lines go to @p output, which is borrowed. @p flashFile gets what was uploaded whenever the
    /// camera's file is closed; empty: nothing does.
    CCameraVoice(std::FILE *output, const QString &flashFile);

    /// False with a sentence in @p error when the file for what is uploaded cannot be written.
    [[nodiscard]] bool check(QString &error) const;

    void printLine(const QByteArray &line);
    void printStatistics(const CStatistics &statistics, const CStreamStatistics &stream,
                         qint64 uploadedBytes);

    // ICameraObserver
    void onEvent(const QByteArray &event) override;
    void onFileClosed(const QByteArray &content) override;

private:
    std::FILE *const m_output;
    const QString m_flashFile;
};

} // namespace VirtualCamera
