#include "practice/terminal/TerminalWindow.h"

// The order matters.
// clang-format off
#include <windows.h>
#include <commctrl.h>
// clang-format on

#include "practice/terminal/TerminalMenu.h"
#include "practice/terminal/Texts.h"
#include "practice/terminal/resources.h"

namespace practice::terminal {
namespace {

constexpr int kLongestView = 1'000'000;
constexpr wchar_t kFirstBooking[] = L"ordinary";
constexpr UINT_PTR kLookForTheDead = 1;
constexpr UINT kLookEvery = 500;

void RegisterWindowClass(WNDPROC receive) {
  WNDCLASSEXW description = {};
  description.cbSize = sizeof description;
  description.lpfnWndProc = receive;
  description.hInstance = GetModuleHandleW(nullptr);
  description.hIcon = LoadIconW(description.hInstance, MAKEINTRESOURCEW(IDI_TERMINAL));
  description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
  description.lpszClassName = kTerminalClass;
  RegisterClassExW(&description);
}

int HeightOf(HWND window) {
  RECT area = {};
  GetWindowRect(window, &area);
  return area.bottom - area.top;
}

}  // namespace

TerminalWindow::TerminalWindow(Server& server)
    : server_(server),
      names_(bookings_.Names()),
      entryLine_([this](const std::wstring& entry) { Send(entry); }) {
  RegisterWindowClass(Receive);
  const int unit = static_cast<int>(GetDpiForSystem());
  window_ = CreateWindowExW(0, kTerminalClass, texts::kTitle, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                            CW_USEDEFAULT, CW_USEDEFAULT, 8 * unit, 6 * unit, nullptr,
                            NewTerminalMenu(names_), GetModuleHandleW(nullptr), this);
  if (window_ == nullptr) throw common::RunTimeError(texts::kNoWindow);
  server_.desk().onTranscript = [this](std::wstring_view text) { Append(text); };
  server_.desk().onForgotten = [this] { SetWindowTextW(Item(kTranscriptId), L""); };
  server_.exporter().onChange = [this](int) { UpdateStatus(); };
}

TerminalWindow::~TerminalWindow() {
  server_.desk().onTranscript = nullptr;
  server_.desk().onForgotten = nullptr;
  server_.exporter().onChange = nullptr;
  server_.desk().BehaveWell();
  if (window_ != nullptr) DestroyWindow(window_);
  if (font_ != nullptr) DeleteObject(font_);
}

void TerminalWindow::Show(const std::wstring& booking) {
  const bool isFirst = !running_;
  if (isFirst) server_.life().Hold();
  running_ = true;
  server_.SetSessionRunning(true);
  ShowWindow(window_, IsIconic(window_) ? SW_RESTORE : SW_SHOW);
  SetForegroundWindow(window_);
  if (!booking.empty()) {
    OpenBooking(booking);
  } else if (isFirst) {
    OpenBooking(kFirstBooking);
  }
  UpdateStatus();
}

bool TerminalWindow::ShowRunning(const std::wstring& booking) {
  const HWND running = FindWindowW(kTerminalClass, nullptr);
  if (running == nullptr) return false;
  DWORD process = 0;
  GetWindowThreadProcessId(running, &process);
  AllowSetForegroundWindow(process);
  COPYDATASTRUCT data = {0, static_cast<DWORD>(booking.size() * sizeof(wchar_t)),
                         const_cast<wchar_t*>(booking.data())};
  SendMessageW(running, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data));
  return true;
}

LRESULT CALLBACK TerminalWindow::Receive(HWND window, UINT message, WPARAM wide,
                                         LPARAM further) noexcept {
  if (message == WM_NCCREATE) {
    auto* self = static_cast<TerminalWindow*>(
        reinterpret_cast<const CREATESTRUCTW*>(further)->lpCreateParams);
    self->window_ = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
  }
  auto* self = reinterpret_cast<TerminalWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, wide, further);
  try {
    return self->Take(message, wide, further);
  } catch (const common::RunTimeError& error) {
    self->Complain(error.description());
  } catch (...) {
    self->Complain(texts::kNoMemory);
  }
  return 0;
}

