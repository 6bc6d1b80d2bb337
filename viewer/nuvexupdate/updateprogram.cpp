#include "updateprogram.h"

#include "jsonreport.h"
#include "question.h"
#include "reportgroup.h"
#include "terminalreport.h"

#include "viewer/camerapool/camerainfo.h"
#include "viewer/camerapool/camerapool.h"
#include "viewer/camerapool/devicefirmwareupdateservice.h"
#include "viewer/files/statefolder.h"
#include "viewer/process/installation.h"
#include "viewer/signature/signaturepolicy.h"
#include "viewer/signature/truststore.h"
#include "viewer/text/csv.h"
#include "viewer/text/visibletext.h"
#include "viewer/update/firmwareupdateinfo.h"
#include "viewer/update/interruptedupdates.h"
#include "viewer/update/updatehistory.h"
#include "viewer/updatefile/updatefileerror.h"

#include "camerapool/icameraenumerationservice.h"
#include "camerapool/idevicefirmwareupdateservice.h"
#include "core/baseexception.h"

#include <QLocale>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace Viewer::NuvexUpdate {

using Core::Exception::BaseException;
using Plugin::CameraPool::CameraInfoPtr;
using Plugin::CameraPool::ICameraEnumerationService;
using Plugin::CameraPool::IDeviceFirmwareUpdateService;
using Text::shorten;

static std::unique_ptr<IReport> makeReport(bool isJson, COutput &output, COutput &warnings)
{
    if (isJson)
        return std::make_unique<CJsonReport>(output);
    if (output.isTerminal() && qgetenv("TERM") != "dumb")
        return std::make_unique<CTerminalReport>(output, warnings);
    return std::make_unique<CTextReport>(output, warnings);
}

CUpdateProgram::CUpdateProgram(CUpdateRequest request, const QString &language, COutput &output,
                               COutput &warnings, QObject *parent)
    : QObject(parent)
    , m_request(std::move(request))
    , m_language(language)
    , m_journalFolder(Files::getStateFolder(QStringLiteral("updates")))
    , m_output(output)
    , m_warnings(warnings)
    , m_report(std::make_unique<CReportGroup>())
{
    m_timer.start();
    m_report->add(makeReport(m_request.isJson, output, warnings));
}

CUpdateProgram::~CUpdateProgram() = default;

void CUpdateProgram::start()
{
    if (m_request.command == ECommand::History) {
        showHistory();
        return;
    }
    try {
        openPool();
    } catch (const BaseException &exception) {
        fail(EExitCode::WrongUse, {QStringLiteral("wrong-cameras"), exception.getMessage()});
    }
}

void CUpdateProgram::openPool()
{
    for (const std::unique_ptr<Camera::ICameraKind> &kind : m_request.kinds)
        kind->setDataFolder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    m_pool = std::make_unique<CameraPool::CCameraPool>(std::move(m_request.kinds), m_journalFolder);
    m_pool->setWorker(Process::getWorkerPath(), m_language);
    setSignaturePolicy();
    // Later changes are of no interest.
    const auto enumeration = m_pool->getService<ICameraEnumerationService>();
    const auto once = std::make_shared<QMetaObject::Connection>();
    *once = connect(enumeration.data(), &ICameraEnumerationService::enumerationChanged, this,
                    [this, once] {
                        disconnect(*once);
                        onEnumerated();
                    });
    m_pool->start();
}

void CUpdateProgram::setSignaturePolicy()
{
    using Signature::CSignaturePolicy;
    CSignaturePolicy policy
        = CSignaturePolicy::read(CSignaturePolicy::getSystemFolder(), Files::getConfigFolder());
    if (!policy.getFault().isEmpty())
        warn(QStringLiteral("policy-fault"), policy.getFault().getLocalized());
    if (m_request.requiresSignature)
        policy.requireSignatures();
    const auto service = m_pool->getService<CameraPool::CDeviceFirmwareUpdateService>();
    service->setSignaturePolicy(policy);
    connect(
        service.data(), &CameraPool::CDeviceFirmwareUpdateService::signatureJudged, this,
        [this, folders = policy.getTrustFolders()](const QString &filePath, const auto &verdict) {
            m_signatures.insert(filePath, verdict);
            if (m_request.command == ECommand::Check)
                m_report->showSignature(filePath, verdict);
            if (verdict.state != Signature::CSignatureVerdict::EState::NotTrusted)
                return;
            const Signature::CTrustStore store(folders);
            for (const Text::CErrorText &fault : store.getFaults())
                warn(QStringLiteral("trust-fault"), fault.getLocalized());
        });
}

