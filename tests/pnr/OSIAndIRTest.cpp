#include <gtest/gtest.h>

#include "tests/pnr/ChecksBench.h"

namespace pnr {
namespace {

namespace terminal = hostlib::operations::terminal_session;

const Lines kEntered = Call(L"TerminalSession.1.10 SendCommand(\"OS SK PTA\") -> \"/\"");

Lines ReadOSI(std::wstring_view index, std::wstring_view number, std::wstring_view text,
              std::wstring_view airline) {
  return Together({
      Put(L"intKeyIndex", index),
      Put(L"strKeyPNRElement", L"\"OSI\""),
      Call(L"PnrReader.3.7 FindElements(<ParameterBag>)"),
      Read(L"strKeyElementNr", number),
      Read(L"strKeyElement", text),
      Read(L"strKeyAirline", airline),
  });
}

TEST(CheckSKOSI, EntersTheOSIWhenThereIsNone) {
  ChecksBench bench;
  bench.room.CheckSKOSI();
  EXPECT_EQ(bench.TakeCalls(),
            Together({Call(L"PnrReader.1.46 CountOSIElements() -> 0"), kEntered}));
}

TEST(CheckSKOSI, EndsAtTheFirstOSIForSKAndEntersNothing) {
  ChecksBench bench;
  bench.HasOSI({{L"8", L"CTCT ARN", L"LH"}, {L"9", L"PTA", L"SK"}, {L"10", L"VIP", L"SK"}});
  bench.room.CheckSKOSI();
  EXPECT_EQ(bench.TakeCalls(), Together({
                                   Call(L"PnrReader.1.46 CountOSIElements() -> 3"),
                                   ReadOSI(L"0", L"8", L"CTCT ARN", L"LH"),
                                   ReadOSI(L"1", L"9", L"PTA", L"SK"),
                               }));
}

TEST(CheckSKOSI, AnyTextForSKWillDo) {
  ChecksBench bench;
  bench.HasOSI({{L"8", L" ", L"SK"}});
  bench.room.CheckSKOSI();
  EXPECT_TRUE(Only(L"TerminalSession", bench.TakeCalls()).empty());
}

TEST(CheckSKOSI, AnOSIForSKWithoutTextDoesNotCount) {
  ChecksBench bench;
  bench.HasOSI({{L"8", L"", L"SK"}});
  bench.room.CheckSKOSI();
  EXPECT_EQ(Only(L"TerminalSession", bench.TakeCalls()), kEntered);
}

TEST(CheckSKOSI, OSIForOtherAirlinesLeadToOneEntry) {
  ChecksBench bench;
  bench.HasOSI({{L"8", L"PTA", L"LH"}, {L"9", L"SK PTA", L"KL"}});
  bench.room.CheckSKOSI();
  EXPECT_EQ(Only(L"TerminalSession", bench.TakeCalls()), kEntered);
}

TEST(CheckSKOSI, TheAirlineMustBeExactlySK) {
  for (const std::wstring airline : {L"sk", L"SK ", L"SKX", L""}) {
    ChecksBench bench;
    bench.HasOSI({{L"8", L"PTA", airline}});
    bench.room.CheckSKOSI();
    EXPECT_EQ(Only(L"TerminalSession", bench.TakeCalls()), kEntered) << airline.size();
  }
}

TEST(CheckSKOSI, TheHostsAnswerIsNotLookedAt) {
  ChecksBench bench;
  bench.scripted.Answer(terminal::kSendCommand, L"INVALID FORMAT");
  bench.room.CheckSKOSI();
  EXPECT_TRUE(OnlyReports(bench.TakeCalls()).empty());
  EXPECT_TRUE(bench.desktop.log.empty());
}

TEST(CheckSKOSI, AnOwnFailureShowsTheOwnTextAndEntersNothing) {
  ChecksBench bench;
  bench.scripted.Answer(reader::kCountOSIElements, L"many");
  bench.room.CheckSKOSI();
  EXPECT_EQ(Last(2, bench.TakeCalls()), OwnFailure(112, L"Error when getting the OSI info!", 16));
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(CheckSKOSI, AFailureOfTheEntryIsReportedByTheLibrary) {
  ChecksBench bench;
  bench.scripted.Fail(terminal::kSendCommand, 82, L"session broken");
  bench.room.CheckSKOSI();
  EXPECT_EQ(OnlyReports(bench.TakeCalls()), LibraryFailure(82));
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(CheckIR, SendsIRAndSaysNothingWhenTheHostAcceptsIt) {
  ChecksBench bench;
  bench.room.CheckIR();
  EXPECT_EQ(bench.TakeCalls(), Call(L"TerminalSession.1.33 SendEntryChecked(\"IR\") -> True"));
  EXPECT_TRUE(bench.desktop.log.empty());
}

TEST(CheckIR, ARefusalIsAPlainBoxWithTheDefaultTitleAndTheRunGoesOn) {
  ChecksBench bench;
  bench.scripted.Answer(terminal::kSendEntryChecked, false);
  bench.room.CheckIR();
  EXPECT_EQ(bench.desktop.log, Lines{L"box 0 \"\" \"No IR\" -> 1"});
  EXPECT_EQ(bench.TakeCalls(), Call(L"TerminalSession.1.33 SendEntryChecked(\"IR\") -> False"));
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(CheckIR, AFailingEntryIsTheReportOfTheRetrievalAndNoRefusal) {
  ChecksBench bench;
  bench.scripted.On(terminal::kSendEntryChecked, [](const hostlib::Arguments&) -> hostlib::Value {
    throw hostlib::LibraryError(5, L"test", L"gone");
  });
  bench.room.CheckIR();
  EXPECT_EQ(OnlyReports(bench.TakeCalls()),
            OwnFailure(36,
                       L"Unable to retrieve the PNR.\rMake sure there is an active PNR.\rThe "
                       L"program will terminate.",
                       48));
  EXPECT_TRUE(bench.desktop.log.empty());
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(CheckIR, AFailureThatTheLibraryRemembersIsReportedByTheLibrary) {
  ChecksBench bench;
  bench.scripted.Fail(terminal::kSendEntryChecked, 83, L"session broken");
  bench.room.CheckIR();
  EXPECT_EQ(OnlyReports(bench.TakeCalls()), LibraryFailure(83));
  EXPECT_TRUE(bench.stop.isSet);
}

}  // namespace
}  // namespace pnr
