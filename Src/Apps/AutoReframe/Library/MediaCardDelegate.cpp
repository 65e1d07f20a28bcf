#include <Apps/AutoReframe/Library/MediaCardDelegate.h>

#include <Apps/AutoReframe/Library/MediaLibraryModel.h>

#include <KxWidgets/KxUIStyle.h>

#include <QPainter>
#include <QPainterPath>

namespace
{

using KxUIStyle::Role;

constexpr QSize CardPx(188, 160);
constexpr int GapPx = 15;
constexpr int PictureHeightPx = 106; // 16:9 of the card's width
constexpr qreal RadiusPx = 8.0;
constexpr int TextMarginPx = 12;
constexpr int NameBaselineFromPicturePx = 21;
constexpr int DetailsBaselineFromPicturePx = 41;
constexpr int SmallPx = 11;

QFont Small(QFont font)
{
    font.setPixelSize(SmallPx);
    return font;
}

void PaintIcon(QPainter& painter, const QRect& area, const QString& name, QIcon::Mode mode)
{
    constexpr int iconPx = 32;
    QRect icon(0, 0, iconPx, iconPx);
    icon.moveCenter(area.center());
    KxUIStyle::Icon(name).paint(&painter, icon, Qt::AlignCenter, mode);
}

QPainterPath Rounded(const QRectF& rect)
{
    QPainterPath path;
    path.addRoundedRect(rect, RadiusPx, RadiusPx);
    return path;
}

} // namespace

MediaCardDelegate::MediaCardDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

MediaCardDelegate::~MediaCardDelegate() = default;

QSize MediaCardDelegate::CellSize()
{
    return CardPx + QSize(GapPx, GapPx);
}

QRect MediaCardDelegate::CardRect(const QRect& cell)
{
    return {cell.topLeft() + QPoint(GapPx / 2, GapPx / 2), CardPx};
}

QSize MediaCardDelegate::PictureSize()
{
    return {CardPx.width(), PictureHeightPx};
}

void MediaCardDelegate::SetDropActive(bool isActive)
{
    m_isDropActive = isActive;
}

QSize MediaCardDelegate::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const
{
    return CellSize();
}

void MediaCardDelegate::PaintDropFrame(QPainter& painter, const QRect& frame, bool isActive)
{
    QPen pen(KxUIStyle::Colour(isActive ? Role::Accent : Role::DropFrame), isActive ? 2.0 : 1.0);
    pen.setDashPattern(isActive ? QVector<qreal>{3.0, 2.0} : QVector<qreal>{4.0, 3.0});
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(Rounded(QRectF(frame).adjusted(0.5, 0.5, -0.5, -0.5)));
}

void MediaCardDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->setFont(option.font);
    if (index.data(MediaLibraryModel::IsDropPlaceRole).toBool()) {
        const QRect frame = CardRect(option.rect);
        PaintDropFrame(*painter, frame, m_isDropActive);
        painter->setPen(KxUIStyle::Colour(m_isDropActive ? Role::Text : Role::Muted));
        painter->drawText(frame, Qt::AlignCenter, index.data().toString());
    } else {
        PaintCard(*painter, option, index);
    }
    painter->restore();
}

void MediaCardDelegate::PaintCard(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QRect card = CardRect(option.rect);
    const bool isSelected = (option.state & QStyle::State_Selected) != 0;
    const bool isHovered = (option.state & QStyle::State_MouseOver) != 0;
    painter.fillPath(Rounded(card), KxUIStyle::Colour(Role::Surface));
    PaintPicture(painter, QRect(card.topLeft(), PictureSize()), index);
    PaintTexts(painter, card, index);

    painter.setBrush(Qt::NoBrush);
    if (isSelected) {
        painter.setPen(QPen(KxUIStyle::Colour(Role::Accent), 2.0));
        painter.drawPath(Rounded(card));
    } else {
        painter.setPen(KxUIStyle::Colour(isHovered ? Role::ButtonLine : Role::SurfaceLine));
        painter.drawPath(Rounded(QRectF(card).adjusted(0.5, 0.5, -0.5, -0.5)));
    }
}

