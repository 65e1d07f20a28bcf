#include <KxWidgets/KxFileDialog.h>
#include <KxWidgets/KxOpenFileName.h>

#include <QStringList>
#include <QWidget>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

class KxOpenFileNameTest : public testing::Test
{
protected:
    KxOpenFileNameTest()
    {
        request.lStructSize = sizeof request;
        request.lpstrFile = buffer.data();
        request.nMaxFile = static_cast<std::uint32_t>(buffer.size());
        KxFileDialog::SetResponder([this](const KxFileDialog::Shown& shown) {
            seen = shown;
            return answer;
        });
    }
    ~KxOpenFileNameTest() override { KxFileDialog::SetResponder({}); }

    std::wstring Written(std::size_t length) const
    {
        return {buffer.begin(), buffer.begin() + static_cast<std::ptrdiff_t>(length)};
    }

    std::vector<wchar_t> buffer = std::vector<wchar_t>(64, L'#');
    OPENFILENAMEW request = {};
    QStringList answer;
    KxFileDialog::Shown seen;
};

TEST_F(KxOpenFileNameTest, OneFileIsAPathWhoseNameBeginsAtTheOffset)
{
    answer = QStringList{QStringLiteral("/v/a.mp4")};
    EXPECT_EQ(GetOpenFileNameW(&request), 1);
    EXPECT_EQ(request.nFileOffset, 3);
    EXPECT_EQ(Written(10), std::wstring(L"/v/a.mp4\0\0", 10));
}

TEST_F(KxOpenFileNameTest, SeveralFilesAreTheFolderAndTheirNames)
{
    request.Flags = OFN_ALLOWMULTISELECT;
    answer = QStringList{QStringLiteral("/v/a.mp4"), QStringLiteral("/v/b.mp4")};
    EXPECT_EQ(GetOpenFileNameW(&request), 1);
    EXPECT_EQ(request.nFileOffset, 3);
    EXPECT_EQ(Written(16), std::wstring(L"/v\0a.mp4\0b.mp4\0\0", 16));
}

TEST_F(KxOpenFileNameTest, OnlyOneFileWithoutTheFlag)
{
    answer = QStringList{QStringLiteral("/v/a.mp4"), QStringLiteral("/v/b.mp4")};
    EXPECT_EQ(GetOpenFileNameW(&request), 1);
    EXPECT_EQ(Written(10), std::wstring(L"/v/a.mp4\0\0", 10));
}

TEST_F(KxOpenFileNameTest, CancelledIsZeroAndWritesNothing)
{
    EXPECT_EQ(GetOpenFileNameW(&request), 0);
    EXPECT_EQ(Written(3), L"###");
}

TEST_F(KxOpenFileNameTest, WhatDoesNotFitIsZeroAndWritesNothing)
{
    answer = QStringList{QStringLiteral("/v/a.mp4")};
    request.nMaxFile = 9;
    EXPECT_EQ(GetOpenFileNameW(&request), 0);
    EXPECT_EQ(Written(3), L"###");
    request.nMaxFile = 10;
    EXPECT_EQ(GetOpenFileNameW(&request), 1);
}

TEST_F(KxOpenFileNameTest, FolderTitleAndFilterReachTheChooser)
{
    request.lpstrInitialDir = L"/v";
    request.lpstrTitle = L"Pick";
    request.lpstrFilter = L"Videos\0*.mp4;*.mov\0All\0*\0";
    GetOpenFileNameW(&request);
    EXPECT_EQ(seen.folder, QStringLiteral("/v"));
    EXPECT_EQ(seen.caption, QStringLiteral("Pick"));
    EXPECT_EQ(seen.filter, QStringLiteral("Videos(*.mp4;*.mov)"));
    request.nFilterIndex = 2;
    GetOpenFileNameW(&request);
    EXPECT_EQ(seen.filter, QStringLiteral("All(*)"));
}

} // namespace
