#include "journal/win32/WindowsFolder.h"

#include <windows.h>
// After it: it is not complete by itself.
#include <shlobj.h>

namespace journal {
namespace {

bool IsPlainName(std::wstring_view name) {
  return !name.empty() && name.find_first_of(L"\\/:*?\"<>|") == name.npos && name != L"." &&
         name != L"..";
}

Naming WhyNot(DWORD error) {
  const bool isTaken = error == ERROR_FILE_EXISTS || error == ERROR_ALREADY_EXISTS;
  return isTaken ? Naming::kTaken : Naming::kImpossible;
}

// Others may read, rename and remove the file while it is written, but not write into it.
constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_DELETE;

class WindowsFile : public File {
 public:
  WindowsFile(HANDLE handle, std::wstring folder, std::wstring path)
      : handle_(handle), folder_(std::move(folder)), path_(std::move(path)) {}
  ~WindowsFile() override { CloseHandle(handle_); }
  WindowsFile(const WindowsFile&) = delete;
  WindowsFile& operator=(const WindowsFile&) = delete;

  bool Append(std::string_view bytes) override {
    DWORD written = 0;
    return WriteFile(handle_, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
           written == bytes.size();
  }
  void Flush() override { FlushFileBuffers(handle_); }
  // The handle stays open, so that there is no moment in which a line has nowhere to go.
  Naming Rename(std::wstring_view name) override {
    if (!IsPlainName(name)) return Naming::kImpossible;
    std::wstring renamed = folder_ + L"\\" + std::wstring(name);
    if (!MoveFileExW(path_.c_str(), renamed.c_str(), 0)) return WhyNot(GetLastError());
    path_ = std::move(renamed);
    return Naming::kDone;
  }

 private:
  HANDLE handle_;
  std::wstring folder_;
  std::wstring path_;
};

bool IsOrdinaryFile(const WIN32_FIND_DATAW& found) {
  return (found.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT)) == 0;
}

}  // namespace

std::wstring WindowsFolder::PathOf(std::wstring_view name) const {
  return path_ + L"\\" + std::wstring(name);
}

Naming WindowsFolder::CreateNew(std::wstring_view name, std::unique_ptr<File>& file) {
  if (path_.empty() || !IsPlainName(name)) return Naming::kImpossible;
  SHCreateDirectoryExW(nullptr, path_.c_str(), nullptr);
  std::wstring path = PathOf(name);
  const HANDLE handle = CreateFileW(path.c_str(), FILE_APPEND_DATA | SYNCHRONIZE, kShared, nullptr,
                                    CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return WhyNot(GetLastError());
  file = std::make_unique<WindowsFile>(handle, path_, std::move(path));
  return Naming::kDone;
}

std::vector<std::wstring> WindowsFolder::Names() const {
  std::vector<std::wstring> names;
  if (path_.empty()) return names;
  WIN32_FIND_DATAW found = {};
  const HANDLE search = FindFirstFileW(PathOf(L"*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return names;
  do {
    if (IsOrdinaryFile(found)) names.emplace_back(found.cFileName);
  } while (FindNextFileW(search, &found));
  FindClose(search);
  return names;
}

void WindowsFolder::Remove(std::wstring_view name) {
  if (!path_.empty() && IsPlainName(name)) DeleteFileW(PathOf(name).c_str());
}

std::wstring UsersJournalFolder() {
  PWSTR data = nullptr;
  std::wstring path;
  if (SUCCEEDED(SHGetKnownFolderPath(FOLDERID_LocalAppData, KF_FLAG_DEFAULT, nullptr, &data))) {
    path = std::wstring(data) + L"\\PTA_QX\\journal";
  }
  CoTaskMemFree(data);
  return path;
}

}  // namespace journal
