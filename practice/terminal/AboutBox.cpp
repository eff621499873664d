#include "practice/terminal/AboutBox.h"

#include <exception>

#include "practice/terminal/Clipboard.h"
#include "practice/terminal/Diagnostics.h"
#include "practice/terminal/Texts.h"
#include "practice/terminal/resources.h"
#include "version.h"

namespace practice::terminal {
namespace {

void Fill(HWND box) {
  const std::wstring version = texts::kAboutName;
  SetWindowTextW(box, texts::kAboutTitle);
  SetDlgItemTextW(box, IDC_ABOUT_VERSION,
                  (version + PTA_VERSION_WIDE_TEXT L"\n" + texts::kAboutPractice).c_str());
  SetDlgItemTextW(box, IDC_COPY_DIAGNOSTICS, texts::kCopyDiagnostics);
}

void CopyDiagnostics(HWND box) {
  PutOnClipboard(box, DiagnosticsText());
  SetDlgItemTextW(box, IDC_COPY_DIAGNOSTICS, texts::kCopied);
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
