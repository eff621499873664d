#include "bench/windows/MinimalDialog.h"

namespace {

INT_PTR CALLBACK Handle(HWND dialog, UINT message, WPARAM, LPARAM) {
  if (message == WM_CLOSE) EndDialog(dialog, 0);
  return message == WM_INITDIALOG || message == WM_CLOSE ? TRUE : FALSE;
}

}  // namespace

int ShowMinimalDialog(HINSTANCE instance, const wchar_t* dialog) {
  return static_cast<int>(DialogBoxParamW(instance, dialog, nullptr, Handle, 0));
}
