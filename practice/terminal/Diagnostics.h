#pragma once

#include <string>

namespace practice::terminal {

/// What a help desk asks for first, as text: versions, places, the settings with their values
/// masked, and the end of the newest journal.
std::wstring DiagnosticsText();

}  // namespace practice::terminal
