#pragma once

#include <KxPlayer/KxPlayerToolBarBase.h>

#include <QList>

class KrAutoReframePlayerToolSlider;
class KxLabel;
class KxMediaPlayerPresenter;
class KxToolButton;
class QHBoxLayout;

/// The bar under the preview: the edit-point slider, and below it the editing buttons, the transport buttons and the
/// time. It turns clicks and shortcuts into signals; its owner acts on them and decides which buttons are enabled.
/// User-interface thread.
///
/// Initially the editing buttons are enabled and the transport buttons disabled. Without a presenter the bar makes no
/// connections.
class KrAutoReframePlayerControlBar : public KxPlayerToolBarBase
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrAutoReframePlayerControlBar)

public:
    /// `presenter` is borrowed and may be null.
    KrAutoReframePlayerControlBar(KxMediaPlayerPresenter* presenter, QWidget* parent);
    ~KrAutoReframePlayerControlBar() override;

    void SetUndoRedoEnabled(bool canUndo, bool canRedo);
    /// Whether both are enabled.
    bool IsUndoRedoEnabled() const;
    void SetDeleteEnabled(bool isEnabled);
    void SetPrevNextEnabled(bool hasPrevious, bool hasNext);
    /// Enables play/pause, stop and forward. Backward is unchanged.
    void EnableTransport();

    KrAutoReframePlayerToolSlider& Slider() const;
    /// Puts `buttons` behind those that edit; the bar owns them.
    void AddEditing(QWidget* buttons);
    /// Puts `buttons` before the time; the bar owns them.
    void AddViewing(QWidget* buttons);

    void updateToolTip() override;

Q_SIGNALS:
    // A shortcut emits its signal even while its button is disabled; the listener decides whether it applies.
    void sigDelete();
    void sigPrevious();
    void sigNext();
    void sigUndo();
    void sigRedo();

public Q_SLOTS:
    /// Shows marks at the frames.
    void SlotUpdateSliderPaint(QList<uint> frameIndexs);

private:
    void InitLayout();
    void CreateButtons();
    void ConnectSignals();
    void ConnectShortcuts();
    void ShowTime(int frame);

    KxLabel* m_timeLabel = nullptr;
    KxToolButton* m_undoButton = nullptr;
    KxToolButton* m_redoButton = nullptr;
    KxToolButton* m_previousButton = nullptr;
    KxToolButton* m_deleteButton = nullptr;
    KxToolButton* m_nextButton = nullptr;
    KrAutoReframePlayerToolSlider* m_slider = nullptr;
    QHBoxLayout* m_row = nullptr;
};
