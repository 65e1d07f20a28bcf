#include <Apps/Reframe/AnalysisReport.h>

#include <Apps/Reframe/AnalysisPlot.h>
#include <Apps/Reframe/DrawnCrop.h>
#include <Apps/Reframe/FoundSignals.h>
#include <KxCore/KxFrameTime.h>

#include <QColor>
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

    QString Text(const QByteArray& jpeg) const
    {
        const QHash<QString, QString> look{{QStringLiteral("accent"), QColor(DrawnCrop::Accent).name()}};
        return Filled(
            Resource("report.html"),
            {{QStringLiteral("title"), Title()},
             {QStringLiteral("style"), Filled(Resource("report.css"), look)},
             {QStringLiteral("facts"), Facts()},
             {QStringLiteral("sheet"), QString::fromLatin1(jpeg.toBase64())},
             {QStringLiteral("bottom"), IsAcross() ? m_plot.StartName() : m_plot.EndName()},
             {QStringLiteral("top"), IsAcross() ? m_plot.EndName() : m_plot.StartName()},
             {QStringLiteral("path"), m_plot.Path()},
             {QStringLiteral("signals"), m_plot.Signals()},
             {QStringLiteral("signal-legend"), SignalsLegend()},
             {QStringLiteral("shots"), Shots()},
             {QStringLiteral("travel-side"), IsAcross() ? QStringLiteral("width") : QStringLiteral("height")}});
    }

private:
    QString Title() const
    {
        return QStringLiteral("%1 at %2:%3")
            .arg(QFileInfo(m_track.sourcePath).fileName().toHtmlEscaped(), QString::number(m_track.aspect.width()),
                 QString::number(m_track.aspect.height()));
    }

    QString Facts() const
    {
        const QRectF crop = m_track.crops.first().cropRect();
        const QLocale locale = QLocale::c();
        const QSizeF cropPx(crop.width() * m_track.sourceSize.width(), crop.height() * m_track.sourceSize.height());
        return Fact(QStringLiteral("File size"),
                    locale.formattedDataSize(QFileInfo(m_track.sourcePath).size(), 1, QLocale::DataSizeSIFormat)) +
               Fact(QStringLiteral("Picture"), Size(m_track.sourceSize)) +
               Fact(QStringLiteral("Frames per second"), locale.toString(m_track.frameRate.ToDouble(), 'g', 5)) +
               Fact(QStringLiteral("Length"),
                    QStringLiteral("%1 (%2)").arg(Clock(m_track.crops.size()), Frames(m_track.crops.size()))) +
               Fact(QStringLiteral("Crop"), QStringLiteral("%1, %2:%3")
                                                .arg(Size(cropPx), QString::number(m_track.aspect.width()),
                                                     QString::number(m_track.aspect.height()))) +
               Fact(QStringLiteral("Speed"), m_track.speedName) +
               Fact(QStringLiteral("Shots"), QString::number(m_findings.shots.size()));
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
        return share <= 0.0 ? QStringLiteral("none: the crop is centred")
                            : QStringLiteral("%1%2, %3 %")
                                  .arg(Swatch(FoundSignals::Colour(shot.dominantSignal)),
                                       FoundSignals::Name(shot.dominantSignal), QString::number(qRound(share * 100.0)));
    }

    static QString ConfidenceOf(const KxSubjectFindings::Shot& shot)
    {
        QStringList remarks{FoundSignals::Doubt(shot), FoundSignals::Speech(shot)};
        remarks.removeAll(QString());
        return remarks.isEmpty()
                   ? FoundSignals::Confidence(shot)
                   : QStringLiteral("%1: %2").arg(FoundSignals::Confidence(shot), remarks.join(QStringLiteral("; ")));
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
                              "<td>%8</td></tr>\n")
            .arg(QString::number(index + 1), QString::number(shot.first), Clock(shot.first), Frames(frames),
                 QString::number(seconds, 'f', 1), DominantSignal(shot), QString::number(Travel(shot) * 100.0, 'f', 1),
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
