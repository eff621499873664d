#include "tests/windows/package/Machine.h"

#include <objbase.h>
#include <shlobj.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>

#include "tests/windows/driver/Driver.h"

namespace package {
namespace {

void Gather(HKEY root, const std::wstring& key, std::vector<std::wstring>& lines) {
  HKEY opened = nullptr;
  if (RegOpenKeyExW(root, key.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) return;
  lines.push_back(key);
  std::array<wchar_t, 512> name = {};
  auto length = static_cast<DWORD>(name.size());
  for (DWORD i = 0; RegEnumValueW(opened, i, name.data(), &length, nullptr, nullptr, nullptr,
                                  nullptr) == ERROR_SUCCESS;
       ++i) {
    lines.push_back(key + L" : " + name.data());
    length = static_cast<DWORD>(name.size());
  }
  length = static_cast<DWORD>(name.size());
  std::vector<std::wstring> below;
  for (DWORD i = 0; RegEnumKeyExW(opened, i, name.data(), &length, nullptr, nullptr, nullptr,
                                  nullptr) == ERROR_SUCCESS;
       ++i) {
    below.emplace_back(name.data());
    length = static_cast<DWORD>(name.size());
  }
  RegCloseKey(opened);
  for (const std::wstring& child : below) Gather(root, key + L"\\" + child, lines);
}

}  // namespace

std::wstring UserPath(const wchar_t* variable, const std::wstring& below) {
  std::array<wchar_t, MAX_PATH> value = {};
  GetEnvironmentVariableW(variable, value.data(), static_cast<DWORD>(value.size()));
  return value.data() + below;
}

DWORD RunToEnd(const std::wstring& program, const std::wstring& arguments) {
  std::wstring line = L"\"" + program + L"\" " + arguments;
  STARTUPINFOW start = {};
  start.cb = sizeof start;
  PROCESS_INFORMATION process = {};
  if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                      &start, &process)) {
    throw driver::DriverError(L"Cannot start " + program);
  }
  constexpr DWORD kDeadline = 60'000;
  const DWORD waited = WaitForSingleObject(process.hProcess, kDeadline);
  if (waited != WAIT_OBJECT_0) TerminateProcess(process.hProcess, 99);
  DWORD code = 0;
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  if (waited != WAIT_OBJECT_0) throw driver::DriverError(L"Did not end: " + line);
  return code;
}

std::string ReadBytes(const std::wstring& path) {
  std::FILE* const file = _wfopen(path.c_str(), L"rb");
  if (file == nullptr) throw driver::DriverError(L"Cannot read " + path);
  std::string bytes;
  for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) bytes += static_cast<char>(c);
  std::fclose(file);
  return bytes;
}

void WriteBytes(const std::wstring& path, const std::string& bytes) {
  std::FILE* const file = _wfopen(path.c_str(), L"wb");
  if (file == nullptr) throw driver::DriverError(L"Cannot write " + path);
  std::fwrite(bytes.data(), 1, bytes.size(), file);
  std::fclose(file);
}

bool Exists(const std::wstring& path) {
  return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::vector<std::wstring> FilesIn(const std::wstring& folder) {
  std::vector<std::wstring> files;
  if (!Exists(folder)) return files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    files.push_back(entry.path().wstring().substr(folder.size() + 1));
  }
  std::sort(files.begin(), files.end());
  return files;
}

void RemoveTree(const std::wstring& folder) {
  std::error_code ignored;
  std::filesystem::remove_all(folder, ignored);
}

std::wstring ShortcutTarget(const std::wstring& path) {
  std::array<wchar_t, MAX_PATH> target = {};
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  IShellLinkW* link = nullptr;
  IPersistFile* file = nullptr;
  if (SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                 reinterpret_cast<void**>(&link)))) {
    if (SUCCEEDED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file)))) {
      if (SUCCEEDED(file->Load(path.c_str(), STGM_READ))) {
        link->GetPath(target.data(), static_cast<int>(target.size()), nullptr, 0);
      }
      file->Release();
    }
    link->Release();
  }
  CoUninitialize();
  return target.data();
}

std::wstring UserValue(const std::wstring& key, const wchar_t* name) {
  std::array<wchar_t, 512> value = {};
  DWORD bytes = sizeof(value);
  if (RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name, RRF_RT_REG_SZ, nullptr, value.data(),
                   &bytes) != ERROR_SUCCESS) {
    return {};
  }
  return value.data();
}

DWORD UserNumber(const std::wstring& key, const wchar_t* name) {
  DWORD value = 0;
  DWORD bytes = sizeof(value);
  RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name, RRF_RT_REG_DWORD, nullptr, &value, &bytes);
  return value;
}

std::vector<std::wstring> RegistryBelow(HKEY root, const std::wstring& key) {
  std::vector<std::wstring> lines;
  Gather(root, key, lines);
  std::sort(lines.begin(), lines.end());
  return lines;
}

}  // namespace package
