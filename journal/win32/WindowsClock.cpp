#include "journal/win32/WindowsClock.h"

#include <windows.h>

namespace journal {

Moment WindowsClock::Now() const {
  using namespace std::chrono;
  SYSTEMTIME now = {};
  GetLocalTime(&now);
  return {year(now.wYear) / month(now.wMonth) / day(now.wDay),
          hours(now.wHour) + minutes(now.wMinute) + seconds(now.wSecond) +
              milliseconds(now.wMilliseconds)};
}

std::chrono::milliseconds WindowsClock::Ticks() const {
  return std::chrono::duration_cast<std::chrono::milliseconds>(
      std::chrono::steady_clock::now().time_since_epoch());
}

}  // namespace journal
