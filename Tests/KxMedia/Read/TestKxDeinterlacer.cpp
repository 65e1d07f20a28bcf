#include <KxMedia/Read/KxDeinterlacer.h>
#include <Tests/KxMedia/Picture/MadePicture.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

using testing::ElementsAre;

namespace
{

enum class Field { Top, Bottom };

const QSize Size(64, 48);

// A white bar that moves by four pixels from field to field, so by eight from picture to picture.
int Bar(int moment, int x)
{
    return x >= 8 + 4 * moment && x < 16 + 4 * moment ? 235 : 16;
}

KxVideoDecoder::Picture Picture(qint64 ticks, const MadePicture::Value& value, const QSize& size = Size)
{
    return {MadePicture::Make(AV_PIX_FMT_YUV420P, size, value), ticks};
}

KxVideoDecoder::Picture Interlaced(int number, Field first, qint64 ticks, const QSize& size = Size)
{
    KxVideoDecoder::Picture picture = Picture(
        ticks,
        [=](int plane, int x, int y) {
            const bool isFirstField = (y % 2 == 0) == (first == Field::Top);
            return plane == 0 ? Bar(2 * number + (isFirstField ? 0 : 1), x) : 128;
        },
        size);
    picture.frame->interlaced_frame = 1;
    picture.frame->top_field_first = first == Field::Top ? 1 : 0;
    return picture;
}

KxVideoDecoder::Picture InOnePiece(int number, qint64 ticks, const QSize& size = Size)
{
    return Picture(
        ticks, [=](int plane, int x, int) { return plane == 0 ? Bar(2 * number, x) : 128; }, size);
}

// How far lines stand out from both of their neighbours: 0 without a comb.
int Comb(const AVFrame& picture)
{
    int worst = 0;
    for (int y = 1; y + 1 < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const int here = MadePicture::Sample(picture, 0, x, y);
            const int above = here - MadePicture::Sample(picture, 0, x, y - 1);
            const int below = here - MadePicture::Sample(picture, 0, x, y + 1);
            worst = std::max(worst, above * below > 0 ? std::min(std::abs(above), std::abs(below)) : 0);
        }
    }
    return worst;
}

bool ShowsTheBarOf(const AVFrame& picture, int moment, int line)
{
    for (int x = 0; x < picture.width; ++x) {
        if (std::abs(MadePicture::Sample(picture, 0, x, line) - Bar(moment, x)) > 2) {
            return false;
        }
    }
    return true;
}

class TestKxDeinterlacer : public testing::Test
{
protected:
    void Add(KxVideoDecoder::Picture picture)
    {
        m_deinterlacer.Add(std::move(picture));
        TakeAll();
    }

    void End()
    {
        m_deinterlacer.End();
        TakeAll();
    }

    std::vector<qint64> Times() const
    {
        std::vector<qint64> times;
        for (const KxVideoDecoder::Picture& picture : m_taken) {
            times.push_back(picture.ticks);
        }
        return times;
    }

    KxDeinterlacer m_deinterlacer;
    std::vector<KxVideoDecoder::Picture> m_taken;

private:
    void TakeAll()
    {
        while (std::optional<KxVideoDecoder::Picture> picture = m_deinterlacer.Take()) {
            m_taken.push_back(std::move(*picture));
        }
    }
};

} // namespace

TEST_F(TestKxDeinterlacer, InterlacedPicturesBecomeProgressiveAtTheTimeOfTheirFirstField)
{
    for (const Field first : {Field::Top, Field::Bottom}) {
        m_taken.clear();
        for (int number = 0; number < 4; ++number) {
            EXPECT_GT(Comb(*Interlaced(number, first, 0).frame), 200);
            Add(Interlaced(number, first, number));
        }
        End();
        ASSERT_EQ(m_taken.size(), 4U);
        for (int number = 0; number < 4; ++number) {
            const AVFrame& picture = *m_taken[static_cast<size_t>(number)].frame;
            EXPECT_LE(Comb(picture), 8) << number;
            EXPECT_EQ(picture.interlaced_frame, 0);
            for (int line = 0; line < Size.height(); ++line) {
                EXPECT_TRUE(ShowsTheBarOf(picture, 2 * number, line)) << number << ", line " << line;
            }
        }
    }
}

