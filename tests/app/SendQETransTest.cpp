#include <gtest/gtest.h>

#include "app/SendQETrans.h"
#include "tests/support/RoomBench.h"

namespace app {
namespace {

using namespace hostlib::operations;
using Lines = std::vector<std::wstring>;

constexpr const wchar_t* kWarning =
    L"box 1 \"  PTA Script \" \"PNR was not Queued correctly ! \r\nPress 'OK' to continue or "
    L"'Cancel' to terminate.\" -> ";

struct QueueBench : support::RoomBench {
  QueueBench() {
    scripted.Answer(queue_request::kBuildCommand, L"QE/STOSK08AA/80");
    scripted.Answer(terminal_session::kSendEntry, L"ANSWER");
    scripted.Answer(terminal_session::kSendCommand, L"LONG ANSWER");
    AnswerFlags(true, true);
  }
  void AnswerFlags(bool queued, bool queueOn) {
    scripted.Answer(
        queue_request::kReadResponse,
        hostlib::ObjectPtr(scripted.Bag({{L"blnKeyQuePNR", queued}, {L"blnKeyQueOn", queueOn}})));
  }
  /// Number and category as they were asked for.
  Lines Asked(std::wstring_view queueText) {
    queueing.SendQE(L"STOSK08AA", queueText);
    Lines asked;
    for (const std::wstring& line : TakeCalls()) {
      for (const wchar_t* key : {L"\"strKeyQueNumber\", ", L"\"strKeyQueCategory\", "}) {
        const std::wstring before = std::wstring(L"ParameterBag.1.7 SetValue(") + key;
        if (line.starts_with(before)) asked.push_back(line.substr(before.size()));
      }
    }
    return asked;
  }

