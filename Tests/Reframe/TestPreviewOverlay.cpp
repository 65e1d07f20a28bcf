#include <Apps/Reframe/FoundSignals.h>
#include <Apps/Reframe/PreviewOverlay.h>

#include <gtest/gtest.h>

#include <cstdlib>

namespace
{

constexpr int Frames = 20;
constexpr QSize Size(960, 540);

QList<IKxAutoReframeResult> Crops()
{
    QList<IKxAutoReframeResult> crops;
    for (int frame = 0; frame < Frames; ++frame) {
        crops.append(IKxAutoReframeResult(frame, QRectF(0.6, 0.0, 0.3, 1.0)));
    }
    return crops;
}

/// One shot with a sample for each half of it.
std::shared_ptr<KxSubjectFindings> Findings()
{
    auto findings = std::make_shared<KxSubjectFindings>();
    findings->shots = {{0, Frames, KxSignal::Faces}};
    findings->samples.resize(2);
    findings->samples[1].frame = Frames / 2;
    return findings;
}

float& Score(KxSubjectFindings& findings, std::size_t sample, KxSignal signal)
{
    return findings.samples[sample].scores[static_cast<std::size_t>(signal)];
}

/// The width of the longest row of pixels of a signal's colour.
int BarPx(const PreviewOverlay& overlay, int frame, KxSignal signal)
{
    QImage picture(Size, QImage::Format_RGB32);
    picture.fill(Qt::darkGray);
    overlay.Draw(picture, frame);
    const QColor wanted(FoundSignals::Colour(signal));
    int longest = 0;
    for (int y = 0; y < picture.height(); ++y) {
        int length = 0;
        for (int x = 0; x < picture.width(); ++x) {
            const QColor colour = picture.pixelColor(x, y);
            const int difference = std::abs(colour.red() - wanted.red()) + std::abs(colour.green() - wanted.green()) +
                                   std::abs(colour.blue() - wanted.blue());
            length += difference < 6 ? 1 : 0;
        }
        longest = std::max(longest, length);
    }
    return longest;
}

} // namespace

TEST(PreviewOverlay, TheStrongestSignalOfTheVideoFillsItsBar)
{
    const auto findings = Findings();
    Score(*findings, 0, KxSignal::Faces) = 0.02F;
    Score(*findings, 0, KxSignal::Motion) = 0.01F;
    Score(*findings, 1, KxSignal::Faces) = 0.04F;
    const PreviewOverlay overlay(Crops(), {25, 1}, findings);
    const int full = BarPx(overlay, Frames / 2, KxSignal::Faces);
    ASSERT_GT(full, 60);
    EXPECT_NEAR(BarPx(overlay, 0, KxSignal::Faces), full / 2, 2);
    EXPECT_NEAR(BarPx(overlay, 0, KxSignal::Motion), full / 4, 2);
    EXPECT_EQ(BarPx(overlay, 0, KxSignal::Movers), 0);
    EXPECT_EQ(BarPx(overlay, Frames / 2, KxSignal::Motion), 0);
}

TEST(PreviewOverlay, WithoutASignalAllBarsAreEmpty)
{
    const PreviewOverlay overlay(Crops(), {25, 1}, Findings());
    for (const KxSignal signal : FoundSignals::All) {
        EXPECT_EQ(BarPx(overlay, 0, signal), 0);
    }
}

TEST(PreviewOverlay, WithoutFindingsThereAreNoBars)
{
    const PreviewOverlay overlay(Crops(), {25, 1}, nullptr);
    for (const KxSignal signal : FoundSignals::All) {
        EXPECT_EQ(BarPx(overlay, 0, signal), 0);
    }
}
