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

} // namespace

int ReframeProgram::Run(const ReframeOptions& options)
{
    KxAutoReframeService::PrepareProgram();
    const KxDetectorFiles::NetworkFolder networks = KxDetectorFiles::FindNetworks(options.models);
    KxAutoReframeService::Instance().SetNetworkFolder(networks.path);
    const bool explains =
        !options.report.isEmpty() || options.PreviewIsVideo() || options.json || !options.editLists.isEmpty();
    KxAutoReframeService::Instance().SetFindings(explains ? KxAutoReframeService::Findings::Keep
                                                          : KxAutoReframeService::Findings::Drop);
    KxAutoReframeService::Instance().SetSpeakers(options.followsSpeaker ? KxAutoReframeService::Speakers::Follow
                                                                        : KxAutoReframeService::Speakers::Ignore);
    KxAutoReframeService::Instance().SetRecordFolder(KxRecordStore::ChooseFolder(options.cache));
    ReframeReporter reporter(options);
    QStringList written;
    int status = ReframeExit::Done;
    if (networks.isWanted && networks.path.isEmpty() && options.apply.isEmpty()) {
        reporter.Warn(options.inputs.first(), KxDetectorFiles::MissingNetworks());
    }
    for (const QString& input : options.inputs) {
        for (const QSize& aspect : options.aspects) {
            KxOutcome outcome = KxOutcome::Failed;
            const KxError failure =
                KxCallGuarded([&] { outcome = ReframeJob(input, aspect, options, reporter, written).Run(); });
            if (failure) {
                reporter.Fail(input, Texts::tr("Cannot reframe %1: %2.").arg(input, *failure));
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
