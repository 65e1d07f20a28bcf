#include <KrAutoReframe/KrAutoReframeDialog.h>

#include <KrAutoReframe/Player/KrAutoReframePlayerView.h>
#include <KrAutoReframe/Settings/KrAutoReframePropertyPanel.h>

#include <KxCore/KxConfig.h>
#include <KxCore/KxLog.h>
#include <KxMediaLibrary/KxMediaLibraryUtils.h>
#include <KxModel/IKxAbstractMedia.h>
#include <KxWidgets/KxFileDialog.h>
#include <KxWidgets/KxOpenFileName.h>

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <new>
#include <string>
#include <vector>

namespace
{

/// Characters for the system chooser's answer: enough for thousands of files.
constexpr std::size_t BufferLength = 260000;
/// The longest folder that the system's chooser returns, in characters.
constexpr std::size_t LongestFolder = 260;

/// Appends the chosen paths to `lines`, one a line. `chosen` is the chooser's answer: a folder of `nameOffset`
/// characters, then names. False when the folder or the list is too long.
bool JoinPaths(const std::vector<wchar_t>& chosen, std::size_t nameOffset, std::wstring& lines)
{
    if (nameOffset > LongestFolder) {
        KX_LOG_ERROR(QStringLiteral("the chosen folder is too long"));
        return false;
    }
    // With several files the folder is zero-terminated.
    const auto folderEnd = chosen.begin() + static_cast<std::ptrdiff_t>(nameOffset);
    std::wstring folder(chosen.begin(), std::find(chosen.begin(), folderEnd, L'\0'));
    if (folder.empty() || (folder.back() != L'\\' && folder.back() != L'/')) {
        folder += L'/';
    }
    auto name = folderEnd;
    while (name != chosen.end() && *name != L'\0') {
        const auto nameEnd = std::find(name, chosen.end(), L'\0');
        const auto lineLength = folder.size() + static_cast<std::size_t>(nameEnd - name) + 1;
        if (lines.size() + lineLength >= BufferLength) {
            KX_LOG_ERROR(QStringLiteral("the list of chosen files is too long"));
            return false;
        }
        lines.append(folder).append(name, nameEnd).push_back(L'\n');
        name = nameEnd == chosen.end() ? nameEnd : nameEnd + 1;
    }
    return true;
}

} // namespace

void KrAutoReframeDialog::slotOpenImportDialog()
{
    m_playerView->Pause();
    QString filter = tr("All supported files(%1;);").arg(KxMediaLibraryUtils::getImportVideoFilter());
    filter.remove(QStringLiteral(";*.GIF"), Qt::CaseSensitive);
    const QString folder =
        KxConfig::Instance().getDefaultImportDir(QStandardPaths::writableLocation(QStandardPaths::MoviesLocation));
    const QStringList chosen = KxFileDialog::getOpenFileNames(this, tr("Open"), folder, filter);
    if (chosen.isEmpty()) {
        return;
    }
    const QString& path = chosen.first();
    m_sourceSuffix = QFileInfo(path).suffix();
    KX_LOG_INFO(QStringLiteral("select file: %1, suffix: %2").arg(path, m_sourceSuffix));
    qDebug() << "get file name:" << path << "file suffix: " << m_sourceSuffix;
    // A web shortcut is not a video.
    if (m_sourceSuffix.contains(QLatin1String("url"), Qt::CaseInsensitive)) {
        ShowInformation(tr("Unknown error, please try again"));
        return;
    }
    KX_LOG_INFO(QStringLiteral("select file name: %1").arg(path));
    if (path.isEmpty()) {
        return;
    }
    KxConfig::Instance().setDefaultImportDir(QFileInfo(path).absolutePath());
    releaseMediaItem(m_importedMedia);
    m_importedMedia = createMediaItem(path);
    InitMediaItem({m_importedMedia});
    ShowSourceIsReady();
    UpdateProjectName(QFileInfo(path).fileName());
    m_sourcePath = path;
}

QStringList KrAutoReframeDialog::GetOpenFileNames(const QString&, const QString& initialDir, const wchar_t* filter,
                                                  QWidget* owner, bool multiSelect)
{
    std::vector<wchar_t> chosen;
    std::wstring lines;
    try {
        chosen.assign(BufferLength, L'\0');
        lines.reserve(BufferLength);
    } catch (const std::bad_alloc&) {
        return {};
    }
    const std::wstring folder = initialDir.toStdWString();
    OPENFILENAMEW request = {};
    static_assert(sizeof(void*) != 8 || sizeof request == 152, "the record has to be the system's");
    request.lStructSize = sizeof request;
    if (owner != nullptr) {
        request.hwndOwner = reinterpret_cast<decltype(request.hwndOwner)>(owner->winId());
    }
    request.lpstrFilter = filter;
    request.lpstrFile = chosen.data();
    request.nMaxFile = BufferLength;
    request.lpstrInitialDir = folder.c_str();
    request.Flags = OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST;
    if (multiSelect) {
        request.Flags |= OFN_ALLOWMULTISELECT;
    }
    if (GetOpenFileNameW(&request) == 0 || !JoinPaths(chosen, request.nFileOffset, lines)) {
        return {};
    }
    QStringList paths = QString::fromStdWString(lines).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    std::transform(paths.begin(), paths.end(), paths.begin(), &QDir::fromNativeSeparators);
    return paths;
}
