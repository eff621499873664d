// Starts a program and lets a written agent work in its windows, the way the tests do.
//
//   drive PROGRAM AGENT [FOLDER]     FOLDER takes a picture of every window, as NN-NAME.bmp

#include <windows.h>

#include <cstdio>
#include <iterator>

#include "common/RunTimeError.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/driver/Picture.h"
#include "tests/windows/driver/WindowAgent.h"

namespace {

std::wstring ReadAgent(const std::wstring& path) {
  std::FILE* const file = _wfopen(path.c_str(), L"rb");
  if (file == nullptr) throw driver::DriverError(L"Cannot read " + path);
  std::string bytes;
  for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) {
    if (c != '\r') bytes += static_cast<char>(c);
  }
  std::fclose(file);
  return driver::ToWide(bytes);
}

int Drive(const std::wstring& path, const std::wstring& agentPath, const std::wstring& folder) {
  const auto script = practice::ReadAgentScript(ReadAgent(agentPath));
  driver::Program program(path);
  int pictures = 0;
  driver::WindowAgent(program, script).Work([&](HWND window, const std::wstring& name) {
    std::printf("at %s\n", driver::ToUtf8(name).c_str());
    if (folder.empty()) return;
    wchar_t number[8] = {};
    std::swprintf(number, std::size(number), L"%02d", ++pictures);
    driver::SavePicture(window, folder + L"\\" + number + L"-" + name + L".bmp");
  });
  const DWORD code = program.ExitCode();
  std::printf("the program ended with %lu\n", code);
  return code == 0 ? 0 : 1;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count < 3) {
    std::puts("usage: drive PROGRAM AGENT [FOLDER]");
    return 2;
  }
  try {
    return Drive(arguments[1], arguments[2], count > 3 ? arguments[3] : L"");
  } catch (const common::RunTimeError& error) {
    std::puts(driver::ToUtf8(error.description()).c_str());
  } catch (const std::exception& error) {
    std::puts(error.what());
  }
  return 1;
}
