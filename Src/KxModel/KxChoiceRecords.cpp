#include <KxModel/KxChoiceRecords.h>

#include <array>
#include <utility>

namespace
{

using Kind = KxAutoReframeChoice::Kind;

constexpr std::array<std::pair<Kind, KxChoiceKind>, 5> Kinds{{{Kind::Follow, KxChoiceKind::Follow},
                                                              {Kind::Avoid, KxChoiceKind::Avoid},
                                                              {Kind::Hold, KxChoiceKind::Hold},
                                                              {Kind::Fit, KxChoiceKind::Fit},
                                                              {Kind::Automatic, KxChoiceKind::Automatic}}};

KxSubjectSeed ToSubject(const KxAutoReframeChoice::Seed& seed)
{
    return {seed.seconds,
            {seed.box.x(), seed.box.y(), seed.box.width(), seed.box.height()},
            seed.isGuessed ? KxSubjectSeed::Extent::Guessed : KxSubjectSeed::Extent::Drawn};
}

KxAutoReframeChoice::Seed FromSubject(const KxSubjectSeed& seed)
{
    return {seed.seconds, QRectF(seed.box.x, seed.box.y, seed.box.width, seed.box.height),
            seed.extent == KxSubjectSeed::Extent::Guessed};
}

} // namespace

KxSubjectChoices KxChoiceRecords::ToSubject(const QList<KxAutoReframeChoice>& choices)
{
    KxSubjectChoices result;
    for (const KxAutoReframeChoice& choice : choices) {
        KxSubjectChoice converted;
        for (const auto& [ours, theirs] : Kinds) {
            converted.kind = choice.kind == ours ? theirs : converted.kind;
        }
        converted.fromSeconds = choice.fromSeconds;
        converted.toSeconds = choice.toSeconds;
        converted.centreX = choice.centre.x();
        converted.centreY = choice.centre.y();
        for (const KxAutoReframeChoice::Seed& seed : choice.seeds) {
            converted.seeds.push_back(::ToSubject(seed));
        }
        for (const KxAutoReframeChoice::Picture& picture : choice.pictures) {
            converted.pictures.push_back({picture.seconds, picture.print});
        }
        result.push_back(converted);
    }
    return result;
}

QList<KxAutoReframeChoice> KxChoiceRecords::FromSubject(const KxSubjectChoices& choices)
{
    QList<KxAutoReframeChoice> result;
    for (const KxSubjectChoice& choice : choices) {
        KxAutoReframeChoice converted;
        for (const auto& [ours, theirs] : Kinds) {
            converted.kind = choice.kind == theirs ? ours : converted.kind;
        }
        converted.fromSeconds = choice.fromSeconds;
        converted.toSeconds = choice.toSeconds;
        converted.centre = QPointF(choice.centreX, choice.centreY);
        for (const KxSubjectSeed& seed : choice.seeds) {
            converted.seeds.append(::FromSubject(seed));
        }
        for (const KxChoicePicture& picture : choice.pictures) {
            converted.pictures.append({picture.seconds, picture.print});
        }
        result.append(converted);
    }
    return result;
}

QList<KxAutoReframeChoice> KxChoiceRecords::FromPlaced(const std::vector<KxPlacedChoice>& placed)
{
    KxSubjectChoices choices;
    for (const KxPlacedChoice& choice : placed) {
        choices.push_back(choice.choice);
    }
    QList<KxAutoReframeChoice> result = FromSubject(choices);
    for (int i = 0; i < result.size(); ++i) {
        result[i].isFound = placed[static_cast<std::size_t>(i)].place != KxPlacedChoice::Place::Missing;
    }
    return result;
}