void CUpdateProgram::onEnumerated()
{
    if (m_isFinished)
        return;
    const auto layers
        = m_pool->getService<ICameraEnumerationService>()->getTransportLayerInfoVector();
    for (const auto &layer : layers)
        m_cameras += layer->getCameraInfoList();
    switch (m_request.command) {
    case ECommand::List:
        listCameras();
        break;
    case ECommand::Check:
        checkFile();
        break;
    case ECommand::Update:
        prepareUpdate();
        break;
    case ECommand::Resume:
        prepareResume();
        break;
    case ECommand::History:
        break;
    }
}

void CUpdateProgram::listCameras()
{
    if (m_cameras.isEmpty()) {
        fail(EExitCode::NoCamera, CCameraSelection::select({}, m_request).fault);
        return;
    }
    QVector<Camera::CCameraSnapshot> snapshots;
    for (const CameraInfoPtr &camera : qAsConst(m_cameras)) {
        Camera::CCameraSnapshot snapshot = m_pool->getSnapshot(camera->getId());
        if (snapshot.statusCode == 0)
            snapshot.statusReason = findObstacle(*m_pool, camera);
        snapshots.append(snapshot);
    }
    m_report->showCameras(snapshots);
    finish(EExitCode::Done);
}

bool CUpdateProgram::readFile(const QString &path, QVector<InfoPtr> &entries)
{
    try {
        entries = m_pool->getService<IDeviceFirmwareUpdateService>()->getFirmwareUpdateInfos(
            path, QString());
        return true;
    } catch (const UpdateFile::CUpdateFileError &error) {
        warn(QStringLiteral("faulty-file"), error.getText().getLocalized());
        return false;
    } catch (const BaseException &exception) {
        warn(QStringLiteral("faulty-file"),
             QCoreApplication::translate(nullptr, exception.getMessage().toUtf8()));
        return false;
    }
}

void CUpdateProgram::checkFile()
{
    QVector<InfoPtr> entries;
    if (!readFile(m_request.filePath, entries)) {
        finish(EExitCode::FaultyFile);
        return;
    }
    QVector<UpdateFile::CUpdateEntry> manifest;
    for (const InfoPtr &info : qAsConst(entries))
        manifest.append(static_cast<const Update::CFirmwareUpdateInfo &>(*info).getEntry());
    m_report->showEntries(manifest);
    QVector<CCameraVerdict> verdicts;
    for (const CameraInfoPtr &camera : qAsConst(m_cameras))
        verdicts.append(judgeCamera(*m_pool, camera, entries));
    m_report->showVerdicts(verdicts);
    const bool fitsAny = std::any_of(verdicts.begin(), verdicts.end(),
                                     [](const auto &verdict) { return verdict.update; });
    if (m_cameras.isEmpty())
        fail(EExitCode::NoCamera, CCameraSelection::select({}, m_request).fault);
    else if (!fitsAny)
        fail(EExitCode::NoCamera,
             {QStringLiteral("nothing-fits"), tr("The file fits none of the cameras.")});
    else
        finish(EExitCode::Done);
}

void CUpdateProgram::showHistory()
{
    const Update::CUpdateHistory::CContent content
        = Update::CUpdateHistory(Update::CUpdateHistory::getPath(m_journalFolder)).read();
    if (!content.error.isEmpty()) {
        fail(EExitCode::Failed, {QStringLiteral("unreadable-history"), content.error});
        return;
    }
    const Update::CUpdateHistoryModel model(content.records, QLocale(m_language));
    if (m_request.isCsv) {
        QVector<QStringList> rows{model.getExportedHeader()};
        for (int row = 0; row < model.rowCount(); ++row)
            rows.append(model.getExportedRow(row));
        m_output.write(Text::toCsv(rows));
    } else {
        m_report->showHistory(model);
    }
    if (content.damagedCount > 0)
        warn(QStringLiteral("damaged-history"),
             tr("%n damaged line(s) of the history were skipped.", nullptr, content.damagedCount));
    if (!m_request.isCsv)
        finish(EExitCode::Done);
    else
        emit finished(static_cast<int>(EExitCode::Done));
}

void CUpdateProgram::prepareUpdate()
{
    QVector<InfoPtr> entries;
    if (!readFile(m_request.filePath, entries)) {
        finish(EExitCode::FaultyFile);
        return;
    }
    const CCameraSelection::CResult selection = CCameraSelection::select(m_cameras, m_request);
    if (!selection.fault.key.isEmpty()) {
        fail(selection.exitCode, selection.fault);
        return;
    }
    QVector<CCameraVerdict> verdicts;
    for (const CameraInfoPtr &camera : selection.cameras) {
        verdicts.append(judgeCamera(*m_pool, camera, entries));
        // Who names a camera that the file is not for has taken the wrong file, or the wrong
        // camera.
        if (verdicts.constLast().verdict == EVerdict::DoesNotFit && !m_request.cameras.isEmpty()) {
            fail(EExitCode::NoCamera,
                 {QStringLiteral("does-not-fit"),
                  tr("The file does not fit camera %1: %2.")
                      .arg(shorten(camera->getDisplayName()), verdicts.constLast().reason)});
            return;
        }
    }
    decide(verdicts, false);
}

