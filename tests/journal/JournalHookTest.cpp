#include <gmock/gmock.h>

#include "common/Text.h"
#include "hostlib/Recorder.h"
#include "hostlib/Requests.h"
#include "hostlib/ScriptErrorReporter.h"
#include "hostlib/TerminalSession.h"
#include "journal/JournalHook.h"
#include "tests/journal/CpuTime.h"
#include "tests/journal/JournalBench.h"
#include "tests/support/ScriptedLibrary.h"

namespace journal {
namespace {

using hostlib::LibraryError;
using hostlib::ParameterBag;
using hostlib::Value;
using testing::ElementsAre;
namespace operations = hostlib::operations;

struct JournalHookTest : testing::Test {
  JournalHookTest() {
    writer.Open(L"1.2.3");
    session.Connect(library);
  }

  void SessionAnswers(std::wstring answer) {
    scripted.Answer(operations::terminal_session::kSendEntry, Value(std::move(answer)));
  }
  void SessionThrows(LibraryError::Outcome outcome) {
    scripted.On(operations::terminal_session::kSendEntry,
                [outcome](const hostlib::Arguments&) -> Value {
                  throw LibraryError(static_cast<std::int32_t>(0x800706BE), L"x", L"Gone", outcome);
                });
  }
  void SendFailing() { EXPECT_THROW(session.SendEntry(L"TQT"), LibraryError); }
  /// The own lines from the first entry's state on.
  std::vector<std::wstring> States() {
    hook.Finish();
    std::vector<std::wstring> states;
    for (const std::wstring& line : bench.OwnLines()) {
      if (line.find(L"answered") == line.npos && line.find(L" by ") == line.npos) {
        states.push_back(line);
      }
    }
    return states;
  }
  /// What is written once a text with this in it goes to the host.
  std::wstring Written(std::wstring_view text) {
    SessionAnswers(L"OK");
    session.SendEntry(text);
    const std::wstring journal = bench.folder.Text();
    const std::size_t from = journal.rfind(L" by SendEntry:\n    | ") + 21;
    return journal.substr(from, journal.find(L'\n', from) - from);
  }

  /// An entry is answered and the record locator read; the own lines but for the locator's never
  /// depend on what either says. Returns that one.
  std::wstring LocatorLineAfter(std::wstring answer, const wchar_t* locator) {
    SessionAnswers(std::move(answer));
    session.SendEntry(L"RT");
    scripted.Answer(operations::pnr_reader::kGetRecordLocator, Value(locator));
    hostlib::PnrReader(library).GetRecordLocator();
    hook.Finish();
    const std::vector<std::wstring> lines = bench.OwnLines();
    EXPECT_THAT(lines, ElementsAre(L"Entry 1 by SendEntry:", L"Entry 1 answered after 0.000 s:",
                                   testing::_, L"Entry 1 not judged",
                                   L"Entries: 1, accepted 0, refused 0, unknown 0, not judged 1",
                                   L"Not judged: 1"));
    return lines.size() > 2 ? lines[2] : std::wstring();
  }

