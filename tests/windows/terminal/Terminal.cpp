#include "tests/windows/terminal/Terminal.h"

#include <tlhelp32.h>

#include <vector>

namespace terminal {
namespace {

constexpr DWORD kLong = 20'000;

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
