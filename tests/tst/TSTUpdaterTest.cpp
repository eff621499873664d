#include "tests/tst/TSTBench.h"
#include "tst/TSTUpdater.h"

namespace tst {
namespace {

namespace operations = hostlib::operations;

const std::wstring kRefusal =
    L"48 Error when updating the TST Record!\r\rCorvane Central System gave an incorrect response "
    L"to the last transaction.\rPlease verify the response given and correct if possible, or "
    L"contact your help desk. \rThe program can not continue.";

struct UpdateBench : TSTBench {
  UpdateBench() {
    using namespace operations::tst_update_request;
    scripted.Answer(kBuildTSTEntry, L"TTK/T1");
    scripted.Answer(kBuildFareEntry, L"FSEK1000");
    scripted.Answer(kBuildValidityEntry, L"NVA15MAR07");
    Answers(L"DONE", scripted.Bag({{L"blnKeyTST", true}, {L"blnKeyTSTList", false}}));
    general.strFirstTravelDate = L"15MAR07";
    general.strNotValidAfterDate = L"01JAN08";
  }

  TSTInfo& Has(const std::wstring& number, const std::wstring& taxes = L"") {
    TSTInfo tst;
    tst.strTSTNum = number;
    tst.strFare = L"SEK1000";
    tst.strFareIndicator = L"A";
    tst.strTaxList = taxes;
    tsts.Add(tst);
    return *std::prev(tsts.end());
  }
  Lines Sent() {
    updater.UpdateTST();
    Lines sent;
    for (const std::wstring& line : TakeCalls()) {
      if (line.starts_with(L"TerminalSession")) sent.push_back(line);
    }
    return sent;
  }
  std::wstring TaxesSent() {
    updater.UpdateTST();
    for (const std::wstring& line : TakeWay()) {
      if (line.starts_with(L"strKeyTaxArray=")) return line;
    }
    return {};
  }

