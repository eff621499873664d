#pragma once

#include <string_view>

namespace ui {

/// The number that a control of this name has in its form's dialog template; 0 when it has none.
int ControlId(std::wstring_view name);

}  // namespace ui
