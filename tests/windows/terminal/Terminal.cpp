#include "tests/windows/terminal/Terminal.h"

#include <tlhelp32.h>

#include <stdexcept>

namespace terminal {
namespace {

constexpr DWORD kLong = 20'000;

}  // namespace

std::wstring TestProgram() {
  std::wstring path(1024, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return path;
}

std::wstring Program(const std::wstring& name) {
  const std::wstring test = TestProgram();
  return test.substr(0, test.find_last_of(L'\\') + 1) + name;
}

Process::Process(const std::wstring& program, const std::wstring& argument) {
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  std::wstring line = L"\"" + program + L"\" " + argument;
  if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                      &startup, &process_)) {
    throw std::runtime_error("A program can not be started");
  }
}

Process::~Process() {
  Kill();
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
}

void Process::Kill() {
  if (!IsRunning()) return;
  TerminateProcess(process_.hProcess, 99);
  WaitForSingleObject(process_.hProcess, kLong);
}

DWORD Process::Wait() const {
  if (WaitForSingleObject(process_.hProcess, kLong) != WAIT_OBJECT_0) {
    throw std::runtime_error("A program does not end");
  }
  DWORD code = 0;
  GetExitCodeProcess(process_.hProcess, &code);
  return code;
}

bool Process::IsRunning() const {
  return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT;
}

int Running(const std::wstring& name) {
  const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  PROCESSENTRY32W entry = {};
  entry.dwSize = sizeof entry;
  int count = 0;
  for (BOOL more = Process32FirstW(snapshot, &entry); more;
       more = Process32NextW(snapshot, &entry)) {
    if (lstrcmpiW(entry.szExeFile, name.c_str()) == 0) ++count;
  }
  CloseHandle(snapshot);
  return count;
}

}  // namespace terminal
