#include <Tests/KrAutoReframe/Engine/KrAutoReframeHelperPeer.h>

namespace
{

/// Names a private member: access is not checked in an explicit instantiation, and the friend hands the name out.
template<typename Tag, typename Tag::Type Member>
struct Opener {
    friend typename Tag::Type MemberOf(Tag) { return Member; }
};

template<typename Value>
struct Field {
    using Type = Value KrAutoReframeHelper::*;
};

struct SegmentsField : Field<QList<KrEditSegment>> {
    friend Type MemberOf(SegmentsField);
};
struct EditPointsField : Field<QMap<uint, QRectF>> {
    friend Type MemberOf(EditPointsField);
};
struct MutexField : Field<QMutex> {
    friend Type MemberOf(MutexField);
};
struct CanceledField : Field<bool> {
    friend Type MemberOf(CanceledField);
};
struct SuspendFlushField : Field<bool> {
    friend Type MemberOf(SuspendFlushField);
};

template struct Opener<SegmentsField, &KrAutoReframeHelper::m_segments>;
template struct Opener<EditPointsField, &KrAutoReframeHelper::m_editPoints>;
template struct Opener<MutexField, &KrAutoReframeHelper::m_mutex>;
template struct Opener<CanceledField, &KrAutoReframeHelper::m_canceled>;
template struct Opener<SuspendFlushField, &KrAutoReframeHelper::m_suspendFlush>;

} // namespace

QList<KrEditSegment> KrAutoReframeHelperPeer::Segments(const KrAutoReframeHelper& helper)
{
    return helper.*MemberOf(SegmentsField());
}

QMap<uint, QRectF> KrAutoReframeHelperPeer::EditPoints(const KrAutoReframeHelper& helper)
{
    return helper.*MemberOf(EditPointsField());
}

void KrAutoReframeHelperPeer::SetSegments(KrAutoReframeHelper& helper, const QList<KrEditSegment>& segments)
{
    helper.*MemberOf(SegmentsField()) = segments;
}

QMutex& KrAutoReframeHelperPeer::Mutex(KrAutoReframeHelper& helper)
{
    return helper.*MemberOf(MutexField());
}

void KrAutoReframeHelperPeer::SetCanceled(KrAutoReframeHelper& helper)
{
    helper.*MemberOf(CanceledField()) = true;
}

bool KrAutoReframeHelperPeer::IsFlushSuspended(const KrAutoReframeHelper& helper)
{
    return helper.*MemberOf(SuspendFlushField());
}

QString KrAutoReframeHelperPeer::Describe(const KrAutoReframeHelper& helper)
{
    QStringList texts;
    for (const KrEditSegment& segment : Segments(helper)) {
        QString text = QStringLiteral("%1..%2:").arg(QString::number(segment.start), QString::number(segment.End()));
        for (const uint point : segment.points) {
            text += QStringLiteral(" %1").arg(point);
        }
        texts << text;
    }
    return texts.join(QStringLiteral("; "));
}