void CUpdateProgram::prepareResume()
{
    const QVector<Update::CUpdateRecord> records = Update::takeInterruptedUpdates(m_journalFolder);
    QVector<CCameraVerdict> verdicts;
    EExitCode problem = EExitCode::Done;
    for (const Update::CUpdateRecord &record : records) {
        const QString name = shorten(record.cameraName);
        const auto camera = std::find_if(
            m_cameras.constBegin(), m_cameras.constEnd(),
            [&record](const CameraInfoPtr &found) { return found->getId() == record.cameraId; });
        if (camera == m_cameras.constEnd()) {
            warn(QStringLiteral("lost-camera"),
                 tr("Camera %1 does not answer. Switch it off and on, then resume again.")
                     .arg(name));
            problem = EExitCode::NoCamera;
            continue;
        }
        QVector<InfoPtr> entries;
        if (!readFile(record.filePath, entries)) {
            problem = EExitCode::FaultyFile;
            continue;
        }
        const auto isAnother = [&record](const InfoPtr &info) {
            const auto &own = static_cast<const Update::CFirmwareUpdateInfo &>(*info);
            return own.getManifestDigest() != record.manifestDigest
                || own.getVersion() != record.newVersion;
        };
        entries.erase(std::remove_if(entries.begin(), entries.end(), isAnother), entries.end());
        if (entries.isEmpty()) {
            warn(QStringLiteral("changed-file"),
                 tr("Camera %1: the file \"%2\" is not the one any more with which its update was "
                    "begun; use \"update\".")
                     .arg(name, shorten(record.filePath, 200)));
            problem = EExitCode::FaultyFile;
            continue;
        }
        verdicts.append(judgeCamera(*m_pool, *camera, entries));
    }
    if (records.isEmpty())
        say(QStringLiteral("nothing-interrupted"), tr("No update was interrupted."));
    if (verdicts.isEmpty())
        finish(problem);
    else
        decide(verdicts, true);
}

void CUpdateProgram::leaveAlone(const CCameraVerdict &verdict, EOutcome outcome,
                                const QString &reason)
{
    CCameraRun run;
    run.verdict = verdict;
    run.outcome = outcome;
    run.message = reason;
    run.firmwareVersion = verdict.snapshot.firmwareVersion;
    m_leftAlone.append(run);
}

void CUpdateProgram::decide(const QVector<CCameraVerdict> &verdicts, bool takesAll)
{
    for (const CCameraVerdict &verdict : verdicts) {
        switch (verdict.verdict) {
        case EVerdict::Upgrade:
            m_planned.append(verdict);
            break;
        case EVerdict::Downgrade:
            if (takesAll || m_request.allowsDowngrade)
                m_planned.append(verdict);
            else
                leaveAlone(verdict, EOutcome::LeftAlone,
                           tr("it has the newer version %1 (--allow-downgrade)")
                               .arg(shorten(verdict.snapshot.firmwareVersion)));
            break;
        case EVerdict::Reinstall:
            if (takesAll || m_request.allowsReinstall)
                m_planned.append(verdict);
            else
                leaveAlone(verdict, EOutcome::LeftAlone,
                           tr("it has version %1 already (--allow-reinstall)")
                               .arg(shorten(verdict.snapshot.firmwareVersion)));
            break;
        case EVerdict::DoesNotFit:
            leaveAlone(verdict, EOutcome::LeftAlone, verdict.reason);
            break;
        case EVerdict::NotNow:
            leaveAlone(verdict, EOutcome::InUse, verdict.reason);
            break;
        }
    }
    if (m_planned.isEmpty() || m_request.isDryRun)
        onSeriesFinished();
    else
        confirm();
}

void CUpdateProgram::confirm()
{
    if (m_request.isConfirmed) {
        startSeries();
        return;
    }
    if (!CQuestion::canAsk()) {
        fail(EExitCode::WrongUse,
             {QStringLiteral("not-confirmed"),
              tr("There is no terminal to ask at; say --yes, or --dry-run to see what would be "
                 "done.")});
        return;
    }
    m_report->showVerdicts(m_planned);
    m_question = std::make_unique<CQuestion>();
    connect(m_question.get(), &CQuestion::answered, this, &CUpdateProgram::onAnswered);
    m_question->ask(tr("Update %n camera(s)? [y/N]", nullptr, m_planned.size()));
}

void CUpdateProgram::onAnswered(bool isYes)
{
    if (isYes && !m_isStopped)
        startSeries();
    else if (!m_isFinished)
        fail(EExitCode::Stopped, {QStringLiteral("declined"), tr("Nothing was updated.")});
}

