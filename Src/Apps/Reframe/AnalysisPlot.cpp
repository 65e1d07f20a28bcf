#include <Apps/Reframe/AnalysisPlot.h>

#include <Apps/Reframe/FoundSignals.h>
#include <KxCore/KxTimeText.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QImage>

#include <algorithm>
#include <cmath>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(AnalysisPlot)
};

constexpr int MostColumns = 1200;
constexpr double LeftPx = 64.0;
constexpr double WidthPx = 1120.0;
constexpr double RightPx = 16.0;
constexpr double TopPx = 22.0;
constexpr double PathHeightPx = 300.0;
constexpr double SignalsHeightPx = 130.0;
constexpr double AxisPx = 26.0;
constexpr int Rows = static_cast<int>(KxSignalProfile::Bins);

QString Number(double value)
{
    return QString::number(value, 'f', 1);
}

QString Point(double x, double y)
{
    return Number(x) + QLatin1Char(',') + Number(y) + QLatin1Char(' ');
}

QString Opening(const char* id, double height, const QString& label)
{
    return QStringLiteral("<svg id=\"%1\" viewBox=\"0 0 %2 %3\" role=\"img\" aria-label=\"%4\">\n")
        .arg(QLatin1String(id), Number(LeftPx + WidthPx + RightPx), Number(height), label.toHtmlEscaped());
}

QString Text(double x, double y, const char* anchor, const QString& text)
{
    return QStringLiteral("<text x=\"%1\" y=\"%2\" text-anchor=\"%3\">%4</text>\n")
        .arg(Number(x), Number(y), QLatin1String(anchor), text.toHtmlEscaped());
}

/// From the background through violet and red to a warm white, with increasing lightness.
QRgb HeatColour(double share)
{
    struct Stop {
        double at;
        double red;
        double green;
        double blue;
    };
    constexpr std::array<Stop, 5> stops{
        {{0.0, 20, 21, 26}, {0.25, 66, 30, 96}, {0.5, 150, 44, 96}, {0.75, 226, 98, 66}, {1.0, 252, 226, 170}}};
    std::size_t upper = 1;
    while (upper + 1 < stops.size() && share > stops[upper].at) {
        ++upper;
    }
    const Stop& a = stops[upper - 1];
    const Stop& b = stops[upper];
    const double part = std::clamp((share - a.at) / (b.at - a.at), 0.0, 1.0);
    return qRgb(qRound(a.red + part * (b.red - a.red)), qRound(a.green + part * (b.green - a.green)),
                qRound(a.blue + part * (b.blue - a.blue)));
}

float HighShare(std::vector<float> values)
{
    if (values.empty()) {
        return 1e-6F;
    }
    const auto high = values.begin() + static_cast<std::ptrdiff_t>(values.size() * 995 / 1000);
    std::nth_element(values.begin(), high, values.end());
    return std::max(*high, 1e-6F);
}

} // namespace

AnalysisPlot::AnalysisPlot(const CropTrack& track, const KxSubjectFindings& findings)
    : m_track(track)
    , m_findings(findings)
    , m_frames(track.crops.size())
{
}

QString AnalysisPlot::StartName() const
{
    return m_findings.freeAxis == KxAxis::Across ? Texts::tr("left") : Texts::tr("top");
}

QString AnalysisPlot::EndName() const
{
    return m_findings.freeAxis == KxAxis::Across ? Texts::tr("right") : Texts::tr("bottom");
}

double AnalysisPlot::X(double frame) const
{
    return LeftPx + WidthPx * frame / static_cast<double>(m_frames);
}

double AnalysisPlot::Y(double place) const
{
    // The top of the picture is at the top; of its two sides, the right one is.
    return TopPx + PathHeightPx * (m_findings.freeAxis == KxAxis::Across ? 1.0 - place : place);
}

qint64 AnalysisPlot::FrameOf(int column, int columns) const
{
    return static_cast<qint64>(column) * m_frames / columns;
}

std::pair<double, double> AnalysisPlot::CropEnds(qint64 frame) const
{
    const QRectF crop = m_track.crops.at(static_cast<int>(frame)).cropRect();
    return m_findings.freeAxis == KxAxis::Across ? std::pair(crop.left(), crop.right())
                                                 : std::pair(crop.top(), crop.bottom());
}

