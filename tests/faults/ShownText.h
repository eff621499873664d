#pragma once

#include <string_view>

namespace faults {

/// Whether the journal's lines are this text, as far as they show it: "<payment>" stands for
/// something, "<payment 1234>" for something with these digits in it, "*" for a digit or for
/// itself, the replacement character for what cannot be printed; everything else for itself. Lines
/// end with "\n".
bool IsShown(std::wstring_view lines, std::wstring_view text);

}  // namespace faults
