#pragma once
// The pictures of the toolbar's tools and of the delete button, drawn in code
// so that they stay sharp at any scale.
#include <QIcon>

namespace tolva {

// The logical size of a tool picture, in pixels.
inline constexpr int kToolIconSize = 20;
// The logical size of the delete button's picture.
inline constexpr int kDeleteIconSize = 13;

// The picture of tool index 1 to 17 (a blank one for any other index).
QIcon ToolIcon(int index);

// The delete button's picture: a red cross.
QIcon DeleteIcon();

}  // namespace tolva
