#include <Tests/KxMedia/Read/ReadClips.h>
#include <Tests/KxMedia/Write/WrittenClips.h>
#include <Tests/Support/OpenedSound.h>

#include <gtest/gtest.h>

extern "C" {
#include <libavutil/log.h>
}

#include <atomic>

using ReadClips::Path;
using ReadClips::Words;

namespace
{

std::atomic_int probes{0};
std::atomic_int shownMessages{0};

// Parsers inside libavformat also have contexts of that class, but those are never opened.
bool IsOfCodec(void* source)
{
    const AVClass* const kind = source != nullptr ? *static_cast<const AVClass* const*>(source) : nullptr;
    return kind != nullptr && qstrcmp(kind->class_name, "AVCodecContext") == 0 &&
           avcodec_is_open(static_cast<AVCodecContext*>(source)) != 0;
}

// What a host does with its own log.
void CountMessage(void* source, int level, const char* format, va_list)
{
    if (level <= av_log_get_level() && IsOfCodec(source)) {
        ++shownMessages;
    }
    probes += qstrcmp(format, "probe of the host's log") == 0 ? 1 : 0;
}

void ReadAll(const QString& path)
{
    const std::unique_ptr<KxVideoReader> reader = ReadClips::OpenReader(path);
    ASSERT_NE(reader, nullptr);
    // libavformat probes the streams with decoders of its own.
    shownMessages = 0;
    KxVideoFrame picture;
    for (qint64 frame = 0; frame < reader->Facts().video->frameCount; ++frame) {
        reader->Read(frame, picture);
    }
    EXPECT_EQ(shownMessages, 0);
    const auto sound = OpenedSound(path, 0, {});
    shownMessages = 0;
    KxAudioBlock block;
    while (sound && (*sound)->Next(block) == KxReadStatus::Delivered) {
    }
    EXPECT_EQ(shownMessages, 0);
}

QString Clip()
{
    MadeVideo::Recipe recipe;
    recipe.frames = 50;
    recipe.inputs = Words("-f lavfi -i sine=duration=2");
    recipe.output = Words("-c:v libx264 -g 12 -bf 2 -pix_fmt yuv420p -flags +ilme+ildct -c:a aac");
    const QString path = Path(QStringLiteral("clip.mp4"));
    EXPECT_TRUE(MadeVideo::Make(path, recipe));
    return path;
}

class KxAvLogTest : public KxMp4WriterTest
{
protected:
    void SetUp() override
    {
        probes = 0;
        shownMessages = 0;
        av_log_set_level(AV_LOG_INFO);
        av_log_set_callback(&CountMessage);
    }
    void TearDown() override { av_log_set_callback(&av_log_default_callback); }

    void WriteWithSound()
    {
        KxMp4Writer::Settings settings = WrittenClips::SettingsFor(Path(QStringLiteral("written.mp4")));
        settings.hasAudio = true;
        const std::unique_ptr<KxMp4Writer> writer = Open(settings);
        ASSERT_NE(writer, nullptr);
        ASSERT_EQ(WrittenClips::AddPictures(*writer, 25), std::nullopt);
        ASSERT_EQ(writer->AddAudio(WrittenClips::Clicks(1.0, {0.5})), std::nullopt);
        ASSERT_TRUE(writer->Finish());
    }
};

} // namespace

TEST_F(KxAvLogTest, TheLibraryDoesNotChangeTheHostsLog)
{
    ReadAll(Clip());
    WriteWithSound();
    EXPECT_EQ(av_log_get_level(), AV_LOG_INFO);
    av_log(nullptr, AV_LOG_ERROR, "probe of the host's log");
    EXPECT_EQ(probes, 1);
}

TEST_F(KxAvLogTest, CodecsReportNothingAtTheHostsLevel)
{
    const QString path = Clip();
    ReadAll(path);
    shownMessages = 0;
    WriteWithSound();
    EXPECT_EQ(shownMessages, 0);

    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    QByteArray contents = file.readAll();
    const int media = contents.indexOf("mdat") + 2000;
    for (int i = media; i < media + 4000; i += 7) {
        contents[i] = static_cast<char>(i);
    }
    file.seek(0);
    file.write(contents);
    file.close();
    ReadAll(path);
}
