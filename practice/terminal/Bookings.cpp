#include "practice/terminal/Bookings.h"

#include "common/RunTimeError.h"
#include "practice/host/BookingOrder.h"
#include "practice/terminal/TextFile.h"
#include "practice/terminal/Texts.h"
#include "practice/terminal/TypeLibrary.h"

namespace practice::terminal {
namespace {

constexpr wchar_t kEnding[] = L".pnr";
constexpr wchar_t kMenuFile[] = L"menu.txt";

std::wstring Folder() {
  const std::wstring program = ProgramPath();
  return program.substr(0, program.find_last_of(L'\\') + 1) + L"pnrs\\";
}

}  // namespace

std::vector<std::wstring> Bookings::Names() const {
  std::vector<std::wstring> names;
  WIN32_FIND_DATAW found = {};
  const HANDLE search = FindFirstFileW((Folder() + L"*" + kEnding).c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return names;
  do {
    const std::wstring file = found.cFileName;
    names.push_back(file.substr(0, file.size() - (std::size(kEnding) - 1)));
  } while (FindNextFileW(search, &found));
  FindClose(search);
  return InMenuOrder(std::move(names), ReadFileText(Folder() + kMenuFile).value_or(L""));
}

std::wstring Bookings::Read(const std::wstring& nameOrPath) const {
  auto text = ReadFileText(Folder() + nameOrPath + kEnding);
  if (!text) text = ReadFileText(nameOrPath);
  if (!text) throw common::RunTimeError(texts::kNoBooking + nameOrPath + L".");
  return *text;
}

}  // namespace practice::terminal
