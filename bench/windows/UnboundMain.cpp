// A minimal program with the window of the program's own dialog, into which nothing is put. What it
// takes beyond the one with a window of its own is what Windows takes for the dialog's controls.
#include "bench/windows/MinimalDialog.h"
#include "ui/win32/CommonControls.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR, int) {
  const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_STANDARD_CLASSES | ICC_BAR_CLASSES};
  InitCommonControlsEx(&classes);
  return ShowMinimalDialog(instance, L"FRMPTA");
}