void MediaCardDelegate::PaintPicture(QPainter& painter, const QRect& picture, const QModelIndex& index) const
{
    painter.save();
    // Only the upper corners are round: the lower ones of the shape are below the clip.
    painter.setClipRect(picture);
    const QRectF rounded = QRectF(picture).adjusted(0.0, 0.0, 0.0, 2.0 * RadiusPx);
    painter.fillPath(Rounded(rounded), KxUIStyle::Colour(Role::Picture));
    const auto thumbnail = index.data(MediaLibraryModel::ThumbnailRole).value<QPixmap>();
    const bool isMissing = index.data(MediaLibraryModel::IsMissingRole).toBool();
    if (isMissing) {
        constexpr qreal missingOpacity = 0.3;
        painter.setOpacity(missingOpacity);
    }
    if (thumbnail.isNull()) {
        if (!isMissing) {
            PaintIcon(painter, picture, QStringLiteral("film"), QIcon::Disabled);
        }
    } else {
        QSizeF size = QSizeF(thumbnail.size()).scaled(picture.size(), Qt::KeepAspectRatio);
        // A line of one background pixel beside the picture would look like a defect.
        if (picture.width() - size.width() < 2.0 && picture.height() - size.height() < 2.0) {
            size = picture.size();
        }
        QRectF place(QPointF(), size);
        place.moveCenter(QRectF(picture).center());
        QPainterPath shape = Rounded(rounded);
        // Most videos fill the card, and intersecting paths takes longer than everything else here.
        if (!place.contains(QRectF(picture))) {
            QPainterPath part;
            part.addRect(place);
            shape = shape.intersected(part);
        }
        QBrush brush(thumbnail);
        brush.setTransform(QTransform::fromTranslate(place.x(), place.y())
                               .scale(place.width() / thumbnail.width(), place.height() / thumbnail.height()));
        painter.fillPath(shape, brush);
    }
    painter.restore();
    if (isMissing) {
        PaintIcon(painter, picture, QStringLiteral("warning"), QIcon::Normal);
    }
    PaintLength(painter, picture, index.data(MediaLibraryModel::LengthRole).toString());
}

void MediaCardDelegate::PaintLength(QPainter& painter, const QRect& picture, const QString& length) const
{
    if (length.isEmpty()) {
        return;
    }
    constexpr int paddingPx = 6;
    constexpr int heightPx = 18;
    constexpr int marginPx = 7;
    painter.save();
    painter.setFont(Small(painter.font()));
    const int widthPx = painter.fontMetrics().horizontalAdvance(length) + 2 * paddingPx;
    const QRect badge(picture.right() + 1 - marginPx - widthPx, picture.bottom() + 1 - marginPx - heightPx, widthPx,
                      heightPx);
    constexpr int opacity = 184;
    constexpr qreal radiusPx = 4.0;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, opacity));
    painter.drawRoundedRect(badge, radiusPx, radiusPx);
    // Over the picture, whatever the scheme is.
    constexpr QColor lengthColour(0xE8, 0xEA, 0xED);
    painter.setPen(lengthColour);
    painter.drawText(badge, Qt::AlignCenter, length);
    painter.restore();
}

void MediaCardDelegate::PaintTexts(QPainter& painter, const QRect& card, const QModelIndex& index) const
{
    const int left = card.left() + TextMarginPx;
    const int room = card.width() - 2 * TextMarginPx;
    const int picture = card.top() + PictureHeightPx;
    const QFont font = painter.font();
    painter.setPen(KxUIStyle::Colour(Role::Text));
    painter.drawText(left, picture + NameBaselineFromPicturePx,
                     painter.fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, room));
    painter.setFont(Small(font));
    const bool isMissing = index.data(MediaLibraryModel::IsMissingRole).toBool();
    painter.setPen(KxUIStyle::Colour(isMissing ? Role::Error : Role::Muted));
    painter.drawText(
        left, picture + DetailsBaselineFromPicturePx,
        painter.fontMetrics().elidedText(index.data(MediaLibraryModel::DetailsRole).toString(), Qt::ElideRight, room));
}
