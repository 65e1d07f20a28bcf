#pragma once

#include <KxWidgets/KxWidget.h>

class KxLineEdit;
class KxToolButton;

/// An editable path of a folder, with a button to choose the folder.
class KXWIDGETS_API KxOpenFileLineEdit : public KxWidget
{
    Q_OBJECT
public:
    static KxOpenFileLineEdit* CreateOpenFileLineEdit(QWidget* parent);
    ~KxOpenFileLineEdit() override;

    QString Text() const;
    void SetText(const QString& text);

Q_SIGNALS:
    void sigTextChanged(const QString& text);

protected:
    void RetranslateUi() override;
    void resizeEvent(QResizeEvent* event) override;

private:
    explicit KxOpenFileLineEdit(QWidget* parent);
    void PickFolder();

    KxLineEdit* m_edit = nullptr;
    KxToolButton* m_button = nullptr;
};
