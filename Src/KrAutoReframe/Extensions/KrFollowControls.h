#pragma once

#include <KxModel/IKxAutoReframeChoices.h>

#include <QFutureWatcher>
#include <QObject>
#include <QPoint>
#include <QTimer>

#include <functional>
#include <optional>

class KrAutoReframePlayerView;
class KrChoiceList;
class KrSubjectBox;
class QAction;
class QMenu;
class QMouseEvent;

/// Pointing at what the crop should follow. With the right button the person draws a box in the picture, or clicks, and
/// the service guesses the box; so it does for a long press, and at the crop's centre for the Menu key. The box can be
/// adjusted, and a menu offers what to do with it in the shot. Escape, or another frame, removes the box. A guess that
/// takes its time is shown, and ended by Escape or by a press of any button.
/// User-interface thread.
class KrFollowControls : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrFollowControls)

public:
    /// What it needs to know about the open video.
    struct Source {
        QString path;
        double frameRate = 25.0;
    };
    /// A shot's frames; `end` is the one after the last one.
    struct Shot {
        qint64 first = 0;
        qint64 end = 0;
    };
    struct Queries {
        std::function<Source()> source;
        std::function<Shot(qint64 frame)> shotAt;
    };

    KrFollowControls(KrAutoReframePlayerView& view, IKxAutoReframeChoices& service, KrChoiceList& choices,
                     const Queries& queries, QObject* parent);
    ~KrFollowControls() override;

    /// Ends the drag or adjustment that is under way.
    void Clear();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Guessed { No, Yes };

    bool HandleMouse(const QObject& watched, const QMouseEvent& event);
    bool HandlePictureKey(QEvent& event);
    void HandleLongPress();
    void PlaceBox();
    void Press(const QPoint& inPicture);
    void DrawTo(const QPoint& inPicture);
    void Release(const QPoint& inPicture);
    void Guess(const QPointF& point);
    /// The guess that is under way, if any, will show nothing.
    void StopGuessing();
    void HandleGuess();
    void OpenMenu(const QPoint& global);
    QAction* AddAction(QMenu& menu, const QString& text, KxAutoReframeChoice::Kind kind);
    /// The person's choices with this one for the shot, about what is in the box.
    QList<KxAutoReframeChoice> ChoicesWith(KxAutoReframeChoice::Kind kind) const;
    void Choose(KxAutoReframeChoice::Kind kind);
    qint64 CurrentFrame() const;
    double SecondsOf(qint64 frame) const;

    KrAutoReframePlayerView& m_view;
    IKxAutoReframeChoices& m_service;
    KrChoiceList& m_choices;
    const Queries m_queries;
    KrSubjectBox* m_box;
    Guessed m_isGuessed = Guessed::No;
    /// Where the right button went down, in the picture.
    std::optional<QPoint> m_pressedAt;
    bool m_isDrawing = false;
    /// The person pointed at a plain surface, and has not drawn a box since.
    bool m_isBackground = false;
    QPointF m_guessedPoint;
    QFutureWatcher<KxAutoReframeGuess> m_guess;
    QTimer m_longPress;
    QPoint m_longPressAt;
    /// The frame at which the box was drawn.
    qint64 m_boxFrame = -1;
};
