#pragma once

#include <Apps/AutoReframe/Dialogs/SaveDialog.h>

class KxComboBox;
class KxLabel;

/// Asks where to save a crop track, and in which format.
class CropTrackDialog : public SaveDialog
{
    Q_OBJECT
public:
    /// `name` has no suffix.
    CropTrackDialog(const QString& name, const QString& folder, QWidget* parent);
    ~CropTrackDialog() override;

    QString FilePath() const;

protected:
    KxError Problem() const override;
    void RetranslateUi() override;

private:
    KxLabel* m_formatCaption = nullptr;
    KxComboBox* m_format = nullptr;
};
