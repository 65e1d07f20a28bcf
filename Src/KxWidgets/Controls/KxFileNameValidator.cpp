#include <KxWidgets/Controls/KxFileNameValidator.h>

#include <KxWidgets/Controls/KxVisibleCharacters.h>

namespace
{

bool Forbidden(QChar character)
{
    return character < QLatin1Char(' ') || QStringLiteral("*|<>\\?/:\"").contains(character);
}

} // namespace

KxFileNameValidator::KxFileNameValidator(QObject* parent)
    : QValidator(parent)
{
}

KxFileNameValidator::~KxFileNameValidator() = default;

QValidator::State KxFileNameValidator::validate(QString& input, int& cursor) const
{
    QString kept;
    int keptCursor = cursor;
    for (int index = 0; index < input.size(); ++index) {
        if (!Forbidden(input.at(index))) {
            kept += input.at(index);
        } else if (index < cursor) {
            --keptCursor;
        }
    }
    input = KxVisibleCharacters::WithoutHalves(kept, keptCursor);
    cursor = keptCursor;
    return Acceptable;
}
