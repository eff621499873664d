#include "bench/windows/MinimalDialog.h"

#include "bench/windows/resource.h"

namespace {

INT_PTR CALLBACK Handle(HWND dialog, UINT message, WPARAM, LPARAM) {
  if (message == WM_CLOSE) EndDialog(dialog, 0);
  return message == WM_INITDIALOG || message == WM_CLOSE ? TRUE : FALSE;
}

}  // namespace

int ShowMinimalDialog(HINSTANCE instance) {
  return static_cast<int>(DialogBoxParamW(instance, L"MINIMAL", nullptr, Handle, 0));
}
