#include <gtest/gtest.h>

#include "tests/mco/WaitBench.h"

namespace mco {
namespace {

using namespace hostlib::operations;

const Lines kReadAgain = {L"TerminalSession.1.33 SendEntryChecked(\"IR\") -> True",
                          L"TerminalSession.1.9 LoadPNR()"};

// Without the bags and conversions.
Lines HostCalls(const Lines& calls) {
  Lines kept;
  for (const std::wstring& line : calls) {
    if (!line.starts_with(L"ParameterBag") && !line.starts_with(L"ScriptGlobal")) {
      kept.push_back(line);
    }
  }
  return kept;
}

TEST(FrmWaitForMCO, ItsTextsAreExact) {
  WaitBench bench;
  bench.LoadAndShow();
  EXPECT_EQ(bench.form.Caption(), L"  PTA Script ");
  EXPECT_EQ(bench.form.lblTSTListMessage.Text(),
            L"The script is waiting for MCO segments to be completed.\r\nFA elements are missing "
            L"for one or several of the MCO segments. \r\n\r\nWait or press Cancel to end the "
            L"script");
  EXPECT_EQ(bench.form.cmdCancel.Text(), L"Cancel");
}

TEST(FrmWaitForMCO, LoadingReadsAOneMCOPNRCallByCall) {
  WaitBench bench;
  bench.segments = {{L"8", L"117-4012345678", L"MCO ONE"}};
  bench.form.Load();
  EXPECT_EQ(bench.TakeCalls(),
            (Lines{L"TerminalSession.1.33 SendEntryChecked(\"IR\") -> True",
                   L"TerminalSession.1.9 LoadPNR()", L"PnrReader.1.113 CountMCOElements() -> 1",
                   L"ParameterBag.1.7 SetValue(\"intKeyIndex\", 0)",
                   L"ParameterBag.1.7 SetValue(\"strKeyPNRElement\", \"MCO\")",
                   L"PnrReader.3.7 FindElements(<ParameterBag>) -> <ParameterBag>",
                   L"ParameterBag.1.8 GetValue(\"strKeyElementNr\") -> \"8\"",
                   L"ScriptGlobal.1.13 ToText(\"8\") -> \"8\"",
                   L"ParameterBag.1.8 GetValue(\"strKeyMCOFATicketNbr\") -> \"117-4012345678\"",
                   L"ScriptGlobal.1.13 ToText(\"117-4012345678\") -> \"117-4012345678\"",
                   L"ParameterBag.1.8 GetValue(\"strKeyElement\") -> \"MCO ONE\"",
                   L"ScriptGlobal.1.13 ToText(\"MCO ONE\") -> \"MCO ONE\""}));
}

TEST(FrmWaitForMCO, EachSegmentIsReadThroughABagOfItsOwn) {
  WaitBench bench;
  bench.form.Load();
  Lines indexes;
  for (const std::wstring& line : bench.TakeCalls()) {
    if (line.find(L"intKeyIndex") != std::wstring::npos) indexes.push_back(line);
  }
  EXPECT_EQ(indexes, (Lines{L"ParameterBag.1.7 SetValue(\"intKeyIndex\", 0)",
                            L"ParameterBag.1.7 SetValue(\"intKeyIndex\", 1)"}));
}

TEST(FrmWaitForMCO, WithAllFANumbersThereItUnloadsWhileLoading) {
  WaitBench bench;
  bench.segments = WaitBench::Complete();
  bench.waitCancelled = true;
  EXPECT_FALSE(bench.form.Load());
  EXPECT_TRUE(bench.form.WaitOK());
  EXPECT_FALSE(bench.waitCancelled);
  EXPECT_EQ(bench.form.tmrWait.Interval(), 0);
  EXPECT_EQ(bench.form.staStatusText.Text(), kComplete);
}

TEST(FrmWaitForMCO, WithAnFANumberMissingItStartsToWait) {
  WaitBench bench;
  EXPECT_TRUE(bench.form.Load());
  EXPECT_EQ(bench.form.tmrWait.Interval(), 5000);
  EXPECT_EQ(bench.form.staStatusText.Text(), WaitedFor(0));
  EXPECT_FALSE(bench.form.WaitOK());
  EXPECT_EQ(bench.form.MCOCount(), 2);
}

TEST(FrmWaitForMCO, AnElementTextIsPaddedToFiftyCharactersAndNeverCut) {
  WaitBench bench;
  const std::wstring ten(10, L'A');
  const std::wstring fifty(50, L'B');
  const std::wstring sixty(60, L'C');
  bench.segments = {{L"1", L"", ten}, {L"2", L"", fifty}, {L"3", L"", sixty}, {L"4", L"", L""}};
  bench.form.Load();
  ASSERT_EQ(bench.form.lstMCOElements.Count(), 4);
  const auto& items = bench.form.lstMCOElements.Items();
  EXPECT_EQ(items[0].text, ten + std::wstring(40, L' '));
  EXPECT_EQ(items[1].text, fifty);
  EXPECT_EQ(items[2].text, sixty);
  EXPECT_EQ(items[3].text, std::wstring(50, L' '));
}

TEST(FrmWaitForMCO, ALinesDataIsItsElementNumberOrZero) {
  WaitBench bench;
  bench.segments = {{L"12", L"", L"A"}, {L"", L"", L"B"}, {L"1X", L"", L"C"}, {L"070", L"", L"D"}};
  bench.form.Load();
  std::vector<std::int32_t> data;
  for (const auto& item : bench.form.lstMCOElements.Items()) data.push_back(item.data);
  EXPECT_EQ(data, (std::vector<std::int32_t>{12, 0, 0, 70}));
}

TEST(FrmWaitForMCO, ALinesFlagTellsWhetherItHasAnFANumber) {
  WaitBench bench;
  bench.form.Load();
  EXPECT_EQ(bench.form.Flags(), (std::vector<std::int16_t>{1, 0}));
}

TEST(FrmWaitForMCO, AddingALineGrowsTheFlagsAndKeepsTheOthers) {
  WaitBench bench;
  bench.form.addMCOItem(L"ONE", 5, 3);
  bench.form.addMCOItem(L"TWO", 6, 4);
  EXPECT_EQ(bench.form.lstMCOElements.Items()[1].text, L"TWO");
  EXPECT_EQ(bench.form.lstMCOElements.Items()[1].data, 6);
  EXPECT_EQ(bench.form.Flags(), (std::vector<std::int16_t>{3, 4}));
}

TEST(FrmWaitForMCO, EachFillingBeginsWithAnEmptyList) {
  WaitBench bench;
  bench.LoadAndShow();
  bench.segments = {{L"7", L"", L"OTHER"}, {L"8", L"117-1", L"ONE"}, {L"9", L"", L"TWO"}};
  bench.Tick();
  ASSERT_EQ(bench.form.lstMCOElements.Count(), 3);
  EXPECT_EQ(bench.form.lstMCOElements.Items()[0].data, 7);
  EXPECT_EQ(bench.form.Flags(), (std::vector<std::int16_t>{0, 1, 0}));
}

TEST(FrmWaitForMCO, ATickReadsThePNRAgainAsLoadingDid) {
  WaitBench bench;
  bench.LoadAndShow();
  const Lines loading = bench.TakeCalls();
  bench.Tick();
  EXPECT_EQ(bench.TakeCalls(), loading);
  ASSERT_GE(loading.size(), 2u);
  EXPECT_EQ((Lines{loading[0], loading[1]}), kReadAgain);
}

TEST(FrmWaitForMCO, TheTimerStandsStillAndNoInputIsTakenDuringATick) {
  WaitBench bench;
  bench.LoadAndShow();
  bool seen = false;
  bench.scripted.On(terminal_session::kSendEntryChecked, [&](const hostlib::Arguments&) {
    seen = true;
    EXPECT_EQ(bench.form.tmrWait.Interval(), 0);
    EXPECT_FALSE(bench.desktop.input().IsOpen());
    return true;
  });
  bench.Tick();
  EXPECT_TRUE(seen);
  EXPECT_EQ(bench.form.tmrWait.Interval(), 5000);
  EXPECT_TRUE(bench.desktop.input().IsOpen());
  EXPECT_EQ(bench.intervals, (std::vector<int>{0, 5000}));
}

TEST(FrmWaitForMCO, TheTextChangesAt35And90And155Seconds) {
  WaitBench bench;
  bench.LoadAndShow();
  bench.Tick(6);
  EXPECT_EQ(bench.form.staStatusText.Text(), WaitedFor(0));
  bench.Tick();
  EXPECT_EQ(bench.form.staStatusText.Text(), WaitedFor(1));
  bench.Tick(10);
  EXPECT_EQ(bench.form.staStatusText.Text(), WaitedFor(1));
  bench.Tick();
  EXPECT_EQ(bench.form.staStatusText.Text(), WaitedFor(2));
  bench.Tick(12);
  EXPECT_EQ(bench.form.staStatusText.Text(), WaitedFor(2));
  bench.Tick();
  EXPECT_EQ(bench.form.staStatusText.Text(), WaitedFor(3));
}

TEST(FrmWaitForMCO, NoNumberRepeatsAText) {
  WaitBench bench;
  bench.LoadAndShow();
  bench.Tick(31);
  EXPECT_EQ(bench.statusTexts, (Lines{WaitedFor(1), WaitedFor(2), WaitedFor(3)}));
}

TEST(FrmWaitForMCO, AnFAThatArrivesAfterTwoReadsClosesItButNotBefore) {
  WaitBench bench;
  bench.LoadAndShow();
  bench.Tick();
  ASSERT_TRUE(bench.form.IsLoaded());
  ASSERT_FALSE(bench.form.WaitOK());
  bench.segments = WaitBench::Complete();
  bench.waitCancelled = true;
  bench.Tick();
  EXPECT_FALSE(bench.form.IsLoaded());
  EXPECT_TRUE(bench.form.WaitOK());
  EXPECT_FALSE(bench.waitCancelled);
  EXPECT_EQ(bench.form.tmrWait.Interval(), 0);
  EXPECT_EQ(bench.statusTexts, Lines{kComplete});
}

TEST(FrmWaitForMCO, AnIncompleteSegmentThatIsRemovedEndsTheWait) {
  WaitBench bench;
  bench.LoadAndShow();
  bench.segments.pop_back();
  bench.Tick();
  EXPECT_FALSE(bench.form.IsLoaded());
  EXPECT_EQ(bench.form.MCOCount(), 1);
}

TEST(FrmWaitForMCO, WithNoSegmentLeftTheWaitGoesOn) {
  WaitBench bench;
  bench.LoadAndShow();
  bench.segments.clear();
  bench.Tick();
  EXPECT_TRUE(bench.form.IsLoaded());
  EXPECT_EQ(bench.form.MCOCount(), 0);
  EXPECT_EQ(bench.form.lstMCOElements.Count(), 0);
  EXPECT_TRUE(bench.form.Flags().empty());
  EXPECT_EQ(bench.form.tmrWait.Interval(), 5000);
  EXPECT_TRUE(bench.desktop.log.empty());
}

TEST(FrmWaitForMCO, TheTimeWithoutSegmentsCountsAsWaited) {
  WaitBench bench;
  bench.LoadAndShow();
  bench.segments.clear();
  bench.Tick(7);
  EXPECT_EQ(bench.form.staStatusText.Text(), WaitedFor(1));
}

TEST(FrmWaitForMCO, AnFACountedOnceIsNotCountedAgainAtTheNextTick) {
  WaitBench bench;
  bench.LoadAndShow();
  bench.Tick(3);
  EXPECT_TRUE(bench.form.IsLoaded());
}

TEST(FrmWaitForMCO, WithoutAnyMCOItSaysSoAndEndsAtOnce) {
  WaitBench bench;
  bench.segments.clear();
  EXPECT_THROW(bench.form.Load(), support::EndedAtOnce);
  EXPECT_EQ(bench.desktop.log, Lines{L"box 0 \"\" \"No MCO's in PNR, script is closing\" -> 1"});
  EXPECT_EQ(HostCalls(bench.TakeCalls()),
            (Lines{kReadAgain[0], kReadAgain[1], L"PnrReader.1.113 CountMCOElements() -> 0"}));
}

TEST(FrmWaitForMCO, CancelLeavesNothingChosenAndCloses) {
  WaitBench bench;
  bench.LoadAndShow();
  bench.form.cmdCancel.Clicked();
  EXPECT_FALSE(bench.form.IsLoaded());
  EXPECT_FALSE(bench.form.WaitOK());
  EXPECT_TRUE(bench.form.Cancelled());
  EXPECT_EQ(bench.form.ElementNumber(), L"");
  EXPECT_TRUE(bench.waitCancelled);
  EXPECT_EQ(bench.form.tmrWait.Interval(), 0);
}

TEST(FrmWaitForMCO, TheCloseBoxIsCancel) {
  WaitBench bench;
  bench.LoadAndShow();
  bench.form.OnCloseBox();
  EXPECT_FALSE(bench.form.IsLoaded());
  EXPECT_FALSE(bench.form.WaitOK());
  EXPECT_TRUE(bench.form.Cancelled());
  EXPECT_TRUE(bench.waitCancelled);
}

TEST(FrmWaitForMCO, LoadedAgainItWaitsAfresh) {
  WaitBench bench;
  bench.LoadAndShow();
  bench.Tick(7);
  bench.form.cmdCancel.Clicked();
  bench.LoadAndShow();
  EXPECT_FALSE(bench.form.Cancelled());
  EXPECT_EQ(bench.form.staStatusText.Text(), WaitedFor(0));
  bench.Tick(6);
  EXPECT_EQ(bench.form.staStatusText.Text(), WaitedFor(0));
}

TEST(FrmWaitForMCO, ARefusedIRIsToldAndTheWaitingGoesOn) {
  WaitBench bench;
  bench.LoadAndShow();
  bench.scripted.Answer(terminal_session::kSendEntryChecked, false);
  bench.Tick();
  EXPECT_EQ(bench.desktop.log, Lines{L"box 0 \"\" \"No IR\" -> 1"});
  EXPECT_TRUE(bench.form.IsLoaded());
  EXPECT_EQ(bench.form.tmrWait.Interval(), 5000);
}

TEST(FrmWaitForMCO, CountingWithoutReadingAgainOnlyCounts) {
  WaitBench bench;
  EXPECT_EQ(bench.form.CountMCOs(false), 2);
  EXPECT_EQ(bench.form.MCOCount(), 2);
  EXPECT_EQ(bench.TakeCalls(), Lines{L"PnrReader.1.113 CountMCOElements() -> 2"});
}

}  // namespace
}  // namespace mco
