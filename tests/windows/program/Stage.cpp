#include "tests/windows/program/Stage.h"

#include <cstdio>

#include "tests/windows/driver/Driver.h"

namespace driver {

namespace {

std::wstring WindowsPath(const char* path) {
  std::wstring text = ToWide(path);
  // Built by a cross compiler, run where the root is a drive of its own.
  if (text.starts_with(L"/")) text.insert(0, L"Z:");
  for (wchar_t& c : text) {
    if (c == L'/') c = L'\\';
  }
  return text;
}

std::wstring ReadText(const std::wstring& path) {
  std::FILE* const file = _wfopen(path.c_str(), L"rb");
  if (file == nullptr) throw DriverError(L"Cannot read " + path);
  std::string bytes;
  for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) {
    if (c != '\r') bytes += static_cast<char>(c);
  }
  std::fclose(file);
  return ToWide(bytes);
}

void WriteText(const std::wstring& path, const std::wstring& text) {
  std::FILE* const file = _wfopen(path.c_str(), L"wb");
  if (file == nullptr) throw DriverError(L"Cannot write " + path);
  const std::string bytes = ToUtf8(text);
  std::fwrite(bytes.data(), 1, bytes.size(), file);
  std::fclose(file);
}

}  // namespace

std::wstring ProjectFile(const std::wstring& path) {
  return ReadText(WindowsPath(PTA_SOURCE_FOLDER) + L"\\" + path);
}

Stage::Stage() {
  const std::wstring product = WindowsPath(PTA_PROGRAM);
  folder_ = product.substr(0, product.find_last_of(L'\\')) + L"\\stage";
  CreateDirectoryW(folder_.c_str(), nullptr);
  if (!CopyFileW(product.c_str(), (folder_ + L"\\PTA_QX.exe").c_str(), FALSE)) {
    throw DriverError(L"Cannot copy " + product);
  }
  DeleteFileW((folder_ + L"\\practice.pnr").c_str());
  DeleteFileW((folder_ + L"\\practice.log").c_str());
  WriteText(folder_ + L"\\PTA_QX.ini", ProjectFile(L"practice\\pnrs\\ordinary.ini"));
  RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\VantelPractice\\PTAStartup");
}

void Stage::SetBooking(const std::wstring& booking) {
  WriteText(folder_ + L"\\practice.pnr", booking);
}

void Stage::SetPace(int milliseconds) {
  SetBooking(ProjectFile(L"practice\\pnrs\\ordinary.pnr") + L"# PACE " +
             std::to_wstring(milliseconds) + L"\n");
}

Program& Stage::Start() {
  program_ = std::make_unique<Program>(folder_ + L"\\PTA_QX.exe");
  return *program_;
}

void Stage::Work(const std::wstring& lines) {
  WindowAgent(Start(), practice::ReadAgentScript(lines)).Work([](HWND, const std::wstring&) {});
}

void Stage::WorkLikeTheOrdinaryAgent() { Work(ProjectFile(L"practice\\pnrs\\ordinary.agent")); }

std::vector<std::wstring> Stage::Entries() const {
  const std::wstring log = ReadText(folder_ + L"\\practice.log");
  std::vector<std::wstring> entries;
  for (std::size_t at = log.find(L"\n> "); at != log.npos; at = log.find(L"\n> ", at + 1)) {
    entries.push_back(log.substr(at + 3, log.find(L'\n', at + 1) - at - 3));
  }
  if (!entries.empty()) entries.erase(entries.begin());
  return entries;
}

std::wstring Stage::PnrBefore() const { return Note(L"PNR before\n"); }
std::wstring Stage::PnrAfter() const { return Note(L"PNR after\n"); }
std::wstring Stage::Ini() const { return ReadText(folder_ + L"\\PTA_QX.ini"); }

std::wstring Stage::Note(std::wstring_view heading) const {
  const std::wstring log = ReadText(folder_ + L"\\practice.log");
  const std::size_t at = log.find(heading);
  if (at == log.npos) return {};
  const std::size_t start = at + heading.size();
  return log.substr(start, log.find(L"\n\n", start) - start);
}

}  // namespace driver
