#pragma once

#include "practice/library/IniProfiles.h"

namespace practice {

/// INI files as Windows programs see them: read by the system's profile functions, so in the
/// user's ANSI code page unless the file begins with FF FE.
///
/// Written without them: they drop blank lines and set the other keys anew on some systems, and
/// report success on a read-only file. The bytes besides the key's own line stay.
class WindowsProfiles : public Profiles {
 public:
  WindowsProfiles();

  std::wstring Read(std::wstring_view path, std::wstring_view section,
                    std::wstring_view key) override;
  bool Write(std::wstring_view path, std::wstring_view section, std::wstring_view key,
             std::wstring_view value) override;

 private:
  IniProfiles writer_;
};

}  // namespace practice
