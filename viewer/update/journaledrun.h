#pragma once

#include "iupdaterun.h"
#include "updaterecord.h"

#include <QString>

#include <functional>
#include <memory>

namespace Viewer::Update {

class CUpdateJournal;

/// A run that says on the disk how far it is, see CUpdateJournal, and in the end what became of it,
/// see CUpdateHistory, in the process that talks to the camera.
class CJournaledRun : public IUpdateRun, private IUpdateRun::IListener
{
public:
    using RunMaker = std::function<std::unique_ptr<IUpdateRun>(IUpdateRun::IListener &listener)>;

    /// @p listener is borrowed and learns what the run of @p makeRun tells.
    CJournaledRun(const QString &journalFolder, const CUpdateRecord &record,
                  IUpdateRun::IListener &listener, const RunMaker &makeRun);
    ~CJournaledRun() override;
    Q_DISABLE_COPY(CJournaledRun)

    void execute() override;
    [[nodiscard]] bool hasWritten() const override;
    [[nodiscard]] QString getReportedVersion() const override;

private:
    void stepBegun(const UpdateFile::CUpdateStep &step,
                   std::chrono::milliseconds estimate) override;
    void stepProgressed(const UpdateFile::CUpdateStep &step, double percent) override;
    void writing() override;
    void stepDone(const UpdateFile::CUpdateStep &step, std::chrono::milliseconds estimate) override;

    void finish(EUpdateOutcome outcome, const QString &error) noexcept;

    const QString m_journalFolder;
    const CUpdateRecord m_record;
    IUpdateRun::IListener &m_listener;
    std::unique_ptr<CUpdateJournal> m_journal; ///< while it runs
    const std::unique_ptr<IUpdateRun> m_run;
};

} // namespace Viewer::Update
