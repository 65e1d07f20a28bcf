#pragma once

#include <KxCore/KxFrameRange.h>
#include <KxCore/KxResult.h>

#include <QStringList>

/// The files of --join: all parts of one video, as --frames wrote them.
struct ReframeParts {
    QStringList paths;        ///< in the order of their frames
    bool arePictures = false; ///< those of the analysis, otherwise videos

    /// What the parts have to be made of.
    struct Whole {
        QString input;
        qint64 frameCount = 0;
        QString madeOfPictures; ///< MadeBy() of a part with the pictures of the analysis, without its frames
        QString madeOfVideo;    ///< the same of a part of the video
    };
    /// The error message names the part and the reason.
    static KxResult<ReframeParts> Check(const QStringList& paths, const Whole& whole);

    /// The text that is stored in a part: `whole` with the part's frames in it.
    static QString MadeBy(const QString& whole, const KxFrameRange& frames);
};
