#include "settings/OfficeProfile.h"

#include "hostlib/Requests.h"

namespace settings {

OfficeProfile::OfficeProfile(hostlib::Library& library, const IniFile& file)
    : library_(library), file_(file) {}

std::wstring OfficeProfile::Read(std::wstring_view officeKey, std::wstring_view fixedSection,
                                 std::wstring_view fixedKey) const {
  hostlib::ProfileStore store(library_);
  std::wstring value = store.ReadValue(file_.path, file_.officeSection, officeKey);
  if (value.empty()) value = store.ReadValue(file_.path, fixedSection, fixedKey);
  return value;
}

void OfficeProfile::Write(std::wstring_view key, std::wstring_view value) const {
  hostlib::ProfileStore(library_).WriteValue(file_.path, file_.officeSection, key, value);
}

}  // namespace settings
