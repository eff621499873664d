#include <gtest/gtest.h>

#include <algorithm>

#include "common/Text.h"
#include "practice/host/Syntax.h"
#include "tests/faults/LargestBooking.h"
#include "tests/run/Scenes.h"

// The largest bookings there are: 999 elements, 99 names, 100 TSTs.
namespace faults {
namespace {

int CountOf(const run::Lines& entries, std::wstring_view start) {
  return static_cast<int>(std::ranges::count_if(
      entries, [start](const auto& entry) { return entry.starts_with(start); }));
}

TEST(LargestBooking, HasItsElementsNamesAndTSTs) {
  practice::Host host;
  host.LoadBooking(LargestBooking(kElements));
  const auto lines = practice::syntax::Split(host.Enter(L"RT"), L'\n');
  EXPECT_EQ(lines.size(), kElements + 2u);
  EXPECT_TRUE(lines[kNames].starts_with(L"99.")) << common::ToUtf8(lines[kNames]);
  EXPECT_TRUE(lines[kElements].starts_with(L"999 ")) << common::ToUtf8(lines[kElements]);
}

TEST(LargestBooking, IsReadAndWrittenForTheFirstAndTheLastTST) {
  const auto outcome = run::RehearseInAgreement(LargestScene(kElementsWithRoom, L"1,100"));
  EXPECT_EQ(CountOf(outcome.EntryTexts(), L"TU "), 2);
  EXPECT_EQ(CountOf(outcome.EntryTexts(), L"TU 100 "), 1);
  EXPECT_EQ(outcome.entries.back().answer.substr(0, 13), L"QUEUED ABC123");
}

TEST(LargestBooking, IsReadAndWrittenForAHundredTSTs) {
  const auto outcome = run::RehearseInAgreement(LargestScene(kElementsWithRoom, AllTSTs()));
  EXPECT_EQ(CountOf(outcome.EntryTexts(), L"TU "), kTSTs);
  EXPECT_EQ(outcome.entries.back().answer.substr(0, 13), L"QUEUED ABC123");
}

TEST(LargestBooking, ThatIsFullIsReadAndTakesNoNewElementsWhichIsTold) {
  auto scene = LargestScene(kElements, L"1,100");
  scene.agent +=
      L"box ok \"Error when entering the PNR elements!\\r\\rCorvane Central System gave an "
      L"incorrect "
      L"response to the last transaction.\\rPlease verify the response given and correct if "
      L"possible, or contact your help desk. \\rThe program can not continue.\" 48\n";
  const auto outcome = run::RehearseInAgreement(scene);
  EXPECT_TRUE(outcome.entries.back().answer.starts_with(L"REFUSED: "));
  EXPECT_EQ(CountOf(outcome.EntryTexts(), L"TU "), 0);
}

// Their numbers alone are longer than a remark may be.
TEST(LargestBooking, CannotHaveARemarkForEverySecondPassengerWhichIsTold) {
  std::wstring lines = L"1";
  for (int number = 3; number < kTSTs; number += 2) lines += L"," + std::to_wstring(number);
  auto scene = LargestScene(kElementsWithRoom, lines);
  scene.agent += L"box ok \"Error when deviding an RM string!\" 16\n";
  const auto outcome = run::RehearseInAgreement(scene);
  EXPECT_EQ(run::NewElements(outcome), run::Lines{});
  EXPECT_EQ(CountOf(outcome.EntryTexts(), L"TU "), 0);
}

}  // namespace
}  // namespace faults
