#include <KxWidgets/KxOpenFileName.h>
#include <KxWidgets/Windows/KxFileResponder.h>

#include <QApplication>
#include <QWidget>

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace
{

class KxOpenFileNameTest : public testing::Test
{
protected:
    KxOpenFileNameTest()
    {
        buffer.fill(L'#');
        request.lStructSize = sizeof request;
        request.lpstrFile = buffer.data();
        request.nMaxFile = static_cast<std::uint32_t>(buffer.size());
        request.Flags = OFN_EXPLORER | OFN_ALLOWMULTISELECT;
        KxFileDialog::SetResponder([this](const KxFileDialog::Shown& asked) {
            shown = asked;
            return answer;
        });
    }
    ~KxOpenFileNameTest() override { KxFileDialog::SetResponder({}); }

    /// The content of the buffer, including zeros.
    std::wstring Buffer(std::size_t length) const { return std::wstring(buffer.data(), length); }

    std::array<wchar_t, 40> buffer;
    OPENFILENAMEW request = {};
    QStringList answer;
    KxFileDialog::Shown shown;
};

} // namespace

TEST_F(KxOpenFileNameTest, TheRecordHasTheSystemsLayout)
{
    EXPECT_EQ(sizeof(OPENFILENAMEW), 152u);
}

TEST_F(KxOpenFileNameTest, OneFileGivesItsPathAndTheOffsetOfItsName)
{
    answer = QStringList{QStringLiteral("/v/one clip.mp4")};
    EXPECT_EQ(GetOpenFileNameW(&request), 1);
    EXPECT_EQ(Buffer(18), std::wstring(L"/v/one clip.mp4\0\0#", 18));
    EXPECT_EQ(request.nFileOffset, 3);
    EXPECT_EQ(request.nFileExtension, 12);
}

TEST_F(KxOpenFileNameTest, AFileWithoutAnExtensionHasNone)
{
    answer = QStringList{QStringLiteral("/v.old/clip")};
    EXPECT_EQ(GetOpenFileNameW(&request), 1);
    EXPECT_EQ(request.nFileOffset, 7);
    EXPECT_EQ(request.nFileExtension, 0);
}

TEST_F(KxOpenFileNameTest, SeveralFilesGiveAFolderAndNames)
{
    answer = QStringList{QStringLiteral("/v/a.mp4"), QStringLiteral("/v/b.mp4")};
    EXPECT_EQ(GetOpenFileNameW(&request), 1);
    EXPECT_EQ(Buffer(16), std::wstring(L"/v\0a.mp4\0b.mp4\0\0", 16));
    EXPECT_EQ(request.nFileOffset, 3);
    EXPECT_EQ(request.nFileExtension, 0);
}

TEST_F(KxOpenFileNameTest, TheRootFolderKeepsItsSeparator)
{
    answer = QStringList{QStringLiteral("/a.mp4"), QStringLiteral("/b.mp4")};
    EXPECT_EQ(GetOpenFileNameW(&request), 1);
    EXPECT_EQ(Buffer(15), std::wstring(L"/\0a.mp4\0b.mp4\0\0", 15));
    EXPECT_EQ(request.nFileOffset, 2);
}

TEST_F(KxOpenFileNameTest, ARequestForOneFileGetsTheFirst)
{
    request.Flags = OFN_EXPLORER;
    answer = QStringList{QStringLiteral("/v/a.mp4"), QStringLiteral("/v/b.mp4")};
    EXPECT_EQ(GetOpenFileNameW(&request), 1);
    EXPECT_EQ(Buffer(10), std::wstring(L"/v/a.mp4\0\0", 10));
}

TEST_F(KxOpenFileNameTest, WithoutAChoiceTheRecordIsNotChanged)
{
    EXPECT_EQ(GetOpenFileNameW(&request), 0);
    EXPECT_EQ(buffer.front(), L'#');
    EXPECT_EQ(request.nFileOffset, 0);
}

TEST_F(KxOpenFileNameTest, AChoiceThatDoesNotFitIsNotWritten)
{
    answer = QStringList{QStringLiteral("/v/a.mp4")};
    request.nMaxFile = 9;
    EXPECT_EQ(GetOpenFileNameW(&request), 0);
    EXPECT_EQ(buffer.front(), L'#');
    request.nMaxFile = 10;
    EXPECT_EQ(GetOpenFileNameW(&request), 1);
}

TEST_F(KxOpenFileNameTest, ARecordOfAnotherSizeIsRefused)
{
    answer = QStringList{QStringLiteral("/v/a.mp4")};
    request.lStructSize = sizeof request - 8;
    EXPECT_EQ(GetOpenFileNameW(&request), 0);
    EXPECT_EQ(GetOpenFileNameW(nullptr), 0);
}

TEST_F(KxOpenFileNameTest, TheChooserGetsFolderAndTitle)
{
    request.lpstrInitialDir = L"/videos";
    GetOpenFileNameW(&request);
    EXPECT_FALSE(shown.picksFolder);
    EXPECT_EQ(shown.folder, QStringLiteral("/videos"));
    EXPECT_EQ(shown.caption, QStringLiteral("Open"));
    request.lpstrTitle = L"Take one";
    GetOpenFileNameW(&request);
    EXPECT_EQ(shown.caption, QStringLiteral("Take one"));
}

TEST_F(KxOpenFileNameTest, TheSelectedPairIsTheFilter)
{
    request.lpstrFilter = L"Videos (*.mp4)\0*.mp4;*.mov\0Pictures\0*.png\0";
    GetOpenFileNameW(&request);
    EXPECT_EQ(shown.filter, QStringLiteral("Videos(*.mp4;*.mov;)"));
    request.nFilterIndex = 2;
    GetOpenFileNameW(&request);
    EXPECT_EQ(shown.filter, QStringLiteral("Pictures(*.png;)"));
    request.nFilterIndex = 9;
    GetOpenFileNameW(&request);
    EXPECT_EQ(shown.filter, QStringLiteral("Pictures(*.png;)"));
}

TEST_F(KxOpenFileNameTest, WithoutAFilterEveryFileIsOffered)
{
    GetOpenFileNameW(&request);
    EXPECT_EQ(shown.filter, QStringLiteral("All files(*;)"));
}
