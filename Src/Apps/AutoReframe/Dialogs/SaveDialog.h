#pragma once

#include <KxCore/KxResult.h>
#include <KxWidgets/KxFramelessDialog.h>

class KxLabel;
class KxLineEdit;
class KxOpenFileLineEdit;
class KxPushButton;
class QVBoxLayout;

/// Asks for a file name and a folder; derived dialogs add what else is to be chosen. Below them it shows an example, or
/// the problem if there is one. The dialog is accepted only if its folder can be written to.
class SaveDialog : public KxFramelessDialog
{
    Q_OBJECT
protected:
    /// `name` is the object name, and begins those of the parts.
    SaveDialog(const QString& name, QWidget* parent);
    ~SaveDialog() override;

    /// Why the dialog cannot be accepted with its present entries.
    virtual KxError Problem() const = 0;
    /// What is shown where there is no problem.
    virtual QString Example() const;
    /// Whether an example is shown completely.
    bool Fits(const QString& example) const;
    /// `name` with its middle left out where it is longer than a line.
    QString InOneLine(const QString& name) const;

    /// Empty, with margins; the rows are added to it.
    QVBoxLayout* MakeColumn();
    /// The field of the name with its caption.
    QWidget* NameRow();
    /// Adds the folder and a message of so many lines to `column`, and shows it.
    void ShowColumn(QVBoxLayout* column, int messageLines, int widthPx);
    KxLabel* MakeCaption();
    /// `field` below its caption, which names it for screen readers.
    QWidget* WithCaption(KxLabel* caption, QWidget* field);
    /// Shows the problem or the example; called whenever name or folder change.
    void ShowState();

    QString FileName() const;
    void SetFileName(const QString& name);
    /// With slashes.
    QString Folder() const;
    void SetFolder(const QString& folder);
    void SetNameTexts(const QString& caption, const QString& toolTip);
    void SetFolderToolTip(const QString& toolTip);
    void SetAcceptText(const QString& text);
    void RetranslateUi() override;

    static constexpr int GapPx = 18;

private:
    void HandleAccept();
    void ShowText(const QString& text, bool isError);

    KxLabel* m_nameCaption;
    KxLineEdit* m_name;
    KxLabel* m_folderCaption;
    KxOpenFileLineEdit* m_folder;
    KxLabel* m_message;
    KxPushButton* m_cancel;
    KxPushButton* m_accept;
};
