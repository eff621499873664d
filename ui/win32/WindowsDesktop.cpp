#include "ui/win32/WindowsDesktop.h"

#include <algorithm>

#include "common/ConstDefintions.h"
#include "common/LineFeeds.h"
#include "ui/win32/CommonControls.h"

namespace ui {

namespace {

/// A modal form never outlives its ShowModal, however that ends.
class HiddenAtEnd {
 public:
  explicit HiddenAtEnd(Form& form) : form_(form) {}
  ~HiddenAtEnd() { form_.Hide(); }
  HiddenAtEnd(const HiddenAtEnd&) = delete;
  HiddenAtEnd& operator=(const HiddenAtEnd&) = delete;

 private:
  Form& form_;
};

}  // namespace

WindowsDesktop::WindowsDesktop(HINSTANCE instance, std::wstring_view defaultTitle)
    : instance_(instance),
      defaultTitle_(defaultTitle),
      shell_{guard_, input()},
      loop_(shell_, windows_) {
  const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_STANDARD_CLASSES | ICC_BAR_CLASSES};
  InitCommonControlsEx(&classes);
}

WindowsDesktop::~WindowsDesktop() = default;

void WindowsDesktop::Show(Form& form) {
  if (!form.Load()) return;
  FormWindow* window = Find(form);
  if (window == nullptr) window = &Open(form, nullptr);
  window->Appear();
}

void WindowsDesktop::ShowModal(Form& form) {
  if (!form.Load()) return;
  const std::vector<HWND> others = OpenWindows();
  FormWindow& window = Open(form, Owner());
  window.SwitchOff(others);
  {
    const HiddenAtEnd hidden(form);
    window.Appear();
    while (form.IsVisible() && loop_.Turn()) {
    }
  }
  Sweep();
}

void WindowsDesktop::Refresh(Form& form) {
  if (FormWindow* const window = Find(form)) {
    RedrawWindow(window->handle(), nullptr, nullptr,
                 RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    loop_.Paint();
  }
}

void WindowsDesktop::Beep() { MessageBeep(MB_OK); }

void WindowsDesktop::Pause(std::chrono::milliseconds time) { loop_.TurnFor(time); }

void WindowsDesktop::Run() {
  Sweep();
  while (!OpenWindows().empty() && loop_.Turn()) Sweep();
}

int WindowsDesktop::ShowBox(std::wstring_view text, int style, std::wstring_view title) {
  const HWND owner = Owner();
  std::vector<HWND> others = OpenWindows();
  std::erase(others, owner);  // Windows sees to that one
  const SwitchedOff off(std::move(others));
  const std::wstring shownTitle = title.empty() ? defaultTitle_ : std::wstring(title);
  const int answer = MessageBoxW(owner, common::WithLineFeeds(text).c_str(), shownTitle.c_str(),
                                 static_cast<UINT>(style) | MB_SETFOREGROUND);
  guard_.Rethrow();
  if (answer == IDRETRY) return common::kRetry;
  return answer == IDCANCEL ? common::kCancel : common::kOk;
}

FormWindow* WindowsDesktop::Find(const Form& form) const {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&](const auto& window) { return window->Shows(form); });
  return found == windows_.end() ? nullptr : found->get();
}

FormWindow& WindowsDesktop::Open(Form& form, HWND owner) {
  Sweep();
  windows_.push_back(std::make_unique<FormWindow>(form, instance_, owner, shell_));
  return *windows_.back();
}

std::vector<HWND> WindowsDesktop::OpenWindows() const {
  std::vector<HWND> open;
  for (const auto& window : windows_) {
    if (window->IsOpen()) open.push_back(window->handle());
  }
  return open;
}

HWND WindowsDesktop::Owner() const {
  const std::vector<HWND> open = OpenWindows();
  const HWND active = GetActiveWindow();
  if (std::find(open.begin(), open.end(), active) != open.end()) return active;
  return open.empty() ? nullptr : open.back();
}

void WindowsDesktop::Sweep() {
  if (guard_.IsInside()) return;
  const auto firstClosed = std::stable_partition(
      windows_.begin(), windows_.end(), [](const auto& window) { return window->IsOpen(); });
  // Taken out before they are destroyed, the last one first: windows own later ones.
  MessageLoop::Windows closed(std::make_move_iterator(firstClosed),
                              std::make_move_iterator(windows_.end()));
  windows_.erase(firstClosed, windows_.end());
  while (!closed.empty()) closed.pop_back();
}

}  // namespace ui
