#pragma once

#include <KxModel/IKxAutoReframeResult.h>

#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

class IKxAutoReframePartialResults;
class KrAutoReframePlayerView;
class KrAutoReframeProcess;
class KrAutoReframePropertyPanel;

/// Shows the crop that a choice leads to, as far as the service has followed what the choice points at. The person can
/// go on meanwhile: look at other frames, edit, take the choice back or make another one. Only what needs the whole
/// result waits. User-interface thread.
class KrGrowingCrop : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrGrowingCrop)

public:
    /// The dialog's parts; they outlive this.
    struct Parts {
        KrAutoReframeProcess& process;
        KrAutoReframePropertyPanel& panel;
        KrAutoReframePlayerView& view;
    };

    KrGrowingCrop(IKxAutoReframePartialResults& service, const Parts& parts, QObject* parent);
    ~KrGrowingCrop() override;

    /// The task of the process follows something in `path`. It shows until that task ends.
    void Begin(const QString& path);
    /// Stops the task; the results from before it are shown again. False if nothing was growing.
    bool Stop();
    bool IsGrowing() const { return m_timer.isActive(); }
    int Percent() const { return m_percent; }

Q_SIGNALS:
    /// The share that is done has changed, or it has ended.
    void sigChanged();

private:
    void HandleProgress(int progress);
    void HandleFinished(bool success);
    void ShowMore();
    void End();
    void ShowResultsAgain();

    IKxAutoReframePartialResults& m_service;
    const Parts m_parts;
    /// Asks for more. Events of the service would have to be told from those of an earlier task.
    QTimer m_timer;
    QString m_path;
    int m_percent = 0;
    QList<IKxAutoReframeResult> m_shown;
};
