#include <KxModel/KxFramePictures.h>

#include <KxModel/KxChoicesFormat.h>

#include <KxSubject/Choice/KxChoicePlacement.h>
#include <KxSubject/KxSubjectRecord.h>

#include <QJsonDocument>

#include <algorithm>
#include <cmath>

namespace
{

/// On both sides of a frame: long enough for the picture to change, short enough to be of the same take.
constexpr double SecondsAround = 2.0;
/// Every so many pictures are kept, of those around the frame and of those of the whole video: there may be thousands
/// of frames, and all texts are stored at each edit.
constexpr std::size_t StepInside = 2;
constexpr std::size_t StepOutside = 8;

/// The time around a frame within its shot. Ends at cuts are found to the frame.
KxSubjectChoice ChoiceAround(const KxSubjectRecord& record, std::int64_t frame)
{
    const KxSubjectRecord::Shot shot = record.ShotAt(frame);
    const auto around = static_cast<std::int64_t>(SecondsAround * record.source.frameRate);
    KxSubjectChoice choice;
    choice.kind = KxChoiceKind::Automatic;
    choice.fromSeconds = record.SecondsAt(std::max(shot.first, frame - around));
    choice.toSeconds = record.SecondsAt(std::min(shot.end, frame + around + 1));
    return choice;
}

void ThinOut(KxSubjectChoice& choice)
{
    std::vector<KxChoicePicture> kept;
    std::size_t inside = 0;
    std::size_t outside = 0;
    for (const KxChoicePicture& picture : choice.pictures) {
        const bool isInside = picture.seconds >= choice.fromSeconds && picture.seconds <= choice.toSeconds;
        if (isInside ? inside++ % StepInside == 0 : outside++ % StepOutside == 0) {
            kept.push_back(picture);
        }
    }
    choice.pictures = std::move(kept);
}

QByteArray TextOf(const KxSubjectChoice& choice)
{
    return QJsonDocument::fromJson(KxChoicesFormat::Write({choice})).toJson(QJsonDocument::Compact);
}

} // namespace

QList<QByteArray> KxFramePictures::Describe(const KxSubjectRecord& record, const QList<qint64>& frames)
{
    KxSubjectChoices choices;
    for (const qint64 frame : frames) {
        choices.push_back(ChoiceAround(record, frame));
    }
    QList<QByteArray> texts;
    for (KxSubjectChoice& choice : KxDescribeChoices(record, std::move(choices))) {
        ThinOut(choice);
        texts += choice.pictures.empty() ? QByteArray() : TextOf(choice);
    }
    return texts;
}

QList<std::optional<qint64>> KxFramePictures::Find(const KxSubjectRecord& record, const QList<KxDescribedFrame>& frames)
{
    KxSubjectChoices choices;
    for (const KxDescribedFrame& described : frames) {
        const KxResult<KxSubjectChoices> read = KxChoicesFormat::Read(described.pictures, {});
        choices.push_back(read && read->size() == 1 ? read->front() : KxSubjectChoice());
    }
    const std::vector<KxPlacedChoice> placed = KxPlaceChoices(record, choices);
    QList<std::optional<qint64>> found;
    for (int i = 0; i < frames.size(); ++i) {
        const KxPlacedChoice& place = placed[static_cast<std::size_t>(i)];
        const qint64 frame =
            frames.at(i).frame + static_cast<qint64>(std::llround(place.movedSeconds * record.source.frameRate));
        const bool isInside = frame >= 0 && frame < record.source.frameCount;
        const bool isFound = place.place != KxPlacedChoice::Place::Missing && isInside;
        found += isFound ? std::optional<qint64>(frame) : std::nullopt;
    }
    return found;
}
