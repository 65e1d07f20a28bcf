#pragma once

#include <QFrame>

class ExportQueue;
class KxLabel;
class LinkButton;
class QProgressBar;

/// What has become of the exports of "Reframe All…": their progress, and at the end the summary. Hidden while there are
/// none.
class QueueBar : public QFrame
{
    Q_OBJECT
public:
    /// `queue` is borrowed and outlives the bar.
    QueueBar(ExportQueue& queue, QWidget* parent);
    ~QueueBar() override;

    void ShowState();

Q_SIGNALS:
    /// At the first export with doubtful shots.
    void sigLook();

protected:
    void changeEvent(QEvent* event) override;

private:
    void InitLayout();
    QString StateText() const;

    ExportQueue& m_queue;
    KxLabel* m_text = nullptr;
    KxLabel* m_timeLeft = nullptr;
    QProgressBar* m_bar = nullptr;
    LinkButton* m_look = nullptr;
    LinkButton* m_retry = nullptr;
    LinkButton* m_pause = nullptr;
    LinkButton* m_cancel = nullptr;
};
