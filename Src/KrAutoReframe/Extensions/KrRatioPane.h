#pragma once

#include <KxWidgets/KxWidget.h>

#include <KxModel/IKxAutoReframeResult.h>

#include <QFutureWatcher>
#include <QMap>
#include <QRectF>
#include <QSize>

#include <memory>

class IKxAutoReframeDecisions;
class IKxTimeline;
class KrAutoReframeHelper;
class KxLabel;
class KxMediaPlayerPresenter;

/// The result in one aspect ratio, with the choices and edits of the person. The crops are decided on a thread of the
/// pool. User-interface thread.
class KrRatioPane : public KxWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrRatioPane)

public:
    /// What all ratios have in common.
    struct Source {
        QString path;
        IKxTimeline* timeline = nullptr; ///< lives until Clear()
        int speed = 0;                   ///< as in IKxAutoReframeParam
        QMap<uint, QRectF> editPoints;
        int frame = 0;
    };

    KrRatioPane(const QSize& aspect, const IKxAutoReframeDecisions& service, QWidget* parent);
    ~KrRatioPane() override;

    /// Decides anew and shows the result when it is ready.
    void Show(const Source& source);
    void ShowFrame(int frame);
    void Clear();

    void RetranslateUi() override;

private:
    void InitLayout();
    void HandleDecided();
    void ShowResult();
    void ShowText();

    const QSize m_aspect;
    const IKxAutoReframeDecisions& m_service;
    QWidget* m_picture = nullptr;
    KxMediaPlayerPresenter* m_presenter = nullptr;
    KxLabel* m_caption = nullptr;
    Source m_source;
    QFutureWatcher<QList<IKxAutoReframeResult>> m_decision;
    /// Makes keyframes of the crops and edits; null before the first decision.
    std::unique_ptr<KrAutoReframeHelper> m_helper;
    enum class State { Empty, Deciding, Shown, Failed };
    State m_state = State::Empty;
    QSize m_outputSize;
};
