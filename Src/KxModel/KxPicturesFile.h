#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxExport.h>
#include <KxCore/KxFrameRange.h>
#include <KxCore/KxOutputFile.h>
#include <KxCore/KxResult.h>

#include <QByteArray>
#include <QString>

#include <functional>

/// A file with the small pictures of a part of a video, losslessly compressed. Several computers make the files of one
/// video, each of its part; an analysis of all these pictures finds exactly what an analysis of the video finds. What
/// depends on earlier pictures, such as tracks and cuts, is left to that analysis, because its state at the first frame
/// of a part depends on the whole video before.
///
/// Each file begins with the pictures of the half second before its part. They show that decoding, which begins at a
/// key frame, yields the same pictures as in the previous part.
namespace KxPicturesFile
{
struct Facts {
    QString madeBy;      ///< whatever the program stored
    KxFrameRange frames; ///< of the part
    qint64 frameCount = 0;
};

/// Nothing if `path` is no such file.
KXMODEL_API std::optional<Facts> Read(const QString& path);

/// How a file is written.
struct Target {
    QString path;
    KxOutputFile::Existing existing = KxOutputFile::Existing::AddNumber;
    QString madeBy;
};

/// The end of Write().
struct Written {
    KxOutcome outcome = KxOutcome::Failed;
    QString message; ///< the error message of a failure
    QString path;    ///< of the file
    QString warning; ///< about a source that is damaged; usually empty
};

/// Decodes the frames `frames` of the video `videoPath` and writes their pictures. `onProgress` is called with 0 to 99.
/// Blocks.
KXMODEL_API Written Write(const QString& videoPath, const KxFrameRange& frames, const Target& target,
                          const std::function<void(int percent)>& onProgress, const KxCancelToken& cancel);
} // namespace KxPicturesFile
