#include "bench/Workplace.h"

namespace bench {

std::wstring OneIniFile::Read(std::wstring_view, std::wstring_view section, std::wstring_view key) {
  return ini_.Read(section, key);
}

bool OneIniFile::Write(std::wstring_view, std::wstring_view section, std::wstring_view key,
                       std::wstring_view value) {
  ini_.Write(section, key, value);
  return true;
}

Workplace::Workplace(const Booking& booking)
    : chosen(booking.chosen),
      agent(chosen),
      ini_(booking.ini),
      library_({host, platform, ini_, userValues_, agent}) {
  host.LoadBooking(booking.entries);
  platform.files.insert(platform.folder + L"\\PTA_QX.ini");
  userValues_.Save(L"PTAStartup", L"Values", L"OfficeID", L"ARNAG2100");
  userValues_.Save(L"PTAStartup", L"Values", L"Date", platform.ShortDateText(platform.today));
}

Workplace::Workplace(const Workplace& other)
    : chosen(other.chosen),
      host(other.host),
      platform(other.platform),
      agent(chosen),
      ini_(other.ini_),
      userValues_(other.userValues_),
      library_({host, platform, ini_, userValues_, agent}) {}

}  // namespace bench
