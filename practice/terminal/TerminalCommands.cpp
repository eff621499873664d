#include <windows.h>

// The order matters.
#include <commdlg.h>

#include <array>

#include "practice/terminal/AboutBox.h"
#include "practice/terminal/Clipboard.h"
#include "practice/terminal/TerminalMenu.h"
#include "practice/terminal/TerminalWindow.h"
#include "practice/terminal/Texts.h"
#include "practice/terminal/Waiting.h"

// What the menus of the terminal's window do.
namespace practice::terminal {
namespace {

constexpr std::chrono::milliseconds kSlowness(2000);

/// What the filter of a file box wants: "name\0*.pnr\0\0".
std::wstring BookingFilter() {
  using namespace std::string_literals;
  return texts::kFileKind + L"\0*.pnr\0"s;
}

/// The number of a command behind a first one; -1 when it is none of `count`.
int Place(WORD command, Command first, int count) {
  const int place = command - static_cast<int>(first);
  return place < count ? std::max(place, -1) : -1;
}

}  // namespace

void TerminalWindow::Do(WORD command) {
  const int booking = Place(command, Command::kFirstBooking, static_cast<int>(names_.size()));
  const int refused = Place(command, Command::kRefuseLater, kLastRefusable + 1);
  if (booking >= 0) {
    OpenBooking(names_[static_cast<std::size_t>(booking)]);
  } else if (refused > 0) {
    server_.desk().RefuseEntry(refused, texts::kReason);
  } else {
    Do(static_cast<Command>(command));
  }
  UpdateStatus();
}

void TerminalWindow::Do(Command command) {
  Desk& desk = server_.desk();
  switch (command) {
    case Command::kOpenFile:
      return OpenFile();
    case Command::kRefuseNext:
      return desk.RefuseEntry(1, texts::kReason);
    case Command::kGarbleNext:
      return desk.GarbleNext();
    case Command::kLoseEntry:
      return desk.DropSession(false);
    case Command::kLoseAnswer:
      return desk.DropSession(true);
    case Command::kSlow:
      return ToggleSlow();
    case Command::kIssueDocument:
      if (!desk.IssueDocument()) Complain(texts::kNothingMissing);
      return;
    case Command::kBehaveWell:
      return desk.BehaveWell();
    case Command::kShowPrinted:
      return desk.ShowPrinted();
    case Command::kShowBackOffice:
      return desk.ShowBackOffice();
    case Command::kShowQueues:
      return desk.ShowQueues();
    case Command::kCopyTranscript:
      return PutOnClipboard(window_, desk.transcript());
    case Command::kAbout:
      return ShowAbout(window_);
    case Command::kEnd:
      PostMessageW(window_, WM_CLOSE, 0, 0);
      return;
    case Command::kRefuseLater:
    case Command::kFirstBooking:
      return;
  }
}

void TerminalWindow::OpenBooking(const std::wstring& nameOrPath) {
  server_.desk().LoadBooking(bookings_.Read(nameOrPath), nameOrPath);
  UpdateStatus();
}

void TerminalWindow::OpenFile() {
  std::array<wchar_t, 1024> path = {};
  const std::wstring filter = BookingFilter();
  OPENFILENAMEW asked = {};
  asked.lStructSize = sizeof asked;
  asked.hwndOwner = window_;
  asked.lpstrFilter = filter.c_str();
  asked.lpstrFile = path.data();
  asked.nMaxFile = static_cast<DWORD>(path.size());
  asked.Flags = OFN_FILEMUSTEXIST | OFN_NOCHANGEDIR | OFN_HIDEREADONLY;
  if (GetOpenFileNameW(&asked)) OpenBooking(path.data());
}

void TerminalWindow::ToggleSlow() {
  Desk& desk = server_.desk();
  if (desk.IsSlow()) {
    desk.SlowDown(nullptr);
  } else {
    desk.SlowDown([] { WaitAlive(kSlowness); });
  }
}

void TerminalWindow::Complain(const std::wstring& text) {
  MessageBoxW(window_, text.c_str(), texts::kBoxTitle, MB_ICONWARNING);
}

}  // namespace practice::terminal
