#pragma once

#include <Tests/Support/MadeVideo.h>

#include <QImage>
#include <QPainter>
#include <QRectF>

/// A video of two things: one stands still at the left, the other one moves to the right, so that the analysis follows
/// that one.
namespace TwoThings
{

constexpr QSize Size(320, 180);
/// The one that stands still, in fractions of the picture.
constexpr QRectF Still(30.0 / Size.width(), 70.0 / Size.height(), 40.0 / Size.width(), 40.0 / Size.height());

inline MadeVideo::Recipe Recipe(int frames)
{
    MadeVideo::Recipe recipe;
    recipe.size = Size;
    recipe.frames = frames;
    recipe.draw = [](int number) {
        // Converting it would be done by threads of Qt, which ThreadSanitizer takes for races.
        QImage image(Size, QImage::Format_RGB888);
        image.fill(QColor(90, 90, 90));
        QPainter painter(&image);
        painter.fillRect(30, 70, 40, 40, QBrush(Qt::white, Qt::DiagCrossPattern));
        painter.fillRect(150 + 2 * number, 70, 36, 36, QBrush(Qt::yellow, Qt::Dense4Pattern));
        return image;
    };
    return recipe;
}

} // namespace TwoThings
