#include "tests/updates/UpdatesBench.h"
#include "updates/ClosingCommands.h"

namespace updates {
namespace {

using namespace hostlib::operations;

struct ClosingBench : UpdatesBench {
  ClosingBench() {
    scripted.Answer(print_request::kExecute, L"WRT");
    scripted.Answer(back_office_request::kExecute, L"BT");
    AnswerFlag(print_request::kReadResponse, L"blnKeyResult", true);
    mco.strPasAsso = L"2-4";
    mco.strSegAsso = L"1-2";
  }

  ReleaseWatchingRunEnd end{recorder};
  ClosingCommands closing{library, global, session, errors, end, settings, mco};
};

TEST(PrintPNR, AsksForThePNRDisplayAndReadsTheResult) {
  ClosingBench bench;
  bench.closing.PrintPNR();
  EXPECT_EQ(
      bench.TakeCalls(),
      Joined({{Set(L"strKeyText", L"RT"), L"PrintRequest.1.7 Execute(<ParameterBag>) -> \"WRT\"",
               L"TerminalSession.1.11 SendEntry(\"WRT\") -> \"ANSWER\"",
               L"PrintRequest.2.8 ReadResponse(\"ANSWER\") -> <ParameterBag>"},
              ReadFlag(L"blnKeyResult", true)}));
}

TEST(PrintPNR, ReleasesWhatItMade) {
  ClosingBench bench;
  bench.ShowObjects();
  bench.closing.PrintPNR();
  EXPECT_EQ(bench.recorder.LiveObjects(), 0);
  EXPECT_EQ(bench.CallsOf(L"+"), (Lines{L"+ PrintRequest", L"+ ParameterBag", L"+ ParameterBag"}));
}

TEST(PrintPNR, RefusedIsShownAndEndsTheRun) {
  ClosingBench bench;
  bench.AnswerFlag(print_request::kReadResponse, L"blnKeyResult", false);
  bench.ShowObjects();
  EXPECT_THROW(bench.closing.PrintPNR(), support::EndedByEndScript);
  EXPECT_EQ(bench.CallsOf(L"ScriptErrorReporter"),
            Lines{RefusalBox(81, L"Error when sending the print PNR command!")});
  EXPECT_EQ(bench.end.heldAtEnd, 0);
}

TEST(PrintPNR, WithoutAResultIsRefused) {
  ClosingBench bench;
  bench.scripted.Answer(print_request::kReadResponse, hostlib::ObjectPtr(bench.scripted.Bag()));
  EXPECT_THROW(bench.closing.PrintPNR(), support::EndedByEndScript);
}

TEST(PrintPNR, FailingShowsItsTextAloneAndTheRunGoesOn) {
  ClosingBench bench;
  bench.scripted.Fail(terminal_session::kSendEntry, 77, L"session broken");
  bench.ShowObjects();
  bench.closing.PrintPNR();
  EXPECT_EQ(bench.CallsOf(L"ScriptErrorReporter"),
            Lines{Box(81, L"Error when sending the print PNR command!", 16)});
  EXPECT_EQ(bench.recorder.LiveObjects(), 0);
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(PrintPNR, ALongCommandGoesBySendCommand) {
  ClosingBench bench;
  bench.scripted.Answer(print_request::kExecute, std::wstring(76, L'W'));
  bench.closing.PrintPNR();
  EXPECT_EQ(bench.CallsOf(L"TerminalSession"),
            Lines{L"TerminalSession.1.10 SendCommand(\"" + std::wstring(76, L'W') +
                  L"\") -> \"LONG ANSWER\""});
}

TEST(SendBT, WithoutAssociationTellsOnlyTheRetainValue) {
  ClosingBench bench;
  bench.closing.SendBT(L"True");
  EXPECT_EQ(bench.TakeCalls(), (Lines{Set(L"strKeyRetain", L"True"),
                                      L"BackOfficeRequest.1.7 Execute(<ParameterBag>) -> \"BT\"",
                                      L"TerminalSession.1.11 SendEntry(\"BT\") -> \"ANSWER\""}));
}

TEST(SendBT, WithAssociationTellsItAfterTheRetainValue) {
  ClosingBench bench;
  bench.settings.blnAddPasSegAsso = true;
  bench.closing.SendBT(L"False");
  EXPECT_EQ(bench.TakeCalls(), (Lines{Set(L"strKeyRetain", L"False"), Set(L"strKeyPasAsso", L"2-4"),
                                      Set(L"strKeySegAsso", L"1-2"),
                                      L"BackOfficeRequest.1.7 Execute(<ParameterBag>) -> \"BT\"",
                                      L"TerminalSession.1.11 SendEntry(\"BT\") -> \"ANSWER\""}));
}

TEST(SendBT, EmptyAssociationsAreSetToo) {
  ClosingBench bench;
  bench.settings.blnAddPasSegAsso = true;
  bench.mco = {};
  bench.closing.SendBT(L"True");
  EXPECT_EQ(bench.CallsOf(L"ParameterBag"),
            (Lines{Set(L"strKeyRetain", L"True"), Set(L"strKeyPasAsso", L""),
                   Set(L"strKeySegAsso", L"")}));
}

TEST(SendBT, ReleasesWhatItMade) {
  ClosingBench bench;
  bench.ShowObjects();
  bench.closing.SendBT(L"True");
  EXPECT_EQ(bench.recorder.LiveObjects(), 0);
  EXPECT_EQ(bench.CallsOf(L"+"), (Lines{L"+ BackOfficeRequest", L"+ ParameterBag"}));
}

TEST(SendBT, FailingShowsItsTextAndTheRunGoesOn) {
  ClosingBench bench;
  bench.scripted.Fail(back_office_request::kExecute, 77, L"library broken");
  bench.ShowObjects();
  bench.closing.SendBT(L"True");
  EXPECT_EQ(bench.CallsOf(L"ScriptErrorReporter"),
            Lines{Box(82, L"Error when sending the BT command!", 16)});
  EXPECT_EQ(bench.CallsOf(L"TerminalSession"), Lines{});
  EXPECT_EQ(bench.recorder.LiveObjects(), 0);
}

TEST(SendBT, ALongCommandGoesBySendCommand) {
  ClosingBench bench;
  bench.scripted.Answer(back_office_request::kExecute, std::wstring(76, L'B'));
  bench.closing.SendBT(L"True");
  EXPECT_EQ(bench.CallsOf(L"TerminalSession"),
            Lines{L"TerminalSession.1.10 SendCommand(\"" + std::wstring(76, L'B') +
                  L"\") -> \"LONG ANSWER\""});
}

}  // namespace
}  // namespace updates
