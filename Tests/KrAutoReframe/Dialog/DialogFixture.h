#pragma once

#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>
#include <KrAutoReframe/Engine/KrAutoReframeProcess.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerView.h>
#include <KrAutoReframe/Player/ShadowForm.h>
#include <KrAutoReframe/Settings/KrAutoReframePropertyPanel.h>
#include <Tests/KrAutoReframe/Dialog/Recorders.h>
#include <Tests/KrAutoReframe/FakeHost/FakeHost.h>
#include <Tests/KrAutoReframe/FakePlayer/FakePlayer.h>

#include <KrAutoReframe/KrAutoReframeDialog.h>
#include <KxPlayer/KxMediaPlayerWidget.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxProgressDialog.h>
#include <KxWidgets/KxTopLevelWindowTitleBar.h>

#include <QAbstractButton>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

/// The dialog with its protected calculations in reach.
class ReachableDialog : public KrAutoReframeDialog
{
public:
    using KrAutoReframeDialog::CalculateResolution;
    using KrAutoReframeDialog::KrAutoReframeDialog;
};

/// The dialog on a scripted host: its service, its player, its person.
class DialogTest : public testing::Test
{
protected:
    static constexpr int FrameCount = 100;

    DialogTest();
    ~DialogTest() override;

    /// A dialog anew, shown.
    void Make(QWidget* parent);

    static FakeHost::Facts Video(const QString& path);
    /// A media item that lives as long as the test.
    FakeHost::MediaItem* Item(const FakeHost::Facts& facts);
    /// Hands the dialog one video.
    void Load(const FakeHost::Facts& facts);

    /// Does `act` as soon as the dialog has opened another modal one.
    void WhileModal(const std::function<void()>& act);
    /// An analysis with `results`, from the press to its end.
    void Analyse(const QList<IKxAutoReframeResult>& results);
    void Analyse() { Analyse(FakeHost::MakeResults(FrameCount)); }

    QAbstractButton& PanelButton(const char* name) const;
    QAbstractButton& Preview() const { return PanelButton("KrAutoReframePropertyPanel_previewSwitch"); }
    QAbstractButton& Export() const { return PanelButton("KrAutoReframePropertyPanel_export"); }
    QAbstractButton& AnalyzeButton() const { return PanelButton("KrAutoReframePropertyPanel_analyze"); }
    QAbstractButton& RestartButton() const { return PanelButton("KrAutoReframePropertyPanel_restart"); }
    FakePlayer::Script& Player() const { return FakePlayer::ScriptOf(*presenter); }
    KrAutoReframeHelper& Helper() const { return *process->GetHelper(); }
    /// The bar's label that shows the source's name.
    KxLabel& NameLabel() const;
    bool IsReadyToAnalyse() const { return AnalyzeButton().isEnabled(); }

    Recorders recorders;
    std::vector<std::unique_ptr<FakeHost::MediaItem>> items;
    std::unique_ptr<ReachableDialog> dialog;
    KrAutoReframeProcess* process = nullptr;
    KrAutoReframePropertyPanel* panel = nullptr;
    KrAutoReframePlayerView* view = nullptr;
    KxMediaPlayerPresenter* presenter = nullptr;
    ShadowForm* overlay = nullptr;
    KxProgressDialog* progress = nullptr;
};
