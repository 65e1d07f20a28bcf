#include <Apps/AutoReframe/Exports/ExportCard.h>
#include <Apps/AutoReframe/Library/MediaCardDelegate.h>
#include <Apps/AutoReframe/Library/MediaLibraryModel.h>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLabel>
#include <QPainter>
#include <QStyleOptionViewItem>
#include <QTimer>

#include <gtest/gtest.h>

namespace
{

QImage PaintedCard(const MediaCardDelegate& delegate, const QModelIndex& video)
{
    QStyleOptionViewItem option;
    option.rect = QRect(QPoint(), MediaCardDelegate::CellSize());
    option.font.setPixelSize(18);
    QImage picture(option.rect.size(), QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    delegate.paint(&painter, option, video);
    painter.end();
    return picture.copy(MediaCardDelegate::CardRect(option.rect));
}

/// Where the name of a video stands on its card.
QImage PaintedName(const MediaCardDelegate& delegate, const QModelIndex& video)
{
    const QImage card = PaintedCard(delegate, video);
    constexpr int nameHeightPx = 24;
    return card.copy(8, MediaCardDelegate::PictureSize().height() + 2, card.width() - 16, nameHeightPx);
}

/// The picture on the card of a video with a thumbnail of one colour.
QImage PaintedPicture(const QSize& thumbnail, const QColor& colour, const MediaFile& media = {})
{
    MediaLibraryModel model(nullptr);
    const MediaCardDelegate delegate(nullptr);
    const int id = model.Add(QStringLiteral("/clips/morning.mp4"));
    model.SetMedia(id, media);
    QPixmap picture(thumbnail);
    picture.fill(colour);
    model.SetThumbnail(id, picture);
    return PaintedCard(delegate, model.IndexOf(id)).copy(QRect(QPoint(), MediaCardDelegate::PictureSize()));
}

/// The rectangle around all pixels that are not of `colour`.
QRect BoundsOfOthers(const QImage& picture, const QColor& colour)
{
    QRect bounds;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) != colour) {
                bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    return bounds;
}

QStringList MenuOf(ExportCard& card)
{
    QStringList texts;
    QTimer::singleShot(0, &card, [&texts] {
        QWidget* const menu = QApplication::activePopupWidget();
        ASSERT_NE(menu, nullptr);
        for (const QAction* const action : menu->actions()) {
            texts += action->text();
        }
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), card.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&card, &event);
    return texts;
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

TEST(MediaCardDelegateTest, AThumbnailOfAlmostTheShapeOfTheCardFillsIt)
{
    const QSize whole = MediaCardDelegate::PictureSize();
    for (const QSize& thumbnail : {whole, whole - QSize(1, 0), whole - QSize(0, 1)}) {
        const QImage painted = PaintedPicture(thumbnail, Qt::green);
        const int below = whole.height() - 2;
        EXPECT_EQ(painted.pixelColor(1, below), QColor(Qt::green)) << thumbnail.width();
        EXPECT_EQ(painted.pixelColor(whole.width() - 2, below), QColor(Qt::green)) << thumbnail.width();
        EXPECT_EQ(painted.pixelColor(whole.width() / 2, 1), QColor(Qt::green)) << thumbnail.height();
    }
}

TEST(MediaCardDelegateTest, AThumbnailOfAnotherShapeKeepsIt)
{
    const QSize whole = MediaCardDelegate::PictureSize();
    const QSize middle = whole / 2;
    const QImage portrait = PaintedPicture(QSize(90, 160), Qt::green);
    EXPECT_EQ(portrait.pixelColor(middle.width(), middle.height()), QColor(Qt::green));
    EXPECT_NE(portrait.pixelColor(middle.width() / 2, middle.height()), QColor(Qt::green));
    const QImage wide = PaintedPicture(QSize(240, 60), Qt::green);
    EXPECT_EQ(wide.pixelColor(middle.width(), middle.height()), QColor(Qt::green));
    EXPECT_NE(wide.pixelColor(middle.width(), 2), QColor(Qt::green));
}

TEST(MediaCardDelegateTest, TheLengthIsInTheLowerRightCorner)
{
    MediaFile media;
    media.frameRate = {30, 1};
    media.frameCount = 900;
    const QSize whole = MediaCardDelegate::PictureSize();
    const QImage painted = PaintedPicture(whole, Qt::white, media);
    const QRect badge = BoundsOfOthers(
        painted.copy(whole.width() / 2, whole.height() / 2, whole.width() / 2 - 2, whole.height() / 2 - 2), Qt::white);
    EXPECT_GT(badge.width(), 20);
    EXPECT_EQ(badge.height(), 18);
    constexpr int marginPx = 7;
    EXPECT_EQ(badge.right() + whole.width() / 2, whole.width() - 1 - marginPx);
    EXPECT_EQ(badge.bottom() + whole.height() / 2, whole.height() - 1 - marginPx);
}

TEST(ExportCardTest, ItsMenuOffersWhatTheStateAllows)
{
    ExportCard card(nullptr);
    card.show();
    using State = ExportItem::State;
    const struct {
        State state;
        QStringList menu;
    } cases[] = {
        {State::Waiting, {QStringLiteral("Cancel")}},
        {State::Running, {QStringLiteral("Cancel")}},
        {State::Done, {QStringLiteral("Show in Folder"), QStringLiteral("Remove from List")}},
        {State::Failed, {QStringLiteral("Retry"), QStringLiteral("Remove from List")}},
        {State::Cancelled, {QStringLiteral("Retry"), QStringLiteral("Remove from List")}},
    };
    for (const auto& example : cases) {
        ExportItem item;
        item.state = example.state;
        card.Show(item);
        EXPECT_EQ(MenuOf(card), example.menu) << static_cast<int>(example.state);
    }
}

TEST(ExportCardTest, ADoneOneSaysHowManyEditsItLacks)
{
    ExportCard card(nullptr);
    ExportItem item;
    item.state = ExportItem::State::Done;
    item.fileBytes = 34LL * 1024 * 1024;
    item.missingEdits = 2;
    item.message = QStringLiteral("The sound ends early.");
    card.Show(item);
    EXPECT_EQ(
        card.findChild<QLabel*>(QStringLiteral("ExportCard_status"))->text(),
        QStringLiteral("Done · 34 MB · 2 of your edits are not in this cut of the video · The sound ends early."));
}

TEST(ExportCardTest, ALongNameEndsWhereTheTextsBelowEnd)
{
    ExportCard card(nullptr);
    ExportItem item;
    item.filePath = QStringLiteral("/videos/%1.mp4").arg(QString(200, QLatin1Char('x')));
    item.state = ExportItem::State::Done;
    card.Show(item);
    card.setFixedWidth(300);
    card.show();
    const auto* const name = card.findChild<QLabel*>(QStringLiteral("ExportCard_name"));
    const auto* const show = card.findChild<QWidget*>(QStringLiteral("ExportCard_show"));
    EXPECT_EQ(name->mapTo(&card, name->contentsRect().topRight()).x(), show->mapTo(&card, show->rect().topRight()).x());
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
