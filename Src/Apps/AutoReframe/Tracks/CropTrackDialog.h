#pragma once

#include <Apps/AutoReframe/Dialogs/ExportForMenu.h>
#include <Apps/AutoReframe/Dialogs/SaveDialog.h>

#include <optional>

class KxComboBox;
class KxLabel;

/// Asks where to save the crops of a video: as a crop track, and in which format, or for another program.
class CropTrackDialog : public SaveDialog
{
    Q_OBJECT
public:
    /// `name` has no suffix. Without a `target`, for a crop track.
    CropTrackDialog(const QString& name, const QString& folder, const std::optional<EditListTarget>& target,
                    QWidget* parent);
    ~CropTrackDialog() override;

    QString FilePath() const;

protected:
    KxError Problem() const override;
    void RetranslateUi() override;

private:
    const std::optional<EditListTarget> m_target;
    KxLabel* m_formatCaption = nullptr;
    KxComboBox* m_format = nullptr;
};
