// The least that a program with a dialog is: what PTA_QX takes beyond it is its own.
#include "bench/windows/MinimalDialog.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR, int) {
  return ShowMinimalDialog(instance);
}
