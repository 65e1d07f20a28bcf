#pragma once

#include <KxCore/KxExport.h>

#include <QLineEdit>

/// A line of text to edit.
class KXWIDGETS_API KxLineEdit : public QLineEdit
{
    Q_OBJECT
public:
    /// `heightPx` is the size kind: the field's height in pixels.
    static KxLineEdit* creartNormalLineEdit(QWidget* parent, int heightPx);
    ~KxLineEdit() override;

    /// With `on`, characters that no file name may hold are left out of whatever is typed, pasted or set.
    void SetFileNameValidator(bool on);

private:
    explicit KxLineEdit(QWidget* parent);
};
