#include "practice/terminal/TerminalMenu.h"

namespace practice::terminal {
namespace {

void Add(HMENU menu, Command command, const wchar_t* text) {
  AppendMenuW(menu, MF_STRING, static_cast<UINT_PTR>(command), text);
}

void AddLine(HMENU menu) { AppendMenuW(menu, MF_SEPARATOR, 0, nullptr); }

HMENU AddMenu(HMENU bar, const wchar_t* text) {
  HMENU menu = CreatePopupMenu();
  AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(menu), text);
  return menu;
}

void AddBookings(HMENU menu, const std::vector<std::wstring>& bookings) {
  // So many that they would not stand in one column.
  constexpr std::size_t kRows = 20;
  for (std::size_t i = 0; i < bookings.size(); ++i) {
    const UINT column = i > 0 && i % kRows == 0 ? MF_MENUBARBREAK : 0U;
    AppendMenuW(menu, MF_STRING | column, static_cast<UINT_PTR>(Command::kFirstBooking) + i,
                bookings[i].c_str());
  }
}

}  // namespace

HMENU NewTerminalMenu(const std::vector<std::wstring>& bookings) {
  HMENU bar = CreateMenu();
  AddBookings(AddMenu(bar, L"&Booking"), bookings);
  const HMENU host = AddMenu(bar, L"&Host");
  Add(host, Command::kRefuseNext, L"&Refuse the next entry");
  Add(host, Command::kGarbleNext, L"&Garble the next answer");
  Add(host, Command::kLoseEntry, L"&Lose the session before the next entry");
  Add(host, Command::kLoseAnswer, L"Lose the session &after the next entry");
  Add(host, Command::kSlow, L"Be &slow");
  Add(host, Command::kIssueDocument, L"Issue the missing &document (FA)");
  AddLine(host);
  Add(host, Command::kBehaveWell, L"&Behave well again");
  const HMENU terminal = AddMenu(bar, L"&Terminal");
  Add(terminal, Command::kOpenFile, L"&Open a booking of your own...");
  Add(terminal, Command::kCopyTranscript, L"&Copy the transcript");
  AddLine(terminal);
  Add(terminal, Command::kEnd, L"E&nd");
  Add(AddMenu(bar, L"Hel&p"), Command::kAbout, L"&About the practice terminal...");
  return bar;
}

}  // namespace practice::terminal
