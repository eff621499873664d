#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "tests/run/Scenes.h"

// What docs/installing.md promises of the installer, where no installer is needed to see it.
namespace docs {
namespace {

std::set<std::wstring> Found(const std::string& path, const wchar_t* pattern) {
  const std::wstring text = run::ReadProjectFile(path);
  const std::wregex wanted(pattern);
  std::set<std::wstring> found;
  for (std::wsregex_iterator at(text.begin(), text.end(), wanted), end; at != end; ++at) {
    found.insert((*at)[1]);
  }
  return found;
}

TEST(Package, HasEveryExitCodeOfAFailureInTheWingetManifest) {
  const std::set<std::wstring> documented = Found("docs/installing.md", LR"(\n\| ([1-9]) \| )");
  EXPECT_GE(documented.size(), 6U);
  EXPECT_EQ(Found("packaging/winget/PTA.PTA.installer.yaml.in", LR"(InstallerReturnCode: (\d+))"),
            documented);
}

TEST(Package, HasEverySwitchOfTheInstallerDocumented) {
  const std::set<std::wstring> switches =
      Found("packaging/choice.nsh", LR"re(GetOptions\} \$R0 "(/[A-Z]+=)")re");
  EXPECT_EQ(switches.size(), 2U);
  const std::set<std::wstring> documented = Found("docs/installing.md", LR"(\n\| `(/[A-Z]+=))");
  for (const std::wstring& name : switches) EXPECT_TRUE(documented.contains(name));
}

}  // namespace
}  // namespace docs
