#include "tests/windows/program/Stage.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <iterator>

#include "platform/win32/WindowsPlatform.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/terminal/Client.h"

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

/// A value that the program keeps for the user.
void Store(std::wstring_view key, std::wstring_view text) {
  std::vector<client::Variant> arguments;
  for (const std::wstring_view argument :
       {std::wstring_view(L"PTAStartup"), std::wstring_view(L"Values"), key, text}) {
    arguments.push_back(client::Text(argument));
  }
  client::Call(*client::Make(L"UserSettingsStore").Get(), L"SaveSetting", std::move(arguments));
}

/// Sessions run side by side, each with a program of its own.
std::wstring SessionSuffix() {
  wchar_t session[40] = {};
  GetEnvironmentVariableW(L"PTA_WINE_SESSION", session, static_cast<DWORD>(std::size(session)));
  return session[0] == L'\0' ? std::wstring() : L"-" + std::wstring(session);
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

Stage::Stage(TerminalPtr terminal) : terminal_(std::move(terminal)) {
  const std::wstring product = WindowsPath(PTA_PROGRAM);
  folder_ = product.substr(0, product.find_last_of(L'\\')) + L"\\stage" + SessionSuffix();
  CreateDirectoryW(folder_.c_str(), nullptr);
  if (!CopyFileW(product.c_str(), (folder_ + L"\\PTA_QX.exe").c_str(), FALSE)) {
    throw DriverError(L"Cannot copy " + product);
  }
  WriteText(folder_ + L"\\PTA_QX.ini", ProjectFile(L"practice\\pnrs\\ordinary.ini"));
  RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\VantelPractice\\PTAStartup");
}

Stage::~Stage() {
  program_ = nullptr;
  if (terminal_ == nullptr || !terminal_->IsRunning()) return;
  EXPECT_TRUE(Holds([] { return client::LiveObjects() == 0; }))
      << "the program left objects in the terminal";
}

void Stage::Set(const practice::RehearsalScene& scene) {
  SetBooking(scene.booking);
  const std::wstring ini = folder_ + L"\\PTA_QX.ini";
  if (scene.hasIni) {
    WriteText(ini, scene.ini);
  } else {
    DeleteFileW(ini.c_str());
  }
  Store(L"OfficeID", scene.office);
  Store(L"Date", platform::WindowsPlatform().ShortDateText(scene.today));
}

Program& Stage::Start() {
  program_ = std::make_unique<Program>(folder_ + L"\\PTA_QX.exe");
  return *program_;
}

void Stage::Work(const std::wstring& lines) {
  WindowAgent(Start(), practice::ReadAgentScript(lines)).Work([](HWND, const std::wstring&) {});
}

void Stage::WorkLikeTheOrdinaryAgent() { Work(ProjectFile(L"practice\\pnrs\\ordinary.agent")); }

DWORD Stage::ExitCodeWithin(std::chrono::seconds time) const {
  EXPECT_TRUE(Holds([this] { return !program_->IsRunning(); }, time)) << "the program does not end";
  return program_->ExitCode();
}

DWORD Stage::ExitCode() const { return ExitCodeWithin(std::chrono::seconds(60)); }

DWORD Stage::ExitCodeSoon() const { return ExitCodeWithin(std::chrono::seconds(5)); }

std::vector<std::wstring> Stage::Entries() const {
  std::vector<std::wstring> entries = terminal_->Entries();
  if (!entries.empty()) entries.erase(entries.begin());
  return entries;
}

std::wstring Stage::Ini() const { return ReadText(folder_ + L"\\PTA_QX.ini"); }

void Stage::AddToIni(const std::wstring& lines) {
  WriteText(folder_ + L"\\PTA_QX.ini", Ini() + lines);
}

std::wstring Stage::WithLineFeeds(std::wstring text) {
  std::erase(text, L'\r');
  return text;
}

}  // namespace driver
