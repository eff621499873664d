#include <gtest/gtest.h>

#include "errors/ErrorHandler.h"
#include "tests/support/RoomBench.h"

namespace errors {
namespace {

using support::RoomBench;
using Lines = std::vector<std::wstring>;

constexpr Procedure kOwn{L"Own text!", 51};
constexpr Procedure kReading{L"Reading!", 30, common::kExclamation, Form::kReportLastOrError,
                             After::kStopsRun};
constexpr Procedure kEntry{L"Entry!", 52, common::kCritical, Form::kShowErrorOrLast,
                           After::kEndsRun};
constexpr Procedure kFirst{L"First!", 51, common::kCritical, Form::kShowMessage, After::kEndsRun};

const auto RaiseOwn = [] { throw common::RunTimeError(L"broken"); };
const auto RaiseLibrarys = [] { throw hostlib::LibraryError(77, L"lib", L"library broken"); };

TEST(ErrorHandler, ABodyThatCompletesShowsNothing) {
  RoomBench bench;
  EXPECT_TRUE(bench.errors.Run(kOwn, [] {}));
  EXPECT_EQ(bench.TakeCalls(), Lines{});
}

TEST(ErrorHandler, TheOwnTextIsShownWithTheBaseAddedToTheNumber) {
  RoomBench bench;
  EXPECT_FALSE(bench.errors.Run(kOwn, RaiseLibrarys));
  EXPECT_EQ(bench.TakeCalls(),
            Lines{L"ScriptErrorReporter.1.18 ShowError(-2147221453, \"  PTA Script \", \"Own "
                  L"text!\", 16)"});
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(ErrorHandler, ATerminalOutOfReachIsToldInTheWordsOfTheLink) {
  RoomBench bench;
  EXPECT_FALSE(bench.errors.Run(kOwn, [] {
    throw hostlib::LibraryError(hostlib::kTerminalIsElevated, L"hostlib", L"Start both alike.");
  }));
  EXPECT_EQ(
      bench.TakeCalls(),
      Lines{L"ScriptErrorReporter.1.18 ShowError(-2147221453, \"  PTA Script \", \"Start both "
            L"alike.\", 16)"});
}

TEST(ErrorHandler, AReadingProcedureShowsItsOwnTextWhenTheLibraryHasNoError) {
  RoomBench bench;
  EXPECT_FALSE(bench.errors.Run(kReading, RaiseOwn));
  EXPECT_EQ(bench.TakeCalls(),
            (Lines{L"ScriptErrorReporter.1.10 LastErrorNumber() -> 0",
                   L"ScriptErrorReporter.1.18 ShowError(-2147221474, \"  PTA Script \", "
                   L"\"Reading!\", 48)"}));
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(ErrorHandler, AReadingProcedureLetsTheLibraryReportItsLastError) {
  RoomBench bench;
  bench.scripted.lastError = {77, L"library broken"};
  EXPECT_FALSE(bench.errors.Run(kReading, RaiseOwn));
  EXPECT_EQ(bench.TakeCalls(), (Lines{L"ScriptErrorReporter.1.10 LastErrorNumber() -> 77",
                                      L"ScriptErrorReporter.1.11 ReportLastError()"}));
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(ErrorHandler, AFailureOfTheLibraryInTheUpdateRunShowsItsLastErrorAndEnds) {
  RoomBench bench;
  bench.scripted.lastError = {77, L"library broken"};
  EXPECT_THROW(bench.errors.Run(kEntry, RaiseLibrarys), support::EndedByEndScript);
  EXPECT_EQ(bench.TakeCalls(),
            (Lines{L"ScriptErrorReporter.1.10 LastErrorNumber() -> 77",
                   L"ScriptErrorReporter.1.9 LastErrorText() -> \"library broken\"",
                   L"ScriptErrorReporter.1.12 ShowMessage(77, \"  PTA Script \", \"library "
                   L"broken\")"}));
}

TEST(ErrorHandler, AnOwnFailureInTheUpdateRunShowsItsTextAndEnds) {
  RoomBench bench;
  EXPECT_THROW(bench.errors.Run(kEntry, RaiseOwn), support::EndedByEndScript);
  EXPECT_EQ(bench.TakeCalls(), Lines{L"ScriptErrorReporter.1.18 ShowError(-2147221452, \"  PTA "
                                     L"Script \", \"Entry!\", 16)"});
}

TEST(ErrorHandler, TheEntryProcedureShowsItsTextWithoutAStyle) {
  RoomBench bench;
  EXPECT_THROW(bench.errors.Run(kFirst, RaiseOwn), support::EndedByEndScript);
  EXPECT_EQ(bench.TakeCalls(), Lines{L"ScriptErrorReporter.1.12 ShowMessage(-2147221453, \"  PTA "
                                     L"Script \", \"First!\")"});
}

TEST(ErrorHandler, TheEndOfTheRunPassesThrough) {
  RoomBench bench;
  EXPECT_THROW(bench.errors.Run(kOwn, [] { throw common::EndOfRun(); }), common::EndOfRun);
  EXPECT_EQ(bench.TakeCalls(), Lines{});
}

TEST(ErrorHandler, WithoutAReporterAPlainBoxWithTheSameTextStandsIn) {
  RoomBench bench;
  bench.reporter.Release();
  EXPECT_FALSE(bench.errors.Run(kReading, RaiseOwn));
  EXPECT_EQ(bench.desktop.log, Lines{L"box 48 \"  PTA Script \" \"Reading!\" -> 1"});
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(ErrorHandler, ALastErrorThatCannotBeAskedForLeavesTheOwnTextInAPlainBox) {
  RoomBench bench;
  bench.reporter.Release();
  EXPECT_THROW(bench.errors.Run(kEntry, RaiseLibrarys), support::EndedByEndScript);
  EXPECT_EQ(bench.desktop.log, Lines{L"box 16 \"  PTA Script \" \"Entry!\" -> 1"});
}

TEST(ErrorHandler, AFailureOfTheLanguagesOwnIsShownLikeAnyOther) {
  RoomBench bench;
  EXPECT_FALSE(bench.errors.Run(kOwn, [] { std::vector<int>().at(1); }));
  EXPECT_EQ(bench.TakeCalls().size(), 1U);
}

TEST(ErrorHandler, ARefusalAddsTheStandardTextInTheExclamationStyle) {
  RoomBench bench;
  bench.errors.ReportRefusal(kOwn);
  EXPECT_EQ(
      bench.TakeCalls(),
      Lines{L"ScriptErrorReporter.1.18 ShowError(-2147221453, \"  PTA Script \", \"Own "
            L"text!\r\rCorvane Central System gave an incorrect response to the last "
            L"transaction.\rPlease verify the response given and correct if possible, or contact "
            L"your help desk. \rThe program can not continue.\", 48)"});
}

TEST(ErrorHandler, AReportCarriesItsAdditionAndMarksTheRunToStop) {
  RoomBench bench;
  bench.errors.Report(procedures::kMandatoryMissing, L"AP, TK");
  EXPECT_EQ(bench.TakeCalls(),
            Lines{L"ScriptErrorReporter.1.18 ShowError(-2147221467, \"  PTA Script \", "
                  L"\"Mandatory element(s) missing!\rPlease add elements and restart the "
                  L"script.\r\rMissing elements are: AP, TK\", 48)"});
  EXPECT_TRUE(bench.stop.isSet);
}

}  // namespace
}  // namespace errors
