#include <KxWidgets/Controls/KxShortcutEditManager.h>

#include <KxCore/KxConfigFile.h>

#include <QSettings>
#include <QStringList>

namespace
{

QKeySequence Default(int actionId)
{
    switch (actionId) {
    case IKxShortcutEditManager::Undo:
        return {Qt::CTRL | Qt::Key_Z};
    case IKxShortcutEditManager::Redo:
        return {static_cast<int>(Qt::CTRL) | static_cast<int>(Qt::SHIFT) | Qt::Key_Z};
    case IKxShortcutEditManager::Delete:
        return {Qt::Key_Delete};
    case IKxShortcutEditManager::PlayPause:
        return {Qt::Key_Space};
    case IKxShortcutEditManager::Stop:
        // Close to Space, and not a letter, because lists search for typed letters.
        return {Qt::SHIFT | Qt::Key_Space};
    case IKxShortcutEditManager::Backward:
        return {Qt::Key_Left};
    case IKxShortcutEditManager::Forward:
        return {Qt::Key_Right};
    case IKxShortcutEditManager::PreviousEditPoint:
        return {Qt::CTRL | Qt::Key_Left};
    case IKxShortcutEditManager::NextEditPoint:
        return {Qt::CTRL | Qt::Key_Right};
    case IKxShortcutEditManager::PreviousDoubtfulShot:
        return {Qt::SHIFT | Qt::Key_N};
    case IKxShortcutEditManager::NextDoubtfulShot:
        return {Qt::Key_N};
    case IKxShortcutEditManager::BackToAutomatic:
        return {Qt::Key_Backspace};
    default:
        return {};
    }
}

bool IsReadable(const QKeySequence& sequence)
{
    for (int index = 0; index < sequence.count(); ++index) {
        if ((static_cast<uint>(sequence[static_cast<uint>(index)]) & ~static_cast<uint>(Qt::KeyboardModifierMask)) ==
            static_cast<uint>(Qt::Key_unknown)) {
            return false;
        }
    }
    return true;
}

} // namespace

IKxShortcutEditManager::~IKxShortcutEditManager() = default;

IKxShortcutEditManager* IKxShortcutEditManager::GetInstance()
{
    static KxShortcutEditManager instance;
    return &instance;
}

KxShortcutEditManager::KxShortcutEditManager() = default;

KxShortcutEditManager::~KxShortcutEditManager() = default;

QKeySequence KxShortcutEditManager::keySequence(int actionId) const
{
    QSettings settings(KxConfigFile::Path(), QSettings::IniFormat);
    settings.beginGroup(QStringLiteral("Shortcuts"));
    const QString key = QString::number(actionId);
    if (!settings.contains(key)) {
        return Default(actionId);
    }
    // QSettings reads a value with a comma, which separates two key strokes, as a list.
    const QString text = settings.value(key).toStringList().join(QStringLiteral(", ")).trimmed();
    const QKeySequence sequence = QKeySequence::fromString(text, QKeySequence::PortableText);
    const bool readable = IsReadable(sequence) && sequence.isEmpty() == text.isEmpty();
    return readable ? sequence : Default(actionId);
}
