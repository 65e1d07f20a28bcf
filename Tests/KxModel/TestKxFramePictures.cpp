#include <KxModel/KxFramePictures.h>

#include <KxSubject/KxSubjectRecord.h>

#include <gtest/gtest.h>

namespace
{

using Found = QList<std::optional<qint64>>;

/// Something else in every shot, and a little different from frame to frame.
std::uint64_t PrintAt(std::int64_t frame)
{
    constexpr std::int64_t framesOfShot = 50;
    std::uint64_t shot = (static_cast<std::uint64_t>(frame / framesOfShot) + 1) * 0x9E3779B97F4A7C15U;
    shot = (shot ^ shot >> 29U) * 0xBF58476D1CE4E5B9U;
    return shot ^ ((std::uint64_t{1} << (frame % framesOfShot + 8)) - 1) << 3U;
}

KxSubjectRecord Video(std::int64_t first, std::int64_t frames)
{
    KxSubjectRecord record;
    record.source = {640, 360, 25.0, frames};
    for (std::int64_t frame = 0; frame < frames; ++frame) {
        const std::uint64_t bits = PrintAt(first + frame);
        record.prints.push_back({static_cast<std::int32_t>(frame), static_cast<std::uint32_t>(bits >> 32U),
                                 static_cast<std::uint32_t>(bits)});
        if (frame > 0 && (first + frame) % 50 == 0) {
            record.boundaries.push_back({frame, frame, frame});
        }
    }
    return record;
}

QList<KxDescribedFrame> Described(const QList<qint64>& frames)
{
    const QList<QByteArray> texts = KxFramePictures::Describe(Video(0, 500), frames);
    QList<KxDescribedFrame> described;
    for (int i = 0; i < frames.size(); ++i) {
        described += KxDescribedFrame{frames.at(i), texts.at(i)};
    }
    return described;
}

} // namespace

TEST(KxFramePictures, InTheSameVideoFramesStay)
{
    EXPECT_EQ(KxFramePictures::Find(Video(0, 500), Described({0, 120, 499})), (Found{0, 120, 499}));
}

TEST(KxFramePictures, AfterATrimAtTheStartFramesMoveAndThoseThatWereCutAwayAreMissing)
{
    EXPECT_EQ(KxFramePictures::Find(Video(63, 437), Described({10, 62, 63, 120, 499})),
              (Found{std::nullopt, std::nullopt, 0, 57, 436}));
}

TEST(KxFramePictures, AfterATrimAtTheEndTheLastFramesAreMissing)
{
    EXPECT_EQ(KxFramePictures::Find(Video(0, 300), Described({10, 299, 450})), (Found{10, 299, std::nullopt}));
}

TEST(KxFramePictures, WithoutPicturesAFrameStaysWhereItIs)
{
    EXPECT_EQ(KxFramePictures::Find(Video(63, 437), {{120, {}}, {500, {}}}), (Found{120, std::nullopt}));
    EXPECT_EQ(KxFramePictures::Find(Video(63, 437), {{120, "no choices"}}), Found{120});
}

TEST(KxFramePictures, ADescriptionIsShort)
{
    EXPECT_LT(Described({120}).first().pictures.size(), 600);
}
