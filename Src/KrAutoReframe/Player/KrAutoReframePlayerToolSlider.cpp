#include <KrAutoReframe/Player/KrAutoReframePlayerToolSlider.h>

#include <KrAutoReframe/Player/KrMarkColours.h>

#include <KxWidgets/KxToolTipHelper.h>

#include <QDebug>
#include <QEvent>
#include <QHelpEvent>
#include <QMutexLocker>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QStringList>
#include <QToolTip>
#include <QVariant>

#include <algorithm>

namespace
{

constexpr int SmallThicknessPx = 8;

constexpr double ShotTickPx = 1.0;
constexpr double ShotTickInsetPx = 3.0;
constexpr double ShotLinePx = 2.0;
constexpr double ChoiceLinePx = 3.0;
constexpr double LeastShotLinePx = 4.0;

void SetSliderType(QWidget& slider, const QString& type)
{
    slider.setProperty("sliderType", type);
}

} // namespace

KrAutoReframePlayerToolSlider* KrAutoReframePlayerToolSlider::CreateNormalSlider(QWidget* parent,
                                                                                 Qt::Orientation orientation)
{
    auto* const slider = new KrAutoReframePlayerToolSlider(parent, orientation);
    SetSliderType(*slider, QStringLiteral("normal"));
    return slider;
}

KrAutoReframePlayerToolSlider* KrAutoReframePlayerToolSlider::CreateSmallSlider(QWidget* parent,
                                                                                Qt::Orientation orientation)
{
    auto* const slider = new KrAutoReframePlayerToolSlider(parent, orientation);
    if (orientation == Qt::Horizontal) {
        slider->setFixedHeight(SmallThicknessPx);
    } else {
        slider->setFixedWidth(SmallThicknessPx);
    }
    SetSliderType(*slider, QStringLiteral("small"));
    return slider;
}

KrAutoReframePlayerToolSlider::KrAutoReframePlayerToolSlider(QWidget* parent, Qt::Orientation orientation)
    : KxToolSlider(parent, orientation)
    , m_markWidget(new QWidget(this))
{
    setObjectName(QStringLiteral("KrUIStyle_ToolBarSlider"));
    m_markWidget->setObjectName(QStringLiteral("KrUIStyle_ToolBarSlider_MarkWidget"));
    m_markWidget->stackUnder(chunkWidget());
    chunkWidget()->installEventFilter(this);
    m_markWidget->installEventFilter(this);
}

KrAutoReframePlayerToolSlider::~KrAutoReframePlayerToolSlider() = default;

void KrAutoReframePlayerToolSlider::SetEditFrames(const QList<uint>& frames)
{
    const QMutexLocker lock(&m_mutex);
    m_editFrames = frames;
    if (m_editFrames.isEmpty()) {
        return;
    }
    std::sort(m_editFrames.begin(), m_editFrames.end());
    if (qFuzzyCompare(static_cast<double>(m_editFrames.constLast()), duration() - 1.0)) {
        m_editFrames.append(static_cast<uint>(duration()));
    }
    update();
}

void KrAutoReframePlayerToolSlider::SetShots(const QList<ShotMark>& shots)
{
    m_shots = shots;
    m_markWidget->update();
}

void KrAutoReframePlayerToolSlider::SetChoices(const QList<ChoiceMark>& choices)
{
    m_choices = choices;
    m_markWidget->update();
}

void KrAutoReframePlayerToolSlider::SetGaps(const QList<ChoiceMark>& gaps)
{
    m_gaps = gaps;
    m_markWidget->update();
}

void KrAutoReframePlayerToolSlider::SetMarkStyle(const QColor& penColor, double penWidth, const QColor& fillColor,
                                                 int markWidth)
{
    m_markPenColor = penColor;
    m_markPenWidth = penWidth;
    m_markFillColor = fillColor;
    m_markWidth = markWidth;
}

void KrAutoReframePlayerToolSlider::SetChunkStyle(const QColor& color1, int width, const QColor& color2,
                                                  const QColor& editedColor)
{
    m_chunkColor1 = color1;
    m_chunkStyleWidth = width;
    m_chunkColor2 = color2;
    m_editedChunkColor = editedColor;
}

