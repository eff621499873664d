#include "practice/terminal/TerminalBoxes.h"

#include <windows.h>

#include "common/ConstDefintions.h"
#include "common/Text.h"

namespace practice::terminal {

int TerminalBoxes::ShowBox(std::wstring_view text, int style, std::wstring_view title) {
  const std::wstring lines = common::Replace(common::Replace(text, L"\r\n", L"\n"), L"\r", L"\n");
  // Another program is in front, and may not be left waiting for a box that nobody sees.
  const int answer = MessageBoxW(nullptr, lines.c_str(), std::wstring(title).c_str(),
                                 static_cast<UINT>(style) | MB_SETFOREGROUND | MB_TOPMOST);
  return answer == IDCANCEL ? common::kCancel : common::kOk;
}

}  // namespace practice::terminal
