// A host outside this tree: uses the installed headers and libraries alone.

#include <KxCore/KxLog.h>
#include <KxModel/IKxAbstractMedia.h>
#include <KxModel/IKxAutoReframeService.h>
#include <KxModel/IKxTimeline.h>

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const bool serviceFound = getAutoReframeService() != nullptr;
    const bool logFound = GetGlobalLogInstance() != nullptr;
    const bool refusesMissingFile = createMediaItem(QStringLiteral("/no/such/video.mp4")) == nullptr;
    const bool refusesNoClip = IKxTimeline::createSimpleTimeline(nullptr) == nullptr;
    std::printf("service %d, log %d, missing file refused %d, missing clip refused %d\n", serviceFound, logFound,
                refusesMissingFile, refusesNoClip);
    return serviceFound && logFound && refusesMissingFile && refusesNoClip ? 0 : 1;
}
