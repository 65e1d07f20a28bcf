#include <KxMedia/Container/KxClaimedSize.h>

#include <gtest/gtest.h>

namespace
{

std::optional<qint64> Claimed(const char* hex)
{
    return KxClaimedSize(QByteArray::fromHex(hex));
}

} // namespace

TEST(KxClaimedSize, MatroskaCountsFromTheEndOfItsHeaders)
{
    // A header of three bytes, then a segment whose size takes one, two and eight bytes.
    EXPECT_EQ(Claimed("1a45dfa3 83 000000 18538067 85"), 4 + 1 + 3 + 4 + 1 + 5);
    EXPECT_EQ(Claimed("1a45dfa3 83 000000 18538067 4102"), 4 + 1 + 3 + 4 + 2 + 0x102);
    EXPECT_EQ(Claimed("1a45dfa3 4003 000000 18538067 0100000200000000"), 4 + 2 + 3 + 4 + 8 + 0x200000000LL);
}

TEST(KxClaimedSize, AnOpenSizeIsUnknown)
{
    EXPECT_FALSE(Claimed("1a45dfa3 83 000000 18538067 ff"));
    EXPECT_FALSE(Claimed("1a45dfa3 83 000000 18538067 01ffffffffffffff"));
    EXPECT_FALSE(Claimed("52494646 00000000 41564920"));
}

TEST(KxClaimedSize, AviCountsFromTheEndOfItsFirstEightBytes)
{
    EXPECT_EQ(Claimed("52494646 00010000 41564920"), 8 + 0x100);
    EXPECT_EQ(Claimed("52494646 ffffffff 41564920"), 8 + 0xffffffffLL);
}

TEST(KxClaimedSize, OtherFilesAndDamagedHeadersHaveNoSize)
{
    EXPECT_FALSE(Claimed(""));
    EXPECT_FALSE(Claimed("52494646 00010000 57415645"));
    EXPECT_FALSE(Claimed("0000001866747970"));
    EXPECT_FALSE(Claimed("1a45dfa3"));
    EXPECT_FALSE(Claimed("1a45dfa3 00"));
    EXPECT_FALSE(Claimed("1a45dfa3 83 000000 11111111 85"));
    EXPECT_FALSE(Claimed("1a45dfa3 83 000000 18538067"));
    EXPECT_FALSE(Claimed("1a45dfa3 83 000000 18538067 41"));
    EXPECT_FALSE(Claimed("1a45dfa3 017fffffffffffff 00"));
}
