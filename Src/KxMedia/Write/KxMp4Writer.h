#pragma once

#include <KxCore/KxRational.h>

#include <KxCore/KxOutputFile.h>
#include <KxCore/KxResult.h>
#include <KxMedia/Picture/KxVideoFrame.h>
#include <KxMedia/Read/KxAudioReader.h>

#include <memory>

/// Writes an MP4 file with H.264 video and, where wanted, AAC sound. The file grows under a temporary name beside its
/// target and gets its own name in Finish(); a writer that is destroyed before that leaves nothing behind. One thread
/// at a time. Every error message names the target and the reason; a writer that has failed once is only good
/// for being destroyed.
///
/// Equal settings, pictures and sound give equal bytes in each run and on each machine with the same libraries: no time
/// of creation is written, and the encoders do not depend on the number of cores. Only where a scene needs so many bits
/// that it fills the buffer of the peak limit may libx264 code rows of it a little differently from run to run.
class KXMEDIA_API KxMp4Writer
{
public:
    using Existing = KxOutputFile::Existing;

    struct Settings {
        QString path;
        Existing existing = Existing::AddNumber;
        QSize size; ///< even
        KxRational frameRate;
        qint64 videoBitRate = 2000000; ///< bits a second
        /// How much work the video encoder puts into the same bit rate, by libx264's own names ("veryfast" to
        /// "veryslow").
        QString videoPreset = QStringLiteral("medium");
        bool hasAudio = false;
        KxAudioReader::Format audioFormat;
        qint64 audioBitRate = 192000; ///< bits a second
    };

    /// Colour tags are taken from the first picture, so the file is made when that arrives; Open() checks the folder
    /// and creates the temporary file.
    static KxResult<std::unique_ptr<KxMp4Writer>> Open(const Settings& settings);
    ~KxMp4Writer();

    /// `picture` is an 8-bit 4:2:0 picture of the settings' size (see KxFrameCutter), shown at frame `index` of the
    /// output's grid; indices ascend by one from 0.
    KxError AddPicture(const KxVideoFrame& picture, qint64 index);
    /// Blocks follow each other without gaps; the first one may start later than 0. For constant memory the sound keeps
    /// up with the pictures.
    KxError AddAudio(const KxAudioBlock& block);
    /// Writes what is left, moves the index to the front and gives the file its name, which is returned.
    KxResult<QString> Finish();

private:
    class Impl;
    explicit KxMp4Writer(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> m_impl;
};
