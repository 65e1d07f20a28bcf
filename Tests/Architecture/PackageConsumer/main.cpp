// A host outside this tree: uses the installed headers and libraries alone.

#include <KrAutoReframe/KrAutoReframeDialog.h>
#include <KxCore/KxLog.h>
#include <KxModel/IKxAbstractMedia.h>
#include <KxModel/IKxAutoReframeService.h>
#include <KxModel/IKxTimeline.h>
#include <KxWidgets/KxUIStyle.h>

#include <QApplication>

#include <cstdio>

namespace
{

/// Opens the dialog, takes what it exports, and closes it at once.
bool RunsTheDialog()
{
    KrAutoReframeDialog dialog(nullptr);
    QObject::connect(&dialog, &KrAutoReframeDialog::sigExportToLocal, &dialog,
                     [](IKxTimeline*, QList<IKxAbstractMedia*>&, const QVariant&) {});
    dialog.InitMediaItem({});
    QMetaObject::invokeMethod(&dialog, &QWidget::close, Qt::QueuedConnection);
    return dialog.DoModal() == 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    KxUIStyle::Apply(application);
    KxUIStyle::InstallTranslation(application);
    const bool textsFound =
        QCoreApplication::translate("KrAutoReframeDialog", "AutoReframe_Exit") == QStringLiteral("Exit");
    const bool dialogRan = RunsTheDialog();
    const bool serviceFound = getAutoReframeService() != nullptr;
    const bool logFound = GetGlobalLogInstance() != nullptr;
    const bool refusesMissingFile = createMediaItem(QStringLiteral("/no/such/video.mp4")) == nullptr;
    const bool refusesNoClip = IKxTimeline::createSimpleTimeline(nullptr) == nullptr;
    std::printf("texts %d, dialog %d, service %d, log %d, missing file refused %d, missing clip refused %d\n",
                textsFound, dialogRan, serviceFound, logFound, refusesMissingFile, refusesNoClip);
    return textsFound && dialogRan && serviceFound && logFound && refusesMissingFile && refusesNoClip ? 0 : 1;
}
