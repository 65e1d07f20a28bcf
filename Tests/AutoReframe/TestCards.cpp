#include <Apps/AutoReframe/Exports/ExportCard.h>
#include <Apps/AutoReframe/Library/MediaCardDelegate.h>
#include <Apps/AutoReframe/Library/MediaLibraryModel.h>

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

TEST(ExportCardTest, AllTextsHaveOneTypeface)
{
    ExportCard card(nullptr);
    card.setFont(QFont(QStringLiteral("Noto Serif")));
    for (const auto state : {ExportItem::State::Waiting, ExportItem::State::Running, ExportItem::State::Done,
                             ExportItem::State::Failed, ExportItem::State::Cancelled}) {
        ExportItem item;
        item.state = state;
        card.Show(item);
        for (const QWidget* const child : card.findChildren<QWidget*>()) {
            EXPECT_EQ(child->font().family(), card.font().family()) << child->objectName().toStdString();
        }
    }
}

} // namespace
