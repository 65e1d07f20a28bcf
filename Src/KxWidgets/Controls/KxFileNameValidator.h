#pragma once

#include <QValidator>

/// Drops the characters that no file name may hold on any of our platforms; everything else is acceptable.
class KxFileNameValidator : public QValidator
{
    Q_OBJECT
public:
    explicit KxFileNameValidator(QObject* parent);
    ~KxFileNameValidator() override;

    State validate(QString& input, int& cursor) const override;
};
