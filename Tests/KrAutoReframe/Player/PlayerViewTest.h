#pragma once

#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerControlBar.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerView.h>
#include <KrAutoReframe/Player/ShadowForm.h>
#include <Tests/KrAutoReframe/FakeHost/FakeHost.h>
#include <Tests/KrAutoReframe/FakePlayer/FakePlayer.h>

#include <KxWidgets/KxToolButton.h>

#include <QColor>
#include <QRectF>
#include <QSharedPointer>

#include <gtest/gtest.h>

#include <memory>

/// The view over a scripted player and a scripted host, with a source of 100 frames.
class PlayerViewTest : public testing::Test
{
protected:
    static constexpr int FrameCount = 100;
    /// The outline's colours.
    const QColor Plain{0x55, 0xE5, 0xC5};
    const QColor Edited{0xFF, 0x8B, 0x55};
    /// Where the tests move the crop to.
    const QRectF Moved{0.5, 0.0, 0.25, 1.0};

    PlayerViewTest();
    ~PlayerViewTest() override;

    /// A view of another source.
    void Open(const QSize& resolution);
    void Show(const QSharedPointer<KrAutoReframeHelper>& sharedHelper);
    void Analyse(int resultCount = FrameCount);
    /// Analysed and with the crop over the source, as the dialog leaves it.
    void ShowCrop();
    /// The crop that the analysis gave a frame.
    static QRectF ResultOf(int frame) { return {frame / 1000.0, 0.0, 0.25, 1.0}; }

    FakePlayer::Script& Script() const { return FakePlayer::ScriptOf(*presenter); }
    QStringList& Calls() const { return Script().calls; }
    void ShowFrame(int frame) { FakePlayer::ShowFrame(*presenter, frame); }
    void Edit(int frame, const QRectF& rect);

    KxToolButton& Button(const char* name) const { return *view->findChild<KxToolButton*>(QLatin1String(name)); }
    KxToolButton& Undo() const { return Button("KrAutoReframe_undo"); }
    KxToolButton& Redo() const { return Button("KrAutoReframe_redo"); }
    KxToolButton& Delete() const { return Button("KrAutoReframe_delete"); }
    KxToolButton& Previous() const { return Button("KrAutoReframe_pre"); }
    KxToolButton& Next() const { return Button("KrAutoReframe_next"); }
    QLabel& Picture() const { return *overlay->GetPictureLabel(); }

    /// Whether the slider shows marks.
    bool HasMarks() const;
    /// The outline's colour at the crop's top left corner.
    QColor Outline() const;

    FakeHost::Timeline* timeline = nullptr;
    QSharedPointer<KrAutoReframeHelper> helper;
    std::unique_ptr<KrAutoReframePlayerView> view;
    ShadowForm* overlay = nullptr;
    KrAutoReframePlayerControlBar* bar = nullptr;
    KxMediaPlayerPresenter* presenter = nullptr;
};
