#pragma once
// What OK of the options window does to the grid: given the grid as the
// window found it and the interval and tick chosen, the call of SetGrid to
// make, or none.
#include <optional>

namespace tolva {

struct GridCall {
    int interval = 0;
    bool visible = false;
    bool operator==(const GridCall&) const = default;
};

// Ticked: SetGrid(V, true) when V differs from the old interval or the grid
// was hidden. Not ticked: SetGrid(V, false) when V differs or the grid was
// shown. Otherwise nothing. An old interval of 0 (the window's list did not
// hold the current one) counts as different from every choice.
std::optional<GridCall> GridCallOnOk(bool oldVisible, int oldInterval, int chosenInterval,
                                     bool showGrid);

}  // namespace tolva
