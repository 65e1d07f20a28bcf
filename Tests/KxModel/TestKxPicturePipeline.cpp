#include <KxModel/KxPicturePipeline.h>

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <thread>
#include <vector>

namespace
{

constexpr int Many = 1000; ///< more than the queue holds

void Produce(const KxPicturePipeline::Put& put)
{
    for (int frame = 0; frame < Many && put({frame, QImage()}); ++frame) {
    }
}

} // namespace

TEST(KxPicturePipeline, EveryPictureIsConsumedInOrderOnAnotherThread)
{
    std::vector<qint64> frames;
    const std::thread::id producer = std::this_thread::get_id();
    const KxError failure = KxPicturePipeline::Run(&Produce, [&](const KxPicturePipeline::Picture& picture) {
        frames.push_back(picture.frame);
        EXPECT_NE(std::this_thread::get_id(), producer);
    });
    EXPECT_FALSE(failure.has_value());
    ASSERT_EQ(frames.size(), static_cast<std::size_t>(Many));
    for (std::size_t i = 0; i < frames.size(); ++i) {
        EXPECT_EQ(frames[i], static_cast<qint64>(i));
    }
}

TEST(KxPicturePipeline, AnExceptionOfTheConsumerIsAFailureAndStopsTheProducer)
{
    int consumed = 0;
    const KxError failure = KxPicturePipeline::Run(
        [](const KxPicturePipeline::Put& put) {
            while (put({0, QImage()})) {
            }
        },
        [&](const KxPicturePipeline::Picture&) {
            if (++consumed == 3) {
                throw 7; // not a std::exception
            }
        });
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(*failure, QStringLiteral("an unknown error occurred"));
    EXPECT_EQ(consumed, 3);
}

TEST(KxPicturePipeline, AnExceptionOfTheProducerIsAFailureAndTheConsumerIsJoined)
{
    int consumed = 0;
    const KxError failure = KxPicturePipeline::Run(
        [](const KxPicturePipeline::Put& put) {
            put({0, QImage()});
            put({1, QImage()});
            throw std::bad_alloc();
        },
        [&](const KxPicturePipeline::Picture&) { ++consumed; });
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(*failure, QStringLiteral("memory ran out"));
    EXPECT_EQ(consumed, 2);
}

TEST(KxPicturePipeline, IfBothFailTheProducersMessageIsReported)
{
    const KxError failure = KxPicturePipeline::Run(
        [](const KxPicturePipeline::Put& put) {
            while (put({0, QImage()})) {
            }
            throw std::runtime_error("the producer");
        },
        [](const KxPicturePipeline::Picture&) { throw std::runtime_error("the consumer"); });
    EXPECT_EQ(failure.value_or(QString()), QStringLiteral("the producer"));
}

TEST(KxPicturePipeline, TheConsumerBeginsOnceOnItsThreadBeforeItsFirstPicture)
{
    std::vector<std::thread::id> begun;
    std::vector<std::thread::id> consumed;
    const KxError failure = KxPicturePipeline::Run(
        &Produce,
        [&](const KxPicturePipeline::Picture&) {
            ASSERT_EQ(begun.size(), 1U);
            consumed.push_back(std::this_thread::get_id());
        },
        [&] { begun.push_back(std::this_thread::get_id()); });
    EXPECT_FALSE(failure.has_value());
    ASSERT_EQ(consumed.size(), static_cast<std::size_t>(Many));
    EXPECT_EQ(begun.front(), consumed.front());
}

TEST(KxPicturePipeline, AnExceptionAtTheBeginningIsAFailureAndStopsTheProducer)
{
    int consumed = 0;
    const KxError failure = KxPicturePipeline::Run(
        &Produce, [&](const KxPicturePipeline::Picture&) { ++consumed; },
        [] { throw std::runtime_error("the models"); });
    EXPECT_EQ(failure.value_or(QString()), QStringLiteral("the models"));
    EXPECT_EQ(consumed, 0);
}
