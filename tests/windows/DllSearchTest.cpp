#include <gtest/gtest.h>
#include <windows.h>

#include "platform/win32/DllSearch.h"

namespace platform {
namespace {

bool Loads(const wchar_t* name) {
  const HMODULE library = LoadLibraryW(name);
  if (library != nullptr) FreeLibrary(library);
  return library != nullptr;
}

// One test, since what is switched on stays so for the process.
TEST(DllSearch, ALibraryBesideTheProgramIsFoundUntilOnlyTheSystemsAreWanted) {
  ASSERT_TRUE(Loads(L"planted_library.dll"));
  LoadSystemLibrariesOnly();
  EXPECT_FALSE(Loads(L"planted_library.dll"));
  EXPECT_TRUE(Loads(L"version.dll"));
}

}  // namespace
}  // namespace platform
