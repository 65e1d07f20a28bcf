#include <KxModel/KxVideoSampling.h>

KxSubjectSource KxVideoSampling::SourceOf(const KxVideoFacts& video)
{
    return {video.resolution.width(), video.resolution.height(), video.frameRate.ToDouble(), video.frameCount};
}

KxSubjectSampling KxVideoSampling::Of(const KxVideoFacts& video)
{
    return KxSubjectSampling(SourceOf(video), KxSubjectOptions().sampling);
}

QSize KxVideoSampling::ShotSize()
{
    return {KxSubjectSampling::ShotSize.width, KxSubjectSampling::ShotSize.height};
}

QSize KxVideoSampling::WholeSize(const KxVideoFacts& video)
{
    const KxIntSize size = Of(video).WorkingSize();
    return {size.width, size.height};
}
