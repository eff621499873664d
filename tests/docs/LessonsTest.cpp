#include <gtest/gtest.h>

#include "common/Text.h"
#include "practice/host/BookingOrder.h"
#include "practice/host/Host.h"
#include "practice/host/Syntax.h"
#include "tests/docs/Documents.h"
#include "tests/docs/SourceTexts.h"
#include "tests/run/Scenes.h"

// docs/lessons.md walks through five bookings; what it says of the host is what the host does.
namespace docs {
namespace {

struct Lesson {
  std::string booking;
  std::wstring text;
};

std::vector<Lesson> Lessons() {
  std::vector<Lesson> lessons;
  const std::wstring document = run::ReadProjectFile("docs/lessons.md");
  std::size_t at = document.find(L"\n## Lesson ");
  while (at != document.npos) {
    const std::size_t end = document.find(L"\n## ", at + 1);
    const std::wstring text = document.substr(at, end == document.npos ? end : end - at);
    const std::wstring heading = text.substr(0, text.find(L'\n', 1));
    lessons.push_back({common::ToUtf8(CodeIn(heading).at(0)), text});
    at = document.find(L"\n## Lesson ", at + 1);
  }
  return lessons;
}

/// The lines of the block that a lesson shows the program's entries in.
run::Lines EntriesShown(const Lesson& lesson) {
  run::Lines lines;
  const std::size_t start = lesson.text.find(L"```entries\n");
  if (start == lesson.text.npos) return lines;
  const std::size_t from = start + 11;
  const std::wstring block = lesson.text.substr(from, lesson.text.find(L"```", from) - from);
  for (std::wstring& line : practice::syntax::Split(block, L'\n')) {
    if (!line.empty()) lines.push_back(std::move(line));
  }
  return lines;
}

TEST(Lessons, AreFiveInTheOrderOfTheMenu) {
  const std::vector<std::wstring> menu =
      practice::MenuNames(run::ReadProjectFile("practice/pnrs/menu.txt"));
  std::vector<std::ptrdiff_t> places;
  for (const Lesson& lesson : Lessons()) {
    const auto found = std::find(menu.begin(), menu.end(), common::FromUtf8(lesson.booking));
    ASSERT_NE(found, menu.end()) << lesson.booking;
    places.push_back(found - menu.begin());
  }
  EXPECT_EQ(places.size(), 5U);
  EXPECT_TRUE(std::is_sorted(places.begin(), places.end()));
}

TEST(Lessons, ShowEveryEntryOfTheProgram) {
  for (const Lesson& lesson : Lessons()) {
    const practice::RehearsalOutcome outcome = run::RehearseBooking(lesson.booking);
    EXPECT_EQ(EntriesShown(lesson), outcome.EntryTexts()) << lesson.booking;
  }
}

// The text of every box and field that the written agent sees stands in the lesson.
TEST(Lessons, QuoteWhatTheAgentSees) {
  for (const Lesson& lesson : Lessons()) {
    const std::wstring agent = run::SceneOf(lesson.booking).agent;
    for (const std::wstring& line : practice::syntax::Split(agent, L'\n')) {
      if (!line.starts_with(L"see ") && !line.starts_with(L"box ")) continue;
      const std::size_t open = line.find(L'"');
      const std::wstring quoted = line.substr(open + 1, line.find(L'"', open + 1) - open - 1);
      const std::wstring first = quoted.substr(0, quoted.find(L'\\'));
      EXPECT_TRUE(common::Contains(Plain(lesson.text), Plain(first)))
          << lesson.booking << ": " << common::ToUtf8(first);
    }
  }
}

/// A host on which a lesson's program has done its work.
std::unique_ptr<practice::Host> HostAfter(const std::string& booking) {
  auto host = std::make_unique<practice::Host>();
  host->LoadBooking(run::SceneOf(booking).booking);
  for (const Lesson& lesson : Lessons()) {
    if (lesson.booking != booking) continue;
    for (const std::wstring& entry : EntriesShown(lesson)) host->Enter(entry);
  }
  return host;
}

TEST(Lessons, LeaveTheOrdinaryBookingStoredAndOpenItAgain) {
  const auto host = HostAfter("ordinary");
  const std::wstring pnr = host->Enter(L"RT ABC123");
  EXPECT_TRUE(common::Contains(pnr, L"TK OK/STOSK08AA")) << common::ToUtf8(pnr);
  EXPECT_TRUE(common::Contains(pnr, L"FP O/PT/CASH"));
  EXPECT_TRUE(common::Contains(pnr, L"+ SEK250XP"));
}

TEST(Lessons, DropTheOSIOfACancelledDialogWithIG) {
  const auto host = HostAfter("second-thoughts");
  EXPECT_TRUE(common::Contains(host->Enter(L"RT"), L"OS SK PTA\r\nEND OF PNR"));
  host->Enter(L"IG");
  EXPECT_FALSE(common::Contains(host->Enter(L"RT ABC123"), L"OS SK PTA"));
}

TEST(Lessons, QueueByHandWhatTheClosedQueueDidNotTake) {
  const auto host = HostAfter("queue-given-up");
  EXPECT_EQ(host->Enter(L"QE 80 AT STOSK08AA"), L"REFUSED: QUEUE 80 AT STOSK08AA IS CLOSED");
  EXPECT_TRUE(host->Enter(L"QE 81 AT STOSK08AA").starts_with(L"QUEUED ABC123"));
}

}  // namespace
}  // namespace docs
