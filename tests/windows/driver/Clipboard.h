#pragma once

#include <functional>
#include <string>

namespace driver {

/// As a person copies from somewhere else.
void PutOnClipboard(const std::wstring& text);
/// Waits until what `copies` sets going has put this text there. Looks only when something has
/// come: whoever has the clipboard open keeps others from copying.
void WaitForCopied(const std::wstring& text, const std::function<void()>& copies);

}  // namespace driver
