#pragma once

#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>

#include <Tests/KrAutoReframe/FakeHost/FakeHost.h>

#include <QMutexLocker>

/// Looks at what the helper shows to nobody: the segments, and its mutex as a thread that holds it at a chosen moment.
struct KrAutoReframeHelperPeer {
    static QList<KrEditSegment> Segments(const KrAutoReframeHelper& helper) { return helper.m_segments; }
    static QMap<uint, QRectF> EditPoints(const KrAutoReframeHelper& helper) { return helper.m_editPoints; }
    static void SetSegments(KrAutoReframeHelper& helper, const QList<KrEditSegment>& segments)
    {
        helper.m_segments = segments;
    }
    static QMutex& Mutex(KrAutoReframeHelper& helper) { return helper.m_mutex; }
    static void SetCanceled(KrAutoReframeHelper& helper) { helper.m_canceled = true; }
    static bool IsFlushSuspended(const KrAutoReframeHelper& helper) { return helper.m_suspendFlush; }

    /// "start..end: point point; start..end: point" of all segments in order.
    static QString Describe(const KrAutoReframeHelper& helper)
    {
        QStringList texts;
        for (const KrEditSegment& segment : helper.m_segments) {
            QString text =
                QStringLiteral("%1..%2:").arg(QString::number(segment.start), QString::number(segment.End()));
            for (const uint point : segment.points) {
                text += QStringLiteral(" %1").arg(point);
            }
            texts << text;
        }
        return texts.join(QStringLiteral("; "));
    }
};

/// A helper on a clip of the fake host, with what its tests ask again and again.
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