void CUpdateProgram::startSeries()
{
    m_log = std::make_unique<CUpdateLog>(
        [this](const QString &sentence) { warn(QStringLiteral("log-fault"), sentence); });
    if (COutput *const log = m_log->getOutput()) {
        auto report = std::make_unique<CTextReport>(*log, *log, CTextReport::EStamp::Time);
        for (auto file = m_signatures.constBegin(); file != m_signatures.constEnd(); ++file)
            report->showSignature(file.key(), file.value());
        m_report->add(std::move(report));
    }
    m_pool->setLogFinder([path = m_log->getPath()] { return path; });
    const auto service = m_pool->getService<IDeviceFirmwareUpdateService>();
    m_series = std::make_unique<CUpdateSeries>(
        m_planned,
        CUpdateSeries::CLimits{m_request.parallelCount, m_request.canaryCount,
                               m_request.maximumFailures},
        [service](const CCameraVerdict &verdict) {
            return service->createDeviceFirmwareUpdate(verdict.camera, verdict.update);
        });
    const CUpdateSeries *const series = m_series.get();
    connect(series, &CUpdateSeries::begun, this,
            [this, series](int index) { m_report->showBegin(series->getRuns(), index); });
    connect(series, &CUpdateSeries::stepBegun, this,
            [this, series](int index) { m_report->showStep(series->getRuns(), index); });
    connect(series, &CUpdateSeries::progressed, this,
            [this, series](int index) { m_report->showProgress(series->getRuns(), index); });
    connect(series, &CUpdateSeries::ended, this,
            [this, series](int index) { m_report->showEnd(series->getRuns(), index); });
    connect(series, &CUpdateSeries::finished, this, &CUpdateProgram::onSeriesFinished,
            Qt::QueuedConnection);
    m_series->start();
}

void CUpdateProgram::onSeriesFinished()
{
    CSummary summary;
    summary.hasUpdates = true;
    summary.seconds = static_cast<int>(m_timer.elapsed() / 1000);
    if (m_series) {
        summary.cameras = m_series->getRuns();
    } else {
        for (const CCameraVerdict &verdict : qAsConst(m_planned)) {
            CCameraRun run;
            run.verdict = verdict;
            run.outcome = EOutcome::Planned;
            run.firmwareVersion = verdict.snapshot.firmwareVersion;
            summary.cameras.append(run);
        }
    }
    summary.cameras += m_leftAlone;
    summary.exitCode = judge(summary.cameras);
    m_isFinished = true;
    m_report->showSummary(summary);
    emit finished(static_cast<int>(summary.exitCode));
}

EExitCode CUpdateProgram::judge(const QVector<CCameraRun> &runs) const
{
    const auto hasAny = [&runs](EOutcome outcome) {
        return std::any_of(runs.begin(), runs.end(),
                           [outcome](const auto &run) { return run.outcome == outcome; });
    };
    if (hasAny(EOutcome::Failed))
        return EExitCode::Failed;
    if (hasAny(EOutcome::NotStarted) && m_isStopped)
        return EExitCode::Stopped;
    if (hasAny(EOutcome::InUse))
        return EExitCode::InUse;
    const bool fitsAny
        = std::any_of(runs.begin(), runs.end(), [](const auto &run) { return run.verdict.update; });
    return fitsAny ? EExitCode::Done : EExitCode::NoCamera;
}

void CUpdateProgram::requestStop()
{
    if (m_isFinished)
        return;
    m_isStopped = true;
    if (m_series) {
        m_series->stop();
        warn(QStringLiteral("stopping"),
             tr("No further camera begins. Those that run are finished; cut off, they could be "
                "damaged."));
        return;
    }
    fail(EExitCode::Stopped, {QStringLiteral("stopped"), tr("Stopped; nothing was updated.")});
}

void CUpdateProgram::onOutputLost(const QString &reason)
{
    m_warnings.writeLine(m_series
                             ? tr("The output cannot be written: %1; the updates go on, see the "
                                  "history.")
                                   .arg(reason)
                             : tr("The output cannot be written: %1.").arg(reason));
}

void CUpdateProgram::fail(EExitCode exitCode, const CMessage &message)
{
    m_report->warn(message);
    finish(exitCode);
}

void CUpdateProgram::finish(EExitCode exitCode)
{
    m_isFinished = true;
    CSummary summary;
    summary.exitCode = exitCode;
    summary.seconds = static_cast<int>(m_timer.elapsed() / 1000);
    m_report->showSummary(summary);
    emit finished(static_cast<int>(exitCode));
}

void CUpdateProgram::say(const QString &key, const QString &text)
{
    m_report->inform({key, text});
}

void CUpdateProgram::warn(const QString &key, const QString &text)
{
    m_report->warn({key, text});
}

} // namespace Viewer::NuvexUpdate