  SendQETrans queueing{library, global, session, errors, desktop, runEnd};
};

TEST(SendQETrans, PlacesThePNRWithFiveKeysInTheirOrder) {
  QueueBench bench;
  bench.queueing.SendQE(L"STOSK08AA", L"80");
  EXPECT_EQ(bench.TakeCalls(),
            (Lines{L"ParameterBag.1.7 SetValue(\"strKeyQueNumber\", \"80\")",
                   L"ParameterBag.1.7 SetValue(\"strKeyQueCategory\", \"\")",
                   L"ParameterBag.1.7 SetValue(\"strKeyQueOfficeID\", \"STOSK08AA\")",
                   L"ParameterBag.1.7 SetValue(\"blnKeyRetain\", False)",
                   L"ParameterBag.1.7 SetValue(\"blnKeyRetrieve\", False)",
                   L"QueueRequest.1.7 BuildCommand(<ParameterBag>) -> \"QE/STOSK08AA/80\"",
                   L"TerminalSession.1.11 SendEntry(\"QE/STOSK08AA/80\") -> \"ANSWER\"",
                   L"QueueRequest.1.8 ReadResponse(\"ANSWER\", missing, missing) -> <ParameterBag>",
                   L"ParameterBag.1.8 GetValue(\"blnKeyQuePNR\") -> True",
                   L"ScriptGlobal.1.16 ToBoolean(True) -> True",
                   L"ParameterBag.1.8 GetValue(\"blnKeyQueOn\") -> True",
                   L"ScriptGlobal.1.16 ToBoolean(True) -> True"}));
  EXPECT_EQ(bench.desktop.log, Lines{});
}

TEST(SendQETrans, ACapitalCParsesTheCategoryByTheLibrary) {
  QueueBench bench;
  bench.queueing.SendQE(L"STOSK08AA", L"80C1");
  const Lines calls = bench.TakeCalls();
  ASSERT_GE(calls.size(), 4u);
  EXPECT_EQ(Lines(calls.begin(), calls.begin() + 4),
            (Lines{L"ScriptGlobal.1.7 GetField(\"80C1\", 1, \"C\") -> \"80\"",
                   L"ScriptGlobal.1.7 GetField(\"80C1\", 2, \"C\") -> \"1\"",
                   L"ParameterBag.1.7 SetValue(\"strKeyQueNumber\", \"80\")",
                   L"ParameterBag.1.7 SetValue(\"strKeyQueCategory\", \"1\")"}));
}

TEST(SendQETrans, LowerCaseCIsNotASeparator) {
  QueueBench bench;
  EXPECT_EQ(bench.Asked(L"80c1"), (Lines{L"\"80c1\")", L"\"\")"}));
}

TEST(SendQETrans, CAloneGivesNeitherNumberNorCategoryAndIsStillSent) {
  QueueBench bench;
  bench.queueing.SendQE(L"STOSK08AA", L"C");
  const Lines calls = bench.TakeCalls();
  EXPECT_THAT(calls, testing::Contains(L"ParameterBag.1.7 SetValue(\"strKeyQueNumber\", \"\")"));
  EXPECT_THAT(calls, testing::Contains(L"ParameterBag.1.7 SetValue(\"strKeyQueCategory\", \"\")"));
  EXPECT_THAT(calls, testing::Contains(testing::StartsWith(L"TerminalSession.1.11 SendEntry")));
}

TEST(SendQETrans, ACategoryWithoutANumberIsPassedAsItIs) {
  QueueBench bench;
  EXPECT_EQ(bench.Asked(L"C1"), (Lines{L"\"\")", L"\"1\")"}));
}

TEST(SendQETrans, TwoLettersCGiveTheFirstTwoFields) {
  QueueBench bench;
  EXPECT_EQ(bench.Asked(L"80C1C2"), (Lines{L"\"80\")", L"\"1\")"}));
}

TEST(SendQETrans, AnEmptyQueueTextIsAnEmptyNumber) {
  QueueBench bench;
  EXPECT_EQ(bench.Asked(L""), (Lines{L"\"\")", L"\"\")"}));
}

TEST(SendQETrans, OnlyThePNRQueuedIsEnough) {
  QueueBench bench;
  bench.AnswerFlags(true, false);
  bench.queueing.SendQE(L"STOSK08AA", L"80");
  EXPECT_EQ(bench.desktop.log, Lines{});
}

TEST(SendQETrans, OnlyTheQueueOnIsEnoughAndIsReadSecond) {
  QueueBench bench;
  bench.AnswerFlags(false, true);
  bench.queueing.SendQE(L"STOSK08AA", L"80");
  const Lines calls = bench.TakeCalls();
  EXPECT_EQ(Lines(calls.end() - 4, calls.end()),
            (Lines{L"ParameterBag.1.8 GetValue(\"blnKeyQuePNR\") -> False",
                   L"ScriptGlobal.1.16 ToBoolean(False) -> False",
                   L"ParameterBag.1.8 GetValue(\"blnKeyQueOn\") -> True",
                   L"ScriptGlobal.1.16 ToBoolean(True) -> True"}));
  EXPECT_EQ(bench.desktop.log, Lines{});
}

TEST(SendQETrans, WithNeitherTheAgentIsWarnedAndMayGoOn) {
  QueueBench bench;
  bench.AnswerFlags(false, false);
  bench.queueing.SendQE(L"STOSK08AA", L"80");
  EXPECT_EQ(bench.desktop.log, Lines{std::wstring(kWarning) + L"1"});
}

TEST(SendQETrans, CancelInTheWarningEndsTheRun) {
  QueueBench bench;
  bench.AnswerFlags(false, false);
  bench.desktop.answers = {common::kCancel};
  EXPECT_THROW(bench.queueing.SendQE(L"STOSK08AA", L"80"), support::EndedByEndScript);
  EXPECT_EQ(bench.desktop.log, Lines{std::wstring(kWarning) + L"2"});
}

TEST(SendQETrans, AnAnswerWithoutTheFlagsCountsAsNotQueued) {
  QueueBench bench;
  bench.scripted.Answer(queue_request::kReadResponse, hostlib::ObjectPtr(bench.scripted.Bag()));
  bench.queueing.SendQE(L"STOSK08AA", L"80");
  EXPECT_EQ(bench.desktop.log, Lines{std::wstring(kWarning) + L"1"});
}

TEST(SendQETrans, AnEmptyCommandSendsNothingAndWarns) {
  QueueBench bench;
  bench.scripted.Answer(queue_request::kBuildCommand, L"");
  bench.queueing.SendQE(L"STOSK08AA", L"80");
  EXPECT_EQ(bench.TakeCalls().back(), L"QueueRequest.1.7 BuildCommand(<ParameterBag>) -> \"\"");
  EXPECT_EQ(bench.desktop.log, Lines{std::wstring(kWarning) + L"1"});
}

/// Boxes that look how many library objects are held while they stand.
class WatchingBoxes : public common::MessageBoxes {
 public:
  explicit WatchingBoxes(const hostlib::Recorder& recorder) : recorder_(recorder) {}
  int ShowBox(std::wstring_view, int, std::wstring_view) override {
    held = recorder_.LiveObjects();
    return common::kOk;
  }

