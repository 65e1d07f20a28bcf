#pragma once

#include <KxCore/KxRational.h>

#include <KxCore/KxOutputFile.h>
#include <KxCore/KxResult.h>
#include <KxMedia/Picture/KxVideoFrame.h>
#include <KxMedia/Read/KxAudioReader.h>
#include <KxMedia/Write/KxOutputFormat.h>

#include <memory>

class KxSoundPackets;
class KxVideoPart;
struct AVPacket;

/// Writes an MP4 file with H.264, HEVC or AV1 video and optional sound. The file is written under a temporary name
/// beside its target and renamed in Finish(); a writer that is destroyed before that leaves no file. One thread at a
/// time. Error messages name the target and the reason; a writer that has failed can only be destroyed.
///
/// Equal settings, pictures and sound give equal bytes in each run and on each machine with the same libraries: no
/// creation time is written, and the encoders do not depend on the number of cores. Exceptions: libx264 rounds in
/// another way on processors without SSE4.2; and for the peak limit, it looks at the progress of the slices that other
/// threads encode, so that on real footage two runs may quantise some rows differently; mean SSIM between two runs is
/// 0.997 or more.
///
/// Where libx264, libx265 or libsvtav1 encode at a quality, each ten seconds are encoded by themselves: a part of a
/// video that begins with such a segment has the same packets as the whole.
class KXMEDIA_API KxMp4Writer
{
public:
    using Existing = KxOutputFile::Existing;

    struct Settings {
        QString path;
        Existing existing = Existing::AddNumber;
        QSize size; ///< even
        KxRational frameRate;
        qint64 videoBitRate = 2000000; ///< bits per second; unused if the format has a quality
        /// Speed against quality at the same bit rate: a preset of libx264, "veryfast" to "veryslow".
        QString videoPreset = QStringLiteral("medium");
        bool hasAudio = false;
        KxAudioReader::Format audioFormat;
        qint64 audioBitRate = 192000; ///< bits per second
        KxOutputFormat format;
        /// Sound that is copied: its packets come instead of blocks. Null: none. Borrowed until the first picture.
        const KxSoundPackets* copiedSound = nullptr;
        /// Pictures that are copied: packets come instead of pictures. Null: none. Borrowed until the first packet.
        const KxVideoPart* copiedVideo = nullptr;
        QString comment; ///< stored in the file; may be empty
    };

    /// How many pictures at a time are encoded by themselves at a quality; at least 1.
    static qint64 SegmentFrames(const KxRational& frameRate);

    /// Checks the folder and creates the temporary file. The header is written with the first picture, which provides
    /// the colour tags.
    static KxResult<std::unique_ptr<KxMp4Writer>> Open(const Settings& settings);
    ~KxMp4Writer();

    /// `picture` is a 4:2:0 picture of the settings' size with 8 or 10 bits (see KxFrameCutter), shown at frame `index`
    /// of the output's grid; indices ascend by one from 0.
    KxError AddPicture(const KxVideoFrame& picture, qint64 index);
    /// The next packet of copied pictures, with times in frames; it is blank afterwards.
    KxError AddVideoPacket(AVPacket& packet);
    /// Blocks are contiguous; the first one may start later than 0. To keep memory constant, add sound in step with the
    /// pictures.
    KxError AddAudio(const KxAudioBlock& block);
    /// The next packet of copied sound; it is blank afterwards.
    KxError AddSoundPacket(AVPacket& packet);
    /// Complete after Finish(). Without a name if the pictures were copied.
    KxUsedEncoder UsedEncoder() const;
    /// Flushes the encoders, moves the index to the front and renames the file. Returns its final path.
    KxResult<QString> Finish();

private:
    class Impl;
    explicit KxMp4Writer(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> m_impl;
};
