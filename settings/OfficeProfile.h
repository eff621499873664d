#pragma once

#include <string>
#include <string_view>

#include "hostlib/Object.h"
#include "settings/IniFile.h"

namespace settings {

/// Looks values up in the INI file: first in the agent's office section, then in a fixed one.
class OfficeProfile {
 public:
  OfficeProfile(hostlib::Library& library, const IniFile& file);

  /// The value of `officeKey` in the office section; when that is empty, of `fixedKey` in
  /// `fixedSection`; "" when neither is there. Throws what the library throws.
  std::wstring Read(std::wstring_view officeKey, std::wstring_view fixedSection,
                    std::wstring_view fixedKey) const;

  /// Writes into the office section.
  void Write(std::wstring_view key, std::wstring_view value) const;

 private:
  hostlib::Library& library_;
  const IniFile& file_;
};

}  // namespace settings
