#pragma once

#include <string>

namespace platform {

/// A value of an INI file by the system's profile functions; "" when it is not there. They look for
/// a relative path in the Windows folder.
std::wstring ReadProfileValue(const std::wstring& path, const std::wstring& section,
                              const std::wstring& key);

}  // namespace platform