void KrAutoReframePlayerToolSlider::slotOnAddOneEdit(uint frameIndex)
{
    m_editFrames.removeAll(frameIndex);
    m_editFrames.append(frameIndex);
    update();
}

void KrAutoReframePlayerToolSlider::slotOnDelOneEdit(uint frameIndex)
{
    m_editFrames.removeAll(frameIndex);
    update();
}

void KrAutoReframePlayerToolSlider::slotOnDelAllEdit()
{
    m_editFrames.clear();
    update();
}

void KrAutoReframePlayerToolSlider::slotOnToPreEdit()
{
    const auto position = static_cast<uint>(value());
    std::sort(m_editFrames.begin(), m_editFrames.end());
    const auto found =
        std::find_if(m_editFrames.crbegin(), m_editFrames.crend(), [position](uint frame) { return frame < position; });
    if (found != m_editFrames.crend()) {
        const uint frame = *found;
        MoveToEdit(frame);
        qDebug() << "Find Pre Edit Pos:" << frame;
    }
}

void KrAutoReframePlayerToolSlider::slotOnToNextEdit()
{
    const double position = value();
    std::sort(m_editFrames.begin(), m_editFrames.end());
    const auto found = std::upper_bound(m_editFrames.cbegin(), m_editFrames.cend(), static_cast<uint>(position));
    if (found == m_editFrames.cend()) {
        qDebug() << "Not found Next Edit Point:";
        return;
    }
    const uint frame = *found;
    MoveToEdit(frame);
    qDebug() << "Find Next Edit Pos:" << frame;
}

void KrAutoReframePlayerToolSlider::slotRealCurrentFrame(uint frameIndex)
{
    m_currentFrame = frameIndex;
}

void KrAutoReframePlayerToolSlider::MoveToEdit(uint frame)
{
    // Positions are handed over in single precision, which is exact up to frame 16,777,216.
    setValue(static_cast<double>(static_cast<float>(frame)), true);
}

bool KrAutoReframePlayerToolSlider::eventFilter(QObject* watched, QEvent* event)
{
    const bool isFiltered = QObject::eventFilter(watched, event);
    if (event->type() == QEvent::ToolTip && watched == m_markWidget) {
        return ShowShotToolTip(static_cast<QHelpEvent&>(*event)) || isFiltered;
    }
    if (event->type() != QEvent::Paint) {
        return isFiltered;
    }
    if (watched == chunkWidget()) {
        PaintChunk();
        return true;
    }
    if (watched == m_markWidget) {
        PaintMarks();
        return true;
    }
    return isFiltered;
}

void KrAutoReframePlayerToolSlider::resizeEvent(QResizeEvent* event)
{
    m_markWidget->setGeometry(rect());
    KxToolSlider::resizeEvent(event);
    m_chunkRadius = std::max(chunkWidget()->width() / 2, chunkWidget()->height() / 2);
}

void KrAutoReframePlayerToolSlider::PaintChunk()
{
    if (!m_editFrames.contains(m_currentFrame)) {
        return;
    }
    QWidget* const chunk = chunkWidget();
    const QPointF centre = QPointF(chunk->rect().topLeft()) + QPointF(m_chunkRadius, m_chunkRadius);
    QPainter painter(chunk);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(m_editedChunkColor);
    painter.drawEllipse(centre, m_chunkRadius + 0.5, m_chunkRadius + 0.5);
}

