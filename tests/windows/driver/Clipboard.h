#pragma once

#include <string>

namespace driver {

/// As a person copies from somewhere else.
void PutOnClipboard(const std::wstring& text);
/// "" when there is no text on it, or another program has it open.
std::wstring TextOnClipboard();

}  // namespace driver
