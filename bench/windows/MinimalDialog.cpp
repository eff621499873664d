// The least that a program with a dialog is: what PTA_QX takes beyond it is its own.
#include <windows.h>

#include "bench/windows/resource.h"

namespace {

INT_PTR CALLBACK Handle(HWND dialog, UINT message, WPARAM, LPARAM) {
  if (message == WM_CLOSE) EndDialog(dialog, 0);
  return message == WM_INITDIALOG || message == WM_CLOSE ? TRUE : FALSE;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR, int) {
  return static_cast<int>(DialogBoxParamW(instance, L"MINIMAL", nullptr, Handle, 0));
}
