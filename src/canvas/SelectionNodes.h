#pragma once
// The ten selection nodes: eight round a box, two at the ends of a line.
// Their places round an object, the band a press on each of them starts
// and the cursor over each.
#include <array>
#include <cstdint>

#include "canvas/CanvasRect.h"
#include "document/Host.h"

namespace tolva {

namespace node {
inline constexpr int TopLeft = 0;
inline constexpr int TopCenter = 1;
inline constexpr int TopRight = 2;
inline constexpr int CenterLeft = 3;
inline constexpr int CenterRight = 4;
inline constexpr int BottomLeft = 5;
inline constexpr int BottomCenter = 6;
inline constexpr int BottomRight = 7;
inline constexpr int Line1 = 8;
inline constexpr int Line2 = 9;
inline constexpr int Count = 10;
}  // namespace node

// A node is a square of 135 screen units, blue (stored value 0xC00000).
inline constexpr int kNodeSize = 135;
inline constexpr uint32_t kNodeColor = 0xC00000;

using NodeRects = std::array<ShownRect, node::Count>;

// "picNodeTopLeft" ... "picNodeLine2"; empty for a number out of range.
const char* NodeName(int nodeNumber);
bool IsLineNode(int nodeNumber);
bool IsBoxNode(int nodeNumber);

// The cursor over the node: north-west to south-east for the top left and
// bottom right, north to south for the top and bottom centre, north-east to
// south-west for the top right, the bottom left and both line nodes, west
// to east for the two side nodes.
CursorShape NodeCursor(int nodeNumber);

// Which coordinates of the moving corner follow the mouse while the node is
// dragged.
struct NodeFollows {
    bool x = false;
    bool y = false;
};
NodeFollows NodeFollowsMouse(int nodeNumber);

// Puts the eight box nodes outside the box L, T, W, H; the line nodes keep
// their places.
void PlaceBoxNodes(NodeRects& nodes, double left, double top, double width, double height);
// Puts the two line nodes on the ends of a line crossing the box: from the
// bottom left to the top right with a positive slope, from the top left to
// the bottom right otherwise. The eight box nodes keep their places.
void PlaceLineNodes(NodeRects& nodes, double left, double top, double width, double height,
                    bool positiveSlope);

// The band a press on the node starts: X1, Y1 the fixed corner, X2, Y2 the
// moving one, from the selected object's L, T, W, H. A line node's band is
// offset by half a node (rounded half to even) and depends on whether the
// line runs downward to the right, which is when line node 1 stands higher
// than line node 2.
struct BandCorners {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
};
BandCorners NodeDragBand(int nodeNumber, const NodeRects& nodes, double left, double top,
                         double width, double height);

}  // namespace tolva
