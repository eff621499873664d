#include "settings/FileHandeling.h"

namespace settings {

FileHandeling::FileHandeling(const platform::Platform& platform, errors::ErrorHandler& errors,
                             IniFile& file, OfficeIdentification& office)
    : platform_(platform), errors_(errors), file_(file), office_(office) {}

void FileHandeling::LocateIniFile() {
  errors_.Run(errors::procedures::kLocateIniFile, [&] {
    file_.path = IniPath(platform_);
    if (!platform_.FileExists(file_.path)) errors_.Report(errors::procedures::kIniFileMissing);
    office_.IdentifyOffice();
  });
}

}  // namespace settings