QString AnalysisPlot::Heat() const
{
    const int columns = static_cast<int>(std::min<qint64>(MostColumns, m_frames));
    std::vector<float> shares(static_cast<std::size_t>(columns) * Rows, 0.0F);
    for (int column = 0; column < columns; ++column) {
        const KxSubjectFindings::Sample* const sample = FoundSignals::SampleAt(m_findings, FrameOf(column, columns));
        if (sample == nullptr) {
            continue;
        }
        const KxSignalProfile profile = sample->evidence.Unpacked();
        for (int row = 0; row < Rows; ++row) {
            shares[static_cast<std::size_t>(row * columns + column)] = profile.share[static_cast<std::size_t>(row)];
        }
    }
    const float high = HighShare(shares);
    QImage image(columns, Rows, QImage::Format_RGB32);
    for (int row = 0; row < Rows; ++row) {
        const int line = m_findings.freeAxis == KxAxis::Across ? Rows - 1 - row : row;
        auto* const pixels = reinterpret_cast<QRgb*>(image.scanLine(line));
        for (int column = 0; column < columns; ++column) {
            const float share = shares[static_cast<std::size_t>(row * columns + column)];
            pixels[column] = HeatColour(std::sqrt(static_cast<double>(share / high)));
        }
    }
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return QStringLiteral("<image x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" preserveAspectRatio=\"none\" "
                          "xlink:href=\"data:image/png;base64,%5\"/>\n")
        .arg(Number(LeftPx), Number(TopPx), Number(WidthPx), Number(PathHeightPx), QString::fromLatin1(png.toBase64()));
}

QString AnalysisPlot::ShotLines(double height, bool numbered) const
{
    constexpr double leastGapPx = 30.0;
    // Many full lines would hide the plot.
    constexpr std::size_t mostWholeLines = 80;
    constexpr double markPx = 7.0;
    const double length = m_findings.shots.size() > mostWholeLines ? markPx : height;
    QString lines;
    double lastNumber = -leastGapPx;
    for (std::size_t i = 0; i < m_findings.shots.size(); ++i) {
        const double x = X(static_cast<double>(m_findings.shots[i].first));
        if (i > 0) {
            lines += QStringLiteral("<line class=\"cut\" x1=\"%1\" x2=\"%1\" y1=\"%2\" y2=\"%3\"/>\n")
                         .arg(Number(x), Number(TopPx), Number(TopPx + length));
        }
        if (numbered && x - lastNumber >= leastGapPx) {
            lines += Text(x + 3.0, TopPx - 7.0, "start", QString::number(i + 1));
            lastNumber = x;
        }
    }
    return lines;
}

QString AnalysisPlot::WantedLine() const
{
    const int columns = static_cast<int>(std::min<qint64>(MostColumns, m_frames));
    QString points;
    const KxSubjectFindings::Sample* last = nullptr;
    for (int column = 0; column < columns; ++column) {
        const qint64 frame = FrameOf(column, columns);
        const KxSubjectFindings::Sample* const sample = FoundSignals::SampleAt(m_findings, frame);
        if (sample != nullptr && sample != last) {
            const bool starts = last == nullptr || FoundSignals::ShotAt(m_findings, last->frame) !=
                                                       FoundSignals::ShotAt(m_findings, sample->frame);
            points += QLatin1Char(starts ? 'M' : 'L') + Point(X(static_cast<double>(frame)), Y(sample->wanted));
            last = sample;
        }
    }
    return QStringLiteral("<path class=\"wanted\" d=\"%1\"/>\n").arg(points);
}

QString AnalysisPlot::CropLines() const
{
    const int columns = static_cast<int>(std::min<qint64>(MostColumns, m_frames));
    std::array<QString, 3> paths;
    std::optional<std::size_t> lastShot;
    const auto add = [&](char command, double x, qint64 frame) {
        const auto [start, end] = CropEnds(frame);
        const std::array<double, 3> places{start, (start + end) / 2, end};
        for (std::size_t i = 0; i < paths.size(); ++i) {
            paths[i] += QLatin1Char(command) + Point(x, Y(places[i]));
        }
    };
    qint64 last = 0;
    for (int column = 0; column < columns; ++column) {
        const qint64 frame = FrameOf(column, columns);
        const std::size_t shot = FoundSignals::ShotAt(m_findings, frame);
        if (lastShot && shot != *lastShot) {
            add('L', X(static_cast<double>(frame)), last);
        }
        add(lastShot == shot ? 'L' : 'M', X(static_cast<double>(frame)), frame);
        lastShot = shot;
        last = frame;
    }
    add('L', X(static_cast<double>(m_frames)), m_frames - 1);
    return QStringLiteral("<path class=\"halo\" d=\"%3\"/>\n<path class=\"edge\" d=\"%1\"/>\n"
                          "<path class=\"edge\" d=\"%2\"/>\n<path class=\"middle\" d=\"%3\"/>\n")
        .arg(paths[0], paths[2], paths[1]);
}

