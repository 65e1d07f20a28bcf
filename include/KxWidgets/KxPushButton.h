#pragma once

#include <KxCore/KxExport.h>

#include <QPushButton>

/// A button with a text. The style sheet distinguishes its kinds by the property "buttonKind" ("primary" or
/// "secondary").
class KXWIDGETS_API KxPushButton : public QPushButton
{
    Q_OBJECT
public:
    /// `heightPx` is the button's height in pixels, 24 or 32.
    static KxPushButton* CreatePrimaryButton(QWidget* parent, int heightPx);
    static KxPushButton* CreateSecondaryButton(QWidget* parent, int heightPx);
    ~KxPushButton() override;

    /// Whether the button's width follows its text; initially it does. A text that does not fit is elided.
    void SetAutoResizeText(bool follows);

    QSize minimumSizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    KxPushButton(QWidget* parent, const QString& kind, int heightPx);

    bool m_followsText = true;
};
