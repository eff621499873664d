#include "tests/practice/LibraryObjects.h"

namespace practice {
namespace {

using hostlib::LibraryError;
using hostlib::Value;
using testing::ElementsAre;

TEST_F(LibraryObjects, EveryOperationOfTheSeamIsThere) {
  // An unknown slot fails with a number of its own; whatever else these bare calls answer or
  // fail with, the operation exists.
  constexpr auto kMemberNotFound = 0x80020003;
  for (const hostlib::Operation& operation : hostlib::AllOperations()) {
    if (operation.object == hostlib::operations::kList) continue;
    const auto object = bench.library.Create(operation.object);
    const auto bag = bench.library.Create(hostlib::operations::kBag);
    const std::vector<hostlib::ValueView> arguments(static_cast<std::size_t>(operation.arguments),
                                                    bag);
    try {
      object->Interface(operation.interfaceNumber)->Call(operation.slot, arguments);
    } catch (const LibraryError& error) {
      EXPECT_NE(error.number(), Number(kMemberNotFound)) << common::ToUtf8(operation.name);
    } catch (const common::RunTimeError&) {
    }
  }
}

TEST_F(LibraryObjects, AnUnknownClassIsAFailure) {
  EXPECT_THROW(bench.library.Create(L"CoffeeMachine"), LibraryError);
}

TEST_F(LibraryObjects, SessionNeedsARunningTerminal) {
  bench.library.options().sessionRunning = false;
  hostlib::TerminalSession session;
  EXPECT_EQ(Failure([&] { session.Connect(bench.library); }),
            std::pair(Number(0x80040902), std::wstring(L"No terminal session is running")));
}

TEST_F(LibraryObjects, AttachSaysWhatItWasToldTo) {
  EXPECT_FALSE(bench.global.Attach(nullptr, nullptr));
  bench.library.options().attachRefused = true;
  EXPECT_TRUE(bench.global.Attach(nullptr, nullptr));
}

/// An object of a program that attaches: what it answers by slot, from the first on.
class Answering : public hostlib::Object {
 public:
  explicit Answering(std::vector<Value> answers) : answers_(std::move(answers)) {}
  std::wstring_view ClassName() const override { return L"Answering"; }
  Value Call(int slot, const hostlib::Arguments&) override {
    const auto index = static_cast<std::size_t>(slot - 7);
    if (index >= answers_.size()) throw LibraryError(1, L"program", L"Not asked for");
    return answers_[index];
  }
  hostlib::ObjectPtr Interface(int) override { return nullptr; }

