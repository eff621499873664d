#include <gtest/gtest.h>

// clang-format off
#include <windows.h>
// clang-format on

#include <string>
#include <vector>

#include "version.h"

namespace {

struct ProgramFile {
  const char* path;
  const wchar_t* name;
  const wchar_t* description;
};

class ProgramResources : public testing::TestWithParam<ProgramFile> {
 protected:
  ProgramResources() {
    const std::string path = GetParam().path;
    path_.assign(path.begin(), path.end());
    // Built by a cross compiler, run where the root is a drive of its own.
    if (path_.starts_with(L"/")) path_.insert(0, L"Z:");
  }

  std::vector<std::byte> VersionBlock() const {
    DWORD unused = 0;
    std::vector<std::byte> block(GetFileVersionInfoSizeW(path_.c_str(), &unused));
    EXPECT_FALSE(block.empty()) << GetParam().path;
    EXPECT_TRUE(
        GetFileVersionInfoW(path_.c_str(), 0, static_cast<DWORD>(block.size()), block.data()));
    return block;
  }

  std::wstring Says(const std::wstring& name) const {
    const auto block = VersionBlock();
    void* text = nullptr;
    UINT length = 0;
    const std::wstring place = L"\\StringFileInfo\\040904B0\\" + name;
    if (!VerQueryValueW(block.data(), place.c_str(), &text, &length)) return L"(nothing)";
    return static_cast<const wchar_t*>(text);
  }

  std::wstring path_;
};

TEST_P(ProgramResources, TheVersionIsTheProjectsInWordsAndInNumbers) {
  EXPECT_EQ(Says(L"FileVersion"), PTA_VERSION_WIDE_TEXT);
  EXPECT_EQ(Says(L"ProductVersion"), PTA_VERSION_WIDE_TEXT);
  const auto block = VersionBlock();
  void* found = nullptr;
  UINT length = 0;
  ASSERT_TRUE(VerQueryValueW(block.data(), L"\\", &found, &length));
  const auto* version = static_cast<const VS_FIXEDFILEINFO*>(found);
  const WORD numbers[] = {PTA_VERSION_NUMBERS};
  EXPECT_EQ(version->dwFileVersionMS, static_cast<DWORD>(MAKELONG(numbers[1], numbers[0])));
  EXPECT_EQ(version->dwFileVersionLS, static_cast<DWORD>(MAKELONG(numbers[3], numbers[2])));
  EXPECT_EQ(version->dwProductVersionMS, version->dwFileVersionMS);
  EXPECT_EQ(version->dwProductVersionLS, version->dwFileVersionLS);
}

TEST_P(ProgramResources, TheFileSaysWhatItIs) {
  EXPECT_EQ(Says(L"FileDescription"), GetParam().description);
  EXPECT_EQ(Says(L"ProductName"), L"PTA");
  EXPECT_EQ(Says(L"InternalName"), GetParam().name);
  EXPECT_EQ(Says(L"OriginalFilename"), GetParam().name + std::wstring(L".exe"));
}

TEST_P(ProgramResources, ThereIsAnIconAndAManifestThatAsksForNoMoreRights) {
  const HMODULE program = LoadLibraryExW(path_.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
  ASSERT_NE(program, nullptr);
  EXPECT_NE(FindResourceW(program, MAKEINTRESOURCEW(1), RT_GROUP_ICON), nullptr);
  const HRSRC manifest = FindResourceW(program, CREATEPROCESS_MANIFEST_RESOURCE_ID, RT_MANIFEST);
  ASSERT_NE(manifest, nullptr);
  const std::string text(static_cast<const char*>(LockResource(LoadResource(program, manifest))),
                         SizeofResource(program, manifest));
  EXPECT_NE(text.find("level=\"asInvoker\""), std::string::npos);
  FreeLibrary(program);
}

INSTANTIATE_TEST_SUITE_P(
    OfBothPrograms, ProgramResources,
    testing::Values(ProgramFile{PTA_PROGRAM, L"PTA_QX", L"PTA - Prepaid Ticket Advice"},
                    ProgramFile{PTA_TERMINAL, L"VantelPractice", L"Practice terminal"}),
    [](const auto& tested) { return std::string(tested.index == 0 ? "PTA" : "PracticeTerminal"); });

}  // namespace
