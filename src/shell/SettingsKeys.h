#pragma once
// Where the main window keeps its settings between runs.
namespace tolva {

inline constexpr const char* kSettingsApplication = "TolvaDesigner";
inline constexpr const char* kSettingsSection = "Settings";

}  // namespace tolva
