#include "practice/terminal/TerminalMenu.h"

#include "practice/terminal/Texts.h"

namespace practice::terminal {
namespace {

struct Line {
  Command command;
  const wchar_t* text;  ///< null: a line between
};

constexpr Line kBetween = {Command{}, nullptr};

constexpr Line kHostLines[] = {
    {Command::kGarbleNext, texts::kGarbleNext},       {Command::kLoseEntry, texts::kLoseEntry},
    {Command::kLoseAnswer, texts::kLoseAnswer},       {Command::kSlow, texts::kSlow},
    {Command::kIssueDocument, texts::kIssueDocument}, kBetween,
    {Command::kBehaveWell, texts::kBehaveWell},
};
constexpr Line kShowLines[] = {
    {Command::kShowPrinted, texts::kShowPrinted},
    {Command::kShowBackOffice, texts::kShowBackOffice},
    {Command::kShowQueues, texts::kShowQueues},
};
constexpr Line kTerminalLines[] = {
    {Command::kOpenFile, texts::kOpenFile},
    {Command::kCopyTranscript, texts::kCopyTranscript},
    kBetween,
    {Command::kEnd, texts::kEnd},
};

void Add(HMENU menu, const Line& line, UINT kind = MF_STRING) {
  const UINT shown = line.text == nullptr ? UINT{MF_SEPARATOR} : kind;
  AppendMenuW(menu, shown, static_cast<UINT_PTR>(line.command), line.text);
}

template <std::size_t count>
void Add(HMENU menu, const Line (&lines)[count]) {
  for (const Line& line : lines) Add(menu, line);
}

HMENU AddMenu(HMENU bar, const wchar_t* text) {
  HMENU menu = CreatePopupMenu();
  AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(menu), text);
  return menu;
}

/// In columns: these are so many that they would not stand in one.
void AddMany(HMENU menu, Command first, const std::vector<std::wstring>& texts) {
  constexpr int kRows = 20;
  int place = 0;
  for (const std::wstring& text : texts) {
    const UINT column = place > 0 && place % kRows == 0 ? MF_MENUBARBREAK : 0U;
    Add(menu, {Behind(first, place++), text.c_str()}, MF_STRING | column);
  }
}

std::vector<std::wstring> NumbersFrom2() {
  std::vector<std::wstring> numbers;
  for (int number = 2; number <= kLastRefusable; ++number) {
    numbers.push_back(std::to_wstring(number));
  }
  return numbers;
}

}  // namespace

HMENU NewTerminalMenu(const std::vector<std::wstring>& bookings) {
  HMENU bar = CreateMenu();
  AddMany(AddMenu(bar, texts::kBooking), Command::kFirstBooking, bookings);
  HMENU host = AddMenu(bar, texts::kHost);
  Add(host, {Command::kRefuseNext, texts::kRefuseNext});
  AddMany(AddMenu(host, texts::kRefuseLater), Behind(Command::kRefuseLater, 2), NumbersFrom2());
  Add(host, kHostLines);
  Add(AddMenu(bar, texts::kShow), kShowLines);
  Add(AddMenu(bar, texts::kTerminal), kTerminalLines);
  Add(AddMenu(bar, texts::kHelp), {Command::kAbout, texts::kAbout});
  return bar;
}

}  // namespace practice::terminal
