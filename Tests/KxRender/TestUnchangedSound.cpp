#include <Tests/KxRender/RenderFixture.h>
#include <Tests/Support/MadeVideo.h>

#include <QFile>

namespace
{

using Sound = KxOutputFormat::Sound;

QStringList Words(const char* line)
{
    return QString::fromLatin1(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// Sound whose bits are copied where nothing about it changes.
class UnchangedSoundTest : public RenderFixture
{
protected:
    /// Makes clip.mp4: three seconds with short beeps, and then clip.SUFFIX of it with these codecs.
    KxRenderSource Make(const char* inputOptions, const char* soundOptions, const QString& suffix, const char* codecs)
    {
        MakeClip(75, QStringLiteral("25"),
                 Words(inputOptions) +
                     QStringList{QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                                 QStringLiteral("aevalsrc='0.8*sin(2*PI*880*t)*lt(mod(t+0.3,0.5),0.05)':s=44100:d=3")},
                 Words(soundOptions));
        KxRenderSource source;
        source.path = Path(QStringLiteral("clip.") + suffix);
        if (suffix != QLatin1String("mp4")) {
            EXPECT_TRUE(MadeVideo::RunFfmpeg(Words("-loglevel error -y -i") +
                                             QStringList(Path(QStringLiteral("clip.mp4"))) + Words(codecs) +
                                             QStringList(source.path)));
        }
        return source;
    }
    QString Render(const KxRenderSource& source, Sound sound, const char* name)
    {
        KxRenderSettings settings = SettingsFor(QSize(90, 160));
        settings.outputPath = Path(QLatin1String(name));
        settings.existing = KxOutputFile::Existing::Replace;
        settings.format.sound = sound;
        const KxRenderResult result = KxRenderer::Run(source, settings, {}, KxCancelToken());
        EXPECT_EQ(result.outcome, KxOutcome::Done) << result.message.toStdString();
        EXPECT_EQ(result.warning, QString());
        return result.outputPath;
    }
    /// The packets of the sound with nothing around them.
    QByteArray Packets(const QString& path)
    {
        const QString packets = Path(QStringLiteral("clip.packets"));
        EXPECT_TRUE(MadeVideo::RunFfmpeg(Words("-loglevel error -y -i") + QStringList(path) +
                                         Words("-map 0:a -c copy -f adts") + QStringList(packets)));
        QFile file(packets);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void ExpectCopiedInStep(const KxRenderSource& source)
    {
        const QString copied = Render(source, Sound::Automatic, "copied.mp4");
        const QString encoded = Render(source, Sound::Encoded, "encoded.mp4");
        const QByteArray packets = Packets(copied);
        EXPECT_GT(packets.size(), 1000);
        EXPECT_TRUE(Packets(source.path).contains(packets));
        EXPECT_FALSE(Packets(source.path).contains(Packets(encoded)));
        const std::vector<double> copiedBeeps = SoundTimes(copied);
        const std::vector<double> encodedBeeps = SoundTimes(encoded);
        ASSERT_GT(encodedBeeps.size(), 3U);
        ASSERT_EQ(copiedBeeps.size(), encodedBeeps.size());
        for (std::size_t i = 0; i < copiedBeeps.size(); ++i) {
            EXPECT_NEAR(copiedBeeps[i], encodedBeeps[i], 0.001) << i;
        }
    }
    void ExpectEncoded(const KxRenderSource& source)
    {
        EXPECT_EQ(Packets(Render(source, Sound::Automatic, "automatic.mp4")),
                  Packets(Render(source, Sound::Encoded, "encoded.mp4")));
    }
};

} // namespace

TEST_F(UnchangedSoundTest, OfAnMp4FileIsCopiedInStep)
{
    ExpectCopiedInStep(Make("", "-c:a aac", QStringLiteral("mp4"), ""));
}

TEST_F(UnchangedSoundTest, ThatStartsLateIsCopiedInStep)
{
    ExpectCopiedInStep(Make("-itsoffset 0.37", "-c:a aac", QStringLiteral("mp4"), ""));
}

TEST_F(UnchangedSoundTest, ThatStartsBeforeThePicturesIsCopiedInStep)
{
    // The first pictures are cut off, the sound is not.
    ExpectCopiedInStep(Make("", "-c:a aac -g 10", QStringLiteral("mkv"), "-ss 0.7 -c copy"));
}

TEST_F(UnchangedSoundTest, OfATransportStreamIsCopiedInStep)
{
    ExpectCopiedInStep(Make("", "-c:a aac", QStringLiteral("ts"), "-c copy"));
}

TEST_F(UnchangedSoundTest, WithTimesInMillisecondsIsCopiedInStep)
{
    ExpectCopiedInStep(Make("", "-c:a aac", QStringLiteral("mkv"), "-c copy"));
}

TEST_F(UnchangedSoundTest, BesidePicturesOfVariableRateIsCopiedInStep)
{
    ExpectCopiedInStep(
        Make("", "-c:a aac -vf select='not(between(n,20,33))' -fps_mode vfr", QStringLiteral("mp4"), ""));
}

TEST_F(UnchangedSoundTest, IsEncodedWherePlayersDoNotTakeIt)
{
    ExpectEncoded(Make("", "-c:a ac3", QStringLiteral("ts"), "-c copy"));
    ExpectEncoded(Make("", "-c:a libmp3lame", QStringLiteral("mp4"), ""));
    ExpectEncoded(Make("", "-c:a aac -ac 6", QStringLiteral("mp4"), ""));
    ExpectEncoded(Make("", "-c:a aac", QStringLiteral("mkv"), "-c:v copy -c:a flac"));
}
