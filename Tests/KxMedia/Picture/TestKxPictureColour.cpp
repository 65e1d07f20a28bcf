#include <KxMedia/Picture/KxPictureColour.h>

#include <gtest/gtest.h>

#include <cstring>

namespace
{

template<typename Field>
void Set(Field& field, int number)
{
    std::memcpy(&field, &number, sizeof(field));
}

} // namespace

TEST(KxPictureColour, NumbersWithoutANameBecomeUnspecified)
{
    for (const int number : {-1, 201, 0x7FFFFFFF}) {
        const KxAvFrame picture(av_frame_alloc());
        Set(picture->color_primaries, number);
        Set(picture->color_trc, number);
        Set(picture->colorspace, number);
        Set(picture->color_range, number);
        Set(picture->chroma_location, number);
        KxPictureColour::RemoveUnknown(*picture);
        EXPECT_EQ(picture->color_primaries, AVCOL_PRI_UNSPECIFIED) << number;
        EXPECT_EQ(picture->color_trc, AVCOL_TRC_UNSPECIFIED) << number;
        EXPECT_EQ(picture->colorspace, AVCOL_SPC_UNSPECIFIED) << number;
        EXPECT_EQ(picture->color_range, AVCOL_RANGE_UNSPECIFIED) << number;
        EXPECT_EQ(picture->chroma_location, AVCHROMA_LOC_UNSPECIFIED) << number;
    }
}

TEST(KxPictureColour, NumbersWithANameStay)
{
    const KxAvFrame picture(av_frame_alloc());
    picture->color_primaries = AVCOL_PRI_EBU3213;
    picture->color_trc = AVCOL_TRC_ARIB_STD_B67;
    picture->colorspace = AVCOL_SPC_ICTCP;
    picture->color_range = AVCOL_RANGE_JPEG;
    picture->chroma_location = AVCHROMA_LOC_BOTTOM;
    KxPictureColour::RemoveUnknown(*picture);
    EXPECT_EQ(picture->color_primaries, AVCOL_PRI_EBU3213);
    EXPECT_EQ(picture->color_trc, AVCOL_TRC_ARIB_STD_B67);
    EXPECT_EQ(picture->colorspace, AVCOL_SPC_ICTCP);
    EXPECT_EQ(picture->color_range, AVCOL_RANGE_JPEG);
    EXPECT_EQ(picture->chroma_location, AVCHROMA_LOC_BOTTOM);
}
