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

    /// As QLineEdit::setText, but a text longer than maxLength() is cut between two visible characters: QLineEdit cuts
    /// through emoji and accented letters.
    void setText(const QString& text);

    /// With `on`, characters that a file name may not contain are dropped from everything that is typed, pasted or set.
    void SetFileNameValidator(bool on);

private:
    explicit KxLineEdit(QWidget* parent);
};