  JournalBench bench;
  Writer writer{bench.folder, bench.clock};
  PaymentFields fields{writer.masking()};
  JournalHook hook{writer, bench.clock, fields};
  support::ScriptedLibrary scripted;
  hostlib::InterposedLibrary library{scripted, hook};
  hostlib::TerminalSession session;
};

TEST_F(JournalHookTest, CallsAnEntryUnknownForWhichTheLibraryFailsInsteadOfAnswering) {
  SessionThrows(LibraryError::Outcome::kRefused);
  SendFailing();
  EXPECT_THAT(States(), ElementsAre(L"Entry 1 unknown after 0.000 s, without an answer:",
                                    L"Entries: 1, accepted 0, refused 0, unknown 1, not judged 0",
                                    L"Unknown: 1"));
}

TEST_F(JournalHookTest, CallsAnEntryRefusedWhoseAnswerTheLibraryReadsItselfAndDoesNotFindGood) {
  scripted.On(operations::terminal_session::kLoadPNR, [](const hostlib::Arguments&) -> Value {
    throw LibraryError(1, L"", L"", LibraryError::Outcome::kRefused);
  });
  EXPECT_THROW(session.LoadPNR(), LibraryError);
  EXPECT_THAT(States(), ElementsAre(L"Entry 1 refused after 0.000 s:",
                                    L"Entries: 1, accepted 0, refused 1, unknown 0, not judged 0",
                                    L"Refused: 1"));
}

TEST_F(JournalHookTest, CallsAnEntryRefusedThatWasNotSent) {
  SessionThrows(LibraryError::Outcome::kNotSent);
  SendFailing();
  EXPECT_THAT(States(), ElementsAre(L"Entry 1 refused after 0.000 s, it was not sent:",
                                    L"Entries: 1, accepted 0, refused 1, unknown 0, not judged 0",
                                    L"Refused: 1"));
}

TEST_F(JournalHookTest, CallsAnEntryUnknownWhoseCallBrokeOff) {
  SessionThrows(LibraryError::Outcome::kInterrupted);
  SendFailing();
  SendFailing();
  EXPECT_THAT(States(), ElementsAre(L"Entry 1 unknown after 0.000 s, the call broke off:",
                                    L"Entry 2 unknown after 0.000 s, the call broke off:",
                                    L"Entries: 2, accepted 0, refused 0, unknown 2, not judged 0",
                                    L"Unknown: 1, 2"));
}

TEST_F(JournalHookTest, CallsAnEntryUnknownWhoseCallWasLeftInAnyOtherWay) {
  struct Foreign {};
  scripted.On(operations::terminal_session::kSendEntry,
              [](const hostlib::Arguments&) -> Value { throw Foreign(); });
  EXPECT_THROW(session.SendEntry(L"TQT"), Foreign);
  EXPECT_EQ(States().front(), L"Entry 1 unknown after 0.000 s, the call broke off");
}

TEST_F(JournalHookTest, WritesTheFailureWithItsNumber) {
  SessionThrows(LibraryError::Outcome::kInterrupted);
  SendFailing();
  EXPECT_NE(bench.folder.Text().find(L"    | Gone (0x800706BE)\n"), std::wstring::npos);
}

TEST_F(JournalHookTest, TakesACheckedEntrysOwnWord) {
  scripted.Answers(operations::terminal_session::kSendEntryChecked, {Value(false), Value(true)});
  session.SendEntryChecked(L"IR");
  session.SendEntryChecked(L"IR");
  EXPECT_THAT(
      States(),
      ElementsAre(L"Entry 1 refused after 0.000 s", L"Entry 2 accepted after 0.000 s",
                  L"Entries: 2, accepted 1, refused 1, unknown 0, not judged 0", L"Refused: 1"));
}

/// The queue placement with these two flags in its answer; what was read of them is said by `read`.
struct QueueFlags {
  bool queued;
  bool on;
  std::vector<common::Literal> read;
  const wchar_t* state;
};

class FlagsOfAnAnswer : public JournalHookTest, public testing::WithParamInterface<QueueFlags> {};

TEST_P(FlagsOfAnAnswer, TellWhatBecameOfTheEntry) {
  const auto answer = scripted.Bag(
      {{L"blnKeyQuePNR", Value(GetParam().queued)}, {L"blnKeyQueOn", Value(GetParam().on)}});
  scripted.Answer(operations::queue_request::kReadResponse, hostlib::ObjectPtr(answer));
  SessionAnswers(L"QUEUED");
  const ParameterBag bag = hostlib::QueueRequest(library).ReadResponse(session.SendEntry(L"QE"));
  for (const common::Literal key : GetParam().read) bag.GetValue(key);
  EXPECT_EQ(States().front(), std::wstring(L"Entry 1 ") + GetParam().state);
}

constexpr auto kRead = L"refused, as the library reads its answer";
constexpr auto kNotJudged = L"not judged";
INSTANTIATE_TEST_SUITE_P(
    Read, FlagsOfAnAnswer,
    testing::Values(QueueFlags{true, true, {L"blnKeyQuePNR", L"blnKeyQueOn"}, L"accepted"},
                    QueueFlags{false, true, {L"blnKeyQuePNR", L"blnKeyQueOn"}, L"accepted"},
                    QueueFlags{false, false, {L"blnKeyQuePNR", L"blnKeyQueOn"}, kRead},
                    QueueFlags{false, false, {L"blnKeyQuePNR", L"blnKeyQuePNR"}, kNotJudged},
                    QueueFlags{false, false, {L"blnKeyOther"}, kNotJudged},
                    QueueFlags{false, false, {}, kNotJudged}));

TEST_F(JournalHookTest, DoesNotTakeAnotherAnswersFlagsForTheEntrys) {
  const auto answer = scripted.Bag({{L"blnKeyPNRFound", Value(false)}});
  scripted.Answer(operations::pnr_element_entry::kReadResponse, hostlib::ObjectPtr(answer));
  SessionAnswers(L"NEW");
  session.SendEntry(L"RM X");
  hostlib::PnrElementEntry(library).ReadResponse(L"OLD").GetValue(L"blnKeyPNRFound");
  EXPECT_EQ(States().front(), std::wstring(L"Entry 1 ") + kNotJudged);
}

TEST_F(JournalHookTest, TakesFlagsReadFromNoTextForNoAnswerOfTheEntry) {
  const auto answer = scripted.Bag({{L"blnKeyPNRFound", Value(true)}});
  scripted.Answer(operations::pnr_element_entry::kReadResponse, hostlib::ObjectPtr(answer));
  SessionAnswers(L"NEW");
  session.SendEntry(L"RM X");
  const hostlib::ObjectPtr reader = library.Create(operations::pnr_element_entry::kClass);
  const int slot = operations::pnr_element_entry::kReadResponse.slot;
  ParameterBag(reader->Call(slot, {})).GetValue(L"blnKeyPNRFound");
  ParameterBag(reader->Call(slot, {Value(7)})).GetValue(L"blnKeyPNRFound");
  EXPECT_EQ(States().front(), std::wstring(L"Entry 1 ") + kNotJudged);
}

TEST_F(JournalHookTest, SettlesAnEntryBeforeTheNextOneIsWritten) {
  SessionAnswers(L"TST 1");
  session.SendEntry(L"TQT");
  session.SendEntry(L"TQT");
  EXPECT_THAT(bench.OwnLines(),
              ElementsAre(L"Entry 1 by SendEntry:", L"Entry 1 answered after 0.000 s:",
                          L"Entry 1 not judged", L"Entry 2 by SendEntry:",
                          L"Entry 2 answered after 0.000 s:"));
}

TEST_F(JournalHookTest, WritesAMessageOfTheLibraryWithItsText) {
  scripted.Answer(operations::script_error_reporter::kShowError, {});
  hostlib::ScriptErrorReporter reporter;
  reporter.Create(library);
  reporter.ShowError(7, L"title", L"One\rTwo", 16);
  EXPECT_NE(bench.folder.Text().find(
                L"13:37:00.000 Message by ShowError:\n    | One\n    | Two\n13:37:00.000 Message "
                L"closed\n"),
            std::wstring::npos);
}

TEST_F(JournalHookTest, WritesTheLibrarysOwnLastErrorAsTheFailureSeenLast) {
  scripted.Fail(operations::pnr_reader::kCountSegments, -1, L"No PNR");
  scripted.Answer(operations::script_error_reporter::kReportLastError, {});
  hostlib::ScriptErrorReporter reporter;
  reporter.Create(library);
  hostlib::PnrReader reader(library);
  EXPECT_THROW(reader.CountSegments(), LibraryError);
  reporter.ReportLastError();
  const std::wstring journal = bench.folder.Text();
  EXPECT_NE(journal.find(L"Failed: PnrReader.CountSegments:\n    | No PNR (0xFFFFFFFF)\n"),
            journal.npos);
  EXPECT_NE(journal.find(L"Message by ReportLastError:\n    | No PNR (0xFFFFFFFF)\n"),
            journal.npos);
}

TEST_F(JournalHookTest, MasksAFormOfPaymentReadFromABag) {
  constexpr common::Literal kKeys[] = {L"strKeyMCOFPElement", L"strKeyFPElementValue"};
  for (const common::Literal key : kKeys) {
    const std::wstring value = common::Joined({L"VALUE", key});
    const auto answer = scripted.Bag({{key, Value(value)}});
    scripted.Answer(operations::tst_list_request::kReadResponse, hostlib::ObjectPtr(answer));
    hostlib::TstListRequest(library).ReadResponse(L"TST").GetValue(key);
    EXPECT_EQ(Written(L"CH 7 " + value), L"CH 7 <payment>");
  }
}

TEST_F(JournalHookTest, MasksAFormOfPaymentPutIntoABag) {
  ParameterBag(library).SetValue(L"strKeyFPElementValue", Value(L"GRANT77"));
  EXPECT_EQ(Written(L"CH 7 GRANT77"), L"CH 7 <payment>");
}

TEST_F(JournalHookTest, MasksTheFormsOfPaymentInAList) {
  constexpr common::Literal kLists[] = {L"strKeyFOPArray()", L"strTSMListFOPArray"};
  for (const common::Literal key : kLists) {
    const std::wstring value = common::Joined({L"VALUE", key});
    const auto answer =
        scripted.Bag({{key, scripted.List(hostlib::TextArray{{L"", value, L"GRANT77"}, 0})}});
    scripted.Answer(operations::tst_list_request::kReadResponse, hostlib::ObjectPtr(answer));
    const ParameterBag bag = hostlib::TstListRequest(library).ReadResponse(L"TST");
    hostlib::TextsOf(bag.GetValue(key));
    EXPECT_EQ(Written(L"A " + value + L" B GRANT77"), L"A <payment> B <payment>");
  }
}

TEST_F(JournalHookTest, MasksTheTextOfAFormOfPaymentElementAndOfNoOther) {
  scripted.Answer(operations::pnr_element_builder::kExecuteRM, Value(L"RM REMARK"));
  scripted.Answer(operations::pnr_element_builder::kExecuteFP, Value(L"FP GRANT77"));
  for (const auto& [execute, text] :
       {std::pair{&operations::pnr_element_builder::kExecuteRM, L"REMARK"},
        std::pair{&operations::pnr_element_builder::kExecuteFP, L"GRANT77"}}) {
    ParameterBag bag(library);
    bag.SetValue(L"strKeyText", Value(text));
    hostlib::PnrElementBuilder(library, *execute).Execute(bag);
  }
  EXPECT_EQ(Written(L"RM REMARK;FP GRANT77"), L"RM REMARK;FP <payment>");
}

TEST_F(JournalHookTest, MasksAFormOfPaymentThatADisplayShows) {
  SessionAnswers(
      L"4 MCO SK,FP INVOICE A,FA 117\r\n7 FP CHEQUE [P1]\r\nFP 7 VOUCHER\r\nFOP GRANT77\r\n"
      L"8 FP O/PT/COUPON\r\n9 FP 7CASH\r\nXFP 12");
  session.SendEntry(L"RT");
  const std::wstring journal = bench.folder.Text();
  EXPECT_NE(journal.find(L"    | 4 MCO SK,FP <payment>,FA 117\n"
                         L"    | 7 FP <payment> [P1]\n"
                         L"    | FP 7 <payment>\n"
                         L"    | FOP <payment>\n"
                         L"    | 8 FP <payment>\n"
                         L"    | 9 FP <payment>\n"
                         L"    | XFP 12\n"),
            journal.npos)
      << common::ToUtf8(journal);
}

TEST_F(JournalHookTest, MasksWhatAnEndlessLineShowsAsFormsOfPayment) {
  std::wstring answer;
  while (answer.size() < 100'000) answer += L"FP FP FOP GRANT77 FP ";
  SessionAnswers(answer);
  const CpuTime time;
  session.SendEntry(L"RT");
  EXPECT_LT(time.Seconds(), 20);
  const std::wstring journal = bench.folder.Text();
  EXPECT_NE(journal.find(L"    | FP FP FOP <payment> FP FP FP FOP <payment> FP "), journal.npos);
  EXPECT_EQ(journal.find(L"GRANT77"), journal.npos);
}

TEST_F(JournalHookTest, WithholdsTextsButNoStatesWhenADisplayShowsMoreThanThereIsRoomFor) {
  std::wstring answer;
  for (int i = 10'000; i < 20'000; ++i) answer += L"FP VALUE" + std::to_wstring(i) + L"\r\n";
  EXPECT_EQ(LocatorLineAfter(answer, L"VALUE19999"), L"Record locator <withheld>");
  EXPECT_NE(bench.folder.Text().find(L"answered after 0.000 s:\n    | <withheld>\n"),
            std::wstring::npos);
  EXPECT_EQ(bench.folder.Text().find(L"VALUE"), std::wstring::npos);
}

TEST_F(JournalHookTest, KeepsItsOwnWordsWhateverADisplayShowsAsAFormOfPayment) {
  EXPECT_EQ(LocatorLineAfter(L"FP UNKNOWN\r\nFP 1\r\nFP NOT JUDGED\r\nFP ABC123", L"ABC123"),
            L"Record locator \"<payment>\"");
}

TEST_F(JournalHookTest, MasksAnOfficeThatADisplayShowsAsAFormOfPayment) {
  SessionAnswers(L"FP STOSK08AA");
  session.SendEntry(L"RT");
  scripted.Answer(operations::user_settings_store::kGetSetting, Value(L"STOSK08AA"));
  scripted.Answer(operations::user_settings_store::kSaveSetting, Value());
  hostlib::UserSettingsStore store(library);
  store.GetSetting(L"PTAStartup", L"Values", L"OfficeID");
  store.SaveSetting(L"PTAStartup", L"Values", L"OfficeID", L"STOSK08AA");
  EXPECT_THAT(bench.OwnLines(), testing::IsSupersetOf({L"Office \"<payment>\", as found last",
                                                       L"Office \"<payment>\", as the host says"}));
}

TEST_F(JournalHookTest, TakesAMessageThatSaysOfficeIDForNoOffice) {
  scripted.Answer(operations::script_error_reporter::kShowMessage, {});
  hostlib::ScriptErrorReporter reporter;
  reporter.Create(library);
  reporter.ShowMessage(7, L"title", L"OfficeID");
  EXPECT_THAT(bench.OwnLines(), ElementsAre(L"Message by ShowMessage:", L"Message closed"));
}

TEST_F(JournalHookTest, TakesOnlyTheSessionsOperationsForEntries) {
  std::vector<std::wstring> names;
  for (const EntryOperation& entry : EntryOperations()) {
    EXPECT_EQ(entry.operation->object, operations::terminal_session::kClass);
    names.emplace_back(entry.operation->name);
  }
  EXPECT_THAT(names, ElementsAre(L"LoadPNR", L"SendCommand", L"SendEntry", L"SendDisplay",
                                 L"SendEntryChecked"));
}

}  // namespace
}  // namespace journal
