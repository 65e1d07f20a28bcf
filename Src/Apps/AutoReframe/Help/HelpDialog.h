#pragma once

#include <KxWidgets/KxFramelessDialog.h>

#include <QPair>

class KxPushButton;
class QVBoxLayout;

/// Lists the keyboard shortcuts of both windows, as the person has set them.
class HelpDialog : public KxFramelessDialog
{
    Q_OBJECT
public:
    explicit HelpDialog(QWidget* parent);
    ~HelpDialog() override;

protected:
    void RetranslateUi() override;

private:
    /// What a key does, and the key as text.
    using Shortcut = QPair<QString, QString>;

    void FillContent();
    QVBoxLayout* MakeColumn(const QString& heading, const QList<Shortcut>& shortcuts, QWidget* parent) const;
    static QList<Shortcut> OfLibrary();
    static QList<Shortcut> OfDialog();

    KxPushButton* m_close = nullptr;
};
