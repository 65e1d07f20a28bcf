#pragma once

#include <KxWidgets/KxFramelessDialog.h>

class KxComboBox;
class KxLabel;
class KxLineEdit;
class KxOpenFileLineEdit;
class KxPushButton;

/// Asks where to save a crop track, and in which format.
class CropTrackDialog : public KxFramelessDialog
{
    Q_OBJECT
public:
    /// `name` has no suffix.
    CropTrackDialog(const QString& name, const QString& folder, QWidget* parent);
    ~CropTrackDialog() override;

    QString FilePath() const;

protected:
    void RetranslateUi() override;

private:
    void InitUi();
    void ShowProblem();
    void HandleSave();
    QString Folder() const;

    KxLabel* m_nameCaption = nullptr;
    KxLineEdit* m_name = nullptr;
    KxLabel* m_formatCaption = nullptr;
    KxComboBox* m_format = nullptr;
    KxLabel* m_folderCaption = nullptr;
    KxOpenFileLineEdit* m_folder = nullptr;
    KxLabel* m_problem = nullptr;
    KxPushButton* m_save = nullptr;
    KxPushButton* m_cancel = nullptr;
};
