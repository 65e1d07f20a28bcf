#include <KxCore/KxMemory.h>

#include <gtest/gtest.h>

#include <memory>

#if defined(__GLIBC__)
#include <malloc.h>

namespace
{

constexpr size_t PictureBytes = size_t{4} << 20;

std::unique_ptr<char[]> Make(size_t bytes)
{
    std::unique_ptr<char[]> block(new char[bytes]);
    // Otherwise the compiler removes the allocation.
    *static_cast<char volatile*>(block.get()) = 1;
    return block;
}

TEST(KxMemory, AFreedPictureIsReturnedToTheSystem)
{
    KxMemory::KeepNoPictures();
    // After a large block was freed, the allocator would otherwise keep smaller ones in reserve.
    Make(4 * PictureBytes).reset();
    const size_t before = mallinfo2().hblkhd;
    auto picture = Make(PictureBytes);
    EXPECT_GE(mallinfo2().hblkhd, before + PictureBytes);
    picture.reset();
    EXPECT_EQ(mallinfo2().hblkhd, before);
}

} // namespace
#endif
