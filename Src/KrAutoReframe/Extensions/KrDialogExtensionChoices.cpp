#include <KrAutoReframe/Extensions/KrDialogExtension.h>

#include <KrAutoReframe/Engine/KrAutoReframeProcess.h>
#include <KrAutoReframe/Engine/KrChoiceList.h>
#include <KrAutoReframe/Engine/KrTimeCode.h>
#include <KrAutoReframe/Extensions/KrDoubtfulShots.h>
#include <KrAutoReframe/Extensions/KrFollowControls.h>
#include <KrAutoReframe/Extensions/KrGrowingCrop.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerControlBar.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerToolSlider.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerView.h>
#include <KrAutoReframe/Settings/KrAutoReframePropertyPanel.h>

#include <KxModel/IKxAutoReframePartialResults.h>
#include <KxModel/IKxAutoReframeService.h>

#include <KxPlayer/KxMediaPlayerPresenter.h>

#include <QPointer>

namespace
{

/// Null if the host's service does not offer it.
IKxAutoReframeChoices* ServiceChoices()
{
    return dynamic_cast<IKxAutoReframeChoices*>(getAutoReframeService());
}

} // namespace

void KrDialogExtension::CreateFollowControls()
{
    IKxAutoReframeChoices* const service = ServiceChoices();
    if (service == nullptr) {
        return;
    }
    const auto source = [this] { return KrFollowControls::Source{m_path, FrameRate()}; };
    const auto shotAt = [this](qint64 frame) {
        const KrShotList shots = m_doubtfulShots != nullptr ? m_doubtfulShots->Shots() : KrShotList();
        const int index = shots.IndexAt(frame);
        if (index < 0) {
            return KrFollowControls::Shot{0, m_parts.process.GetHelper()->GetDuration()};
        }
        return KrFollowControls::Shot{shots.Shots().at(index).first, shots.Shots().at(index).end};
    };
    m_followControls = new KrFollowControls(m_parts.view, *service, *m_choices, {source, shotAt}, this);
    if (auto* const partial = dynamic_cast<IKxAutoReframePartialResults*>(getAutoReframeService())) {
        m_growth = new KrGrowingCrop(*partial, {m_parts.process, m_parts.panel, m_parts.view}, this);
        connect(m_growth, &KrGrowingCrop::sigChanged, this, &KrDialogExtension::HandleGrowth);
    }
}

bool KrDialogExtension::ShowsGrowth()
{
    const bool shows = m_isDeciding && m_growth != nullptr && m_hasResults;
    if (shows) {
        m_growth->Begin(m_path);
    }
    return shows;
}

void KrDialogExtension::StopGrowth()
{
    if (m_growth != nullptr && m_growth->Stop()) {
        m_mustDecide = true;
    }
}

void KrDialogExtension::HandleGrowth()
{
    UpdateHint();
    FillComparison();
}

void KrDialogExtension::TakePlacedChoices()
{
    const KrChoiceList::Choices given = m_choices->Current();
    const KrChoiceList::Choices placed =
        m_followControls != nullptr ? ServiceChoices()->GetPlacedChoices(m_path) : KrChoiceList::Choices();
    if (placed.size() != given.size() || placed == given) {
        return;
    }
    int moved = 0;
    int missing = 0;
    for (int i = 0; i < placed.size(); ++i) {
        missing += placed.at(i).isFound ? 0 : 1;
        moved += placed.at(i).isFound && placed.at(i).fromSeconds != given.at(i).fromSeconds ? 1 : 0;
    }
    m_choices->Restore(placed);
    ServiceChoices()->SetChoices(placed);
    ShowChoices();
    m_placement = missing > 0 ? tr("%n choices are kept, but not in this cut of the video", nullptr, missing)
                  : moved > 0 ? tr("%n choices were moved to where their pictures are", nullptr, moved)
                              : QString();
}

