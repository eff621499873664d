#include "settings/IniFile.h"

namespace settings {
namespace {

constexpr std::wstring_view kFileName = L"PTA_QX.ini";

}  // namespace

std::wstring IniPath(const platform::Platform& platform) {
  std::wstring path = platform.ProgramFolder();
  // The root of a drive already ends in a backslash.
  if (!path.ends_with(L'\\')) path += L'\\';
  return path.append(kFileName);
}

}  // namespace settings
