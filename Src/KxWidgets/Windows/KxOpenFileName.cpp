#include <KxWidgets/KxOpenFileName.h>

#include <KxWidgets/KxFileDialog.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QWidget>

#include <algorithm>
#include <limits>
#include <string>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxOpenFileName)
};

/// Splits a list of zero-terminated texts that ends with an empty one.
QStringList TextsOf(const wchar_t* list)
{
    QStringList texts;
    while (list != nullptr && *list != L'\0') {
        const std::wstring text(list);
        texts += QString::fromStdWString(text);
        list += text.size() + 1;
    }
    return texts;
}

/// The selected pair of name and patterns in the form of the host's chooser. A name often repeats its patterns in
/// parentheses; they are removed because the chooser adds them itself.
QString FilterOf(const OPENFILENAMEW& request)
{
    const QStringList texts = TextsOf(request.lpstrFilter);
    const int pairs = texts.size() / 2;
    if (pairs == 0) {
        return Texts::tr("All files(%1)").arg(QStringLiteral("*;"));
    }
    const int pair = std::clamp(static_cast<int>(request.nFilterIndex), 1, pairs) - 1;
    const QString& name = texts.at(2 * pair);
    const QString& patterns = texts.at(2 * pair + 1);
    return QStringLiteral("%1(%2;)").arg(name.left(name.indexOf(QLatin1Char('('))).trimmed(), patterns);
}

/// The content of the buffer for a choice.
struct Answer {
    std::wstring buffer;
    std::size_t nameOffset = 0;
};

Answer OnePath(const QString& path)
{
    Answer answer;
    answer.buffer = path.toStdWString();
    answer.nameOffset = answer.buffer.find_last_of(L'/') + 1;
    answer.buffer += L'\0';
    return answer;
}

/// A choice contains files of one folder only: files of other folders are dropped.
Answer FolderAndNames(const QStringList& paths)
{
    const QString folder = QFileInfo(paths.first()).path();
    Answer answer;
    answer.buffer = folder.toStdWString() + L'\0';
    answer.nameOffset = answer.buffer.size();
    for (const QString& path : paths) {
        const QFileInfo file(path);
        if (file.path() == folder) {
            answer.buffer += file.fileName().toStdWString() + L'\0';
        }
    }
    return answer;
}

int ExtensionOffset(const std::wstring& path, std::size_t nameOffset)
{
    const std::size_t dot = path.find_last_of(L'.');
    return dot != std::wstring::npos && dot >= nameOffset ? static_cast<int>(dot + 1) : 0;
}

} // namespace

int GetOpenFileNameW(OPENFILENAMEW* request)
{
    if (request == nullptr || request->lStructSize != sizeof *request || request->lpstrFile == nullptr) {
        return 0;
    }
    const QString caption =
        request->lpstrTitle != nullptr ? QString::fromWCharArray(request->lpstrTitle) : Texts::tr("Open");
    const QString folder =
        request->lpstrInitialDir != nullptr ? QString::fromWCharArray(request->lpstrInitialDir) : QString();
    QWidget* const owner = QWidget::find(reinterpret_cast<WId>(request->hwndOwner));
    const QStringList chosen = KxFileDialog::getOpenFileNames(owner, caption, folder, FilterOf(*request));
    if (chosen.isEmpty()) {
        return 0;
    }
    const bool several = (request->Flags & OFN_ALLOWMULTISELECT) != 0 && chosen.size() > 1;
    const Answer answer = several ? FolderAndNames(chosen) : OnePath(chosen.first());
    // The list ends with an empty text.
    if (answer.buffer.size() + 1 > request->nMaxFile ||
        answer.nameOffset > std::numeric_limits<decltype(request->nFileOffset)>::max()) {
        return 0;
    }
    std::copy(answer.buffer.begin(), answer.buffer.end(), request->lpstrFile);
    request->lpstrFile[answer.buffer.size()] = L'\0';
    request->nFileOffset = static_cast<std::uint16_t>(answer.nameOffset);
    request->nFileExtension =
        several ? std::uint16_t(0) : static_cast<std::uint16_t>(ExtensionOffset(answer.buffer, answer.nameOffset));
    return 1;
}