void KrAutoReframePlayerToolSlider::PaintMarks()
{
    QPainter painter(m_markWidget);
    PaintChoices(painter);
    PaintShots(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(m_markFillColor);
    painter.setPen(QPen(m_markPenColor, m_markPenWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    for (const uint frame : qAsConst(m_editFrames)) {
        QPainterPath path;
        path.addRect(QRectF(MarkPosition(frame), rect().top(), m_markWidth, rect().height()));
        painter.drawPath(path);
    }
}

void KrAutoReframePlayerToolSlider::PaintShots(QPainter& painter) const
{
    const QColor doubtColour = KrMarkColours::Doubt(palette());
    for (const ShotMark& shot : m_shots) {
        const double start = CentreAt(shot.first);
        const bool isQuiet = shot.kind != ShotMark::Kind::Doubtful;
        if (shot.kind == ShotMark::Kind::Doubtful) {
            const double length = std::max(CentreAt(shot.end) - start, LeastShotLinePx);
            painter.fillRect(QRectF(start, rect().bottom() + 1 - ShotLinePx, length, ShotLinePx), doubtColour);
        }
        // The slider's start is no boundary between shots.
        if (shot.first > 0) {
            const double inset = isQuiet ? ShotTickInsetPx : 0.0;
            painter.fillRect(QRectF(qRound(start), rect().top() + inset, ShotTickPx, rect().height() - 2.0 * inset),
                             isQuiet ? KrMarkColours::Shot(palette()) : doubtColour);
        }
    }
}

void KrAutoReframePlayerToolSlider::PaintChoices(QPainter& painter) const
{
    for (const ChoiceMark& choice : m_choices) {
        PaintChoice(painter, choice);
    }
    for (const ChoiceMark& gap : m_gaps) {
        PaintChoice(painter, gap);
    }
}

void KrAutoReframePlayerToolSlider::PaintChoice(QPainter& painter, const ChoiceMark& choice) const
{
    const double start = CentreAt(choice.first);
    const double length = std::max(CentreAt(choice.end) - start, LeastShotLinePx);
    painter.fillRect(QRectF(start, rect().top(), length, ChoiceLinePx), ColourOf(choice.kind));
}

QColor KrAutoReframePlayerToolSlider::ColourOf(ChoiceMark::Kind kind) const
{
    switch (kind) {
    case ChoiceMark::Kind::Followed:
        return palette().color(QPalette::Highlight);
    case ChoiceMark::Kind::Lost:
        return KrMarkColours::Loss(palette());
    case ChoiceMark::Kind::Doubted:
        return KrMarkColours::Doubt(palette());
    case ChoiceMark::Kind::Other:
        break;
    }
    return palette().color(QPalette::PlaceholderText);
}

double KrAutoReframePlayerToolSlider::CentreAt(qint64 frame) const
{
    const double share = std::min(static_cast<double>(frame) / duration(), 1.0);
    return share * GetWidth() + GetChunkWidth() / 2.0;
}

bool KrAutoReframePlayerToolSlider::ShowShotToolTip(const QHelpEvent& event) const
{
    const auto isUnder = [this, &event](const auto& mark) {
        return event.x() >= CentreAt(mark.first) && event.x() < CentreAt(mark.end);
    };
    const auto shot = std::find_if(m_shots.cbegin(), m_shots.cend(), isUnder);
    const auto choice = std::find_if(m_choices.crbegin(), m_choices.crend(), isUnder);
    const auto gap = std::find_if(m_gaps.crbegin(), m_gaps.crend(), isUnder);
    QStringList texts;
    if (gap != m_gaps.crend()) {
        texts.append(gap->toolTip);
    }
    if (choice != m_choices.crend()) {
        texts.append(choice->toolTip);
    }
    if (shot != m_shots.cend()) {
        texts.append(shot->toolTip);
    }
    if (texts.isEmpty()) {
        return false;
    }
    QToolTip::showText(event.globalPos(), KxToolTipHelper::AsPlainText(texts.join(QLatin1Char('\n'))), m_markWidget);
    return true;
}

int KrAutoReframePlayerToolSlider::MarkPosition(uint frame) const
{
    if (frame == 0) {
        return 0;
    }
    if (frame == m_currentFrame) {
        return static_cast<int>(chunkWidget()->x() + m_chunkRadius);
    }
    const int chunkExtent = GetOrientation() == Qt::Horizontal ? GetChunkWidth() : GetChunkHeight();
    const int position = static_cast<int>(GetWidth() * (frame / duration()));
    return std::max(0, std::min(position + chunkExtent / 2, GetWidth()));
}
