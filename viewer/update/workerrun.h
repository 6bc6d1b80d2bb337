#pragma once

#include "iupdaterun.h"
#include "workerevent.h"
#include "workertask.h"

#include "viewer/camera/icamerahandle.h"
#include "viewer/text/errortext.h"

#include <QByteArray>

#include <memory>

class QProcess;

namespace Viewer::Update {

/// What an update in a process of its own needs to know.
struct CWorkerStart
{
    QString program; ///< absolute path of nuvexcameraworker
    CWorkerTask task; ///< without the description of the camera
    std::shared_ptr<Camera::ICameraHandle> camera;
};

/// Has a process of its own take the camera through the update. Whatever happens to that process is
/// an error of this update alone; what happens to this process does not touch that one.
class CWorkerRun : public IUpdateRun
{
public:
    /// @p entry and @p listener are borrowed.
    CWorkerRun(const QString &cameraName, const UpdateFile::CUpdateEntry &entry,
               const CWorkerStart &start, IListener &listener);
    ~CWorkerRun() override;

    void execute() override;
    [[nodiscard]] bool hasWritten() const override;
    [[nodiscard]] QString getReportedVersion() const override;

private:
    void start(QProcess &process);
    /// The last event.
    [[nodiscard]] CWorkerEvent follow(QProcess &process);
    /// The last event, once it is among those that have come.
    [[nodiscard]] std::optional<CWorkerEvent> takeEvents(QByteArray &bytes);
    void take(const CWorkerEvent &event);
    [[nodiscard]] const UpdateFile::CUpdateStep &getStep(int index) const;
    [[noreturn]] void fail(const Text::CErrorText &cause) const;

    const QString m_cameraName;
    const UpdateFile::CUpdateEntry &m_entry;
    const CWorkerStart m_start;
    IListener &m_listener;
    bool m_hasWritten = false;
    QString m_reportedVersion;
    std::chrono::milliseconds m_patience{0}; ///< for the next event
};

} // namespace Viewer::Update
