#pragma once

#include <string>

#include "platform/Platform.h"

namespace settings {

/// Where the agency's file lies and which of its sections is the agent's.
struct IniFile {
  std::wstring path;
  std::wstring officeSection;  ///< the agent's office ID
};

/// Beside the program.
std::wstring IniPath(const platform::Platform& platform);

}  // namespace settings
