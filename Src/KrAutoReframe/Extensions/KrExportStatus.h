#pragma once

#include <KrAutoReframe/KrAutoReframeExtensions.h>
#include <KxWidgets/KxWidget.h>

#include <QSize>

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
    /// `exports` is null if the host does not report on exports.
    KrExportStatus(KrAutoReframeExports* exports, QWidget* parent);
    ~KrExportStatus() override;

    /// In pixels; an empty one shows nothing.
    void SetOutputSize(const QSize& size);
    void RetranslateUi() override;

private:
    void Show(const KrAutoReframeExport& state);
    void ShowText();
    QString StateText() const;

    KrAutoReframeExports* const m_exports;
    QSize m_outputSize;
    KrAutoReframeExport m_export;
    KxLabel* m_size = nullptr;
    KxLabel* m_file = nullptr;
    KxLabel* m_state = nullptr;
    QProgressBar* m_progress = nullptr;
    KxPushButton* m_showInFolder = nullptr;
};
