#include <gtest/gtest.h>

#include "common/Text.h"
#include "tests/docs/SourceTexts.h"
#include "tests/run/Scenes.h"

// docs/practice-guide.md has every text that the practice terminal shows of its own.
namespace docs {
namespace {

constexpr char kTable[] = "practice/terminal/Texts.h";

bool IsInGuide(const std::wstring& text) {
  static const std::wstring guide = Plain(run::ReadProjectFile("docs/practice-guide.md"));
  return common::Contains(guide, Plain(text));
}

// Words that only a script's programmer, or nobody, comes to see.
bool IsForNobody(const std::wstring& text) {
  return text == L"Courier New" || text == L"Practice library" ||
         text == L"Object of another program" || text == L" can not be handed out" ||
         text == L"The object does not belong to the library" || text == L"No interface";
}

TEST(TerminalTexts, OfTheTableStandInThePracticeGuide) {
  int count = 0;
  for (const SourceText& text : TextsOfSources({"practice/terminal"})) {
    if (text.file != kTable) continue;
    EXPECT_TRUE(IsInGuide(text.text)) << common::ToUtf8(text.text);
    ++count;
  }
  EXPECT_GT(count, 45);
}

TEST(TerminalTexts, OfOtherSourcesStandInThePracticeGuide) {
  for (const SourceText& text : TextsOfSources({"practice/terminal"})) {
    if (text.file == kTable || !IsWording(text) || IsForNobody(text.text)) continue;
    EXPECT_TRUE(IsInGuide(text.text)) << text.file << ": " << common::ToUtf8(text.text);
  }
}

// They come to an agent's eyes behind "the library's last error".
TEST(TerminalTexts, OfThePracticeLibraryStandInThePracticeGuide) {
  int count = 0;
  for (const SourceText& text : TextsOfSources({"practice/library"})) {
    if (!IsWording(text) || IsForNobody(text.text)) continue;
    EXPECT_TRUE(IsInGuide(text.text)) << text.file << ": " << common::ToUtf8(text.text);
    ++count;
  }
  EXPECT_GT(count, 5);
}

// A text of one word is no wording to the test above: the sources of the window have none at all.
TEST(TerminalTexts, OfTheWindowStandInTheTable) {
  for (const SourceText& text : TextsOfSources({"practice/terminal"})) {
    const bool isOfTheWindow = text.file.starts_with("practice/terminal/Terminal") ||
                               text.file == "practice/terminal/AboutBox.cpp" ||
                               text.file == "practice/terminal/Desk.cpp";
    if (isOfTheWindow && !IsForNobody(text.text)) {
      EXPECT_FALSE(IsWording(text)) << text.file << ": " << common::ToUtf8(text.text);
      EXPECT_EQ(text.text.find(L'&'), text.text.npos) << text.file;
    }
  }
}

}  // namespace
}  // namespace docs
