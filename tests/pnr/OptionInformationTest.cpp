#include <gtest/gtest.h>

#include "tests/pnr/ReadingBench.h"

namespace pnr {
namespace {

TEST(GetOptionInformation, ComputesTheNextDayThenReadsEveryOption) {
  ReadingBench bench;
  bench.HasOptions({L"OP ARNAG2100/16MAR07/CHECK", L"OP ARNAG2100/17MAR07/80C2"});
  bench.room.GetOptionInformation();
  const Lines calls = bench.TakeCalls();
  ASSERT_EQ(calls.size(), 11U);
  EXPECT_TRUE(calls[0].starts_with(L"ScriptGlobal.1.10 HostDateToText(\"15MAR07\")")) << calls[0];
  EXPECT_TRUE(calls[1].starts_with(L"ScriptGlobal.1.11 TextToHostDate(")) << calls[1];
  EXPECT_TRUE(calls[1].ends_with(L" -> \"16MAR07\"")) << calls[1];
  EXPECT_EQ(Last(9, calls), Together({
                                Call(L"PnrReader.1.34 CountOPElements() -> 2"),
                                Put(L"intKeyIndex", L"0"),
                                Call(L"PnrReader.2.26 GetOPElement(<ParameterBag>)"),
                                Read(L"strKeyElement", L"OP ARNAG2100/16MAR07/CHECK"),
                                Put(L"intKeyIndex", L"1"),
                                Call(L"PnrReader.2.26 GetOPElement(<ParameterBag>)"),
                                Read(L"strKeyElement", L"OP ARNAG2100/17MAR07/80C2"),
                            }));
}

TEST(GetOptionInformation, AnOptionOnTheDayAfterDepartureSwitchesTheFollowUpOff) {
  ReadingBench bench;
  bench.HasOptions({L"OP ARNAG2100/16MAR07/CHECK"});
  bench.room.GetOptionInformation();
  EXPECT_TRUE(bench.form.IsOff());
  EXPECT_EQ(bench.form.clicks, 1) << "unticking raises the box's own handler";
}

TEST(GetOptionInformation, AnOptionOnAnotherDayLeavesTheFollowUpAlone) {
  ReadingBench bench;
  bench.HasOptions({L"OP ARNAG2100/15MAR07/CHECK", L"OP ARNAG2100/17MAR07/CHECK"});
  bench.room.GetOptionInformation();
  EXPECT_TRUE(bench.form.IsUntouched());
}

TEST(GetOptionInformation, TheDateIsSoughtWithRegardToCase) {
  ReadingBench bench;
  bench.HasOptions({L"OP ARNAG2100/16Mar07/CHECK"});
  bench.room.GetOptionInformation();
  EXPECT_TRUE(bench.form.IsUntouched());
}

TEST(GetOptionInformation, ALaterOptionCountsToo) {
  ReadingBench bench;
  bench.HasOptions({L"OP ARNAG2100/20MAR07", L"X16MAR07X", L"OP ARNAG2100/16MAR07"});
  bench.room.GetOptionInformation();
  EXPECT_TRUE(bench.form.IsOff());
  EXPECT_EQ(bench.form.clicks, 1);
  EXPECT_EQ(Only(L"PnrReader.2.26", bench.TakeCalls()).size(), 3U) << "every option is read";
}

TEST(GetOptionInformation, AFollowUpThatIsNotTickedIsDisabledAllTheSame) {
  ReadingBench bench;
  bench.form.chkOP.SetValue(false);
  bench.form.clicks = 0;
  bench.HasOptions({L"OP ARNAG2100/16MAR07"});
  bench.room.GetOptionInformation();
  EXPECT_TRUE(bench.form.IsOff());
  EXPECT_EQ(bench.form.clicks, 0);
}

TEST(GetOptionInformation, WithoutOptionsNothingChanges) {
  ReadingBench bench;
  bench.room.GetOptionInformation();
  EXPECT_TRUE(bench.form.IsUntouched());
  EXPECT_EQ(bench.TakeCalls().back(), L"PnrReader.1.34 CountOPElements() -> 0");
}

TEST(GetOptionInformation, WithoutANextDayTheFollowUpStaysAndTheOptionsAreStillRead) {
  ReadingBench bench;
  bench.general.strFirstTravelDate = L"SOMEDAY";
  bench.HasOptions({L"OP ARNAG2100/16MAR07"});
  bench.room.GetOptionInformation();
  const Lines calls = bench.TakeCalls();
  EXPECT_EQ(OnlyReports(calls), ShowError(27, L"Error adding day!", 16));
  EXPECT_EQ(Last(2, calls), Read(L"strKeyElement", L"OP ARNAG2100/16MAR07"));
  EXPECT_TRUE(bench.form.IsUntouched());
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(GetOptionInformation, AnOwnFailureShowsTheOwnTextAndTheRunGoesOn) {
  ReadingBench bench;
  bench.scripted.Answer(reader::kCountOPElements, L"many");
  bench.room.GetOptionInformation();
  EXPECT_EQ(OnlyReports(bench.TakeCalls()),
            OwnFailure(34, L"Error when getting the Option info!", 16));
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(GetOptionInformation, AFailureOfTheLibraryIsReportedByTheLibrary) {
  ReadingBench bench;
  bench.HasOptions({L"OP ARNAG2100/16MAR07"});
  bench.scripted.Fail(reader::kGetOPElement, 78, L"option broken");
  bench.room.GetOptionInformation();
  EXPECT_EQ(OnlyReports(bench.TakeCalls()), LibraryFailure(78));
  EXPECT_TRUE(bench.form.IsUntouched());
  EXPECT_FALSE(bench.stop.isSet);
}

}  // namespace
}  // namespace pnr
