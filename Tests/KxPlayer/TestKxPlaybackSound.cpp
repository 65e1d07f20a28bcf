#include <KxPlayer/KxPlayback.h>

#include <Tests/KxPlayer/PlayerClip.h>
#include <Tests/Support/MadeVideo.h>

#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <memory>
#include <vector>

namespace
{

/// The first second of sound that a device was given.
class FirstSecond
{
public:
    KxSoundDevice::Factory Device()
    {
        return [this] { return std::make_unique<Recorder>(*this); };
    }
    bool IsComplete() const { return m_isComplete; }
    /// The loudest sample from a time on, for a tenth of a second. Once it is complete.
    float LoudestFrom(double seconds) const
    {
        const auto at = [this](double time) {
            return m_samples.begin() + std::lround(time * KxSoundDevice::SampleRateHz) * KxSoundDevice::Channels;
        };
        return *std::max_element(at(seconds), at(seconds + 0.1));
    }

private:
    class Recorder final : public KxSoundDevice
    {
    public:
        explicit Recorder(FirstSecond& owner)
            : m_owner(owner)
        {
        }
        bool Start() override { return true; }
        void Stop() override {}
        int FreeFrames() const override { return SampleRateHz - static_cast<int>(m_owner.m_samples.size()) / Channels; }
        int WaitingFrames() const override { return 0; }
        int Write(const float* samples, int frames) override
        {
            m_owner.m_samples.insert(m_owner.m_samples.end(), samples, samples + frames * Channels);
            m_owner.m_isComplete = FreeFrames() == 0;
            return frames;
        }

    private:
        FirstSecond& m_owner;
    };

    std::vector<float> m_samples;
    std::atomic_bool m_isComplete{false};
};

} // namespace

TEST(KxPlaybackSound, SoundThatBeginsAfterThePicturesIsHeardAtItsTime)
{
    const QTemporaryDir folder;
    MadeVideo::Recipe recipe;
    recipe.frames = PlayerClip::Frames;
    recipe.inputs =
        QStringList{QStringLiteral("-itsoffset"), QStringLiteral("0.5"),
                    QStringLiteral("-f"),         QStringLiteral("lavfi"),
                    QStringLiteral("-i"),         QStringLiteral("sine=frequency=440:sample_rate=48000:duration=1.5")};
    const QString path = folder.filePath(QStringLiteral("late.mov"));
    ASSERT_TRUE(MadeVideo::Make(path, recipe));
    FirstSecond sound;
    KxPlayback withSound({[] { return qint64{0}; }, sound.Device()});
    withSound.SetArea(QSize(160, 96));
    withSound.Open(PlayerClip::Source(path), KxPlayback::After::Pause, KxPlayback::Position::Start);
    withSound.Play();
    ASSERT_TRUE(QTest::qWaitFor([&] { return sound.IsComplete(); }, 20000));
    EXPECT_LT(sound.LoudestFrom(0.3), 0.01F);
    EXPECT_GT(sound.LoudestFrom(0.6), 0.05F);
}
