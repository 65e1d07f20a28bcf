#pragma once

#include <KxWidgets/KrMessageDialog.h>
#include <KxWidgets/KxFramelessDialog.h>

class KxPushButton;
class QCheckBox;
class QVBoxLayout;

/// One message box.
class KxMessageBox : public KxFramelessDialog
{
    Q_OBJECT
public:
    struct Texts {
        QString title;
        QString text;
        QString detail;
        /// An address to open.
        QString link;
    };

    KxMessageBox(KrMessageType type, const Texts& texts, QWidget* parent);
    ~KxMessageBox() override;

    /// Offers not to show the box again.
    void AddCheckBox();
    bool IsChecked() const;

    enum class Answer { Confirm, Refuse };
    /// Buttons appear in the order in which they are added. Return presses the default one, which initially has the
    /// focus.
    void AddButton(const QString& text, Answer answer, bool isDefault);

private:
    void AddText(const QString& text, const QString& role);

    QVBoxLayout* m_texts = nullptr;
    QCheckBox* m_checkBox = nullptr;
    KxPushButton* m_default = nullptr;
};
