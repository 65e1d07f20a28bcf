#include <Apps/Reframe/PreviewOverlay.h>

#include <Apps/Reframe/DrawnCrop.h>
#include <Apps/Reframe/FoundSignals.h>
#include <KxCore/KxFrameTime.h>

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(PreviewOverlay)
};

constexpr double LinesInAPicture = 36.0;
constexpr int SmallestTextPx = 6;
constexpr double LineHeight = 1.5;
constexpr double PanelWidth = 17.0;
constexpr double LabelsShare = 0.36;
const QColor PanelGround(0x1B, 0x1D, 0x21, 224);
const QColor BarGround(255, 255, 255, 36);
const QColor Ink(0xF2, 0xF4, 0xF7);
const QColor FaintInk(0xB4, 0xBA, 0xC4);

int TextPx(const QSizeF& picture)
{
    return std::max(SmallestTextPx, qRound(std::min(picture.width(), picture.height()) / LinesInAPicture));
}

} // namespace

PreviewOverlay::PreviewOverlay(QList<IKxAutoReframeResult> crops, const KxRational& frameRate,
                               std::shared_ptr<const KxSubjectFindings> findings)
    : m_crops(std::move(crops))
    , m_frameRate(frameRate)
    , m_findings(std::move(findings))
{
    if (m_findings != nullptr) {
        for (const KxSubjectFindings::Sample& sample : m_findings->samples) {
            m_strongest = std::max(m_strongest, *std::max_element(sample.scores.begin(), sample.scores.end()));
        }
    }
}

void PreviewOverlay::Draw(QImage& picture, qint64 frame) const
{
    if (m_crops.isEmpty()) {
        return;
    }
    const auto index = static_cast<int>(std::clamp<qint64>(frame, 0, m_crops.size() - 1));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawnCrop::Draw(painter, picture.rect(), m_crops.at(index).cropRect());
    DrawWanted(painter, picture.size(), frame);
    DrawPanel(painter, picture.size(), frame);
}

void PreviewOverlay::DrawWanted(QPainter& painter, const QSizeF& picture, qint64 frame) const
{
    const KxSubjectFindings::Sample* const sample =
        m_findings != nullptr ? FoundSignals::SampleAt(*m_findings, frame) : nullptr;
    if (sample == nullptr) {
        return;
    }
    const double size = 0.8 * TextPx(picture);
    painter.save();
    if (m_findings->freeAxis == KxAxis::Across) {
        painter.translate(sample->wanted * picture.width(), 0.0);
    } else {
        painter.translate(0.0, sample->wanted * picture.height());
        painter.rotate(-90.0);
    }
    painter.setPen(QPen(QColor(0, 0, 0, 160), 1.0));
    painter.setBrush(Ink);
    painter.drawPolygon(QPolygonF({QPointF(-size * 0.7, 0.0), QPointF(size * 0.7, 0.0), QPointF(0.0, size)}));
    painter.restore();
}

void PreviewOverlay::DrawPanel(QPainter& painter, const QSizeF& picture, qint64 frame) const
{
    const int text = TextPx(picture);
    const double line = LineHeight * text;
    const bool explains = m_findings != nullptr && !m_findings->shots.empty();
    const double lines = explains ? 2.3 + KxSignalCount : 1.0;
    const QRectF panel(text, picture.height() - text - (lines + 0.8) * line, PanelWidth * text, (lines + 0.8) * line);
    painter.setPen(Qt::NoPen);
    painter.setBrush(PanelGround);
    painter.drawRoundedRect(panel, 0.4 * text, 0.4 * text);

    QFont font = painter.font();
    font.setPixelSize(text);
    painter.setFont(font);
    QRectF row(panel.x() + 0.7 * text, panel.y() + 0.4 * line, panel.width() - 1.4 * text, line);
    const auto write = [&painter](const QRectF& area, const QString& left, const QString& right) {
        painter.setPen(Ink);
        painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, left);
        painter.setPen(FaintInk);
        painter.drawText(area, Qt::AlignRight | Qt::AlignVCenter, right);
    };
    write(row, Texts::tr("Frame %1").arg(frame), KxFrameTime::Text(frame, m_frameRate));
    if (!explains) {
        return;
    }
    row.translate(0.0, line);
    const std::size_t shot = FoundSignals::ShotAt(*m_findings, frame);
    write(row, Texts::tr("Shot %1 of %2").arg(QString::number(shot + 1), QString::number(m_findings->shots.size())),
          Texts::tr("confidence %1").arg(FoundSignals::Confidence(m_findings->shots[shot])));
    row.translate(0.0, 1.3 * line);
    DrawSignals(painter, row, frame);
}

void PreviewOverlay::DrawSignals(QPainter& painter, const QRectF& area, qint64 frame) const
{
    const KxSubjectFindings::Sample* const sample = FoundSignals::SampleAt(*m_findings, frame);
    QRectF row = area;
    double labels = LabelsShare * row.width();
    for (const KxSignal signal : FoundSignals::All) {
        // A gap of half a letter's height to the bar, also after the longer names of other languages.
        labels = std::max(labels, painter.fontMetrics().horizontalAdvance(FoundSignals::Name(signal)) +
                                      0.5 * painter.fontMetrics().height());
    }
    for (const KxSignal signal : FoundSignals::All) {
        const float strength = sample != nullptr ? sample->scores[static_cast<std::size_t>(signal)] : 0.0F;
        const double share = std::clamp(static_cast<double>(strength / m_strongest), 0.0, 1.0);
        painter.setPen(FaintInk);
        painter.drawText(row, Qt::AlignLeft | Qt::AlignVCenter, FoundSignals::Name(signal));
        const QRectF bar(row.x() + labels, row.center().y() - 0.16 * row.height(), row.width() - labels,
                         0.32 * row.height());
        painter.fillRect(bar, BarGround);
        painter.fillRect(QRectF(bar.topLeft(), QSizeF(bar.width() * share, bar.height())),
                         QColor(FoundSignals::Colour(signal)));
        row.translate(0.0, row.height());
    }
}
