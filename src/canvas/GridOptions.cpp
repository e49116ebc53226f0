#include "canvas/GridOptions.h"

namespace tolva {

std::optional<GridCall> GridCallOnOk(bool oldVisible, int oldInterval, int chosenInterval,
                                     bool showGrid) {
    const bool changed = chosenInterval != oldInterval;
    if (showGrid && (changed || !oldVisible)) return GridCall{chosenInterval, true};
    if (!showGrid && (changed || oldVisible)) return GridCall{chosenInterval, false};
    return std::nullopt;
}

}  // namespace tolva
