#include <gtest/gtest.h>

#include <set>

#include "common/Text.h"
#include "practice/host/Host.h"
#include "tests/docs/Documents.h"
#include "tests/docs/SourceTexts.h"
#include "tests/run/Scenes.h"

// docs/practice-guide.md has every entry that the practice host knows, and no other.
namespace docs {
namespace {

bool IsCode(const std::wstring& text) {
  return !text.empty() && text.size() <= 6 &&
         std::all_of(text.begin(), text.end(), [](wchar_t c) { return c >= L'A' && c <= L'Z'; });
}

/// The host's own word for what it does not know.
bool Knows(const std::wstring& code) {
  practice::Host host;
  host.LoadBooking(run::OrdinaryScene().booking);
  const std::wstring alone = host.Enter(code);
  return alone != L"REFUSED: ENTRY " + code + L" IS NOT UNDERSTOOD";
}

std::set<std::string> KnownCodes() {
  std::set<std::string> known;
  for (const SourceText& text : TextsOfSources({"practice/host"})) {
    if (IsCode(text.text) && Knows(text.text)) known.insert(common::ToUtf8(text.text));
  }
  return known;
}

TEST(PracticeGuide, HasEveryEntryThatTheHostKnowsAndNoOther) {
  std::set<std::string> documented;
  for (const Row& row : CodeRows(run::ReadProjectFile("docs/practice-guide.md"))) {
    documented.insert(common::ToUtf8(row[0].substr(0, row[0].find(L' '))));
  }
  EXPECT_GT(documented.size(), 25U);
  EXPECT_EQ(documented, KnownCodes());
}

TEST(PracticeGuide, ShowsEveryEntryByAnExampleThatTheHostUnderstands) {
  for (const Row& row : CodeRows(run::ReadProjectFile("docs/practice-guide.md"))) {
    practice::Host host;
    host.LoadBooking(run::OrdinaryScene().booking);
    const std::wstring answer = host.Enter(row[0]);
    EXPECT_FALSE(answer.starts_with(L"REFUSED"))
        << common::ToUtf8(row[0]) << " -> " << common::ToUtf8(answer);
  }
}

}  // namespace
}  // namespace docs
