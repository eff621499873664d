#include <gtest/gtest.h>

#include <filesystem>
#include <regex>

#include "common/Text.h"
#include "tests/docs/Documents.h"
#include "tests/run/Scenes.h"

namespace docs {
namespace {

TEST(Documents, LinkToFilesThatAreThere) {
  namespace fs = std::filesystem;
  const std::regex link(R"(\]\(([^)#\s]+)(#[^)]*)?\))");
  for (const std::string& path : DocumentPaths()) {
    const std::string text = common::ToUtf8(run::ReadProjectFile(path));
    for (std::sregex_iterator at(text.begin(), text.end(), link), end; at != end; ++at) {
      const std::string target = (*at)[1];
      if (target.find("://") != std::string::npos) continue;
      const fs::path file = fs::path(PTA_SOURCE_DIR) / fs::path(path).parent_path() / target;
      EXPECT_TRUE(fs::exists(file)) << path << " -> " << target;
    }
  }
}

TEST(Documents, AreReachedFromTheReadme) {
  const std::wstring readme = run::ReadProjectFile("README.md");
  for (const std::string& path : DocumentPaths()) {
    if (path == "README.md") continue;
    EXPECT_TRUE(common::Contains(readme, common::FromUtf8("(" + path + ")"))) << path;
  }
}

}  // namespace
}  // namespace docs
