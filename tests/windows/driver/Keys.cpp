#include "tests/windows/driver/Keys.h"

#include <array>

#include "tests/windows/driver/Driver.h"
#include "tests/windows/driver/Input.h"

namespace driver {

namespace {

INPUT KeyInput(WORD key, bool up) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
  return input;
}

void SendKey(HWND window, WORD key, int modifiers) {
  constexpr std::array kModifierKeys = {std::pair{kShift, VK_SHIFT},
                                        std::pair{kControl, VK_CONTROL}, std::pair{kAlt, VK_MENU}};
  std::vector<INPUT> inputs;
  for (const auto& [modifier, held] : kModifierKeys) {
    if ((modifiers & modifier) != 0) inputs.push_back(KeyInput(static_cast<WORD>(held), false));
  }
  inputs.push_back(KeyInput(key, false));
  inputs.push_back(KeyInput(key, true));
  for (const auto& [modifier, held] : kModifierKeys) {
    if ((modifiers & modifier) != 0) inputs.push_back(KeyInput(static_cast<WORD>(held), true));
  }
  if (modifiers == kNone) {
    SendInputs(inputs);
  } else {
    SendInputsAsOne(window, inputs);
  }
}

/// For characters that no key of this keyboard types.
void SendCharacter(wchar_t character) {
  INPUT down = {};
  down.type = INPUT_KEYBOARD;
  down.ki.wScan = character;
  down.ki.dwFlags = KEYEVENTF_UNICODE;
  INPUT up = down;
  up.ki.dwFlags |= KEYEVENTF_KEYUP;
  SendInputs({down, up});
}

}  // namespace

void Type(HWND control, std::wstring_view text) {
  WaitForFocus(control);
  for (const wchar_t character : text) {
    const SHORT key = VkKeyScanW(character);
    if (key == -1) {
      SendCharacter(character);
    } else {
      SendKey(control, LOBYTE(key), HIBYTE(key));
    }
  }
}

void Press(HWND control, WORD key, int modifiers) {
  WaitForFocus(control);
  SendKey(control, key, modifiers);
}

void PressInMenu(HWND window, WORD key) {
  WaitUntil(L"a menu is open", [window] {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info) != FALSE &&
           (info.flags & GUI_INMENUMODE) != 0;
  });
  SendKey(window, key, kNone);
}

void SelectAll(HWND field) {
  Press(field, VK_HOME);
  Press(field, VK_END, kShift);
  WaitUntil(L"the field's text is selected", [field] {
    const LRESULT length = SendMessageW(field, WM_GETTEXTLENGTH, 0, 0);
    return SendMessageW(field, EM_GETSEL, 0, 0) == MAKELONG(0, length);
  });
}

void TypeOver(HWND control, std::wstring_view text) {
  SelectAll(control);
  if (text.empty()) Press(control, VK_DELETE);
  Type(control, text);
}

}  // namespace driver
