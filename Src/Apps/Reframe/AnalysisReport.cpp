#include <Apps/Reframe/AnalysisReport.h>

#include <Apps/Reframe/AnalysisPlot.h>
#include <Apps/Reframe/DrawnCrop.h>
#include <Apps/Reframe/FoundSignals.h>
#include <KxCore/KxFrameTime.h>

#include <QColor>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace
{

const char* const style = R"(
:root { color-scheme: dark; }
body { margin: 0; background: #1b1d21; color: #e8eaee; font: 15px/1.5 system-ui, "Noto Sans", "DejaVu Sans", sans-serif; }
main { max-width: 1200px; margin: 0 auto; padding: 32px 24px 64px; }
h1 { font-size: 26px; line-height: 1.25; margin: 0 0 20px; font-weight: 600; overflow-wrap: anywhere; }
h2 { font-size: 17px; margin: 40px 0 10px; font-weight: 600; }
p { color: #aab0bb; margin: 0 0 10px; }
dl { display: flex; flex-wrap: wrap; margin: 0; }
dl div { margin: 0 40px 12px 0; }
dt { color: #8b929e; font-size: 13px; }
dd { margin: 0; font-variant-numeric: tabular-nums; }
svg { display: block; width: 100%; height: auto; }
img { display: block; max-width: 100%; max-height: 760px; border-radius: 6px; }
svg text { fill: #8b929e; font-size: 12px; }
.cut { stroke: #fff; stroke-opacity: .55; stroke-width: 1; stroke-dasharray: 3 3; }
.tick { stroke: #8b929e; }
.halo { fill: none; stroke: #14151a; stroke-width: 6; stroke-opacity: .6; }
.edge { fill: none; stroke: ACCENT; stroke-width: 1.5; stroke-opacity: .75; }
.middle { fill: none; stroke: ACCENT; stroke-width: 2.5; }
.wanted { fill: none; stroke: #fff; stroke-width: 1.2; stroke-dasharray: 2 3; }
.legend { display: flex; flex-wrap: wrap; padding: 0; margin: 8px 0 0 64px; list-style: none; color: #c6cbd3; }
.legend li { margin: 0 24px 4px 0; }
.legend span { display: inline-block; width: 18px; height: 10px; margin-right: 8px; border-radius: 2px; }
table { border-collapse: collapse; width: 100%; margin-bottom: 14px; font-variant-numeric: tabular-nums; }
th { text-align: right; color: #8b929e; font-weight: 500; font-size: 13px; }
td { text-align: right; border-top: 1px solid #30343b; }
th, td { padding: 5px 20px 5px 0; }
th:nth-child(6), td:nth-child(6) { text-align: left; padding-left: 24px; }
td span { display: inline-block; width: 10px; height: 10px; margin-right: 8px; border-radius: 2px; }
)";

QString Fact(const QString& name, const QString& value)
{
    return QStringLiteral("<div><dt>%1</dt><dd>%2</dd></div>\n").arg(name, value.toHtmlEscaped());
}

QString Frames(qint64 count)
{
    return count == 1 ? QStringLiteral("1 frame") : QStringLiteral("%1 frames").arg(count);
}

QString Size(const QSizeF& size)
{
    return QStringLiteral("%1 × %2").arg(QString::number(qRound(size.width())), QString::number(qRound(size.height())));
}

QString Swatch(QRgb colour)
{
    return QStringLiteral("<span style=\"background:%1\"></span>").arg(QColor(colour).name());
}

class Page
{
public:
    Page(const CropTrack& track, const KxSubjectFindings& findings)
        : m_track(track)
        , m_findings(findings)
        , m_plot(track, findings)
    {
    }

    QString Head() const
    {
        const QString title =
            QStringLiteral("%1 at %2:%3")
                .arg(QFileInfo(m_track.sourcePath).fileName().toHtmlEscaped(), QString::number(m_track.aspect.width()),
                     QString::number(m_track.aspect.height()));
        QString rules = QLatin1String(style);
        rules.replace(QLatin1String("ACCENT"), QColor(DrawnCrop::accent).name());
        return QStringLiteral("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                              "<meta name=\"viewport\" content=\"width=device-width\">\n<title>%1</title>\n"
                              "<style>%2</style>\n</head>\n<body>\n<main>\n<h1>%1</h1>\n")
            .arg(title, rules);
    }

    QString Facts() const
    {
        const QRectF crop = m_track.crops.first().cropRect();
        const QLocale locale = QLocale::c();
        const QSizeF cropPx(crop.width() * m_track.sourceSize.width(), crop.height() * m_track.sourceSize.height());
        return QStringLiteral("<dl id=\"facts\">\n") +
               Fact(QStringLiteral("File size"),
                    locale.formattedDataSize(QFileInfo(m_track.sourcePath).size(), 1, QLocale::DataSizeSIFormat)) +
               Fact(QStringLiteral("Picture"), Size(m_track.sourceSize)) +
               Fact(QStringLiteral("Frames a second"), locale.toString(m_track.frameRate.ToDouble(), 'g', 5)) +
               Fact(QStringLiteral("Length"),
                    QStringLiteral("%1 (%2)").arg(Clock(m_track.crops.size()), Frames(m_track.crops.size()))) +
               Fact(QStringLiteral("Crop"), QStringLiteral("%1, %2:%3")
                                                .arg(Size(cropPx), QString::number(m_track.aspect.width()),
                                                     QString::number(m_track.aspect.height()))) +
               Fact(QStringLiteral("Speed"), m_track.speedName) +
               Fact(QStringLiteral("Shots"), QString::number(m_findings.shots.size())) + QStringLiteral("</dl>\n");
    }

    QString Sheet(const QByteArray& jpeg) const
    {
        return QStringLiteral("<h2>The crop</h2>\n<img alt=\"Frames of the video with the crop drawn\" "
                              "src=\"data:image/jpeg;base64,%1\">\n")
            .arg(QString::fromLatin1(jpeg.toBase64()));
    }

    QString Plots() const
    {
        return QStringLiteral("<h2>Where the crop goes, and why</h2>\n<p>Time runs to the right, the picture's %1 is "
                              "at the foot and its %2 at the head. The lighter a spot, the more speaks for it.</p>\n")
                   .arg(Foot(), HeadName()) +
               m_plot.Path() + PathLegend() +
               QStringLiteral("<h2>What speaks for the place</h2>\n<p>How much more each signal says for the place "
                              "that the evidence asks for than for an average one.</p>\n") +
               m_plot.Signals() + SignalsLegend();
    }

    QString Shots() const
    {
        QString table =
            QStringLiteral("<h2>Shots</h2>\n<table id=\"shots\">\n<thead><tr><th>Shot</th><th>First frame</th><th>Time"
                           "</th><th>Length</th><th>Seconds</th><th>Carried by</th><th>Travel of the crop</th></tr>"
                           "</thead>\n<tbody>\n");
        for (std::size_t i = 0; i < m_findings.shots.size(); ++i) {
            table += Row(i);
        }
        return table +
               QStringLiteral("</tbody>\n</table>\n<p>Travel adds up every movement of the crop inside the "
                              "shot, as a part of the picture's %1.</p>\n")
                   .arg(m_findings.freeAxis == KxAxis::Across ? QStringLiteral("width") : QStringLiteral("height"));
    }

private:
    QString Foot() const { return IsAcross() ? m_plot.StartName() : m_plot.EndName(); }
    QString HeadName() const { return IsAcross() ? m_plot.EndName() : m_plot.StartName(); }
    bool IsAcross() const { return m_findings.freeAxis == KxAxis::Across; }

    QString Clock(qint64 frame) const { return KxFrameTime::Text(frame, m_track.frameRate); }

    QString PathLegend() const
    {
        return QStringLiteral("<ul class=\"legend\"><li>%1the crop's middle (thick) and edges</li><li>%2the middle "
                              "that the evidence asks for (dotted)</li><li>dashed: a new shot, numbered above</li>"
                              "</ul>\n")
            .arg(Swatch(DrawnCrop::accent), Swatch(0xFFFFFFFF));
    }

    static QString SignalsLegend()
    {
        QString legend = QStringLiteral("<ul class=\"legend\">");
        for (const KxSignal signal : FoundSignals::all) {
            legend += QStringLiteral("<li>%1%2</li>")
                          .arg(Swatch(FoundSignals::Colour(signal)), FoundSignals::Explanation(signal));
        }
        return legend + QStringLiteral("</ul>\n");
    }

    QString Carrier(const KxSubjectFindings::Shot& shot) const
    {
        const double share = FoundSignals::CarrierShare(m_findings, shot);
        return share <= 0.0 ? QStringLiteral("nothing: the crop stays in the middle")
                            : QStringLiteral("%1%2, %3 %")
                                  .arg(Swatch(FoundSignals::Colour(shot.dominantSignal)), FoundSignals::Name(shot.dominantSignal),
                                       QString::number(qRound(share * 100.0)));
    }

    double Travel(const KxSubjectFindings::Shot& shot) const
    {
        double travel = 0.0;
        const qint64 end = std::min<qint64>(shot.end, m_track.crops.size());
        for (qint64 frame = shot.first + 1; frame < end; ++frame) {
            const QPointF step = m_track.crops.at(static_cast<int>(frame)).cropRect().topLeft() -
                                 m_track.crops.at(static_cast<int>(frame) - 1).cropRect().topLeft();
            travel += std::abs(IsAcross() ? step.x() : step.y());
        }
        return travel;
    }

    QString Row(std::size_t index) const
    {
        const KxSubjectFindings::Shot& shot = m_findings.shots[index];
        const auto frames = shot.end - shot.first;
        const double seconds = static_cast<double>(frames) / std::max(m_track.frameRate.ToDouble(), 1e-3);
        return QStringLiteral("<tr><td>%1</td><td>%2</td><td>%3</td><td>%4</td><td>%5</td><td>%6</td><td>%7 %</td>"
                              "</tr>\n")
            .arg(QString::number(index + 1), QString::number(shot.first), Clock(shot.first), Frames(frames),
                 QString::number(seconds, 'f', 1), Carrier(shot), QString::number(Travel(shot) * 100.0, 'f', 1));
    }

    const CropTrack& m_track;
    const KxSubjectFindings& m_findings;
    const AnalysisPlot m_plot;
};

} // namespace

QByteArray AnalysisReport::Format(const CropTrack& track, const KxSubjectFindings& findings, const QByteArray& sheet)
{
    const Page page(track, findings);
    return (page.Head() + page.Facts() + page.Sheet(sheet) + page.Plots() + page.Shots() +
            QStringLiteral("</main>\n</body>\n</html>\n"))
        .toUtf8();
}
