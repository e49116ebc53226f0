// The selection nodes: places, the band of a press, cursors.
#include "canvas/SelectionNodes.h"

#include <gtest/gtest.h>

#include <string>

namespace tolva {
namespace {

constexpr double L = 1000, T = 2000, W = 600, H = 300;

CanvasRect At(double left, double top) { return {left, top, 135, 135}; }

TEST(SelectionNodes, NamesInOrder) {
    EXPECT_STREQ(NodeName(node::TopLeft), "picNodeTopLeft");
    EXPECT_STREQ(NodeName(node::TopCenter), "picNodeTopCenter");
    EXPECT_STREQ(NodeName(node::TopRight), "picNodeTopRight");
    EXPECT_STREQ(NodeName(node::CenterLeft), "picNodeCenterLeft");
    EXPECT_STREQ(NodeName(node::CenterRight), "picNodeCenterRight");
    EXPECT_STREQ(NodeName(node::BottomLeft), "picNodeBottomLeft");
    EXPECT_STREQ(NodeName(node::BottomCenter), "picNodeBottomCenter");
    EXPECT_STREQ(NodeName(node::BottomRight), "picNodeBottomRight");
    EXPECT_STREQ(NodeName(node::Line1), "picNodeLine1");
    EXPECT_STREQ(NodeName(node::Line2), "picNodeLine2");
    EXPECT_STREQ(NodeName(10), "");
    EXPECT_STREQ(NodeName(-1), "");
}

TEST(SelectionNodes, EightNodesStandOutsideTheBox) {
    NodeRects nodes{};
    PlaceBoxNodes(nodes, L, T, W, H);
    EXPECT_EQ(nodes[node::TopLeft].rect, At(865, 1865));
    EXPECT_EQ(nodes[node::TopCenter].rect, At(1232.5, 1865));
    EXPECT_EQ(nodes[node::TopRight].rect, At(1600, 1865));
    EXPECT_EQ(nodes[node::BottomLeft].rect, At(865, 2300));
    EXPECT_EQ(nodes[node::BottomCenter].rect, At(1232.5, 2300));
    EXPECT_EQ(nodes[node::BottomRight].rect, At(1600, 2300));
    EXPECT_EQ(nodes[node::CenterLeft].rect, At(865, 2082.5));
    EXPECT_EQ(nodes[node::CenterRight].rect, At(1600, 2082.5));
    // The line nodes are not touched.
    EXPECT_EQ(nodes[node::Line1].rect, CanvasRect{});
}

TEST(SelectionNodes, LineNodesSitOnTheEndsOfTheLine) {
    NodeRects nodes{};
    PlaceLineNodes(nodes, L, T, W, H, true);
    EXPECT_EQ(nodes[node::Line1].rect, At(932.5, 2232.5));  // bottom left
    EXPECT_EQ(nodes[node::Line2].rect, At(1532.5, 1932.5));  // top right
    PlaceLineNodes(nodes, L, T, W, H, false);
    EXPECT_EQ(nodes[node::Line1].rect, At(932.5, 1932.5));  // top left
    EXPECT_EQ(nodes[node::Line2].rect, At(1532.5, 2232.5));  // bottom right
    EXPECT_EQ(nodes[node::TopLeft].rect, CanvasRect{});
}

TEST(SelectionNodes, BandOfTheEightNodes) {
    NodeRects nodes{};
    auto band = [&](int n) {
        const BandCorners b = NodeDragBand(n, nodes, L, T, W, H);
        return std::to_string(int(b.x1)) + "," + std::to_string(int(b.y1)) + " " +
               std::to_string(int(b.x2)) + "," + std::to_string(int(b.y2));
    };
    EXPECT_EQ(band(node::TopLeft), "1600,2300 1000,2000");
    EXPECT_EQ(band(node::TopCenter), "1600,2300 1000,2000");
    EXPECT_EQ(band(node::TopRight), "1000,2300 1600,2000");
    EXPECT_EQ(band(node::CenterLeft), "1600,2300 1000,2000");
    EXPECT_EQ(band(node::CenterRight), "1000,2000 1600,2300");
    EXPECT_EQ(band(node::BottomLeft), "1600,2000 1000,2300");
    EXPECT_EQ(band(node::BottomCenter), "1000,2000 1600,2300");
    EXPECT_EQ(band(node::BottomRight), "1000,2000 1600,2300");
}

TEST(SelectionNodes, BandOfTheLineNodesKeepsHalfANodeOffset) {
    // Half of 135 is 67.5, rounded half to even to 68.
    NodeRects nodes{};
    PlaceLineNodes(nodes, L, T, W, H, false);  // runs downward to the right
    BandCorners b = NodeDragBand(node::Line1, nodes, L, T, W, H);
    EXPECT_EQ(b.x1, 1532);
    EXPECT_EQ(b.y1, 2232);
    EXPECT_EQ(b.x2, 932);
    EXPECT_EQ(b.y2, 1932);
    b = NodeDragBand(node::Line2, nodes, L, T, W, H);
    EXPECT_EQ(b.x1, 932);
    EXPECT_EQ(b.y1, 1932);
    EXPECT_EQ(b.x2, 1532);
    EXPECT_EQ(b.y2, 2232);

    PlaceLineNodes(nodes, L, T, W, H, true);  // rises to the right
    b = NodeDragBand(node::Line1, nodes, L, T, W, H);
    EXPECT_EQ(b.x1, 1532);
    EXPECT_EQ(b.y1, 1932);
    EXPECT_EQ(b.x2, 932);
    EXPECT_EQ(b.y2, 2232);
    b = NodeDragBand(node::Line2, nodes, L, T, W, H);
    EXPECT_EQ(b.x1, 932);
    EXPECT_EQ(b.y1, 2232);
    EXPECT_EQ(b.x2, 1532);
    EXPECT_EQ(b.y2, 1932);
}

TEST(SelectionNodes, CursorsAndFollowedCoordinates) {
    EXPECT_EQ(NodeCursor(node::TopLeft), CursorShape::SizeNWSE);
    EXPECT_EQ(NodeCursor(node::BottomRight), CursorShape::SizeNWSE);
    EXPECT_EQ(NodeCursor(node::TopCenter), CursorShape::SizeNS);
    EXPECT_EQ(NodeCursor(node::BottomCenter), CursorShape::SizeNS);
    EXPECT_EQ(NodeCursor(node::TopRight), CursorShape::SizeNESW);
    EXPECT_EQ(NodeCursor(node::BottomLeft), CursorShape::SizeNESW);
    EXPECT_EQ(NodeCursor(node::CenterLeft), CursorShape::SizeWE);
    EXPECT_EQ(NodeCursor(node::CenterRight), CursorShape::SizeWE);
    EXPECT_EQ(NodeCursor(node::Line1), CursorShape::SizeNESW);
    EXPECT_EQ(NodeCursor(node::Line2), CursorShape::SizeNESW);

    EXPECT_FALSE(NodeFollowsMouse(node::TopCenter).x);
    EXPECT_TRUE(NodeFollowsMouse(node::TopCenter).y);
    EXPECT_TRUE(NodeFollowsMouse(node::CenterRight).x);
    EXPECT_FALSE(NodeFollowsMouse(node::CenterRight).y);
    EXPECT_TRUE(NodeFollowsMouse(node::TopRight).x);
    EXPECT_TRUE(NodeFollowsMouse(node::TopRight).y);
    EXPECT_TRUE(NodeFollowsMouse(node::Line2).x);
    EXPECT_TRUE(NodeFollowsMouse(node::Line2).y);
}

}  // namespace
}  // namespace tolva
