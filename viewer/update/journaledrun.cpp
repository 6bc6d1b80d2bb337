#include "journaledrun.h"

#include "logging.h"
#include "updatehistory.h"
#include "updatejournal.h"
#include "viewer/camera/cameraerror.h"
#include "viewer/updatefile/manifestparser.h"

namespace Viewer::Update {

using Text::CErrorText;
using UpdateFile::CUpdateStep;

CJournaledRun::CJournaledRun(const QString &journalFolder, const CUpdateRecord &record,
                             IUpdateRun::IListener &listener, const RunMaker &makeRun)
    : m_journalFolder(journalFolder)
    , m_record(record)
    , m_listener(listener)
    , m_run(makeRun(*this))
{
}

CJournaledRun::~CJournaledRun() = default;

void CJournaledRun::execute()
{
    m_journal = std::make_unique<CUpdateJournal>(m_journalFolder, m_record);
    if (m_journal->isForeign())
        throw Camera::CCameraError(m_record.cameraName,
                                   CErrorText::tr("it is already being updated"),
                                   Camera::CCameraError::EChange::InUse);
    try {
        m_run->execute();
    } catch (const std::exception &exception) {
        finish(EUpdateOutcome::Failed, QString::fromUtf8(exception.what()));
        throw;
    } catch (...) {
        finish(EUpdateOutcome::Failed, QString());
        throw;
    }
    finish(EUpdateOutcome::Updated, QString());
}

bool CJournaledRun::hasWritten() const
{
    return m_run->hasWritten();
}

QString CJournaledRun::getReportedVersion() const
{
    return m_run->getReportedVersion();
}

void CJournaledRun::stepBegun(const CUpdateStep &step, std::chrono::milliseconds estimate)
{
    m_journal->beginStep(UpdateFile::getStepKindName(step.kind));
    m_listener.stepBegun(step, estimate);
}

void CJournaledRun::stepProgressed(const CUpdateStep &step, double percent)
{
    m_journal->setPercent(static_cast<int>(percent));
    m_listener.stepProgressed(step, percent);
}

void CJournaledRun::writing()
{
    m_journal->beginWriting();
    m_listener.writing();
}

void CJournaledRun::stepDone(const CUpdateStep &step, std::chrono::milliseconds estimate)
{
    m_listener.stepDone(step, estimate);
}

void CJournaledRun::finish(EUpdateOutcome outcome, const QString &error) noexcept
{
    try {
        const CUpdateRecord record
            = m_journal->finish(outcome, hasWritten(), error, getReportedVersion());
        if (const std::optional<CUpdateRecord> replaced = m_journal->getReplaced())
            CUpdateHistory::add(m_journalFolder, toInterrupted(*replaced));
        CUpdateHistory::add(m_journalFolder, record);
    } catch (...) {
        qCCritical(updateLog, "the end of an update could not be written into its journal");
    }
    m_journal.reset();
}

} // namespace Viewer::Update
