#include <Apps/AutoReframe/Tracks/CropWait.h>

#include <KxWidgets/KxProgressDialog.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QTimer>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CropWait)
};

} // namespace

FoundCrops CropWait::Run(MediaBackend& backend, const CropRequest& request, QWidget& parent)
{
    constexpr int wholeProgress = 10000;
    KxProgressDialog dialog(Texts::tr("Auto Reframe"), &parent);
    dialog.SetRange(0, wholeProgress);
    dialog.SetProgressTitle(Texts::tr("Analyzing %1").arg(QFileInfo(request.path).fileName()), QStringLiteral("film"));
    std::optional<FoundCrops> found;
    QEventLoop beginning;
    CropCallbacks callbacks;
    callbacks.progress = [&dialog](int progress) {
        QMetaObject::invokeMethod(
            &dialog, [&dialog, progress] { dialog.SetProgress(progress); }, Qt::QueuedConnection);
    };
    callbacks.finished = [&](const FoundCrops& end) {
        found = end;
        beginning.quit();
        dialog.hide();
    };
    const std::unique_ptr<MediaTask> task = backend.FindCrops(request, callbacks);
    // A dialog that appeared for less would flash.
    constexpr int soonMs = 500;
    QTimer::singleShot(soonMs, &beginning, &QEventLoop::quit);
    beginning.exec(QEventLoop::ExcludeUserInputEvents);
    if (!found) {
        dialog.DoModal();
    }
    FoundCrops cancelled;
    cancelled.outcome = KxOutcome::Cancelled;
    return found.value_or(cancelled);
}
