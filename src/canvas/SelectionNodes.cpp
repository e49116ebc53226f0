#include "canvas/SelectionNodes.h"

#include "document/Numbers.h"

namespace tolva {

namespace {

constexpr const char* kNodeNames[node::Count] = {
    "picNodeTopLeft",    "picNodeTopCenter",    "picNodeTopRight",   "picNodeCenterLeft",
    "picNodeCenterRight", "picNodeBottomLeft",  "picNodeBottomCenter", "picNodeBottomRight",
    "picNodeLine1",      "picNodeLine2"};

void Put(NodeRects& nodes, int nodeNumber, double left, double top) {
    nodes[nodeNumber].rect = {left, top, static_cast<double>(kNodeSize),
                              static_cast<double>(kNodeSize)};
}

}  // namespace

const char* NodeName(int nodeNumber) {
    if (nodeNumber < 0 || nodeNumber >= node::Count) return "";
    return kNodeNames[nodeNumber];
}

bool IsLineNode(int nodeNumber) { return nodeNumber == node::Line1 || nodeNumber == node::Line2; }

bool IsBoxNode(int nodeNumber) { return nodeNumber >= 0 && nodeNumber < node::Line1; }

CursorShape NodeCursor(int nodeNumber) {
    switch (nodeNumber) {
        case node::TopLeft:
        case node::BottomRight: return CursorShape::SizeNWSE;
        case node::TopCenter:
        case node::BottomCenter: return CursorShape::SizeNS;
        case node::CenterLeft:
        case node::CenterRight: return CursorShape::SizeWE;
        case node::TopRight:
        case node::BottomLeft:
        case node::Line1:
        case node::Line2: return CursorShape::SizeNESW;
        default: return CursorShape::Arrow;
    }
}

NodeFollows NodeFollowsMouse(int nodeNumber) {
    switch (nodeNumber) {
        case node::TopCenter:
        case node::BottomCenter: return {false, true};
        case node::CenterLeft:
        case node::CenterRight: return {true, false};
        default: return {true, true};
    }
}

void PlaceBoxNodes(NodeRects& nodes, double l, double t, double w, double h) {
    // The node's width as a whole number; half of it keeps its fraction.
    const double s = kNodeSize;
    Put(nodes, node::TopLeft, l - s, t - s);
    Put(nodes, node::TopCenter, l + w / 2 - s / 2, t - s);
    Put(nodes, node::TopRight, l + w, t - s);
    Put(nodes, node::BottomLeft, l - s, t + h);
    Put(nodes, node::BottomCenter, l + w / 2 - s / 2, t + h);
    Put(nodes, node::BottomRight, l + w, t + h);
    Put(nodes, node::CenterLeft, l - s, t + h / 2 - s / 2);
    Put(nodes, node::CenterRight, l + w, t + h / 2 - s / 2);
}

void PlaceLineNodes(NodeRects& nodes, double l, double t, double w, double h,
                    bool positiveSlope) {
    const double s = kNodeSize;
    if (positiveSlope) {
        Put(nodes, node::Line1, l - s / 2, t + h - s / 2);
        Put(nodes, node::Line2, l + w - s / 2, t - s / 2);
    } else {
        Put(nodes, node::Line1, l - s / 2, t - s / 2);
        Put(nodes, node::Line2, l + w - s / 2, t + h - s / 2);
    }
}

BandCorners NodeDragBand(int nodeNumber, const NodeRects& nodes, double l, double t, double w,
                         double h) {
    // Half the node's width and height, rounded half to even.
    const double hh = RoundHalfEven(kNodeSize / 2.0);
    const double vv = RoundHalfEven(kNodeSize / 2.0);
    const bool downward = nodes[node::Line1].rect.top < nodes[node::Line2].rect.top;
    switch (nodeNumber) {
        case node::TopLeft:
        case node::TopCenter:
        case node::CenterLeft: return {l + w, t + h, l, t};
        case node::TopRight: return {l, t + h, l + w, t};
        case node::CenterRight:
        case node::BottomCenter:
        case node::BottomRight: return {l, t, l + w, t + h};
        case node::BottomLeft: return {l + w, t, l, t + h};
        case node::Line1:
            if (downward) return {l + w - hh, t + h - vv, l - hh, t - vv};
            return {l + w - hh, t - vv, l - hh, t + h - vv};
        case node::Line2:
            if (downward) return {l - hh, t - vv, l + w - hh, t + h - vv};
            return {l - hh, t + h - vv, l + w - hh, t - vv};
        default: return {};
    }
}

}  // namespace tolva
