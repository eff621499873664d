#include <gtest/gtest.h>

#include <set>

#include "common/Text.h"
#include "tests/docs/Documents.h"
#include "tests/docs/SourceTexts.h"
#include "tests/run/Scenes.h"

namespace docs {
namespace {

TEST(AdministratorPage, HasEveryNameOfTheComTableAndNoOther) {
  std::set<std::wstring> used;
  for (const SourceText& text : TextsOfSources({"hostlib/com"})) {
    if (text.file == "hostlib/com/ProgIds.cpp" && text.text.starts_with(L"Vantel.")) {
      used.insert(text.text);
    }
  }
  std::set<std::wstring> documented;
  for (const std::wstring& code : CodeIn(run::ReadProjectFile("docs/administrator.md"))) {
    if (code.starts_with(L"Vantel.")) documented.insert(code);
  }
  EXPECT_GT(used.size(), 20U);
  EXPECT_EQ(documented, used);
}

}  // namespace
}  // namespace docs
