#include <KxModel/IKxAbstractMedia.h>
#include <KxModel/IKxAutoReframeService.h>
#include <KxModel/IKxKeyFrameHelper.h>
#include <KxModel/IKxMediaInfo.h>
#include <KxModel/IKxTimeline.h>

// The records and the virtual tables of the interfaces are defined here, once for the process.

IKxAutoReframeParam::IKxAutoReframeParam(int mode, const QSize& targetSize)
    : m_mode(mode)
    , m_targetSize(targetSize)
{
}
IKxAutoReframeParam::~IKxAutoReframeParam() = default;

IKxAutoReframeResult::IKxAutoReframeResult() = default;
IKxAutoReframeResult::IKxAutoReframeResult(qint64 frame, const QRectF& cropRect)
    : m_frame(frame)
    , m_cropRect(cropRect)
{
}
IKxAutoReframeResult::IKxAutoReframeResult(const IKxAutoReframeResult& other) = default;
IKxAutoReframeResult& IKxAutoReframeResult::operator=(const IKxAutoReframeResult& other) = default;
IKxAutoReframeResult::~IKxAutoReframeResult() = default;

KxCropPanZoomKeyFrameParam::KxCropPanZoomKeyFrameParam() = default;
KxCropPanZoomKeyFrameParam::KxCropPanZoomKeyFrameParam(const KxCropPanZoomKeyFrameParam& other) = default;
KxCropPanZoomKeyFrameParam& KxCropPanZoomKeyFrameParam::operator=(const KxCropPanZoomKeyFrameParam& other) = default;
KxCropPanZoomKeyFrameParam::~KxCropPanZoomKeyFrameParam() = default;

IKxAutoReframeEventObserver::~IKxAutoReframeEventObserver() = default;
IKxAutoReframeService::~IKxAutoReframeService() = default;
IKxMediaInfo::~IKxMediaInfo() = default;
IKxVideoMediaInfo::~IKxVideoMediaInfo() = default;
IKxAudioMediaInfo::~IKxAudioMediaInfo() = default;
IKxAbstractMedia::~IKxAbstractMedia() = default;
IKxAbstractMediaItem::~IKxAbstractMediaItem() = default;
IKxKeyFrameHelper::~IKxKeyFrameHelper() = default;
IKxCropPanZoomKeyFrameHelper::~IKxCropPanZoomKeyFrameHelper() = default;
IKxClip::~IKxClip() = default;
IKxTimeline::~IKxTimeline() = default;
