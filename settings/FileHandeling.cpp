#include "settings/FileHandeling.h"

namespace settings {
namespace {

constexpr std::wstring_view kFileName = L"PTA_QX.ini";

std::wstring InFolder(std::wstring folder, std::wstring_view name) {
  // The root of a drive already ends in a backslash.
  if (!folder.ends_with(L'\\')) folder += L'\\';
  return folder.append(name);
}

}  // namespace

FileHandeling::FileHandeling(const platform::Platform& platform, errors::ErrorHandler& errors,
                             IniFile& file, OfficeIdentification& office)
    : platform_(platform), errors_(errors), file_(file), office_(office) {}

void FileHandeling::LocateIniFile() {
  errors_.Run(errors::procedures::kLocateIniFile, [&] {
    file_.path = InFolder(platform_.ProgramFolder(), kFileName);
    if (!platform_.FileExists(file_.path)) errors_.Report(errors::procedures::kIniFileMissing);
    office_.IdentifyOffice();
  });
}

}  // namespace settings
