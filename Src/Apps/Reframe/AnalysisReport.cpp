#include <Apps/Reframe/AnalysisReport.h>

#include <Apps/Reframe/AnalysisPlot.h>
#include <Apps/Reframe/DrawnCrop.h>
#include <Apps/Reframe/FoundSignals.h>
#include <KxCore/KxFrameTime.h>
#include <KxCore/KxLanguage.h>

#include <QColor>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QLocale>

#include <algorithm>
#include <cmath>

/// Outside of every namespace, as the macro wants it.
static void LoadResources()
{
    Q_INIT_RESOURCE(Reframe);
}

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(AnalysisReport)
};

QString Resource(const char* name)
{
    QFile file(QStringLiteral(":/Reframe/%1").arg(QLatin1String(name)));
    const bool isOpen = file.open(QIODevice::ReadOnly);
    Q_ASSERT(isOpen);
    return isOpen ? QString::fromUtf8(file.readAll()) : QString();
}

/// Puts a value in the place of each "{{name}}". Values are not searched for names, so a file's name cannot bring one
/// along.
QString Filled(const QString& text, const QHash<QString, QString>& values)
{
    const QLatin1String opening("{{");
    const QLatin1String closing("}}");
    QString filled;
    int done = 0;
    for (int start = text.indexOf(opening); start >= 0; start = text.indexOf(opening, done)) {
        const int end = text.indexOf(closing, start);
        const QString name = text.mid(start + opening.size(), end - start - opening.size());
        Q_ASSERT(end > start && values.contains(name));
        filled += text.mid(done, start - done) + values.value(name);
        done = end + closing.size();
    }
    return filled + text.mid(done);
}

QString Fact(const QString& name, const QString& value)
{
    return QStringLiteral("<div><dt>%1</dt><dd>%2</dd></div>\n").arg(name, value.toHtmlEscaped());
}

