#pragma once

#include <Apps/AutoReframe/Exports/ExportQueue.h>

#include <QFrame>

class KxLabel;
class KxToolButton;
class LinkButton;
class QProgressBar;

/// One export of the queue on a card. Only reports what the person asks for.
class ExportCard : public QFrame
{
    Q_OBJECT
public:
    explicit ExportCard(QWidget* parent);
    ~ExportCard() override;

    void Show(const ExportItem& item);

Q_SIGNALS:
    void sigCancel();
    void sigRetry();
    void sigShowInFolder();
    /// At the doubtful shots.
    void sigLook();
    void sigRemove();

protected:
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void InitLayout();
    void RetranslateUi();
    QString StatusText() const;
    QString DoneText() const;
    QString ProgressText() const;
    QString SizeText() const;
    void ShowTexts();

    ExportItem m_item;
    KxLabel* m_name = nullptr;
    KxToolButton* m_cancel = nullptr;
    QProgressBar* m_bar = nullptr;
    KxLabel* m_status = nullptr;
    KxLabel* m_size = nullptr;
    LinkButton* m_retry = nullptr;
    LinkButton* m_look = nullptr;
    LinkButton* m_show = nullptr;
};
