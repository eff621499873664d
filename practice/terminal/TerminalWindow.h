#pragma once

#include <windows.h>

#include "practice/terminal/Bookings.h"
#include "practice/terminal/EntryLine.h"
#include "practice/terminal/Server.h"
#include "practice/terminal/TerminalMenu.h"

namespace practice::terminal {

// The numbers of the window's parts.
inline constexpr int kTranscriptId = 1;
inline constexpr int kEntryId = 2;
inline constexpr int kStatusId = 3;

inline constexpr wchar_t kTerminalClass[] = L"VantelPracticeTerminal";

/// The terminal as an agent sees it: what was entered and answered, a line to type entries in, and
/// menus for the trainer. Hidden until it is shown, as in a server that only serves scripts.
class TerminalWindow {
 public:
  /// Throws common::RunTimeError.
  explicit TerminalWindow(Server& server);
  ~TerminalWindow();
  TerminalWindow(const TerminalWindow&) = delete;
  TerminalWindow& operator=(const TerminalWindow&) = delete;

  /// From now on the terminal is running: sessions can be made. Opens the booking; without one the
  /// first, unless the terminal has been running, where a booking may be in use.
  void Show(const std::wstring& booking);

  /// Has another process's terminal show itself. False when there is none.
  static bool ShowRunning(const std::wstring& booking);

 private:
  static LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM wide, LPARAM further) noexcept;
  LRESULT Take(UINT message, WPARAM wide, LPARAM further);
  void MakeParts();
  void Arrange();
  void SetFont();
  void Do(WORD command);
  void Do(Command command);
  void OpenBooking(const std::wstring& nameOrPath);
  void OpenFile();
  void Send(const std::wstring& entry);
  void Append(std::wstring_view text);
  void UpdateStatus();
  void ToggleSlow();
  void Complain(const std::wstring& text);
  HWND Item(int id) const { return GetDlgItem(window_, id); }

  Server& server_;
  Bookings bookings_;
  std::vector<std::wstring> names_;
  EntryLine entryLine_;
  HWND window_ = nullptr;
  HFONT font_ = nullptr;
  bool running_ = false;
  bool sending_ = false;
};

}  // namespace practice::terminal
