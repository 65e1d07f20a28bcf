#pragma once

#include <KxCore/KxResult.h>

#include <KxSubject/KxSubjectChoices.h>

#include <QRectF>
#include <QSize>
#include <QString>

#include <optional>

/// What one `--follow TIME@X,Y[,W,H]` points at.
struct FollowOption {
    QString text;      ///< as it was given
    double time = 0.0; ///< in seconds, or a frame
    bool isFrame = false;
    QRectF place;          ///< without a size: a point
    bool isPixels = false; ///< of the place; otherwise fractions of the picture

    static std::optional<FollowOption> Parse(const QString& text);

    struct Video {
        QSize sizePx;
        double frameRate = 25.0;
        qint64 frameCount = 0;
    };
    /// On failure, a clause to append to a message.
    KxResult<KxSubjectSeed> SeedIn(const Video& video) const;
};
