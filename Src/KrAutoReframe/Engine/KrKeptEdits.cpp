#include <KrAutoReframe/Engine/KrKeptEdits.h>

void KrKeptEdits::LimitTo(uint frameCount)
{
    for (auto point = points.lowerBound(frameCount); point != points.end(); point = points.erase(point)) {
        unplaced += KrUnplacedEdit{point.key(), point.value(), pictures.take(point.key())};
    }
}

QList<KxDescribedFrame> KrKeptEdits::Described() const
{
    QList<KxDescribedFrame> frames;
    for (auto point = points.begin(); point != points.end(); ++point) {
        frames += KxDescribedFrame{point.key(), pictures.value(point.key())};
    }
    for (const KrUnplacedEdit& edit : unplaced) {
        frames += KxDescribedFrame{edit.frame, edit.pictures};
    }
    return frames;
}

int KrKeptEdits::MoveTo(const QList<std::optional<qint64>>& found)
{
    const KrKeptEdits before = *this;
    *this = {};
    int moved = 0;
    const QList<KxDescribedFrame> described = before.Described();
    for (int i = 0; i < described.size(); ++i) {
        const bool wasPoint = i < before.points.size();
        const qint64 frame = described.at(i).frame;
        const QRectF crop = wasPoint ? before.points.value(static_cast<uint>(frame))
                                     : before.unplaced.at(i - before.points.size()).crop;
        const std::optional<qint64> place = found.value(i);
        // Without pictures an unplaced one is only known to be outside.
        const bool isKnown = wasPoint || !described.at(i).pictures.isEmpty();
        if (!place || !isKnown || points.contains(static_cast<uint>(*place))) {
            unplaced += KrUnplacedEdit{frame, crop, described.at(i).pictures};
            continue;
        }
        points.insert(static_cast<uint>(*place), crop);
        const bool hasMoved = !wasPoint || *place != frame;
        moved += hasMoved ? 1 : 0;
        if (!hasMoved && before.pictures.contains(static_cast<uint>(frame))) {
            pictures.insert(static_cast<uint>(frame), described.at(i).pictures);
        }
    }
    return moved;
}
