#pragma once

#include <Apps/AutoReframe/Batch/BatchSettings.h>

#include <KxWidgets/KxFramelessDialog.h>

#include <QVector>

class KxComboBox;
class KxLabel;
class KxLineEdit;
class KxOpenFileLineEdit;
class KxPushButton;
class QCheckBox;
class QGridLayout;
class QLayout;

/// Asks what "Reframe All…" is to make of the selected videos.
class BatchDialog : public KxFramelessDialog
{
    Q_OBJECT
public:
    BatchDialog(QList<BatchVideo> videos, const BatchSettings& initial, OutputNames::Unique::IsTaken isTaken,
                QWidget* parent);
    ~BatchDialog() override;

    BatchSettings Settings() const;

protected:
    void RetranslateUi() override;

private:
    void InitUi();
    void InitLayout();
    QLayout* MakeRatios();
    void Fill(const BatchSettings& settings);
    void FillCombos();
    /// Shows what will be written, or why nothing can be.
    void ShowExample();
    QString Example(const BatchSettings& settings) const;
    KxError Problem(const BatchSettings& settings) const;
    void HandleStart();

    const QList<BatchVideo> m_videos;
    const OutputNames::Unique::IsTaken m_isTaken;
    KxLabel* m_ratiosCaption = nullptr;
    /// In the order of the ratios.
    QVector<QCheckBox*> m_ratios;
    KxLabel* m_speedCaption = nullptr;
    KxComboBox* m_speed = nullptr;
    KxLabel* m_sizeCaption = nullptr;
    KxComboBox* m_size = nullptr;
    KxLabel* m_patternCaption = nullptr;
    KxLineEdit* m_pattern = nullptr;
    KxLabel* m_folderCaption = nullptr;
    KxOpenFileLineEdit* m_folder = nullptr;
    KxLabel* m_example = nullptr;
    KxPushButton* m_start = nullptr;
    KxPushButton* m_cancel = nullptr;
};
