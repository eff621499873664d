#include "tests/windows/driver/Driver.h"

#include <commctrl.h>

#include <array>
#include <thread>

#include "tests/windows/driver/Input.h"

namespace driver {

namespace {

/// At a point of the window's client area.
INPUT MouseInput(HWND window, POINT at, DWORD flags) {
  ClientToScreen(window, &at);
  const auto scaled = [](LONG position, int size) {
    return static_cast<LONG>((static_cast<long long>(position) * 65536 + 32768) / size);
  };
  INPUT input = {};
  input.type = INPUT_MOUSE;
  input.mi.dx = scaled(at.x, GetSystemMetrics(SM_CXSCREEN));
  input.mi.dy = scaled(at.y, GetSystemMetrics(SM_CYSCREEN));
  input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | flags;
  return input;
}

POINT MiddleOf(HWND window) {
  RECT area = {};
  GetClientRect(window, &area);
  return {area.right / 2, area.bottom / 2};
}

/// False, too, for a button that is gone. The answer comes when the button's program has dealt with
/// the message before.
bool IsDown(HWND button) { return (SendMessageW(button, BM_GETSTATE, 0, 0) & BST_PUSHED) != 0; }

struct Wanted {
  std::wstring_view caption;
  HWND found = nullptr;
};

BOOL CALLBACK Compare(HWND window, LPARAM wanted) {
  Wanted& search = *reinterpret_cast<Wanted*>(wanted);
  if (!IsWindowVisible(window) || TextOf(window) != search.caption) return TRUE;
  search.found = window;
  return FALSE;
}

HWND FindNamed(std::wstring_view caption) {
  Wanted search{caption};
  EnumWindows(&Compare, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

/// Reads text out of another process's status bar, which can not write into our memory.
class RemoteText {
 public:
  explicit RemoteText(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    process_ = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ, FALSE, process);
    memory_ = VirtualAllocEx(process_, nullptr, kBytes, MEM_COMMIT, PAGE_READWRITE);
  }
  ~RemoteText() {
    VirtualFreeEx(process_, memory_, 0, MEM_RELEASE);
    CloseHandle(process_);
  }
  RemoteText(const RemoteText&) = delete;
  RemoteText& operator=(const RemoteText&) = delete;

  LPARAM parameter() const { return reinterpret_cast<LPARAM>(memory_); }
  std::wstring Read() const {
    std::wstring text(kBytes / sizeof(wchar_t), L'\0');
    ReadProcessMemory(process_, memory_, text.data(), kBytes - sizeof(wchar_t), nullptr);
    return text.c_str();
  }

 private:
  static constexpr SIZE_T kBytes = 4096;
  HANDLE process_;
  void* memory_;
};

}  // namespace

DriverError::DriverError(const std::wstring& what) : std::runtime_error(ToUtf8(what)) {}

bool Holds(const std::function<bool()>& condition, std::chrono::milliseconds time,
           std::chrono::milliseconds between) {
  const auto end = std::chrono::steady_clock::now() + time;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(between);
  }
  return true;
}

void WaitUntil(std::wstring_view what, const std::function<bool()>& condition) {
  if (!Holds(condition)) throw DriverError(L"Waited in vain until " + std::wstring(what));
}

HWND WindowNamed(std::wstring_view caption) {
  HWND window = nullptr;
  WaitUntil(L"there is a window \"" + std::wstring(caption) + L"\"", [&] {
    window = FindNamed(caption);
    return window != nullptr;
  });
  return window;
}

bool IsThere(std::wstring_view caption) { return FindNamed(caption) != nullptr; }

HWND Item(HWND dialog, int id) {
  HWND item = nullptr;
  WaitUntil(L"there is a control " + std::to_wstring(id), [&] {
    item = GetDlgItem(dialog, id);
    return item != nullptr;
  });
  return item;
}

std::wstring TextOf(HWND window) {
  std::array<wchar_t, 4096> text = {};
  DWORD_PTR length = 0;
  // A program that waits for its host, on a busy machine, may be silent for long.
  constexpr UINT kPatience = 10000;
  SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                      SMTO_NORMAL, kPatience, &length);
  return text.data();
}

std::wstring BoxText(HWND box) {
  constexpr int kBoxText = 0xFFFF;
  return TextOf(Item(box, kBoxText));
}

