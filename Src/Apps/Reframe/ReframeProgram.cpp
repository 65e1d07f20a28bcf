#include <Apps/Reframe/ReframeProgram.h>

#include <Apps/Reframe/ReframeExit.h>
#include <Apps/Reframe/ReframeJob.h>
#include <Apps/Reframe/ReframeReporter.h>
#include <KxCore/KxInterrupt.h>
#include <KxCore/KxThread.h>
#include <KxModel/KxAutoReframeService.h>
#include <KxModel/KxDetectorFiles.h>
#include <KxModel/KxRecordStore.h>

#include <QCoreApplication>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ReframeProgram)
};

int InterruptedStatus()
{
    return KxInterrupt::IsTermination() ? ReframeExit::Terminated : ReframeExit::Interrupted;
}

void PrepareAnalysis(const ReframeOptions& options, const QString& networkFolder)
{
    KxAutoReframeService::PrepareProgram();
    KxAutoReframeService& service = KxAutoReframeService::Instance();
    service.SetNetworkFolder(networkFolder);
    const bool explains = !options.report.isEmpty() || options.PreviewIsVideo() || options.json ||
                          !options.editLists.isEmpty() || !options.farm.status.isEmpty();
    service.SetFindings(explains ? KxAutoReframeService::Findings::Keep : KxAutoReframeService::Findings::Drop);
    service.SetSpeakers(options.followsSpeaker ? KxAutoReframeService::Speakers::Follow
                                               : KxAutoReframeService::Speakers::Ignore);
    service.SetRecordFolder(KxRecordStore::ChooseFolder(options.cache));
}

int RunAll(const ReframeOptions& options, ReframeReporter& reporter)
{
    QStringList written;
    int status = ReframeExit::Done;
    for (const QString& path : options.inputs) {
        ReframeInput input{path, nullptr};
        for (const QSize& aspect : options.aspects) {
            KxOutcome outcome = KxOutcome::Failed;
            const KxError failure =
                KxCallGuarded([&] { outcome = ReframeJob(input, aspect, options, reporter, written).Run(); });
            if (failure) {
                reporter.Fail(path, Texts::tr("Cannot reframe %1: %2.").arg(path, *failure));
            }
            if (outcome == KxOutcome::Cancelled) {
                return reporter.OutputProblem() ? ReframeExit::SomeFailed : InterruptedStatus();
            }
            if (outcome == KxOutcome::Failed) {
                status = ReframeExit::SomeFailed;
            }
        }
    }
    return reporter.OutputProblem() ? ReframeExit::SomeFailed : status;
}

} // namespace

int ReframeProgram::Run(const ReframeOptions& options)
{
    const KxDetectorFiles::NetworkFolder networks = KxDetectorFiles::FindNetworks(options.models);
    PrepareAnalysis(options, networks.path);
    ReframeReporter reporter(options);
    const QString first = options.inputs.first();
    if (const KxError problem = reporter.StatusProblem()) {
        reporter.Fail(first, *problem);
        return ReframeExit::SomeFailed;
    }
    if (networks.isWanted && networks.path.isEmpty() && options.apply.isEmpty()) {
        reporter.Warn(first, KxDetectorFiles::MissingNetworks());
    }
    // Meanwhile the first video is opened, which takes about as long. The analysis then finds the checksums known.
    KxThread modelReading;
    if (options.apply.isEmpty()) {
        modelReading = KxThread([&networks] { KxDetectorFiles::Read(networks.path); });
    }
    const int status = RunAll(options, reporter);
    if (const KxError problem = KxAutoReframeService::Instance().RecordFolderProblem()) {
        reporter.Warn(first, *problem);
    }
    reporter.End(status);
    if (const KxError problem = reporter.StatusProblem()) {
        reporter.Warn(first, *problem);
    }
    return status;
}