  TSTUpdater updater{library, session, global, errors, general, tsts};
};

TEST(UpdateTST, TheOrdinaryTSTIsUpdatedCallByCall) {
  UpdateBench bench;
  bench.general.strNotValidAfterDate.clear();
  bench.Has(L"1", L"SEK120XT;SEK40YQ;").strFareIndicator = L"F";
  bench.updater.UpdateTST();
  EXPECT_EQ(bench.TakeWay(),
            (Lines{
                L"ScriptGlobal.1.7 GetField(\"SEK120XT;SEK40YQ;\", 1, \";\") -> \"SEK120XT\"",
                L"ScriptGlobal.1.7 GetField(\"SEK120XT;SEK40YQ;\", 2, \";\") -> \"SEK40YQ\"",
                L"ScriptGlobal.1.7 GetField(\"SEK120XT;SEK40YQ;\", 3, \";\") -> \"\"",
                L"strKeyTSTNum=\"1\"",
                L"strKeyFare=\"SEK1000\"",
                L"strKeyFareIndicator=\"F\"",
                L"strKeyEquivFare=\"\"",
                L"strKeyTaxArray=[\"SEK120XT\", \"SEK40YQ\"]",
                L"blnKeyPTA=True",
                L"strKeyNotValidAfter=\"15MAR07\"",
                L"TstUpdateRequest.1.14 BuildTSTEntry(<ParameterBag>) -> \"TTK/T1\"",
                L"TstUpdateRequest.1.7 BuildFareEntry(<ParameterBag>) -> \"FSEK1000\"",
                L"TstUpdateRequest.1.10 BuildValidityEntry(<ParameterBag>) -> \"NVA15MAR07\"",
                L"TerminalSession.1.11 SendEntry(\"TTK/T1/FSEK1000/NVA15MAR07\") -> \"DONE\"",
                L"TstListRequest.1.10 ReadResponse(\"DONE\") -> <ParameterBag>",
                L"<-blnKeyTST flag True",
                L"<-blnKeyTSTList flag False",
            }));
}

TEST(UpdateTST, BagAndRequestAreFreshForEachTSTAndGoneBeforeTheAnswerIsRead) {
  UpdateBench bench;
  bench.Has(L"1");
  bench.Has(L"2");
  bench.updater.UpdateTST();  // the global object is there from now on
  bench.recorder = hostlib::Recorder(hostlib::Recorder::Objects::kShow);
  bench.updater.UpdateTST();
  Lines objects;
  for (const std::wstring& line : bench.TakeCalls()) {
    if (line.starts_with(L"+ ") || line.starts_with(L"- ")) objects.push_back(line);
  }
  const Lines one = {L"+ ParameterBag", L"+ TstUpdateRequest", L"- TstUpdateRequest",
                     L"- ParameterBag", L"+ TstListRequest",   L"+ ParameterBag",
                     L"- ParameterBag", L"- TstListRequest"};
  Lines both = one;
  both.insert(both.end(), one.begin(), one.end());
  EXPECT_EQ(objects, both);
}

TEST(UpdateTST, WithAKnownValidityTheCommandIsTheTwoPieces) {
  UpdateBench bench;
  bench.Has(L"1");
  EXPECT_EQ(bench.Sent(),
            Lines{L"TerminalSession.1.11 SendEntry(\"TTK/T1/FSEK1000\") -> \"DONE\""});
}

TEST(UpdateTST, AnXFTaxFollowsTheFareAsItWasRead) {
  UpdateBench bench;
  bench.general.strNotValidAfterDate.clear();
  TSTInfo& tst = bench.Has(L"1");
  tst.strXFTax = L"DKK45.00";
  tst.intNoNames = 3;
  EXPECT_EQ(bench.Sent(), Lines{L"TerminalSession.1.11 SendEntry(\"TTK/T1/FSEK1000/C+PD XF "
                                L"DKK45.00/NVA15MAR07\") -> \"DONE\""});
}

TEST(UpdateTST, TheValidityKeyIsTheFirstTravelDateEvenWithoutThePiece) {
  UpdateBench bench;
  bench.Has(L"1");
  bench.updater.UpdateTST();
  const Lines way = bench.TakeWay();
  EXPECT_TRUE(std::ranges::count(way, L"strKeyNotValidAfter=\"15MAR07\""));
  for (const std::wstring& line : way) EXPECT_FALSE(line.starts_with(L"TstUpdateRequest.1.10"));
}

TEST(UpdateTST, AnEmptyFareIndicatorBecomesFInTheRecordToo) {
  UpdateBench bench;
  TSTInfo& tst = bench.Has(L"1");
  tst.strFareIndicator.clear();
  bench.updater.UpdateTST();
  EXPECT_EQ(tst.strFareIndicator, L"F");
  EXPECT_TRUE(std::ranges::count(bench.TakeWay(), L"strKeyFareIndicator=\"F\""));
}

TEST(UpdateTST, AnyOtherFareIndicatorIsKept) {
  UpdateBench bench;
  TSTInfo& tst = bench.Has(L"1");
  bench.updater.UpdateTST();
  EXPECT_EQ(tst.strFareIndicator, L"A");
  EXPECT_TRUE(std::ranges::count(bench.TakeWay(), L"strKeyFareIndicator=\"A\""));
}

TEST(UpdateTST, TheEquivalentFareIsSentAsRead) {
  UpdateBench bench;
  bench.Has(L"1").strEquivalentFare = L"SEK1200";
  bench.updater.UpdateTST();
  EXPECT_TRUE(std::ranges::count(bench.TakeWay(), L"strKeyEquivFare=\"SEK1200\""));
}

TEST(UpdateTST, AnEmptyTaxInTheMiddleEndsTheTaxes) {
  UpdateBench bench;
  bench.Has(L"1", L"SEK100YQ;;SEK50SE;");
  EXPECT_EQ(bench.TaxesSent(), L"strKeyTaxArray=[\"SEK100YQ\"]");
}

TEST(UpdateTST, ABlankTaxEndsTheTaxesToo) {
  UpdateBench bench;
  bench.Has(L"1", L"SEK100YQ;  ;SEK50SE;");
  EXPECT_EQ(bench.TaxesSent(), L"strKeyTaxArray=[\"SEK100YQ\"]");
}

TEST(UpdateTST, TheTaxesAreTrimmed) {
  UpdateBench bench;
  bench.Has(L"1", L" SEK100YQ ; SEK50SE;");
  EXPECT_EQ(bench.TaxesSent(), L"strKeyTaxArray=[\"SEK100YQ\", \"SEK50SE\"]");
}

TEST(UpdateTST, WithoutTaxesAnEmptyArrayIsSent) {
  UpdateBench bench;
  bench.Has(L"1");
  EXPECT_EQ(bench.TaxesSent(), L"strKeyTaxArray=[]");
}

TEST(UpdateTST, ACommandOf75CharactersIsAnEntry) {
  UpdateBench bench;
  bench.scripted.Answer(operations::tst_update_request::kBuildFareEntry, std::wstring(68, L'F'));
  bench.Has(L"1");
  EXPECT_EQ(bench.Sent(), Lines{L"TerminalSession.1.11 SendEntry(\"TTK/T1/" +
                                std::wstring(68, L'F') + L"\") -> \"DONE\""});
}

TEST(UpdateTST, ACommandOf76CharactersIsALongCommand) {
  UpdateBench bench;
  bench.scripted.Answer(operations::tst_update_request::kBuildFareEntry, std::wstring(69, L'F'));
  bench.Has(L"1");
  EXPECT_EQ(bench.Sent(), Lines{L"TerminalSession.1.10 SendCommand(\"TTK/T1/" +
                                std::wstring(69, L'F') + L"\") -> \"DONE\""});
}

TEST(UpdateTST, ARecordWithoutANumberIsPassedOverSilently) {
  UpdateBench bench;
  bench.Has(L"");
  EXPECT_EQ(bench.Sent(), Lines{});
}

TEST(UpdateTST, TheTSTsAreUpdatedInTheOrderOfReading) {
  UpdateBench bench;
  bench.scripted.On(
      operations::tst_update_request::kBuildTSTEntry, [](const hostlib::Arguments& a) {
        return hostlib::Value(L"T" + practice::BagIn(a[0]).Get(L"strKeyTSTNum").Text());
      });
  for (const wchar_t* number : {L"3", L"1", L"2"}) bench.Has(number);
  EXPECT_EQ(bench.Sent(), (Lines{L"TerminalSession.1.11 SendEntry(\"T3/FSEK1000\") -> \"DONE\"",
                                 L"TerminalSession.1.11 SendEntry(\"T1/FSEK1000\") -> \"DONE\"",
                                 L"TerminalSession.1.11 SendEntry(\"T2/FSEK1000\") -> \"DONE\""}));
}

TEST(UpdateTST, AListAsAnswerIsAnAcceptedUpdate) {
  UpdateBench bench;
  bench.Answers(L"DONE", bench.scripted.Bag({{L"blnKeyTST", false}, {L"blnKeyTSTList", true}}));
  bench.Has(L"1");
  bench.updater.UpdateTST();
  EXPECT_EQ(bench.ReportedBoxes(), Lines{});
}

TEST(UpdateTST, ARefusedTSTIsReportedAndTheNextOneUpdated) {
  UpdateBench bench;
  bench.scripted.Answers(operations::terminal_session::kSendEntry, {L"CHECK FARE", L"DONE"});
  bench.Has(L"1");
  bench.Has(L"2");
  bench.updater.UpdateTST();
  EXPECT_EQ(bench.ReportedBoxes(), Lines{kRefusal});
  EXPECT_EQ(bench.TakeWay().back(), L"<-blnKeyTSTList flag False");
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(UpdateTST, ARefusalHasTheNumber40) {
  UpdateBench bench;
  bench.Answers(L"DONE", bench.scripted.Bag());
  bench.Has(L"1");
  bench.updater.UpdateTST();
  EXPECT_TRUE(bench.TakeCalls().back().starts_with(
      L"ScriptErrorReporter.1.18 ShowError(-2147221464, \"  PTA Script \""));
}

TEST(UpdateTST, AFailureIsReportedAndLeavesTheLaterTSTsAlone) {
  UpdateBench bench;
  bench.scripted.Fail(operations::terminal_session::kSendEntry, 77, L"gone");
  bench.Has(L"1");
  bench.Has(L"2");
  bench.updater.UpdateTST();
  const Lines calls = bench.TakeCalls();
  EXPECT_EQ(std::ranges::count_if(
                calls, [](const auto& line) { return line.starts_with(L"TerminalSession"); }),
            1);
  EXPECT_EQ(calls.back(),
            L"ScriptErrorReporter.1.18 ShowError(-2147221464, \"  PTA Script \", \"Error when "
            L"updating the TST Record!\", 16)");
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(UpdateTST, AFailureReleasesWhatWasHeld) {
  UpdateBench bench;
  bench.Has(L"1");
  bench.updater.UpdateTST();
  const int before = bench.recorder.LiveObjects();
  bench.scripted.Fail(operations::terminal_session::kSendEntry, 77, L"gone");
  bench.updater.UpdateTST();
  EXPECT_EQ(bench.recorder.LiveObjects(), before);
}

}  // namespace
}  // namespace tst