HICON BoxIcon(HWND box) {
  for (HWND child = GetWindow(box, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    const LONG style = GetWindowLongW(child, GWL_STYLE);
    wchar_t kind[16] = {};
    GetClassNameW(child, kind, static_cast<int>(std::size(kind)));
    if (lstrcmpiW(kind, L"Static") != 0 || (style & SS_TYPEMASK) != SS_ICON) continue;
    if ((style & WS_VISIBLE) == 0) continue;
    return reinterpret_cast<HICON>(SendMessageW(child, STM_GETICON, 0, 0));
  }
  return nullptr;
}

HWND OkButton(HWND box) {
  HWND button = nullptr;
  WaitUntil(L"there is an OK button", [&] {
    // Windows gives the only button the number of Cancel, so that Esc works on it too.
    button = GetDlgItem(box, IDOK);
    if (button == nullptr) button = GetDlgItem(box, IDCANCEL);
    return button != nullptr;
  });
  return button;
}

std::wstring StatusText(HWND bar) {
  const RemoteText text(bar);
  SendMessageW(bar, SB_GETTEXTW, 0, text.parameter());
  return text.Read();
}

std::wstring ListLine(HWND list, int index) {
  const LRESULT length = SendMessageW(list, LB_GETTEXTLEN, static_cast<WPARAM>(index), 0);
  if (length == LB_ERR) throw DriverError(L"The list has no line " + std::to_wstring(index));
  std::wstring line(static_cast<std::size_t>(length) + 1, L'\0');
  SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(line.data()));
  return line.c_str();
}

HWND FocusOf(HWND window) {
  const DWORD thread = GetWindowThreadProcessId(window, nullptr);
  GUITHREADINFO info = {};
  info.cbSize = sizeof info;
  if (!GetGUIThreadInfo(thread, &info) || info.hwndFocus == nullptr) return nullptr;
  const HWND foreground = GetForegroundWindow();
  return GetAncestor(info.hwndFocus, GA_ROOT) == foreground ? info.hwndFocus : nullptr;
}

namespace {

bool NobodyHasTheForeground() {
  const HWND foreground = GetForegroundWindow();
  return foreground == nullptr || foreground == GetDesktopWindow();
}

/// Without a window manager the display can lose the focus altogether when one window goes while
/// the next one comes. A person would click on the window then. When another window keeps it, the
/// caller goes on after the usual wait, and fails by what does not happen.
void WaitForForeground(HWND window) {
  constexpr auto kPatience = std::chrono::seconds(1);
  const auto isThere = [&] { return GetForegroundWindow() == window; };
  Holds([&] {
    if (Holds(isThere, kPatience)) return true;
    if (NobodyHasTheForeground()) SetForegroundWindow(window);
    return false;
  });
}

}  // namespace

void WaitForFocus(HWND control) {
  WaitForForeground(GetAncestor(control, GA_ROOT));
  if (Holds([&] { return FocusOf(control) == control; })) return;
  throw DriverError(L"Waited in vain until the focus is in control " +
                    std::to_wstring(GetDlgCtrlID(control)) + L"; it is in control " +
                    std::to_wstring(GetDlgCtrlID(FocusOf(GetForegroundWindow()))) + L" of \"" +
                    TextOf(GetForegroundWindow()) + L"\"");
}

HWND WaitForFocusWithin(HWND window) {
  WaitForForeground(window);
  HWND focus = nullptr;
  WaitUntil(L"the focus is in the window \"" + TextOf(window) + L"\"", [&] {
    focus = FocusOf(window);
    return focus != nullptr && GetAncestor(focus, GA_ROOT) == window;
  });
  return focus;
}

void Click(HWND window) {
  const POINT middle = MiddleOf(window);
  ClickAt(window, middle.x, middle.y);
}

void ClickButton(HWND button) {
  const POINT middle = MiddleOf(button);
  SendInputs({MouseInput(button, middle, 0), MouseInput(button, middle, MOUSEEVENTF_LEFTDOWN)});
  WaitUntil(L"the button is down", [button] { return IsDown(button); });
  SendInputs({MouseInput(button, middle, MOUSEEVENTF_LEFTUP)});
  WaitUntil(L"the button has come up", [button] { return !IsDown(button); });
}

void ClickAt(HWND window, int x, int y) {
  const POINT at = {x, y};
  SendInputs({MouseInput(window, at, 0), MouseInput(window, at, MOUSEEVENTF_LEFTDOWN),
              MouseInput(window, at, MOUSEEVENTF_LEFTUP)});
}

std::wstring ToWide(std::string_view utf8) {
  std::wstring text(utf8.size(), L'\0');
  text.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), text.data(),
                          static_cast<int>(text.size()))));
  return text;
}

std::string ToUtf8(std::wstring_view text) {
  std::string utf8(text.size() * 3, '\0');
  utf8.resize(static_cast<std::size_t>(
      WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), utf8.data(),
                          static_cast<int>(utf8.size()), nullptr, nullptr)));
  return utf8;
}

}  // namespace driver
