#include "journal/JournalSwitch.h"

#include "common/Text.h"
#include "settings/IniFile.h"

namespace journal {

bool IsWanted(const platform::Platform& platform) {
  const std::wstring value =
      platform.IniValue(settings::IniPath(platform), L"Settings", L"Journal");
  return common::UpperCase(common::Trim(value)) != L"NO";
}

}  // namespace journal
