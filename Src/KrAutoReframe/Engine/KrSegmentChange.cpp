#include <KrAutoReframe/Engine/KrSegmentChange.h>

#include <algorithm>

KrSegmentChange KrSegmentChange::Between(const QList<KrEditSegment>& before, const QList<KrEditSegment>& after)
{
    const auto head = std::mismatch(before.cbegin(), before.cend(), after.cbegin(), after.cend());
    const auto headSize = head.first - before.cbegin();
    const auto tail =
        std::mismatch(before.crbegin(), before.crend() - headSize, after.crbegin(), after.crend() - headSize);
    KrSegmentChange change;
    change.first = static_cast<int>(headSize);
    change.newCount = static_cast<int>(tail.second.base() - head.second);
    std::copy(head.first, tail.first.base(), std::back_inserter(change.replaced));
    return change;
}

void KrSegmentChange::Revert(QList<KrEditSegment>* segments) const
{
    segments->erase(segments->begin() + first, segments->begin() + first + newCount);
    for (int index = 0; index < replaced.size(); ++index) {
        segments->insert(first + index, replaced.at(index));
    }
}