QString AnalysisPlot::TimeAxis(double top) const
{
    constexpr std::array<double, 16> stepsS{0.1, 0.2, 0.5, 1, 2, 5, 10, 20, 30, 60, 120, 300, 600, 1200, 1800, 3600};
    constexpr double mostTicks = 12.0;
    const double rate = std::max(m_track.frameRate.ToDouble(), 1e-3);
    const double lengthS = static_cast<double>(m_frames) / rate;
    const auto fits =
        std::find_if(stepsS.begin(), stepsS.end(), [lengthS](double step) { return lengthS / step <= mostTicks; });
    const double stepS = fits != stepsS.end() ? *fits : std::ceil(lengthS / mostTicks / 3600.0) * 3600.0;
    QString axis;
    for (int i = 0; i * stepS <= lengthS; ++i) {
        const double x = X(i * stepS * rate);
        const auto seconds = static_cast<int>(std::floor(i * stepS + 1e-6));
        QString label = KxTimeText::MinutesSeconds(seconds);
        if (stepS < 1.0) {
            label += QStringLiteral(".%1").arg(qRound(i * stepS * 10) % 10);
        }
        axis += QStringLiteral("<line class=\"tick\" x1=\"%1\" x2=\"%1\" y1=\"%2\" y2=\"%3\"/>\n")
                    .arg(Number(x), Number(top), Number(top + 5.0));
        axis += Text(x, top + 19.0, "middle", label);
    }
    return axis;
}

QString AnalysisPlot::Path() const
{
    const double bottom = TopPx + PathHeightPx;
    const bool startsBelow = m_findings.freeAxis == KxAxis::Across;
    return Opening("path", bottom + AxisPx, Texts::tr("The crop's path over the evidence")) + Heat() +
           ShotLines(PathHeightPx, true) + WantedLine() + CropLines() +
           Text(LeftPx - 8.0, bottom, "end", startsBelow ? StartName() : EndName()) +
           Text(LeftPx - 8.0, TopPx + 10.0, "end", startsBelow ? EndName() : StartName()) + TimeAxis(bottom) +
           QStringLiteral("</svg>\n");
}

QString AnalysisPlot::Signals() const
{
    const double bottom = TopPx + SignalsHeightPx;
    const double strongest = static_cast<double>(FoundSignals::StrongestSum(m_findings));
    const int columns = static_cast<int>(std::min<qint64>(MostColumns, m_frames));
    std::vector<double> below(static_cast<std::size_t>(columns), 0.0);
    QString areas;
    for (auto signal = FoundSignals::All.rbegin(); signal != FoundSignals::All.rend(); ++signal) {
        QString upper;
        QString lower;
        for (int column = 0; column < columns; ++column) {
            const qint64 frame = FrameOf(column, columns);
            const KxSubjectFindings::Sample* const sample = FoundSignals::SampleAt(m_findings, frame);
            double& level = below[static_cast<std::size_t>(column)];
            const double x = X(static_cast<double>(frame));
            const double next = X(static_cast<double>(FrameOf(column + 1, columns)));
            const double from = bottom - SignalsHeightPx * level;
            if (sample != nullptr) {
                level += static_cast<double>(sample->scores[static_cast<std::size_t>(*signal)]) / strongest;
            }
            const double to = bottom - SignalsHeightPx * level;
            upper += Point(x, to) + Point(next, to);
            lower = Point(next, from) + Point(x, from) + lower;
        }
        areas += QStringLiteral("<polygon fill=\"%1\" points=\"%2%3\"/>\n")
                     .arg(QColor(FoundSignals::Colour(*signal)).name(), upper, lower);
    }
    return Opening("signals", bottom + AxisPx, Texts::tr("Evidence by signal")) + areas +
           ShotLines(SignalsHeightPx, false) + Text(LeftPx - 8.0, TopPx + 10.0, "end", Texts::tr("strong")) +
           Text(LeftPx - 8.0, bottom, "end", Texts::tr("none")) + TimeAxis(bottom) + QStringLiteral("</svg>\n");
}