TEST_F(TestKxDeinterlacer, EachPictureKeepsItsTimeAndIsDelayedByOne)
{
    Add(Interlaced(0, Field::Top, -7));
    EXPECT_THAT(Times(), ElementsAre());
    Add(Interlaced(1, Field::Top, 3));
    EXPECT_THAT(Times(), ElementsAre(-7));
    Add(Interlaced(2, Field::Top, qint64{1} << 40));
    EXPECT_THAT(Times(), ElementsAre(-7, 3));
    End();
    EXPECT_THAT(Times(), ElementsAre(-7, 3, qint64{1} << 40));
    EXPECT_FALSE(m_deinterlacer.End());
}

TEST_F(TestKxDeinterlacer, ProgressivePicturesAreNeitherChangedNorDelayed)
{
    KxVideoDecoder::Picture picture = InOnePiece(0, 5);
    const std::uint8_t* const samples = picture.frame->data[0];
    Add(std::move(picture));
    ASSERT_EQ(m_taken.size(), 1U);
    EXPECT_EQ(m_taken[0].frame->data[0], samples);
    EXPECT_EQ(m_taken[0].ticks, 5);
    EXPECT_FALSE(m_deinterlacer.End());
}

TEST_F(TestKxDeinterlacer, ProgressivePicturesAmongInterlacedOnesAreNotChanged)
{
    Add(Interlaced(0, Field::Top, 0));
    KxVideoDecoder::Picture picture = InOnePiece(1, 1);
    const std::uint8_t* const samples = picture.frame->data[0];
    Add(std::move(picture));
    Add(Interlaced(2, Field::Top, 2));
    End();
    ASSERT_THAT(Times(), ElementsAre(0, 1, 2));
    EXPECT_EQ(m_taken[1].frame->data[0], samples);
    EXPECT_LE(Comb(*m_taken[2].frame), 8);
}

TEST_F(TestKxDeinterlacer, SizeMayChangeFromPictureToPicture)
{
    const QSize larger(96, 64);
    Add(Interlaced(0, Field::Top, 0));
    Add(Interlaced(1, Field::Top, 1, larger));
    EXPECT_THAT(Times(), ElementsAre(0));
    Add(InOnePiece(2, 2));
    End();
    ASSERT_THAT(Times(), ElementsAre(0, 1, 2));
    EXPECT_EQ(m_taken[0].frame->width, Size.width());
    EXPECT_EQ(m_taken[1].frame->width, larger.width());
    EXPECT_EQ(m_taken[2].frame->width, Size.width());
}

TEST_F(TestKxDeinterlacer, ResetDiscardsThePicturesOfTheOldPosition)
{
    Add(Interlaced(0, Field::Top, 0));
    m_deinterlacer.Reset();
    EXPECT_FALSE(m_deinterlacer.End());
    Add(Interlaced(3, Field::Top, 3));
    Add(Interlaced(4, Field::Top, 4));
    End();
    ASSERT_THAT(Times(), ElementsAre(3, 4));
    EXPECT_TRUE(ShowsTheBarOf(*m_taken[0].frame, 6, 21));
}

TEST_F(TestKxDeinterlacer, PicturesThatAreTooSmallStayInterlaced)
{
    const QSize line(64, 2);
    Add(Interlaced(0, Field::Top, 0, line));
    Add(Interlaced(1, Field::Top, 1, line));
    ASSERT_THAT(Times(), ElementsAre(0, 1));
    EXPECT_TRUE(ShowsTheBarOf(*m_taken[0].frame, 1, 1));
}
