#pragma once

#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>

#include <Tests/KrAutoReframe/FakeHost/FakeHost.h>

#include <QMutexLocker>

/// Access to the private state of a helper: its edits, its flags, and its mutex, which a test holds at a chosen moment.
namespace KrAutoReframeHelperPeer
{
QList<KrEditSegment> Segments(const KrAutoReframeHelper& helper);
QMap<uint, QRectF> EditPoints(const KrAutoReframeHelper& helper);
void SetSegments(KrAutoReframeHelper& helper, const QList<KrEditSegment>& segments);
QMutex& Mutex(KrAutoReframeHelper& helper);
void SetCanceled(KrAutoReframeHelper& helper);
bool IsFlushSuspended(const KrAutoReframeHelper& helper);

/// "start..end: point point; start..end: point" of all segments in order.
QString Describe(const KrAutoReframeHelper& helper);
} // namespace KrAutoReframeHelperPeer

/// A helper on a clip of the fake host, and the queries that its tests share.
class HelperFixture
{
public:
    HelperFixture() { FakeHost::Reset(); }
    ~HelperFixture()
    {
        helper.reset();
        FakeHost::Reset();
    }
    Q_DISABLE_COPY_MOVE(HelperFixture)

    static FakeHost::Facts Clip(qint64 frameCount, const KxRational& frameRate = {25, 1})
    {
        FakeHost::Facts facts;
        facts.frameCount = frameCount;
        facts.frameRate = frameRate;
        return facts;
    }

    void Open(qint64 frameCount, const KxRational& frameRate = {25, 1})
    {
        helper->SetTimeline(FakeHost::MakeTimeline({Clip(frameCount, frameRate)}));
    }

    FakeHost::KeyFrameHelper& WorkKeyFrames() const
    {
        return dynamic_cast<FakeHost::Timeline*>(helper->GetWorkTimeline())->FirstClip().CropKeyFrames();
    }

    /// Frames of the keyframes that the host holds, as ranges: "0 10 35..99".
    QString PushedFrames() const
    {
        QStringList texts;
        const QList<KxCropPanZoomKeyFrameParam> keyFrames = WorkKeyFrames().KeyFrames();
        for (int first = 0, next = 0; first < keyFrames.size(); first = next) {
            next = first + 1;
            while (next < keyFrames.size() && keyFrames.at(next).frame == keyFrames.at(next - 1).frame + 1) {
                ++next;
            }
            const qint64 last = keyFrames.at(next - 1).frame;
            texts << (next - first == 1 ? QString::number(last)
                                        : QStringLiteral("%1..%2").arg(QString::number(keyFrames.at(first).frame),
                                                                       QString::number(last)));
        }
        return texts.join(QLatin1Char(' '));
    }

    /// x of the pushed keyframe at `frame`; -1 when there is none.
    double PushedX(qint64 frame) const
    {
        for (const KxCropPanZoomKeyFrameParam& keyFrame : WorkKeyFrames().KeyFrames()) {
            if (keyFrame.frame == frame) {
                return keyFrame.cropRect.x();
            }
        }
        return -1.0;
    }

    double ShownX(int frame) const { return helper->GetDisplayResults().at(frame).cropRect().x(); }
    QString Segments() const { return KrAutoReframeHelperPeer::Describe(*helper); }

    static QRectF Rect(double x) { return QRectF(x, 0.0, 0.25, 1.0); }

    std::unique_ptr<KrAutoReframeHelper> helper = std::make_unique<KrAutoReframeHelper>();
};
