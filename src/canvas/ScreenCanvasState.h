#pragma once
// What the design screen shows besides its objects: the grid, the selection
// nodes, the rubber band and the editor line, and the grab point of an
// object being moved. The screen keeps one of these; the canvas widget
// paints from it.
#include "canvas/Grid.h"
#include "canvas/RubberBand.h"
#include "canvas/SelectionNodes.h"

namespace tolva {

struct ScreenCanvasState {
    // The grid: the flag of the last SetGrid, the interval (cells across the
    // device area), the spacing of two grid points in screen units, and the
    // dots on show.
    bool gridVisible = false;
    int gridInterval = 55;
    int gridSpacing = 1;
    GridDots dots;

    NodeRects nodes;

    BandBars bars{};
    bool barsVisible = false;
    EditorLine editorLine;

    // Mouse point of the press on an object being moved, relative to it.
    int grabX = 0;
    int grabY = 0;
};

}  // namespace tolva
