#include <Apps/AutoReframe/Exports/ExportCard.h>
#include <Apps/AutoReframe/Library/MediaCardDelegate.h>
#include <Apps/AutoReframe/Library/MediaLibraryModel.h>

#include <KxWidgets/KxUIStyle.h>

#include <QLabel>
#include <QPainter>
#include <QStyleOptionViewItem>

#include <gtest/gtest.h>

namespace
{

/// Where the name of a video stands on its card.
QImage PaintedName(const MediaCardDelegate& delegate, const QModelIndex& video)
{
    QStyleOptionViewItem option;
    option.rect = QRect(QPoint(), MediaCardDelegate::CellSize());
    option.font.setPixelSize(18);
    QImage picture(option.rect.size(), QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    delegate.paint(&painter, option, video);
    painter.end();
    const QRect card = MediaCardDelegate::CardRect(option.rect);
    constexpr int nameHeightPx = 24;
    return picture.copy(card.left() + 8, card.top() + MediaCardDelegate::PictureSize().height() + 2, card.width() - 16,
                        nameHeightPx);
}

TEST(MediaCardDelegateTest, ANameLooksTheSameBeforeAndAfterTheFileIsOpened)
{
    MediaLibraryModel model(nullptr);
    const MediaCardDelegate delegate(nullptr);
    const int id = model.Add(QStringLiteral("/clips/morning.mp4"));
    const QImage before = PaintedName(delegate, model.IndexOf(id));
    MediaFile media;
    media.resolution = QSize(1920, 1080);
    media.frameRate = {30, 1};
    media.frameCount = 900;
    model.SetMedia(id, media);
    EXPECT_EQ(PaintedName(delegate, model.IndexOf(id)), before);
}

TEST(ExportCardTest, OnlyRunningFiguresHaveTheFigureFont)
{
    ExportCard card(nullptr);
    card.setFont(QFont(QStringLiteral("Serif")));
    const auto* const status = card.findChild<QLabel*>(QStringLiteral("ExportCard_status"));
    ASSERT_NE(status, nullptr);
    const auto family = [&](ExportItem::State state) {
        ExportItem item;
        item.state = state;
        card.Show(item);
        return status->font().family();
    };
    EXPECT_EQ(family(ExportItem::State::Running), KxUIStyle::TabularFont().family());
    for (const auto state : {ExportItem::State::Done, ExportItem::State::Failed, ExportItem::State::Cancelled}) {
        EXPECT_EQ(family(state), card.font().family());
    }
}

} // namespace
