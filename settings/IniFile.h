#pragma once

#include <string>

namespace settings {

/// Where the agency's file lies and which of its sections is the agent's.
struct IniFile {
  std::wstring path;
  std::wstring officeSection;  ///< the agent's office ID
};

}  // namespace settings
