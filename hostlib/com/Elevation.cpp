#include "hostlib/com/Elevation.h"

// clang-format off
#include <objbase.h>
#include <tlhelp32.h>
// clang-format on

#include <memory>

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

bool IsElevatedProcess(DWORD id) {
  if (!IsInOurSession(id)) return false;
  const Handle process = Owned(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id));
  return process != nullptr && IsElevated(process.get());
}

}  // namespace

bool IsThisProgramElevated() { return IsElevated(GetCurrentProcess()); }

std::wstring LocalServerOf(const CLSID& classId) {
  wchar_t id[64];
  if (StringFromGUID2(classId, id, static_cast<int>(std::size(id))) == 0) return {};
  const std::wstring key = L"CLSID\\" + std::wstring(id) + L"\\LocalServer32";
  wchar_t command[1024];
  DWORD size = sizeof(command);
  if (RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, command,
                   &size) != ERROR_SUCCESS) {
    return {};
  }
  return ProgramIn(command);
}

bool RunsElevated(const std::wstring& fileName) {
  const Handle snapshot = Owned(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
  if (snapshot == nullptr) return false;
  PROCESSENTRY32W entry{};
  entry.dwSize = sizeof(entry);
  for (BOOL more = Process32FirstW(snapshot.get(), &entry); more != 0;
       more = Process32NextW(snapshot.get(), &entry)) {
    if (lstrcmpiW(entry.szExeFile, fileName.c_str()) == 0 &&
        IsElevatedProcess(entry.th32ProcessID)) {
      return true;
    }
  }
  return false;
}

std::wstring ProgramIn(const std::wstring& commandLine) {
  std::wstring path = commandLine;
  if (path.starts_with(L'"')) {
    path = path.substr(1, path.find(L'"', 1) - 1);
  } else if (const auto arguments = path.find(L" /"); arguments != path.npos) {
    path.resize(arguments);
  }
  const auto folder = path.find_last_of(L"\\/");
  return folder == path.npos ? path : path.substr(folder + 1);
}

}  // namespace hostlib::com
