#pragma once

#include <Apps/AutoReframe/Batch/BatchSettings.h>
#include <Apps/AutoReframe/Dialogs/SaveDialog.h>

#include <QVector>

class KxComboBox;
class KxLabel;
class QCheckBox;
class QGridLayout;
class QLayout;

/// Asks what "Reframe All…" is to make of the selected videos.
class BatchDialog : public SaveDialog
{
    Q_OBJECT
public:
    BatchDialog(QList<BatchVideo> videos, const BatchSettings& initial, OutputNames::Unique::IsTaken isTaken,
                QWidget* parent);
    ~BatchDialog() override;

    BatchSettings Settings() const;

protected:
    KxError Problem() const override;
    QString Example() const override;
    void RetranslateUi() override;

private:
    void InitUi();
    void InitLayout();
    QLayout* MakeRatios();
    void Fill(const BatchSettings& settings);
    void FillCombos();

    const QList<BatchVideo> m_videos;
    const OutputNames::Unique::IsTaken m_isTaken;
    KxLabel* m_ratiosCaption = nullptr;
    /// In the order of the ratios.
    QVector<QCheckBox*> m_ratios;
    KxLabel* m_speedCaption = nullptr;
    KxComboBox* m_speed = nullptr;
    KxLabel* m_sizeCaption = nullptr;
    KxComboBox* m_size = nullptr;
};