void KrDialogExtension::HandleChoicesChanged()
{
    StopGrowth();
    ServiceChoices()->SetChoices(m_choices->Current());
    ShowChoices();
    m_parts.view.ControlBar().Slider().SetGaps({});
    if (m_hasResults) {
        m_decide.start(0);
    }
}

void KrDialogExtension::DecideAgain()
{
    const bool isDue = m_mustDecide || !(m_choices->Current() == m_shownChoices);
    if (m_hasResults && isDue) {
        m_mustDecide = false;
        m_isDeciding = true;
        const QPointer<KrDialogExtension> self(this);
        Analyze(m_shown);
        if (self.isNull()) {
            return;
        }
        m_isDeciding = false;
    }
    UpdateHint();
}

void KrDialogExtension::ShowChoices()
{
    using Mark = KrAutoReframePlayerToolSlider::ChoiceMark;
    using Kind = KxAutoReframeChoice::Kind;
    QList<Mark> marks;
    for (const KxAutoReframeChoice& choice : m_choices->Current()) {
        if (!choice.isFound) {
            continue;
        }
        Mark mark;
        mark.first = qRound64(choice.fromSeconds * FrameRate());
        mark.end = qRound64(choice.toSeconds * FrameRate());
        mark.kind = choice.kind == Kind::Follow ? Mark::Kind::Followed : Mark::Kind::Other;
        mark.toolTip = choice.kind == Kind::Follow  ? tr("The crop follows your choice")
                       : choice.kind == Kind::Avoid ? tr("The crop avoids your choice")
                       : choice.kind == Kind::Hold  ? tr("The crop is held")
                       : choice.kind == Kind::Fit   ? tr("The whole picture is shown")
                                                    : tr("The analysis decides");
        // What is avoided beside something that is followed would hide it: the later mark covers the others.
        const bool isBelowLast = choice.kind == Kind::Avoid && !marks.isEmpty() && marks.last().end > mark.first &&
                                 marks.last().kind == Mark::Kind::Followed;
        marks.insert(isBelowLast ? marks.size() - 1 : marks.size(), mark);
    }
    m_parts.view.ControlBar().Slider().SetChoices(marks);
}

bool KrDialogExtension::ShowsEdit() const
{
    const KrAutoReframeHelper& helper = *m_parts.process.GetHelper();
    const int frame = m_parts.view.Presenter().currentFrame();
    const QList<IKxAutoReframeResult> results = helper.GetResults();
    const QList<IKxAutoReframeResult>& shown = helper.GetDisplayResults();
    return frame >= 0 && frame < qMin(results.size(), shown.size()) &&
           results.at(frame).cropRect() != shown.at(frame).cropRect();
}

void KrDialogExtension::UpdateEditHint()
{
    if (m_editStays && !ShowsEdit()) {
        m_editStays = false;
        UpdateHint();
    }
}

void KrDialogExtension::ShowLosses()
{
    using Mark = KrAutoReframePlayerToolSlider::ChoiceMark;
    QList<Mark> marks;
    const QList<KxAutoReframeLoss> losses =
        m_followControls != nullptr && m_hasResults ? ServiceChoices()->GetLosses(m_path) : QList<KxAutoReframeLoss>();
    for (const KxAutoReframeLoss& loss : losses) {
        const QString from = KrTimeCode::ToText(static_cast<int>(loss.first), static_cast<float>(FrameRate()),
                                                KrTimeCode::Detail::Frames);
        const bool isLost = loss.kind == KxAutoReframeLoss::Kind::Lost;
        const QString toolTip = isLost ? tr("Lost from %1: point again").arg(from)
                                       : tr("Perhaps lost from %1: look, and point again").arg(from);
        marks.append({loss.first, loss.last + 1, isLost ? Mark::Kind::Lost : Mark::Kind::Doubted, toolTip});
    }
    m_parts.view.ControlBar().Slider().SetGaps(marks);
}
