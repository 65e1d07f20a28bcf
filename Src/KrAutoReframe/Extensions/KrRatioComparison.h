#pragma once

#include <KrAutoReframe/Extensions/KrRatioPane.h>

#include <KxWidgets/KxFramelessDialog.h>

#include <QList>

/// A window beside the dialog that shows the results of several aspect ratios side by side, at the frame of the
/// dialog's player. User-interface thread.
class KrRatioComparison : public KxFramelessDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrRatioComparison)

public:
    KrRatioComparison(const IKxAutoReframeDecisions& service, QWidget* parent);
    ~KrRatioComparison() override;

    /// Fills the panes, which decide for themselves.
    void Fill(const KrRatioPane::Source& source);
    void ShowFrame(int frame);
    /// Call it before the source is released.
    void Clear();

protected:
    void RetranslateUi() override;

private:
    QList<KrRatioPane*> m_panes;
};
