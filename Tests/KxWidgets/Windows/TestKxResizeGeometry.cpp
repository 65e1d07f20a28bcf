#include <KxWidgets/Windows/KxResizeGeometry.h>

#include <gtest/gtest.h>

namespace
{

using KxResizeGeometry::EdgesAt;
using KxResizeGeometry::Resized;

const QSize Size(400, 300);
const QSize NoLimit(16777215, 16777215);
constexpr Qt::Edges None{};

TEST(KxResizeGeometryTest, EdgesAreThinAndCornersReachFurther)
{
    EXPECT_EQ(EdgesAt({200, 150}, Size), None);
    EXPECT_EQ(EdgesAt({0, 150}, Size), None | Qt::LeftEdge);
    EXPECT_EQ(EdgesAt({4, 150}, Size), None | Qt::LeftEdge);
    EXPECT_EQ(EdgesAt({5, 150}, Size), None);
    EXPECT_EQ(EdgesAt({399, 150}, Size), None | Qt::RightEdge);
    EXPECT_EQ(EdgesAt({200, 0}, Size), None | Qt::TopEdge);
    EXPECT_EQ(EdgesAt({200, 299}, Size), None | Qt::BottomEdge);
    EXPECT_EQ(EdgesAt({11, 0}, Size), Qt::LeftEdge | Qt::TopEdge);
    EXPECT_EQ(EdgesAt({12, 0}, Size), None | Qt::TopEdge);
    EXPECT_EQ(EdgesAt({399, 290}, Size), Qt::RightEdge | Qt::BottomEdge);
    EXPECT_EQ(EdgesAt({11, 11}, Size), None);
}

TEST(KxResizeGeometryTest, OutsideIsNoEdge)
{
    EXPECT_EQ(EdgesAt({-1, 150}, Size), None);
    EXPECT_EQ(EdgesAt({400, 150}, Size), None);
}

TEST(KxResizeGeometryTest, EveryPointOfAnEdgeLiesInItsArea)
{
    for (int x = 0; x < Size.width(); ++x) {
        for (int y = 0; y < Size.height(); ++y) {
            const Qt::Edges edges = EdgesAt({x, y}, Size);
            if (edges != None) {
                ASSERT_TRUE(KxResizeGeometry::AreaOf(edges, Size).contains(x, y)) << x << ' ' << y;
            }
        }
    }
}

TEST(KxResizeGeometryTest, CursorsPointTheRightWay)
{
    EXPECT_EQ(KxResizeGeometry::CursorFor(Qt::LeftEdge), Qt::SizeHorCursor);
    EXPECT_EQ(KxResizeGeometry::CursorFor(Qt::BottomEdge), Qt::SizeVerCursor);
    EXPECT_EQ(KxResizeGeometry::CursorFor(Qt::LeftEdge | Qt::TopEdge), Qt::SizeFDiagCursor);
    EXPECT_EQ(KxResizeGeometry::CursorFor(Qt::LeftEdge | Qt::BottomEdge), Qt::SizeBDiagCursor);
    EXPECT_EQ(KxResizeGeometry::CursorFor({}), Qt::ArrowCursor);
}

TEST(KxResizeGeometryTest, OnlyTheDraggedEdgesMove)
{
    const QRect start(100, 100, 400, 300);
    EXPECT_EQ(Resized(start, Qt::RightEdge, {10, 99}, {}, NoLimit), QRect(100, 100, 410, 300));
    EXPECT_EQ(Resized(start, Qt::LeftEdge, {10, 99}, {}, NoLimit), QRect(110, 100, 390, 300));
    EXPECT_EQ(Resized(start, Qt::TopEdge | Qt::LeftEdge, {-10, -20}, {}, NoLimit), QRect(90, 80, 410, 320));
    EXPECT_EQ(Resized(start, Qt::BottomEdge, {50, -20}, {}, NoLimit), QRect(100, 100, 400, 280));
}

TEST(KxResizeGeometryTest, AtALimitTheOppositeEdgeDoesNotMove)
{
    const QRect start(100, 100, 400, 300);
    EXPECT_EQ(Resized(start, Qt::LeftEdge, {390, 0}, {200, 100}, NoLimit), QRect(300, 100, 200, 300));
    EXPECT_EQ(Resized(start, Qt::TopEdge, {0, 290}, {200, 100}, NoLimit), QRect(100, 300, 400, 100));
    EXPECT_EQ(Resized(start, Qt::RightEdge, {900, 0}, {200, 100}, {600, 600}), QRect(100, 100, 600, 300));
}

} // namespace