 private:
  std::vector<Value> answers_;
};

hostlib::ObjectPtr ObjectThatAnswers(std::vector<Value> answers) {
  return std::make_shared<Answering>(std::move(answers));
}

TEST_F(LibraryObjects, AttachReadsTheProgressFormAndTheApplication) {
  bench.global.Attach(ObjectThatAnswers({Value(L"the caption"), Value(L"Reading...")}),
                      ObjectThatAnswers({Value(L"the title"), Value(L"C:\\PTA"), Value(3)}));
  EXPECT_EQ(bench.library.attached(),
            (AttachedProgram{L"the caption", L"Reading...", L"the title", L"C:\\PTA", 3}));
}

TEST_F(LibraryObjects, AttachTakesObjectsThatAnswerNothingOrSomethingElse) {
  EXPECT_FALSE(bench.global.Attach(bench.library.Create(hostlib::operations::kBag),
                                   ObjectThatAnswers({Value(7), Value(), Value(L"three")})));
  EXPECT_EQ(bench.library.attached(), AttachedProgram());
  EXPECT_EQ(bench.reporter.LastErrorNumber(), 0);
}

TEST_F(LibraryObjects, SessionTakes75CharactersAsAnEntryAndNotOneMore) {
  const std::wstring entry = L"RM " + std::wstring(72, L'A');
  EXPECT_TRUE(bench.session.SendEntry(entry).starts_with(L"PNR "));
  EXPECT_EQ(Failure([&] { bench.session.SendEntry(entry + L"A"); }).first, Number(0x80040904));
  EXPECT_TRUE(bench.session.SendCommand(entry + L"A").starts_with(L"PNR "));
}

TEST_F(LibraryObjects, SessionHasATextAndChecksEntries) {
  EXPECT_NE(common::Trim(bench.session.SessionText()), L"");
  EXPECT_TRUE(bench.session.SendEntryChecked(L"IR"));
  EXPECT_FALSE(bench.session.SendEntryChecked(L"HELLO"));
  bench.host.faults.garbage[bench.host.EntryCount() + 1] = L"PNR GARBAGE";
  EXPECT_FALSE(bench.session.SendEntryChecked(L"IR"));
}

TEST_F(LibraryObjects, ALostSessionIsInterruptedOnceAndNotSentAfterwards) {
  bench.host.faults.dropFrom = bench.host.EntryCount() + 1;
  const auto outcome = [this] {
    try {
      bench.session.SendEntry(L"PV");
    } catch (const LibraryError& error) {
      EXPECT_EQ(error.number(), Number(0x80040903));
      return error.outcome();
    }
    return LibraryError::Outcome::kRefused;
  };
  EXPECT_EQ(outcome(), LibraryError::Outcome::kInterrupted);
  const int entries = bench.host.EntryCount();
  EXPECT_EQ(outcome(), LibraryError::Outcome::kNotSent);
  EXPECT_EQ(bench.host.EntryCount(), entries);
}

TEST_F(LibraryObjects, WithoutAnActivePnrNothingCanBeLoadedOrRead) {
  bench.host.Enter(L"IG");
  EXPECT_EQ(Failure([&] { bench.session.LoadPNR(); }),
            std::pair(Number(0x80040905),
                      std::wstring(L"The PNR can not be read: REFUSED: NO ACTIVE PNR")));
  EXPECT_EQ(Failure([&] { hostlib::PnrReader(bench.library).CountSegments(); }).first,
            Number(0x80040905));
}

TEST_F(LibraryObjects, AGarbledDisplayIsNoPnr) {
  for (const std::wstring garbage :
       {L"", L"#!%", L"PNR ABC123", L"PNR ABC123 OFFICE ARNAG2100\r\n1.SMITH/JOHN MR",
        L"PNR ABC123 OFFICE ARNAG2100\r\nHELLO\r\nEND OF PNR"}) {
    bench.host.faults.garbage = {{bench.host.EntryCount() + 1, garbage}};
    EXPECT_EQ(Failure([&] { bench.session.LoadPNR(); }).first, Number(0x80040905));
  }
}

TEST_F(LibraryObjects, ReporterShowsBoxesAndKnowsTheLastFailure) {
  EXPECT_EQ(bench.reporter.LastErrorNumber(), 0);
  EXPECT_EQ(bench.reporter.LastErrorText(), L"");
  EXPECT_THROW(hostlib::PnrReader(bench.library).GetSegment(bench.Index(9)), LibraryError);
  EXPECT_EQ(bench.reporter.LastErrorNumber(), Number(0x80040906));
  bench.reporter.ReportLastError();
  bench.reporter.ShowMessage(1, L"title", L"message");
  bench.reporter.ShowError(1, L"title", L"error", 48);
  EXPECT_EQ(bench.reporter.LastErrorNumber(), Number(0x80040906));
  EXPECT_THAT(
      bench.desktop.log,
      ElementsAre(L"box 16 \"  PTA Script \" \"The PNR has no SG element with index 9\" -> 1",
                  L"box 16 \"title\" \"message\" -> 1", L"box 48 \"title\" \"error\" -> 1"));
  bench.Bag();
  hostlib::PnrReader(bench.library).CountSegments();
  EXPECT_EQ(bench.reporter.LastErrorNumber(), 0);
}

TEST_F(LibraryObjects, ProfilesAreReadAndWritten) {
  hostlib::ProfileStore store(bench.library);
  EXPECT_EQ(store.ReadValue(L"f", L"s", L"k"), L"");
  store.WriteValue(L"f", L"s", L"k", L"v");
  EXPECT_EQ(store.ReadValue(L"f", L"s", L"k"), L"v");
  bench.profiles.writable = false;
  EXPECT_EQ(Failure([&] { store.WriteValue(L"f", L"s", L"k", L"w"); }),
            std::pair(Number(0x80040908), std::wstring(L"\"f\" can not be written")));
}

TEST_F(LibraryObjects, UsersValuesAreKept) {
  hostlib::UserSettingsStore store(bench.library);
  EXPECT_EQ(store.GetSetting(L"a", L"s", L"k"), L"");
  store.SaveSetting(L"a", L"s", L"k", L"v");
  EXPECT_EQ(store.GetSetting(L"a", L"s", L"k"), L"v");
  const Value otherwise = store.object()->Call(12, {L"a", L"s", L"x", L"default"});
  EXPECT_EQ(otherwise.Text(), L"default");
}

TEST_F(LibraryObjects, OfficeIsReadFromItsDisplay) {
  hostlib::OfficeDisplayReader reader(bench.library);
  EXPECT_EQ(bench.Text(reader.ReadResponse(bench.session.SendCommand(L"PV")), L"strKeyOfficeID"),
            L"ARNAG2100");
  EXPECT_EQ(Failure([&] { reader.ReadResponse(L"REFUSED: X"); }).first, Number(0x80040907));
}

TEST(LibraryLife, EveryObjectIsCountedUntilItIsReleased) {
  Host host;
  host.LoadBooking(kLibraryBooking);
  support::FixedPlatform platform;
  ProfilesInMemory profiles;
  UserValuesInMemory userValues;
  support::FakeDesktop desktop;
  auto library = std::make_unique<PracticeLibrary>(
      PracticeLibrary::Collaborators{host, platform, profiles, userValues, desktop});
  EXPECT_EQ(library->LiveObjects(), 0);
  auto session = library->Create(L"TerminalSession");
  {
    const hostlib::ParameterBag bag(*library);
    EXPECT_EQ(library->LiveObjects(), 2);
    const auto furtherInterface = library->Create(L"PnrReader")->Interface(2);
    EXPECT_EQ(library->LiveObjects(), 3);
  }
  EXPECT_EQ(library->LiveObjects(), 1);
  // A session that is held longer than the library still works.
  library.reset();
  session->Call(hostlib::operations::terminal_session::kLoadPNR.slot, {});
}

}  // namespace
}  // namespace practice
