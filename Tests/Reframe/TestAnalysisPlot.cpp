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

/// Two shots of 20 frames with two samples each.
KxSubjectFindings FindingsOfTwoShots()
{
    KxSubjectFindings findings;
    findings.shots = {{0, 20, KxSignal::Faces}, {20, Frames, KxSignal::Faces}};
    for (int i = 0; i < 4; ++i) {
        KxSubjectFindings::Sample sample;
        sample.frame = 10 * i;
        sample.wanted = 0.25 * (i + 1);
        findings.samples.push_back(sample);
    }
    return findings;
}

/// An attribute of the `index`-th element of a plot that begins with `start`.
QString AttributeOf(const QString& plot, const QString& start, const QString& name, int index = 0)
{
    const QString element = plot.section(start, index + 1, index + 1).section(QLatin1Char('>'), 0, 0);
    return element.section(name + QStringLiteral("=\""), 1, 1).section(QLatin1Char('"'), 0, 0);
}

} // namespace

TEST(AnalysisPlot, TheWantedCentreIsALineForEachShot)
{
    const CropTrack track = Track();
    const QString plot = AnalysisPlot(track, FindingsOfTwoShots()).Path();
    // A frame is 28 pixels wide, the picture 300 high, with its right side at the top.
    EXPECT_EQ(AttributeOf(plot, QStringLiteral("<path class=\"wanted\""), QStringLiteral("d")).toStdString(),
              "M64.0,247.0 L344.0,172.0 M624.0,97.0 L904.0,22.0 ");
}

TEST(AnalysisPlot, TheCropsCentreIsALineForEachShotUpToTheEnd)
{
    CropTrack track = Track();
    for (int frame = 20; frame < Frames; ++frame) {
        track.crops[frame].setCropRect(QRectF(0.5, 0.0, 0.5, 1.0));
    }
    const KxSubjectFindings findings = FindingsOfTwoShots();
    const QString plot = AnalysisPlot(track, findings).Path();
    const QString line = AttributeOf(plot, QStringLiteral("<path class=\"middle\""), QStringLiteral("d"));
    EXPECT_TRUE(line.startsWith(QStringLiteral("M64.0,172.0 L92.0,172.0 "))) << line.toStdString();
    EXPECT_TRUE(line.contains(QStringLiteral(" L596.0,172.0 L624.0,172.0 M624.0,97.0 L652.0,97.0 ")))
        << line.toStdString();
    EXPECT_TRUE(line.endsWith(QStringLiteral(" L1156.0,97.0 L1184.0,97.0 "))) << line.toStdString();
    const QString edge = QStringLiteral("<path class=\"edge\"");
    EXPECT_TRUE(AttributeOf(plot, edge, QStringLiteral("d"), 0).startsWith(QStringLiteral("M64.0,247.0 ")));
    EXPECT_TRUE(AttributeOf(plot, edge, QStringLiteral("d"), 1).startsWith(QStringLiteral("M64.0,97.0 ")));
}

TEST(AnalysisPlot, ShotsAreNumberedAndSeparated)
{
    const CropTrack track = Track();
    const QString plot = AnalysisPlot(track, FindingsOfTwoShots()).Path();
    EXPECT_EQ(plot.count(QStringLiteral("class=\"cut\"")), 1);
    EXPECT_EQ(AttributeOf(plot, QStringLiteral("<line class=\"cut\""), QStringLiteral("x1")), QStringLiteral("624.0"));
    EXPECT_TRUE(plot.contains(QStringLiteral("<text x=\"67.0\" y=\"15.0\" text-anchor=\"start\">1</text>")));
    EXPECT_TRUE(plot.contains(QStringLiteral("<text x=\"627.0\" y=\"15.0\" text-anchor=\"start\">2</text>")));
}

TEST(AnalysisPlot, SignalsLieOnTopOfEachOther)
{
    KxSubjectFindings findings = FindingsOfTwoShots();
    const auto score = [&findings](std::size_t sample, KxSignal signal) -> float& {
        return findings.samples[sample].scores[static_cast<std::size_t>(signal)];
    };
    score(0, KxSignal::Motion) = 0.5F;
    score(0, KxSignal::Faces) = 0.5F;
    score(1, KxSignal::Faces) = 0.25F;
    const CropTrack track = Track();
    const QString plot = AnalysisPlot(track, findings).Signals();
    const auto areaOf = [&plot](int index) {
        return AttributeOf(plot, QStringLiteral("<polygon"), QStringLiteral("points"), index);
    };
    // From below: saliency, motion, movers, faces. The strongest sample is 130 pixels high.
    EXPECT_TRUE(areaOf(1).startsWith(QStringLiteral("64.0,87.0 92.0,87.0 "))) << areaOf(1).toStdString();
    EXPECT_TRUE(areaOf(1).endsWith(QStringLiteral(" 92.0,152.0 64.0,152.0 "))) << areaOf(1).toStdString();
    EXPECT_TRUE(areaOf(3).startsWith(QStringLiteral("64.0,22.0 92.0,22.0 "))) << areaOf(3).toStdString();
    EXPECT_TRUE(areaOf(3).endsWith(QStringLiteral(" 92.0,87.0 64.0,87.0 "))) << areaOf(3).toStdString();
    EXPECT_TRUE(areaOf(3).contains(QStringLiteral(" 344.0,119.5 372.0,119.5 "))) << areaOf(3).toStdString();
    EXPECT_TRUE(areaOf(3).contains(QStringLiteral(" 624.0,152.0 652.0,152.0 "))) << areaOf(3).toStdString();
}

TEST(AnalysisPlot, TheTimeAxisHasAtMostTwelveSteps)
{
    const CropTrack track = Track();
    const QString plot = AnalysisPlot(track, FindingsOfTwoShots()).Path();
    // 1.6 seconds in steps of 0.2.
    EXPECT_EQ(plot.count(QStringLiteral("class=\"tick\"")), 9);
    EXPECT_TRUE(plot.contains(QStringLiteral(">0:00.2</text>"))) << plot.right(2000).toStdString();
    EXPECT_EQ(AttributeOf(plot, QStringLiteral("<line class=\"tick\""), QStringLiteral("x1"), 1),
              QStringLiteral("204.0"));
}

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
