#pragma once

#include <string>
#include <string_view>

namespace practice::terminal {

/// An INI file's text as it may be handed to a stranger: sections and keys as they are, of every
/// value its shape alone. "Yes" and "No" are no secret and stay.
std::wstring MaskedSettings(std::wstring_view text);

}  // namespace practice::terminal
