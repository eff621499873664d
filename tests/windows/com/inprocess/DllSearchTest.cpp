#include <filesystem>

#include "hostlib/com/Apartment.h"
#include "hostlib/com/ComLibrary.h"
#include "platform/win32/DllSearch.h"
#include "tests/windows/com/inprocess/InstalledServer.h"

namespace com_tests {
namespace {

namespace fs = std::filesystem;

/// A folder with nothing in it, in its lifetime.
class EmptyFolder {
 public:
  explicit EmptyFolder(const wchar_t* name) : path_(fs::temp_directory_path() / name) {
    fs::remove_all(path_);
    fs::create_directories(path_);
  }
  ~EmptyFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  EmptyFolder(const EmptyFolder&) = delete;
  EmptyFolder& operator=(const EmptyFolder&) = delete;

  const fs::path& path() const { return path_; }

 private:
  fs::path path_;
};

/// The current folder is another one in its lifetime.
class CurrentFolder {
 public:
  explicit CurrentFolder(const fs::path& path) : before_(fs::current_path()) {
    fs::current_path(path);
  }
  ~CurrentFolder() {
    std::error_code ignored;
    fs::current_path(before_, ignored);
  }
  CurrentFolder(const CurrentFolder&) = delete;
  CurrentFolder& operator=(const CurrentFolder&) = delete;

 private:
  fs::path before_;
};

bool SessionCanBeMade() {
  WithTheServer source;
  hostlib::com::ComLibrary library(source);
  try {
    return library.Create(L"TerminalSession") != nullptr;
  } catch (const hostlib::LibraryError&) {
    return false;
  }
}

std::wstring PathOf(const wchar_t* dll) {
  std::array<wchar_t, MAX_PATH> path = {};
  GetModuleFileNameW(GetModuleHandleW(dll), path.data(), static_cast<DWORD>(path.size()));
  return path.data();
}

// One test, since what is loaded stays so for the process: what must not be loaded comes first.
TEST(DllSearch, ALibrarysOwnDllsComeFromItsFolderAndNeverFromTheCurrentOne) {
  platform::LoadSystemLibrariesOnly();
  const hostlib::com::Apartment apartment([] { return false; });
  const fs::path vendor = fs::path(BesideThisProgram(L"vendor"));
  const EmptyFolder alone(L"PtaLibraryAlone");
  const EmptyFolder planted(L"PtaPlanted");
  fs::copy(vendor / L"inprocess_server.dll", alone.path());
  fs::copy(vendor / L"companion.dll", planted.path());
  const CurrentFolder current(planted.path());
  {
    const InstalledServer server((alone.path() / L"inprocess_server.dll").wstring());
    EXPECT_FALSE(SessionCanBeMade());
    EXPECT_EQ(GetModuleHandleW(L"companion.dll"), nullptr);
  }
  const InstalledServer server((vendor / L"inprocess_server.dll").wstring());
  EXPECT_TRUE(SessionCanBeMade());
  EXPECT_EQ(PathOf(L"companion.dll"), (vendor / L"companion.dll").wstring());
}

}  // namespace
}  // namespace com_tests
