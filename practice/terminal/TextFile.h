#pragma once

#include <optional>
#include <string>

namespace practice::terminal {

/// Nothing when there is no such file, or when it cannot be read.
std::optional<std::string> ReadFileBytes(const std::wstring& path);
/// The text of a file in UTF-8.
std::optional<std::wstring> ReadFileText(const std::wstring& path);
/// The text of an INI file: in UTF-16 when it begins with its mark, else in the user's code page.
std::optional<std::wstring> ReadSettingsText(const std::wstring& path);

}  // namespace practice::terminal
