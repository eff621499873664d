#include <gtest/gtest.h>

#include <algorithm>

#include "common/Text.h"
#include "practice/host/Syntax.h"
#include "tests/run/Scenes.h"

// The largest bookings there are: 999 elements, 99 names, 100 TSTs.
namespace faults {
namespace {

constexpr int kElements = 999;
constexpr int kElementsWithRoom = 960;  ///< for what the script writes
constexpr int kNames = 99;
constexpr int kTSTs = 100;

// Names of letters alone: A, B, ... Z, AA, AB, ...
std::wstring Letters(int number) {
  std::wstring text(1, static_cast<wchar_t>(L'A' + number % 26));
  return number < 26 ? text : Letters(number / 26 - 1) + text;
}

std::wstring TST(int number) {
  const std::wstring passenger = std::to_wstring((number - 1) % kNames + 1);
  return L"TS FARE SEK1000,IND F,TAX SEK120XT,TAX SEK40YQ,TOTAL SEK1160,CALC STO SK CPH500SK "
         L"STO500SEK1000END,BASIS YRT,SALES SITI,FOP CASH [P" +
         passenger + L" S100-101]\n";
}

std::wstring Booking(int elements) {
  std::wstring text;
  for (int i = 0; i < kNames; ++i) text += L"NM PAX" + Letters(i) + L"/JOHN MR\n";
  text +=
      L"SG SK1234 Y 15MAR07 ARN CPH HK99 0700 0810\n"
      L"SG SK1423 Y 22MAR07 CPH ARN HK99 1800 1910\n"
      L"MCO SK,FM *C*10,FP CASH,FA 117-4012345678\n"
      L"TK TL 10MAR07\nAP STO 08-1234567\nFP CASH\nFM 10\nFV SK\n";
  for (int line = kNames + 9; line <= elements; ++line) text += L"RM KEEP THIS\n";
  for (int number = 1; number <= kTSTs; ++number) text += TST(number);
  text += L"TM FEE 250,AMOUNT SEK1160,FOP CASH [P1 S100-101]\nTR LOCATOR ABC123\n";
  return text;
}

/// The agent picks these lines of the list of TSTs.
practice::RehearsalScene Scene(int elements, const std::wstring& lines) {
  practice::RehearsalScene scene = run::OrdinaryScene();
  scene.booking = Booking(elements);
  scene.agent = L"form frmSelectTST\npick lstTST " + lines +
                L"\nclick cmdOK\nform frmPTA\ntype txtPWCT \"SK AT ARN\"\nclick cmdOK\n";
  return scene;
}

std::wstring AllLines() {
  std::wstring lines = L"1";
  for (int number = 2; number <= kTSTs; ++number) lines += L"," + std::to_wstring(number);
  return lines;
}

int CountOf(const run::Lines& entries, std::wstring_view start) {
  return static_cast<int>(std::ranges::count_if(
      entries, [start](const auto& entry) { return entry.starts_with(start); }));
}

TEST(LargestBooking, HasItsElementsNamesAndTSTs) {
  practice::Host host;
  host.LoadBooking(Booking(kElements));
  const auto lines = practice::syntax::Split(host.Enter(L"RT"), L'\n');
  EXPECT_EQ(lines.size(), kElements + 2u);
  EXPECT_TRUE(lines[kNames].starts_with(L"99.")) << common::ToUtf8(lines[kNames]);
  EXPECT_TRUE(lines[kElements].starts_with(L"999 ")) << common::ToUtf8(lines[kElements]);
}

TEST(LargestBooking, IsReadAndWrittenForTheFirstAndTheLastTST) {
  const auto outcome = run::RehearseInAgreement(Scene(kElementsWithRoom, L"1,100"));
  EXPECT_EQ(CountOf(outcome.EntryTexts(), L"TU "), 2);
  EXPECT_EQ(CountOf(outcome.EntryTexts(), L"TU 100 "), 1);
  EXPECT_EQ(outcome.entries.back().answer.substr(0, 13), L"QUEUED ABC123");
}

TEST(LargestBooking, IsReadAndWrittenForAHundredTSTs) {
  const auto outcome = run::RehearseInAgreement(Scene(kElementsWithRoom, AllLines()));
  EXPECT_EQ(CountOf(outcome.EntryTexts(), L"TU "), kTSTs);
  EXPECT_EQ(outcome.entries.back().answer.substr(0, 13), L"QUEUED ABC123");
}

TEST(LargestBooking, ThatIsFullIsReadAndTakesNoNewElementsWhichIsTold) {
  auto scene = Scene(kElements, L"1,100");
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
  auto scene = Scene(kElementsWithRoom, lines);
  scene.agent += L"box ok \"Error when deviding an RM string!\" 16\n";
  const auto outcome = run::RehearseInAgreement(scene);
  EXPECT_EQ(run::NewElements(outcome), run::Lines{});
  EXPECT_EQ(CountOf(outcome.EntryTexts(), L"TU "), 0);
}

}  // namespace
}  // namespace faults
