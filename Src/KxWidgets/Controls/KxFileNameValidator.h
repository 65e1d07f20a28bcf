#pragma once

#include <QValidator>

/// Drops the characters that a file name may not contain on one of our platforms, and halves of surrogate pairs. What
/// remains is always acceptable.
class KxFileNameValidator : public QValidator
{
    Q_OBJECT
public:
    explicit KxFileNameValidator(QObject* parent);
    ~KxFileNameValidator() override;

    State validate(QString& input, int& cursor) const override;
};
