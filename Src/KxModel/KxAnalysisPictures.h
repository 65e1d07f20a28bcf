#pragma once

#include <KxCore/KxExport.h>
#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Picture/KxVideoFrame.h>

#include <QImage>
#include <QSize>

#include <optional>

class KxVideoScanner;
struct KxVideoFacts;

/// The pictures of a video in the sizes that the analysis takes (KxSubjectSampling), in display order. One thread at a
/// time.
class KXMODEL_API KxAnalysisPictures
{
public:
    KxAnalysisPictures() = default;
    virtual ~KxAnalysisPictures();
    KxAnalysisPictures(const KxAnalysisPictures&) = delete;
    KxAnalysisPictures& operator=(const KxAnalysisPictures&) = delete;

    /// Goes to the next picture and returns its frame; nothing at the end.
    virtual std::optional<qint64> Next() = 0;
    /// The picture for the shot boundaries; null if it cannot be converted.
    virtual QImage Shot() = 0;
    /// The picture for the signals; null if it cannot be converted.
    virtual QImage Whole() = 0;
};

/// Pictures decoded from the video, shrunk when they are asked for.
class KXMODEL_API KxDecodedPictures final : public KxAnalysisPictures
{
public:
    /// `scanner` is borrowed.
    explicit KxDecodedPictures(KxVideoScanner& scanner);

    std::optional<qint64> Next() override;
    QImage Shot() override;
    QImage Whole() override;

private:
    KxVideoScanner& m_scanner;
    const QSize m_wholeSize;
    KxVideoFrame m_picture;
    KxPictureScaler m_overview{KxPictureScaler::Detail::Overview};
    KxPictureScaler m_coarse{KxPictureScaler::Detail::Coarse};
};
