#pragma once
// The fixture of the canvas tests: the screen of ScreenFixture.h with the
// main window's grid (interval 55, spacing 106) on show, and the mouse as
// the canvas widget hands it on: presses, moves and releases in screen
// units, on the bare canvas, on an object (relative to it) and on a node
// (relative to the node).
#include <string>

#include "canvas/SelectionNodes.h"
#include "screen/ScreenFixture.h"

namespace tolva::testing {

class CanvasTest : public ScreenTest {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        screen.SetGrid(55, true);
        ClearRecords();
    }

    // Grid point i across or down: 200 + 106 i.
    static double G(int i) { return 200 + 106.0 * i; }

    // The main window's answers: a new object is selected and drawing on
    // objects ends; a changed one is selected again.
    void ActLikeTheMainWindow() {
        events.onEvent = [this](const std::string& line) {
            const auto space = line.find(' ');
            const auto comma = line.rfind(',');
            const std::string what = line.substr(0, space);
            if (what != "Created" && what != "Changed") return;
            const std::string name = line.substr(space + 1, comma - space - 1);
            const int objectType = std::stoi(line.substr(comma + 1));
            if (what == "Created") screen.AllowDrawingOnObjects(false);
            screen.SelectObject(objectType, name);
        };
    }

    // The toolbar's arming of a tool, and "Pointer".
    void Arm(int objectType) {
        screen.CreateObjectType(objectType);
        screen.AllowDrawing(true);
        screen.AllowDrawingOnObjects(objectType != type::Form);
    }
    void Pointer() {
        screen.CreateObjectType(type::None);
        screen.AllowDrawing(false);
        screen.AllowDrawingOnObjects(false);
    }

    // Press, move, release on the bare canvas.
    void DragOnCanvas(double x1, double y1, double x2, double y2) {
        screen.CanvasMouseDown(1, 0, x1, y1);
        screen.CanvasMouseMove(1, 0, x2, y2);
        screen.CanvasMouseUp(1, 0, x2, y2);
    }

    // A form over the grid points 0 to 50 both ways, drawn with the mouse.
    KomaObject* DrawFormWithTheMouse() {
        Arm(type::Form);
        DragOnCanvas(G(0), G(0), G(50), G(50));
        return Form(screen.NumForms());
    }

    // Press on an object at a point relative to it, given in canvas units,
    // then moves the mouse by dx, dy on the canvas and releases there. The
    // object's events come relative to its place at each moment.
    void DragObject(KomaObject& object, double canvasX, double canvasY, double dx, double dy) {
        object.MouseDown(1, 0, canvasX - object.Left(), canvasY - object.Top());
        object.MouseMove(1, 0, canvasX + dx - object.Left(), canvasY + dy - object.Top());
        object.MouseUp(1, 0, canvasX + dx - object.Left(), canvasY + dy - object.Top());
    }

    const ShownRect& Node(int nodeNumber) { return screen.Canvas().nodes[nodeNumber]; }

    // Press on the middle of a node, move the mouse to a canvas point, release.
    void PressNode(int nodeNumber) {
        screen.NodeMouseDown(nodeNumber, 1, 0, 67.5, 67.5);
    }
    void MoveNodeTo(int nodeNumber, double canvasX, double canvasY) {
        const CanvasRect at = Node(nodeNumber).rect;
        screen.NodeMouseMove(nodeNumber, 1, 0, canvasX - at.left, canvasY - at.top);
    }
    void ReleaseNode(int nodeNumber, double canvasX, double canvasY) {
        const CanvasRect at = Node(nodeNumber).rect;
        screen.NodeMouseUp(nodeNumber, 1, 0, canvasX - at.left, canvasY - at.top);
    }
    void DragNode(int nodeNumber, double canvasX, double canvasY) {
        PressNode(nodeNumber);
        MoveNodeTo(nodeNumber, canvasX, canvasY);
        ReleaseNode(nodeNumber, canvasX, canvasY);
    }

    int VisibleNodes() {
        int count = 0;
        for (const auto& n : screen.Canvas().nodes) count += n.visible ? 1 : 0;
        return count;
    }
};

}  // namespace tolva::testing
