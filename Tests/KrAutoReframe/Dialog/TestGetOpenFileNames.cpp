#include <Tests/KrAutoReframe/Dialog/DialogFixture.h>

#include <KxWidgets/KxOpenFileName.h>

#include <QDir>

#include <algorithm>

namespace
{

/// The answer that the chooser writes to the record, and the record that it was given.
struct Chooser {
    int answer = 1;
    std::wstring buffer;
    std::uint16_t nameOffset = 0;
    OPENFILENAMEW request = {};
    QString initialFolder;
    bool wasBufferEmpty = false;
    int calls = 0;
};

Chooser& TheChooser()
{
    static Chooser chooser;
    return chooser;
}

} // namespace

// The program's definition replaces the host's, on Windows the system's.
#if defined(_WIN32)
#define KX_ANSWER WINAPI ChooseFileNames
#else
#define KX_ANSWER GetOpenFileNameW
#endif
int KX_ANSWER(OPENFILENAMEW* request)
{
    Chooser& chooser = TheChooser();
    ++chooser.calls;
    chooser.request = *request;
    chooser.initialFolder = QString::fromWCharArray(request->lpstrInitialDir);
    chooser.wasBufferEmpty =
        std::all_of(request->lpstrFile, request->lpstrFile + request->nMaxFile, [](wchar_t c) { return c == L'\0'; });
    std::copy(chooser.buffer.begin(), chooser.buffer.end(), request->lpstrFile);
    request->nFileOffset = chooser.nameOffset;
    return chooser.answer;
}
#if defined(_WIN32)
// What the module calls is this entry of its import table.
extern "C" {
decltype(&GetOpenFileNameW) __imp_GetOpenFileNameW = &ChooseFileNames;
}
#endif

namespace
{

class GetOpenFileNamesTest : public DialogTest
{
protected:
    GetOpenFileNamesTest() { TheChooser() = Chooser(); }

    QStringList Ask(const std::wstring& buffer, std::size_t nameOffset)
    {
        TheChooser().buffer = buffer;
        TheChooser().nameOffset = static_cast<std::uint16_t>(nameOffset);
        return dialog->GetOpenFileNames(QString(), QString(), nullptr, nullptr, true);
    }

    static QStringList Native(const QStringList& paths)
    {
        QStringList native;
        for (const QString& path : paths) {
            native.append(QDir::fromNativeSeparators(path));
        }
        return native;
    }
};

} // namespace

TEST_F(GetOpenFileNamesTest, FillsTheRecord)
{
    const wchar_t filter[] = L"Videos\0*.mp4\0";
    TheChooser().answer = 0;
    dialog->GetOpenFileNames(QStringLiteral("caption"), QStringLiteral("/v"), filter, dialog.get(), false);
    const OPENFILENAMEW& request = TheChooser().request;
    EXPECT_EQ(request.lStructSize, 152u);
    EXPECT_EQ(reinterpret_cast<WId>(request.hwndOwner), dialog->winId());
    EXPECT_EQ(request.lpstrFilter, filter);
    EXPECT_EQ(request.nMaxFile, 260000u);
    EXPECT_EQ(TheChooser().initialFolder, QStringLiteral("/v"));
    EXPECT_EQ(request.Flags, 0x81800u);
    EXPECT_TRUE(TheChooser().wasBufferEmpty);
    EXPECT_EQ(request.lpstrTitle, nullptr) << "the system's own title is shown";
    EXPECT_EQ(request.nFilterIndex, 0u);
    EXPECT_EQ(request.lpstrDefExt, nullptr);
    EXPECT_EQ(request.lpfnHook, nullptr);
    dialog->GetOpenFileNames(QString(), QString(), nullptr, nullptr, true);
    EXPECT_EQ(TheChooser().request.Flags, 0x81A00u);
    EXPECT_EQ(TheChooser().request.hwndOwner, nullptr);
    EXPECT_EQ(TheChooser().calls, 2);
}

TEST_F(GetOpenFileNamesTest, OneFileIsReturnedWithItsFolder)
{
    EXPECT_EQ(Ask(L"C:\\v\\a.mp4", 5), Native({QStringLiteral("C:\\v\\a.mp4")}));
    EXPECT_EQ(Ask(L"/v/a.mp4", 3), QStringList{QStringLiteral("/v/a.mp4")});
}

TEST_F(GetOpenFileNamesTest, SeveralFilesGetTheFolderAndASeparator)
{
    EXPECT_EQ(Ask(std::wstring(L"C:\\v\0a.mp4\0b.mp4\0c.mp4\0", 23), 5),
              Native({QStringLiteral("C:\\v/a.mp4"), QStringLiteral("C:\\v/b.mp4"), QStringLiteral("C:\\v/c.mp4")}));
}

TEST_F(GetOpenFileNamesTest, AFolderThatEndsInASeparatorGetsNoSecondOne)
{
    EXPECT_EQ(Ask(std::wstring(L"C:\\\0a.mp4\0b.mp4\0", 16), 4),
              Native({QStringLiteral("C:\\a.mp4"), QStringLiteral("C:\\b.mp4")}));
    EXPECT_EQ(Ask(std::wstring(L"/\0a.mp4\0b.mp4\0", 14), 2),
              (QStringList{QStringLiteral("/a.mp4"), QStringLiteral("/b.mp4")}));
}

TEST_F(GetOpenFileNamesTest, CancelledItReturnsNothing)
{
    TheChooser().answer = 0;
    EXPECT_TRUE(Ask(L"C:\\v\\a.mp4", 5).isEmpty());
}

TEST_F(GetOpenFileNamesTest, AFolderOfMoreThan260CharactersIsRefused)
{
    const std::wstring folder = L"/" + std::wstring(258, L'd') + L"/";
    EXPECT_EQ(Ask(folder + L"a.mp4", folder.size()).size(), 1);
    EXPECT_TRUE(Ask(L"/" + folder + L"a.mp4", folder.size() + 1).isEmpty());
}

TEST_F(GetOpenFileNamesTest, AListOfPathsThatDoesNotFitIsRefused)
{
    const std::wstring folder = L"/" + std::wstring(199, L'd');
    std::wstring names;
    // 203 characters a path with its line's end: the folder's 200, a separator, the name, the end.
    for (int n = 0; n < 1280; ++n) {
        names += std::wstring(L"a") + L'\0';
    }
    const std::wstring fits = folder + L'\0' + names;
    EXPECT_EQ(Ask(fits, folder.size() + 1).size(), 1280);
    EXPECT_TRUE(Ask(fits + names, folder.size() + 1).isEmpty());
}

TEST_F(GetOpenFileNamesTest, AFullBufferIsReadToItsEnd)
{
    const std::wstring whole = L"/" + std::wstring(259999, L'n');
    EXPECT_TRUE(Ask(whole, 1).isEmpty()) << "the path and its line's end need one character more than there is";
}
