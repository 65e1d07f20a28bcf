#include <KxWidgets/Controls/KxVisibleCharacters.h>

#include <QTextBoundaryFinder>

namespace
{

constexpr QChar ZeroWidthJoiner(0x200D);

} // namespace

QString KxVisibleCharacters::Left(const QString& text, int longest)
{
    if (text.size() <= longest) {
        return text;
    }
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(longest);
    int end = finder.isAtBoundary() ? longest : static_cast<int>(finder.toPreviousBoundary());
    // Qt 5 counts the parts of a joined emoji (a family, for example) as separate characters.
    while (end > 0 && (text.at(end - 1) == ZeroWidthJoiner || text.at(end) == ZeroWidthJoiner)) {
        end = static_cast<int>(finder.toPreviousBoundary());
    }
    return text.left(std::max(end, 0));
}

QString KxVisibleCharacters::WithoutHalves(const QString& text, int& cursor)
{
    QString kept;
    int keptCursor = cursor;
    for (int index = 0; index < text.size(); ++index) {
        const QChar character = text.at(index);
        const bool isFirstOfPair =
            character.isHighSurrogate() && index + 1 < text.size() && text.at(index + 1).isLowSurrogate();
        if (isFirstOfPair) {
            kept += character;
            kept += text.at(++index);
        } else if (!character.isSurrogate()) {
            kept += character;
        } else if (index < cursor) {
            --keptCursor;
        }
    }
    cursor = keptCursor;
    return kept;
}
