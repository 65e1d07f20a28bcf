#pragma once

#include <KxMedia/Picture/KxFittedCutter.h>
#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Read/KxVideoReader.h>
#include <KxPlayer/KxPlaySource.h>
#include <KxPlayer/KxPlayerPicture.h>

#include <functional>

/// Makes any frame of a source ready to be painted: decodes it, cuts it to that frame's crop, and scales it to its size
/// inside the player. One thread at a time.
class KXPLAYER_API KxPictureMaker
{
public:
    static KxResult<std::unique_ptr<KxPictureMaker>> Open(std::shared_ptr<const KxPlaySource> source,
                                                          const KxCancelToken& cancel);
    ~KxPictureMaker();

    const std::shared_ptr<const KxPlaySource>& Source() const { return m_source; }

    /// See KxVideoReader::GiveUpWhen().
    void GiveUpWhen(std::function<bool()> isUnwanted) { m_reader->GiveUpWhen(std::move(isUnwanted)); }
    /// `area` is the player's size in device pixels. After the last picture that can be decoded, that one is repeated.
    KxReadStatus Make(int frame, const QSize& area, KxPlayerPicture& picture);

private:
    KxPictureMaker(std::shared_ptr<const KxPlaySource> source, std::unique_ptr<KxVideoReader> reader);
    QImage Whole(const KxVideoFrame& decoded, const QSize& size);
    QImage Fitted(const KxVideoFrame& decoded, const QRectF& crop, const QSize& size);
    QImage Cut(const KxVideoFrame& decoded, const QRectF& crop, const QSize& size);

    std::shared_ptr<const KxPlaySource> m_source;
    std::unique_ptr<KxVideoReader> m_reader;
    std::shared_ptr<const KxMediaClock> m_fileClock;
    KxPictureScaler m_scaler;
    /// For the last size.
    std::unique_ptr<KxFittedCutter> m_fittedCutter;
};
