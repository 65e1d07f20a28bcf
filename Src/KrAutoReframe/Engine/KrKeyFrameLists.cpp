#include <KrAutoReframe/Engine/KrKeyFrameLists.h>

#include <iterator>

namespace
{

using KeyFrame = KrKeyFrameLists::KeyFrame;
using KeyFrameMap = KrKeyFrameLists::KeyFrameMap;

// An insertion moves up to half the list; beyond this number a new list is faster.
constexpr int MostInsertions = 100;

int IndexOf(const QList<KeyFrame>& list, qint64 frame)
{
    const auto place = std::lower_bound(list.cbegin(), list.cend(), frame,
                                        [](const KeyFrame& keyFrame, qint64 value) { return keyFrame.frame < value; });
    return static_cast<int>(place - list.cbegin());
}

void WriteRange(QList<KeyFrame>& list, const KeyFrameMap& keyFrames, const KrFrameRange& range)
{
    if (range.IsEmpty()) {
        return;
    }
    int index = IndexOf(list, range.first);
    const int end = IndexOf(list, range.last + 1);
    auto source = keyFrames.lowerBound(range.first);
    const auto sourceEnd = keyFrames.upperBound(range.last);
    for (; index < end && source != sourceEnd; ++index, ++source) {
        list[index] = source.value();
    }
    if (index < end) {
        list.erase(list.begin() + index, list.begin() + end);
    }
    if (std::distance(source, sourceEnd) > MostInsertions) {
        list = keyFrames.values();
        return;
    }
    for (; source != sourceEnd; ++index, ++source) {
        list.insert(index, source.value());
    }
}

} // namespace

void KrKeyFrameLists::Rebuild(const KeyFrameMap& keyFrames)
{
    m_current = keyFrames.values();
    m_spare = keyFrames.values();
    m_spareChanges = KrFrameRange();
}

void KrKeyFrameLists::Update(const KeyFrameMap& keyFrames, const KrFrameRange& changed)
{
    WriteRange(m_spare, keyFrames, m_spareChanges);
    WriteRange(m_spare, keyFrames, changed);
    m_current.swap(m_spare);
    m_spareChanges = changed;
}
