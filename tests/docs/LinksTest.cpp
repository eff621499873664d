#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <set>

#include "common/Text.h"
#include "practice/host/Syntax.h"
#include "tests/docs/Documents.h"
#include "tests/run/Scenes.h"

namespace docs {
namespace {

namespace fs = std::filesystem;

struct Link {
  std::string page;
  std::string target;   ///< a path of the checkout
  std::string heading;  ///< what stands behind #, or ""
};

std::string Content(const std::string& path) { return common::ToUtf8(run::ReadProjectFile(path)); }

/// The links within the checkout.
std::vector<Link> LinksOf(const std::string& page) {
  const std::regex link(R"(\]\(([^)#\s]*)(?:#([^)]*))?\))");
  const std::string text = Content(page);
  std::vector<Link> links;
  for (std::sregex_iterator at(text.begin(), text.end(), link), end; at != end; ++at) {
    const std::string target = (*at)[1];
    if (target.find("://") != std::string::npos) continue;
    const fs::path file = target.empty() ? fs::path(page) : fs::path(page).parent_path() / target;
    links.push_back({page, file.lexically_normal().generic_string(), (*at)[2]});
  }
  return links;
}

/// The name by which a link finds a heading: its letters, digits and hyphens, small, with a hyphen
/// for each blank.
std::string NameOf(const std::string& heading) {
  std::string name;
  for (const char c : heading) {
    if (c == ' ') name += '-';
    const auto letter = static_cast<unsigned char>(c);
    if (std::isalnum(letter) || c == '-' || c == '_') name += static_cast<char>(std::tolower(c));
  }
  return name;
}

std::set<std::string> HeadingsOf(const std::string& page) {
  std::set<std::string> names;
  std::map<std::string, int> times;
  for (const std::wstring& line : practice::syntax::Split(run::ReadProjectFile(page), L'\n')) {
    if (!line.starts_with(L"#")) continue;
    const std::string name = NameOf(common::ToUtf8(line.substr(line.find(L' ') + 1)));
    const int before = times[name]++;
    names.insert(before == 0 ? name : name + "-" + std::to_string(before));
  }
  return names;
}

/// The pages that packaging/guides.txt has delivered.
std::vector<std::string> DeliveredPages() {
  std::vector<std::string> pages;
  for (const std::wstring& line :
       practice::syntax::Split(run::ReadProjectFile("packaging/guides.txt"), L'\n')) {
    if (!line.empty() && line[0] != L'#') pages.push_back("docs/" + common::ToUtf8(line) + ".md");
  }
  return pages;
}

TEST(Documents, LinkToFilesThatAreThere) {
  for (const std::string& path : DocumentPaths()) {
    for (const Link& link : LinksOf(path)) {
      EXPECT_TRUE(fs::exists(fs::path(PTA_SOURCE_DIR) / link.target))
          << path << " -> " << link.target;
    }
  }
}

TEST(Documents, LinkToHeadingsThatAreThere) {
  int count = 0;
  for (const std::string& path : DocumentPaths()) {
    for (const Link& link : LinksOf(path)) {
      if (link.heading.empty()) continue;
      ++count;
      EXPECT_TRUE(HeadingsOf(link.target).contains(link.heading))
          << path << " -> " << link.target << "#" << link.heading;
    }
  }
  EXPECT_GT(count, 50);
}

TEST(Documents, AreReachedFromTheReadme) {
  const std::wstring readme = run::ReadProjectFile("README.md");
  for (const std::string& path : DocumentPaths()) {
    if (path == "README.md") continue;
    EXPECT_TRUE(common::Contains(readme, common::FromUtf8("(" + path + ")"))) << path;
  }
}

TEST(DeliveredGuides, LinkToNothingThatIsNotDelivered) {
  const std::vector<std::string> pages = DeliveredPages();
  for (const std::string& page : pages) {
    for (const Link& link : LinksOf(page)) {
      const bool isDelivered = link.target.starts_with("docs/pictures/") ||
                               std::find(pages.begin(), pages.end(), link.target) != pages.end();
      EXPECT_TRUE(isDelivered) << page << " -> " << link.target;
    }
  }
}

TEST(DeliveredGuides, AreAllReachedFromTheIndex) {
  const std::vector<std::string> pages = DeliveredPages();
  ASSERT_EQ(pages.at(0), "docs/index.md");
  std::set<std::string> reached;
  for (const Link& link : LinksOf(pages[0])) reached.insert(link.target);
  EXPECT_EQ(reached, std::set<std::string>(pages.begin() + 1, pages.end()));
}

}  // namespace
}  // namespace docs