  int held = -1;

 private:
  const hostlib::Recorder& recorder_;
};

TEST(SendQETrans, BothBagsAndTheRequestAreReleasedBeforeTheWarning) {
  QueueBench bench;
  bench.AnswerFlags(false, false);
  bench.global.ToText(L"");
  bench.recorder = hostlib::Recorder(hostlib::Recorder::Objects::kShow);
  WatchingBoxes boxes(bench.recorder);
  SendQETrans queueing(bench.library, bench.global, bench.session, bench.errors, boxes,
                       bench.runEnd);
  queueing.SendQE(L"STOSK08AA", L"80");
  EXPECT_EQ(boxes.held, 0);
  const Lines& lines = bench.recorder.lines();
  EXPECT_EQ(Lines(lines.end() - 3, lines.end()),
            (Lines{L"- ParameterBag", L"- ParameterBag", L"- QueueRequest"}));
}

TEST(SendQETrans, ACommandOf75CharactersGoesAsAnEntry) {
  QueueBench bench;
  bench.scripted.Answer(queue_request::kBuildCommand, std::wstring(75, L'Q'));
  bench.queueing.SendQE(L"STOSK08AA", L"80");
  EXPECT_THAT(bench.TakeCalls(),
              testing::Contains(testing::StartsWith(L"TerminalSession.1.11 SendEntry")));
}

TEST(SendQETrans, ACommandOf76CharactersGoesAsALongCommand) {
  QueueBench bench;
  bench.scripted.Answer(queue_request::kBuildCommand, std::wstring(76, L'Q'));
  bench.queueing.SendQE(L"STOSK08AA", L"80");
  EXPECT_THAT(bench.TakeCalls(),
              testing::Contains(testing::StartsWith(L"TerminalSession.1.10 SendCommand")));
}

class FailingCall : public testing::TestWithParam<const hostlib::Operation*> {};

TEST_P(FailingCall, IsReportedWithoutAWarningAndTheRunGoesOn) {
  QueueBench bench;
  bench.scripted.Fail(*GetParam(), 77, L"library broken");
  bench.queueing.SendQE(L"STOSK08AA", L"80");
  EXPECT_EQ(bench.TakeCalls().back(),
            L"ScriptErrorReporter.1.18 ShowError(-2147221424, \"  PTA Script \", \"Error when "
            L"sending the QE transaction.\", 16)");
  EXPECT_EQ(bench.desktop.log, Lines{});
  EXPECT_FALSE(bench.stop.isSet);
}

INSTANTIATE_TEST_SUITE_P(SendQETrans, FailingCall,
                         testing::Values(&queue_request::kBuildCommand,
                                         &terminal_session::kSendEntry,
                                         &queue_request::kReadResponse, &script_global::kToBoolean),
                         [](const auto& one) {
                           const std::wstring_view name = one.param->name;
                           return std::string(name.begin(), name.end());
                         });

TEST(SendQETrans, WithoutARequestObjectNothingIsSentAndTheRunGoesOn) {
  QueueBench bench;
  bench.scripted.FailToCreate(queue_request::kClass);
  bench.queueing.SendQE(L"STOSK08AA", L"80");
  EXPECT_EQ(bench.TakeCalls(),
            Lines{L"ScriptErrorReporter.1.18 ShowError(-2147221424, \"  PTA Script \", \"Error "
                  L"when sending the QE transaction.\", 16)"});
}

}  // namespace
}  // namespace app
