#pragma once

#include <KxWidgets/KxWidget.h>

#include <QMap>

class ExportCard;
class ExportQueue;
class KxLabel;
class LinkButton;
class QVBoxLayout;
class QueueBar;

/// The export queue beside the library, one card for each export.
class ExportPanel : public KxWidget
{
    Q_OBJECT
public:
    /// `queue` is borrowed and outlives the panel.
    ExportPanel(ExportQueue& queue, QWidget* parent);
    ~ExportPanel() override;

    /// While the exports of the last run are read, the empty list shows no explanation.
    void SetLoading(bool isLoading);

Q_SIGNALS:
    void sigShowInFolder(const QString& filePath);
    /// At the doubtful shots of an export, given by its number.
    void sigLook(int id);

protected:
    void RetranslateUi() override;

private:
    void InitLayout();
    void AddCard(int id);
    void UpdateCard(int id);
    void RemoveCard(int id);
    void ShowHints();
    QLayout* MakeHead();
    QWidget* MakeList();
    QWidget* MakeResumeBar();

    ExportQueue& m_queue;
    bool m_isLoading = false;
    KxLabel* m_heading = nullptr;
    LinkButton* m_clear = nullptr;
    QWidget* m_resumeBar = nullptr;
    QueueBar* m_queueBar = nullptr;
    KxLabel* m_interrupted = nullptr;
    LinkButton* m_resume = nullptr;
    LinkButton* m_discard = nullptr;
    KxLabel* m_hint = nullptr;
    QVBoxLayout* m_column = nullptr;
    QMap<int, ExportCard*> m_cards;
};
