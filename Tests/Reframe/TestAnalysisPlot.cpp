#include <Apps/Reframe/AnalysisPlot.h>

#include <QByteArray>
#include <QImage>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace
{

constexpr int Frames = 40;
constexpr std::size_t Bins = KxSignalProfile::Bins;

CropTrack Track()
{
    CropTrack track;
    track.sourceSize = QSize(320, 180);
    track.frameRate = {25, 1};
    for (int frame = 0; frame < Frames; ++frame) {
        track.crops.append(IKxAutoReframeResult(frame, QRectF(0.25, 0.0, 0.5, 1.0)));
    }
    return track;
}

/// One shot with one sample that applies to all of it.
KxSubjectFindings Findings(const KxSignalProfile& evidence)
{
    KxSubjectFindings findings;
    findings.shots = {{0, Frames, KxSignal::Faces}};
    findings.samples.resize(1);
    findings.samples[0].evidence = KxPackedProfile(evidence);
    return findings;
}

/// The heat map, with the start of the axis in row 0.
QImage Heat(const KxSubjectFindings& findings)
{
    const CropTrack track = Track();
    const QString plot = AnalysisPlot(track, findings).Path();
    const QRegularExpressionMatch match =
        QRegularExpression(QStringLiteral("data:image/png;base64,([^\"]+)\"")).match(plot);
    const QImage heat = QImage::fromData(QByteArray::fromBase64(match.captured(1).toLatin1()));
    EXPECT_EQ(heat.size(), QSize(Frames, static_cast<int>(Bins)));
    return findings.freeAxis == KxAxis::Across ? heat.mirrored(false, true) : heat;
}

} // namespace

TEST(AnalysisPlot, TheHeatMapShowsTheSquareRootOfTheEvidenceInItsColours)
{
    // Even groups of bins, so that packing changes nothing at their centres.
    KxSignalProfile evidence;
    const std::array<float, 4> shares{0.0F, 0.0625F, 0.25F, 1.0F};
    for (std::size_t bin = 0; bin < Bins; ++bin) {
        evidence.share[bin] = 0.02F * shares[bin * shares.size() / Bins];
    }
    for (const KxAxis axis : {KxAxis::Across, KxAxis::UpDown}) {
        KxSubjectFindings findings = Findings(evidence);
        findings.freeAxis = axis;
        const QImage heat = Heat(findings);
        const std::array<QRgb, 4> colours{qRgb(20, 21, 26), qRgb(66, 30, 96), qRgb(150, 44, 96), qRgb(252, 226, 170)};
        for (std::size_t i = 0; i < colours.size(); ++i) {
            const QColor colour = heat.pixelColor(Frames / 2, static_cast<int>(12 + i * Bins / colours.size()));
            EXPECT_NEAR(colour.red(), qRed(colours[i]), 2) << i;
            EXPECT_NEAR(colour.green(), qGreen(colours[i]), 2) << i;
            EXPECT_NEAR(colour.blue(), qBlue(colours[i]), 2) << i;
        }
    }
}

TEST(AnalysisPlot, WithoutEvidenceTheHeatMapIsDark)
{
    const QImage heat = Heat(Findings(KxSignalProfile()));
    for (int row = 0; row < heat.height(); ++row) {
        EXPECT_EQ(heat.pixel(0, row), qRgb(20, 21, 26)) << row;
    }
}
