#include "hostlib/com/Elevation.h"

// clang-format off
#include <objbase.h>
#include <tlhelp32.h>
// clang-format on

#include <algorithm>
#include <memory>

#include "hostlib/Object.h"
#include "hostlib/com/RegisteredText.h"

namespace hostlib::com {
namespace {

struct CloseHandleLater {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<void, CloseHandleLater>;

Handle Owned(HANDLE handle) { return Handle(handle == INVALID_HANDLE_VALUE ? nullptr : handle); }

// A token that may not be read belongs to a program with more rights: the session is the agent's.
bool IsElevated(HANDLE process) {
  HANDLE opened = nullptr;
  if (OpenProcessToken(process, TOKEN_QUERY, &opened) == 0) {
    return GetLastError() == ERROR_ACCESS_DENIED;
  }
  const Handle token(opened);
  TOKEN_ELEVATION elevation{};
  DWORD size = 0;
  return GetTokenInformation(opened, TokenElevation, &elevation, sizeof(elevation), &size) != 0 &&
         elevation.TokenIsElevated != 0;
}

bool IsInOurSession(DWORD process) {
  DWORD theirs = 0;
  DWORD ours = 0;
  return ProcessIdToSessionId(process, &theirs) != 0 &&
         ProcessIdToSessionId(GetCurrentProcessId(), &ours) != 0 && theirs == ours;
}

// Empty when it is not elevated.
std::wstring PathOfElevated(const PROCESSENTRY32W& entry) {
  if (!IsInOurSession(entry.th32ProcessID)) return {};
  const Handle process =
      Owned(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, entry.th32ProcessID));
  if (process == nullptr) return GetLastError() == ERROR_ACCESS_DENIED ? entry.szExeFile : L"";
  if (!IsElevated(process.get())) return {};
  wchar_t path[1024];
  auto length = static_cast<DWORD>(std::size(path));
  const bool isTold = QueryFullProcessImageNameW(process.get(), 0, path, &length) != 0;
  return isTold ? path : entry.szExeFile;
}

std::wstring Unquoted(std::wstring path) {
  std::erase(path, L'"');
  return path;
}

// The last part of a path, or all before it.
std::wstring FileName(const std::wstring& path) {
  return path.substr(path.find_last_of(L"\\/") + 1);
}
std::wstring Folder(const std::wstring& path) {
  const auto end = path.find_last_of(L"\\/");
  return end == path.npos ? std::wstring() : path.substr(0, end);
}

bool AreSame(const std::wstring& one, const std::wstring& other) {
  return !one.empty() && lstrcmpiW(one.c_str(), other.c_str()) == 0;
}

bool BelongTogether(const ClassServer& server, const std::wstring& program) {
  return server.isLibrary ? AreSame(Folder(server.path), Folder(program))
                          : AreSame(FileName(server.path), FileName(program));
}

}  // namespace

bool ThisMachine::IsThisProgramElevated() const { return IsElevated(GetCurrentProcess()); }

std::vector<ClassServer> ThisMachine::ServersOf(const CLSID& classId) const {
  const std::wstring key = L"CLSID\\" + IdText(classId);
  std::vector<ClassServer> servers;
  const auto add = [&servers](const ClassServer& server) {
    const bool isKnown = std::find(servers.begin(), servers.end(), server) != servers.end();
    if (!server.path.empty() && !isKnown) servers.push_back(server);
  };
  for (const REGSAM view : {KEY_WOW64_64KEY, KEY_WOW64_32KEY}) {
    add({ProgramIn(RegisteredText(key + L"\\LocalServer32", view)), false});
    add({Unquoted(RegisteredText(key + L"\\InprocServer32", view)), true});
  }
  return servers;
}

std::vector<std::wstring> ThisMachine::ElevatedPrograms() const {
  std::vector<std::wstring> programs;
  const Handle snapshot = Owned(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
  if (snapshot == nullptr) return programs;
  PROCESSENTRY32W entry{};
  entry.dwSize = sizeof(entry);
  for (BOOL more = Process32FirstW(snapshot.get(), &entry); more != 0;
       more = Process32NextW(snapshot.get(), &entry)) {
    std::wstring path = PathOfElevated(entry);
    if (!path.empty()) programs.push_back(std::move(path));
  }
  return programs;
}

bool IsOutOfReach(const Machine& machine, const CLSID& classId, HRESULT failure) {
  if (machine.IsThisProgramElevated()) return false;
  if (failure == E_ACCESSDENIED || failure == kTerminalIsElevated) return true;
  const std::vector<ClassServer> servers = machine.ServersOf(classId);
  if (servers.empty()) return false;
  const std::vector<std::wstring> programs = machine.ElevatedPrograms();
  return std::any_of(servers.begin(), servers.end(), [&](const ClassServer& server) {
    return std::any_of(programs.begin(), programs.end(), [&](const std::wstring& program) {
      return BelongTogether(server, program);
    });
  });
}

std::wstring ProgramIn(const std::wstring& commandLine) {
  if (commandLine.starts_with(L'"')) {
    return commandLine.substr(1, commandLine.find(L'"', 1) - 1);
  }
  return commandLine.substr(0, commandLine.find(L" /"));
}

}  // namespace hostlib::com
