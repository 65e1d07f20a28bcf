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

    /// Whether characters that no file name may hold can be typed.
    void SetFileNameValidator(bool on);

private:
    explicit KxLineEdit(QWidget* parent);
};
