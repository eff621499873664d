#include "practice/terminal/Bookings.h"

#include <array>
#include <cstdio>
#include <memory>
#include <optional>

#include "common/RunTimeError.h"
#include "common/Text.h"
#include "practice/host/BookingOrder.h"
#include "practice/terminal/TypeLibrary.h"

namespace practice::terminal {
namespace {

constexpr wchar_t kEnding[] = L".pnr";
constexpr wchar_t kMenuFile[] = L"menu.txt";

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

std::wstring Folder() {
  const std::wstring program = ProgramPath();
  return program.substr(0, program.find_last_of(L'\\') + 1) + L"pnrs\\";
}

std::optional<std::wstring> ReadFileText(const std::wstring& path) {
  const std::unique_ptr<std::FILE, FileCloser> file(_wfopen(path.c_str(), L"rb"));
  if (!file) return std::nullopt;
  std::string bytes;
  std::array<char, 4096> piece;
  while (const std::size_t length = std::fread(piece.data(), 1, piece.size(), file.get())) {
    bytes.append(piece.data(), length);
  }
  return common::FromUtf8(bytes);
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
  if (!text) throw common::RunTimeError(L"There is no practice booking " + nameOrPath + L".");
  return *text;
}

}  // namespace practice::terminal
