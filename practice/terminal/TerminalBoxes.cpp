#include "practice/terminal/TerminalBoxes.h"

#include <windows.h>

#include "common/ConstDefintions.h"
#include "common/LineFeeds.h"

namespace practice::terminal {

int TerminalBoxes::ShowBox(std::wstring_view text, int style, std::wstring_view title) {
  const std::wstring lines = common::WithLineFeeds(text);
  // Another program is in front, and may not be left waiting for a box that nobody sees.
  const int answer = MessageBoxW(nullptr, lines.c_str(), std::wstring(title).c_str(),
                                 static_cast<UINT>(style) | MB_SETFOREGROUND | MB_TOPMOST);
  return answer == IDCANCEL ? common::kCancel : common::kOk;
}

}  // namespace practice::terminal
