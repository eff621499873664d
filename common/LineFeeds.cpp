#include "common/LineFeeds.h"

#include "common/Text.h"

namespace common {

std::wstring WithLineFeeds(std::wstring_view text) {
  return Replace(Replace(text, L"\r\n", L"\n"), L"\r", L"\n");
}

}  // namespace common
