#include <KxModel/KxAnalysisPictures.h>

#include <KxMedia/Read/KxVideoScanner.h>
#include <KxModel/KxVideoSampling.h>

KxAnalysisPictures::~KxAnalysisPictures() = default;

KxDecodedPictures::KxDecodedPictures(KxVideoScanner& scanner)
    : m_scanner(scanner)
    , m_wholeSize(KxVideoSampling::WholeSize(*scanner.Facts().video))
{
}

std::optional<qint64> KxDecodedPictures::Next()
{
    return m_scanner.Next(m_picture) == KxReadStatus::Delivered ? std::optional(m_picture.Index()) : std::nullopt;
}

QImage KxDecodedPictures::Shot()
{
    return m_overview.Scale(m_picture, KxVideoSampling::ShotSize(), QImage::Format_BGR888);
}

QImage KxDecodedPictures::Whole()
{
    return m_coarse.Scale(m_picture, m_wholeSize, QImage::Format_BGR888);
}
