#include "practice/terminal/AboutBox.h"

#include <exception>

#include "practice/terminal/Clipboard.h"
#include "practice/terminal/Diagnostics.h"
#include "practice/terminal/resources.h"
#include "version.h"

namespace practice::terminal {
namespace {

void Fill(HWND box) {
  SetWindowTextW(box, kAboutTitle);
  SetDlgItemTextW(
      box, IDC_ABOUT_VERSION,
      L"Vantel practice "
      L"terminal " PTA_VERSION_WIDE_TEXT L"\nFor practice only: there is no real host behind it.");
}

void CopyDiagnostics(HWND box) {
  PutOnClipboard(box, DiagnosticsText());
  SetDlgItemTextW(box, IDC_COPY_DIAGNOSTICS, L"Copied");
}

INT_PTR CALLBACK Receive(HWND box, UINT message, WPARAM wide, LPARAM) noexcept {
  if (message == WM_INITDIALOG) {
    Fill(box);
    return TRUE;
  }
  if (message != WM_COMMAND) return FALSE;
  if (LOWORD(wide) == IDOK || LOWORD(wide) == IDCANCEL) EndDialog(box, IDOK);
  if (LOWORD(wide) == IDC_COPY_DIAGNOSTICS) {
    try {
      CopyDiagnostics(box);
    } catch (const std::exception&) {
      // Nothing to copy it with: the button goes on saying what it said.
      MessageBeep(MB_ICONERROR);
    }
  }
  return TRUE;
}

}  // namespace

void ShowAbout(HWND owner) {
  DialogBoxW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_ABOUT), owner, Receive);
}

}  // namespace practice::terminal
