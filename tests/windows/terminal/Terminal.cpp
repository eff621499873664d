#include "tests/windows/terminal/Terminal.h"

#include <tlhelp32.h>

#include <stdexcept>
#include <vector>

namespace terminal {
namespace {

constexpr DWORD kLong = 20'000;

PROCESS_INFORMATION Started(const std::wstring& program, const std::wstring& argument) {
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  std::wstring line = L"\"" + program + L"\" " + argument;
  PROCESS_INFORMATION process = {};
  if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                      &startup, &process)) {
    throw std::runtime_error("A program can not be started");
  }
  return process;
}

std::vector<DWORD> ProcessesOf(const std::wstring& name) {
  const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  PROCESSENTRY32W entry = {};
  entry.dwSize = sizeof entry;
  std::vector<DWORD> ids;
  for (BOOL more = Process32FirstW(snapshot, &entry); more;
       more = Process32NextW(snapshot, &entry)) {
    if (lstrcmpiW(entry.szExeFile, name.c_str()) == 0) ids.push_back(entry.th32ProcessID);
  }
  CloseHandle(snapshot);
  return ids;
}

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

void Launch(const std::wstring& program, const std::wstring& argument) {
  const PROCESS_INFORMATION process = Started(program, argument);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
}

Process::Process(const std::wstring& program, const std::wstring& argument)
    : process_(Started(program, argument)) {}

Process::Process(HWND window) {
  GetWindowThreadProcessId(window, &process_.dwProcessId);
  process_.hProcess = OpenProcess(PROCESS_ALL_ACCESS, FALSE, process_.dwProcessId);
  if (process_.hProcess == nullptr) throw std::runtime_error("A window's process has ended");
}

Process::~Process() {
  Kill();
  if (process_.hThread != nullptr) CloseHandle(process_.hThread);
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

int Running(const std::wstring& name) { return static_cast<int>(ProcessesOf(name).size()); }

void KillAll(const std::wstring& name) {
  for (const DWORD id : ProcessesOf(name)) {
    const HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, id);
    if (process == nullptr) continue;
    TerminateProcess(process, 99);
    WaitForSingleObject(process, kLong);
    CloseHandle(process);
  }
}

}  // namespace terminal
