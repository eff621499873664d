#pragma once

#include <string_view>

namespace ui {

/// How a control explains itself: one line while it has the focus, a box when F1 is pressed on it.
/// Wording, spelling and trailing blanks are part of the help desk's manual and stay as they are.
struct HelpDefinition {
  std::wstring_view control;
  std::wstring_view status;
  std::wstring_view f1;  ///< empty: F1 does nothing
};

/// Null when the control of that name has no help.
const HelpDefinition* FindHelp(std::wstring_view control);

/// Follows the status text when an edit leaves the field with the focus incomplete.
inline constexpr std::wstring_view kIncompleteMark = L" (incomplete)";
/// Leads the list of the incomplete fields, where the control with the focus has no help.
inline constexpr std::wstring_view kIncompleteList = L"Incomplete: ";

}  // namespace ui
