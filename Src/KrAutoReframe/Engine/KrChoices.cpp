#include <KrAutoReframe/Engine/KrChoices.h>

#include <algorithm>
#include <cmath>

namespace
{

using Choice = KrChoices::Choice;

// Far below the length of a frame.
constexpr double SameSeconds = 1e-4;

bool IsSame(double a, double b)
{
    return std::abs(a - b) < SameSeconds;
}

bool IsForSameRange(const Choice& a, const Choice& b)
{
    return IsSame(a.fromSeconds, b.fromSeconds) && IsSame(a.toSeconds, b.toSeconds);
}

bool Overlap(const Choice& a, const Choice& b)
{
    return a.fromSeconds < b.toSeconds - SameSeconds && b.fromSeconds < a.toSeconds - SameSeconds;
}

Choice WithSeedsOf(Choice choice, const Choice& earlier)
{
    for (const Choice::Seed& seed : earlier.seeds) {
        const bool isReplaced =
            std::any_of(choice.seeds.cbegin(), choice.seeds.cend(),
                        [&seed](const Choice::Seed& newer) { return IsSame(newer.seconds, seed.seconds); });
        if (!isReplaced) {
            choice.seeds.append(seed);
        }
    }
    std::sort(choice.seeds.begin(), choice.seeds.end(),
              [](const Choice::Seed& a, const Choice::Seed& b) { return a.seconds < b.seconds; });
    return choice;
}

} // namespace

QList<Choice> KrChoices::With(const QList<Choice>& choices, const Choice& added)
{
    Choice wanted = added;
    QList<Choice> result;
    for (const Choice& choice : choices) {
        if (!choice.isFound || !IsForSameRange(choice, added)) {
            result.append(choice);
            continue;
        }
        if (added.kind == Choice::Kind::Follow && choice.kind == Choice::Kind::Follow) {
            wanted = WithSeedsOf(wanted, choice);
        } else if (added.kind == Choice::Kind::Avoid) {
            result.append(choice);
        }
    }
    const bool hidesOthers = std::any_of(result.cbegin(), result.cend(), [&wanted](const Choice& choice) {
        return choice.isFound && Overlap(choice, wanted);
    });
    if (wanted.kind != Choice::Kind::Automatic || hidesOthers) {
        result.append(wanted);
    }
    return result;
}

const Choice* KrChoices::At(const QList<Choice>& choices, double seconds)
{
    for (auto choice = choices.crbegin(); choice != choices.crend(); ++choice) {
        const bool covers = seconds >= choice->fromSeconds - SameSeconds && seconds < choice->toSeconds - SameSeconds;
        if (covers && choice->isFound && choice->kind != Choice::Kind::Avoid) {
            return choice->kind == Choice::Kind::Automatic ? nullptr : &*choice;
        }
    }
    return nullptr;
}