LRESULT TerminalWindow::Take(UINT message, WPARAM wide, LPARAM further) {
  switch (message) {
    case WM_CREATE:
      MakeParts();
      return 0;
    case WM_SIZE:
      Arrange();
      return 0;
    case WM_SETFOCUS:
      SetFocus(Item(kEntryId));
      return 0;
    case WM_DPICHANGED: {
      const RECT& area = *reinterpret_cast<const RECT*>(further);
      SetFont();
      SetWindowPos(window_, nullptr, area.left, area.top, area.right - area.left,
                   area.bottom - area.top, SWP_NOZORDER | SWP_NOACTIVATE);
      return 0;
    }
    case WM_TIMER:
      server_.exporter().DisconnectTheDead();
      return 0;
    case WM_COMMAND:
      if (further == 0) Do(LOWORD(wide));
      return 0;
    case WM_COPYDATA: {
      const auto& data = *reinterpret_cast<const COPYDATASTRUCT*>(further);
      Show({static_cast<const wchar_t*>(data.lpData), data.cbData / sizeof(wchar_t)});
      return TRUE;
    }
    case WM_DESTROY:
      SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
      window_ = nullptr;
      server_.SetSessionRunning(false);
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcW(window_, message, wide, further);
  }
}

void TerminalWindow::MakeParts() {
  CreateWindowExW(WS_EX_CLIENTEDGE, L"EDIT", L"",
                  WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL,
                  0, 0, 0, 0, window_, reinterpret_cast<HMENU>(INT_PTR{kTranscriptId}), nullptr,
                  nullptr);
  SendMessageW(Item(kTranscriptId), EM_SETLIMITTEXT, 0, 0);
  entryLine_.Create(window_, kEntryId);
  CreateWindowExW(0, STATUSCLASSNAMEW, L"", WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, 0, 0, 0, 0,
                  window_, reinterpret_cast<HMENU>(INT_PTR{kStatusId}), nullptr, nullptr);
  SetFont();
  SetTimer(window_, kLookForTheDead, kLookEvery, nullptr);
  UpdateStatus();
}

void TerminalWindow::SetFont() {
  constexpr int kPoints = 10;
  const HFONT old = font_;
  const int height = -MulDiv(kPoints, static_cast<int>(GetDpiForWindow(window_)), 72);
  font_ = CreateFontW(height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                      OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY,
                      FIXED_PITCH | FF_MODERN, L"Courier New");
  for (const int id : {kTranscriptId, kEntryId}) {
    SendMessageW(Item(id), WM_SETFONT, reinterpret_cast<WPARAM>(font_), TRUE);
  }
  if (old != nullptr) DeleteObject(old);
}

void TerminalWindow::Arrange() {
  RECT area = {};
  GetClientRect(window_, &area);
  SendMessageW(Item(kStatusId), WM_SIZE, 0, 0);
  const int entry = MulDiv(24, static_cast<int>(GetDpiForWindow(window_)), 96);
  const int bottom = area.bottom - HeightOf(Item(kStatusId));
  MoveWindow(Item(kTranscriptId), 0, 0, area.right, bottom - entry, TRUE);
  MoveWindow(Item(kEntryId), 0, bottom - entry, area.right, entry, TRUE);
}

void TerminalWindow::Send(const std::wstring& entry) {
  // An entry of one's own is out, on a slow host; those of scripts go their own way.
  if (sending_) {
    MessageBeep(MB_OK);
    return;
  }
  sending_ = true;
  server_.desk().Enter(entry);
  sending_ = false;
  UpdateStatus();
}

void TerminalWindow::Append(std::wstring_view text) {
  const HWND view = Item(kTranscriptId);
  const int length = GetWindowTextLengthW(view);
  if (length > kLongestView) {
    SetWindowTextW(view, server_.desk().transcript().c_str());
  } else {
    SendMessageW(view, EM_SETSEL, static_cast<WPARAM>(length), length);
    SendMessageW(view, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(std::wstring(text).c_str()));
  }
  SendMessageW(view, EM_SCROLLCARET, 0, 0);
  UpdateStatus();
}

void TerminalWindow::UpdateStatus() {
  if (window_ == nullptr) return;
  const Desk& desk = server_.desk();
  const std::wstring faults = desk.FaultText();
  const std::wstring status = texts::kStatusBooking +
                              (desk.booking().empty() ? texts::kStatusNoBooking : desk.booking()) +
                              texts::kStatusHost + (faults.empty() ? texts::kWell : faults) +
                              texts::kStatusObjects + std::to_wstring(server_.exporter().Live());
  SetWindowTextW(Item(kStatusId), status.c_str());
  CheckMenuItem(GetMenu(window_), static_cast<UINT>(Command::kSlow),
                static_cast<UINT>(MF_BYCOMMAND | (desk.IsSlow() ? MF_CHECKED : MF_UNCHECKED)));
}

}  // namespace practice::terminal