QString Frames(qint64 count)
{
    return count == 1 ? Texts::tr("1 frame") : Texts::tr("%n frames", nullptr, static_cast<int>(count));
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

    QString Text(const QByteArray& jpeg) const
    {
        const QHash<QString, QString> look{{QStringLiteral("accent"), QColor(DrawnCrop::Accent).name()}};
        QHash<QString, QString> values = Words();
        values.insert(QStringLiteral("language"), KxLanguage::Locale().bcp47Name());
        values.insert(QStringLiteral("title"), Title());
        values.insert(QStringLiteral("style"), Filled(Resource("report.css"), look));
        values.insert(QStringLiteral("facts"), Facts());
        values.insert(QStringLiteral("sheet"), QString::fromLatin1(jpeg.toBase64()));
        values.insert(QStringLiteral("path"), m_plot.Path());
        values.insert(QStringLiteral("signals"), m_plot.Signals());
        values.insert(QStringLiteral("signal-legend"), SignalsLegend());
        values.insert(QStringLiteral("shot-columns"), Columns());
        values.insert(QStringLiteral("shots"), Shots());
        return Filled(Resource("report.html"), values);
    }

private:
    /// The page's own texts.
    QHash<QString, QString> Words() const
    {
        QHash<QString, QString> words;
        const auto add = [&words](const char* name, const QString& text) {
            words.insert(QLatin1String(name), text.toHtmlEscaped());
        };
        add("crop-heading", Texts::tr("The crop"));
        add("sheet-text", Texts::tr("Frames of the video with the crop drawn"));
        add("path-heading", Texts::tr("Path of the crop"));
        add("path-text", IsAcross()
                             ? Texts::tr("Time runs from left to right. The left of the picture is at the bottom, "
                                         "its right at the top. A brighter spot has more evidence.")
                             : Texts::tr("Time runs from left to right. The bottom of the picture is at the "
                                         "bottom, its top at the top. A brighter spot has more evidence."));
        add("line-middle", Texts::tr("centre of the crop"));
        add("line-edge", Texts::tr("edges of the crop"));
        add("line-evidence", Texts::tr("centre with the most evidence"));
        add("line-shot", Texts::tr("start of a shot, numbered above"));
        add("signals-heading", Texts::tr("Evidence by signal"));
        add("signals-text",
            Texts::tr("How much stronger each signal is at the centre with the most evidence than at an "
                      "average place."));
        add("shots-heading", Texts::tr("Shots"));
        add("shots-text",
            IsAcross()
                ? Texts::tr(
                      "Travel is the sum of all movements of the crop in the shot, in percent of the width of the "
                      "picture. Confidence falls if the evidence outside of the crop is as strong as inside, or if "
                      "single signals want the crop elsewhere; where it is low, look at the shot.")
                : Texts::tr("Travel is the sum of all movements of the crop in the shot, in percent of the height of "
                            "the picture. Confidence falls if the evidence outside of the crop is as strong as inside, "
                            "or if single signals want the crop elsewhere; where it is low, look at the shot."));
        return words;
    }

    static QString Columns()
    {
        QString cells;
        for (const QString& name :
             {Texts::tr("Shot"), Texts::tr("First frame"), Texts::tr("Time"), Texts::tr("Length"), Texts::tr("Seconds"),
              Texts::tr("Dominant signal"), Texts::tr("Travel of the crop"), Texts::tr("Confidence")}) {
            cells += QStringLiteral("<th>%1</th>").arg(name.toHtmlEscaped());
        }
        return cells;
    }

    QString Title() const
    {
        return Texts::tr("%1 at %2:%3")
            .arg(QFileInfo(m_track.sourcePath).fileName().toHtmlEscaped(), QString::number(m_track.aspect.width()),
                 QString::number(m_track.aspect.height()));
    }

    QString Facts() const
    {
        const QRectF crop = m_track.crops.first().cropRect();
        const QLocale locale = KxLanguage::Locale();
        const QSizeF cropPx(crop.width() * m_track.sourceSize.width(), crop.height() * m_track.sourceSize.height());
        return Fact(Texts::tr("File size"),
                    locale.formattedDataSize(QFileInfo(m_track.sourcePath).size(), 1, QLocale::DataSizeSIFormat)) +
               Fact(Texts::tr("Picture"), Size(m_track.sourceSize)) +
               Fact(Texts::tr("Frames per second"), locale.toString(m_track.frameRate.ToDouble(), 'g', 5)) +
               Fact(Texts::tr("Length"),
                    Texts::tr("%1 (%2)").arg(Clock(m_track.crops.size()), Frames(m_track.crops.size()))) +
               Fact(Texts::tr("Crop"), QStringLiteral("%1, %2:%3")
                                           .arg(Size(cropPx), QString::number(m_track.aspect.width()),
                                                QString::number(m_track.aspect.height()))) +
               Fact(Texts::tr("Speed"), SpeedText()) +
               Fact(Texts::tr("Shots"), QString::number(m_findings.shots.size()));
    }

    QString SpeedText() const
    {
        return m_track.speedName == QLatin1String("fast")   ? Texts::tr("fast")
               : m_track.speedName == QLatin1String("slow") ? Texts::tr("slow")
                                                            : Texts::tr("auto");
    }

    QString Shots() const
    {
        QString rows;
        for (std::size_t i = 0; i < m_findings.shots.size(); ++i) {
            rows += Row(i);
        }
        return rows;
    }

    bool IsAcross() const { return m_findings.freeAxis == KxAxis::Across; }

    QString Clock(qint64 frame) const { return KxFrameTime::Text(frame, m_track.frameRate); }

    static QString SignalsLegend()
    {
        QString legend;
        for (const KxSignal signal : FoundSignals::All) {
            legend += QStringLiteral("<li>%1%2</li>\n")
                          .arg(Swatch(FoundSignals::Colour(signal)), FoundSignals::Explanation(signal));
        }
        return legend;
    }

    QString DominantSignal(const KxSubjectFindings::Shot& shot) const
    {
        const double share = FoundSignals::DominantShare(m_findings, shot);
        return share <= 0.0
                   ? Texts::tr("none: the crop is centred")
                   : Swatch(FoundSignals::Colour(shot.dominantSignal)) +
                         Texts::tr("%1, %2 %")
                             .arg(FoundSignals::Name(shot.dominantSignal), QString::number(qRound(share * 100.0)));
    }

    static QString ConfidenceOf(const KxSubjectFindings::Shot& shot)
    {
        QStringList remarks{FoundSignals::Doubt(shot), FoundSignals::Speech(shot)};
        remarks.removeAll(QString());
        return remarks.isEmpty()
                   ? FoundSignals::Confidence(shot)
                   : Texts::tr("%1: %2").arg(FoundSignals::Confidence(shot), remarks.join(QStringLiteral("; ")));
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
        return QStringLiteral("<tr><td>%1</td><td>%2</td><td>%3</td><td>%4</td><td>%5</td><td>%6</td><td>%7</td>"
                              "<td>%8</td></tr>\n")
            .arg(QString::number(index + 1), QString::number(shot.first), Clock(shot.first), Frames(frames),
                 KxLanguage::Locale().toString(seconds, 'f', 1), DominantSignal(shot),
                 Texts::tr("%1 %").arg(KxLanguage::Locale().toString(Travel(shot) * 100.0, 'f', 1)),
                 ConfidenceOf(shot));
    }

    const CropTrack& m_track;
    const KxSubjectFindings& m_findings;
    const AnalysisPlot m_plot;
};

} // namespace

QByteArray AnalysisReport::Format(const CropTrack& track, const KxSubjectFindings& findings, const QByteArray& sheet)
{
    LoadResources();
    return Page(track, findings).Text(sheet).toUtf8();
}
