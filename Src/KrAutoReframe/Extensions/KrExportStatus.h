#pragma once

#include <KrAutoReframe/KrAutoReframeExtensions.h>
#include <KxWidgets/KxWidget.h>

#include <QSize>

class KxComboBox;
class KxLabel;
class KxPushButton;
class QProgressBar;

/// What is below the export button: the size of the result before an export, and afterwards how the export is getting
/// on, with a way to its file. User-interface thread.
class KrExportStatus : public KxWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrExportStatus)

public:
    /// `exports` is null if the host does not report on exports, `outputs` if it writes one size only.
    KrExportStatus(KrAutoReframeExports* exports, KrAutoReframeOutputs* outputs, QWidget* parent);
    ~KrExportStatus() override;

    /// A result whose crop has `crop` pixels and is written as `cropSize`. An empty one shows nothing.
    void SetCrop(const QSizeF& crop, const QSize& cropSize);
    void RetranslateUi() override;

private:
    void Show(const KrAutoReframeExport& state);
    void FillOutputs(const QSizeF& crop);
    void Choose(int index);
    QString SizeText() const;
    void ShowText();
    QString StateText() const;

    KrAutoReframeExports* const m_exports;
    KrAutoReframeOutputs* const m_outputs;
    QSize m_cropSize;
    QSize m_outputSize;
    KrAutoReframeExport m_export;
    KxComboBox* m_output = nullptr;
    KxLabel* m_size = nullptr;
    KxLabel* m_file = nullptr;
    KxLabel* m_state = nullptr;
    QProgressBar* m_progress = nullptr;
    KxPushButton* m_showInFolder = nullptr;
};
