#include <KrAutoReframe/Engine/KrChoiceList.h>
#include <KrAutoReframe/Engine/KrChoices.h>

#include <QSignalSpy>
#include <QUndoStack>

#include <gtest/gtest.h>

namespace
{

using Choice = KxAutoReframeChoice;
using Kind = Choice::Kind;

Choice Of(Kind kind, double from, double to)
{
    Choice choice;
    choice.kind = kind;
    choice.fromSeconds = from;
    choice.toSeconds = to;
    return choice;
}

Choice Follow(double from, double to, double at, double x)
{
    Choice choice = Of(Kind::Follow, from, to);
    choice.seeds.append({at, QRectF(x, 0.2, 0.1, 0.3), false});
    return choice;
}

QList<Kind> KindsOf(const QList<Choice>& choices)
{
    QList<Kind> kinds;
    for (const Choice& choice : choices) {
        kinds.append(choice.kind);
    }
    return kinds;
}

} // namespace

TEST(KrChoices, ASecondFollowInAShotAddsASeed)
{
    const QList<Choice> choices = KrChoices::With({Follow(2, 8, 5, 0.1)}, Follow(2, 8, 3, 0.4));
    ASSERT_EQ(choices.size(), 1);
    ASSERT_EQ(choices.first().seeds.size(), 2);
    EXPECT_EQ(choices.first().seeds.at(0).seconds, 3.0);
    EXPECT_EQ(choices.first().seeds.at(1).seconds, 5.0);
}

TEST(KrChoices, ASeedAtTheSameTimeReplacesTheEarlierOne)
{
    const QList<Choice> choices = KrChoices::With({Follow(2, 8, 5, 0.1)}, Follow(2, 8, 5, 0.4));
    ASSERT_EQ(choices.first().seeds.size(), 1);
    EXPECT_EQ(choices.first().seeds.first().box.x(), 0.4);
}

TEST(KrChoices, AnotherKindReplacesWhatWasChosenForTheShot)
{
    const QList<Choice> before{Follow(2, 8, 5, 0.1), Of(Kind::Avoid, 2, 8), Of(Kind::Hold, 8, 9)};
    EXPECT_EQ(KindsOf(KrChoices::With(before, Of(Kind::Hold, 2, 8))), (QList<Kind>{Kind::Hold, Kind::Hold}));
    EXPECT_EQ(KindsOf(KrChoices::With({Of(Kind::Hold, 2, 8)}, Follow(2, 8, 5, 0.1))), QList<Kind>{Kind::Follow});
}

TEST(KrChoices, AnAvoidLeavesTheOthersInForce)
{
    EXPECT_EQ(KindsOf(KrChoices::With({Follow(2, 8, 5, 0.1)}, Of(Kind::Avoid, 2, 8))),
              (QList<Kind>{Kind::Follow, Kind::Avoid}));
}

TEST(KrChoices, BackToAutomaticLeavesNothingOfTheShot)
{
    const QList<Choice> before{Follow(2, 8, 5, 0.1), Of(Kind::Avoid, 2, 8), Of(Kind::Hold, 8, 9)};
    EXPECT_EQ(KindsOf(KrChoices::With(before, Of(Kind::Automatic, 2, 8))), QList<Kind>{Kind::Hold});
}

TEST(KrChoices, BackToAutomaticCoversALongerChoice)
{
    const QList<Choice> choices = KrChoices::With({Of(Kind::Hold, 0, 100)}, Of(Kind::Automatic, 2, 8));
    EXPECT_EQ(KindsOf(choices), (QList<Kind>{Kind::Hold, Kind::Automatic}));
    EXPECT_EQ(KrChoices::At(choices, 5.0), nullptr);
    ASSERT_NE(KrChoices::At(choices, 8.0), nullptr);
    EXPECT_EQ(KrChoices::At(choices, 8.0)->kind, Kind::Hold);
}

TEST(KrChoices, TheLaterOfTwoChoicesApplies)
{
    const QList<Choice> choices{Of(Kind::Hold, 0, 100), Follow(2, 8, 5, 0.1), Of(Kind::Avoid, 2, 8)};
    EXPECT_EQ(KrChoices::At(choices, 2.0)->kind, Kind::Follow);
    EXPECT_EQ(KrChoices::At(choices, 1.9)->kind, Kind::Hold);
    EXPECT_EQ(KrChoices::At(choices, 100.0), nullptr);
}

TEST(KrChoiceList, AChangeIsAStepOfTheHistory)
{
    QUndoStack history;
    KrChoiceList list(history, nullptr);
    QSignalSpy changed(&list, &KrChoiceList::sigChanged);
    const QList<Choice> wanted{Of(Kind::Hold, 2, 8)};
    list.Change(wanted);
    list.Change(wanted);
    EXPECT_EQ(history.count(), 1);
    EXPECT_EQ(changed.count(), 1);
    history.undo();
    EXPECT_TRUE(list.Current().isEmpty());
    history.redo();
    EXPECT_EQ(list.Current(), wanted);
    EXPECT_EQ(changed.count(), 3);
}

TEST(KrChoiceList, RestoringIsNoStep)
{
    QUndoStack history;
    KrChoiceList list(history, nullptr);
    QSignalSpy changed(&list, &KrChoiceList::sigChanged);
    list.Restore({Of(Kind::Hold, 2, 8)});
    EXPECT_EQ(list.Current().size(), 1);
    EXPECT_EQ(history.count(), 0);
    EXPECT_EQ(changed.count(), 0);
}

TEST(KrChoiceList, TheHistoryMayLiveLonger)
{
    QUndoStack history;
    {
        KrChoiceList list(history, nullptr);
        list.Change({Of(Kind::Hold, 2, 8)});
    }
    history.undo();
    EXPECT_FALSE(history.canUndo());
}
