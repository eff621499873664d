#include <gmock/gmock.h>

#include "tests/journal/JournalBench.h"
#include "tests/run/Scenes.h"
#include "tests/support/FakeDesktop.h"

// Whole runs and what their journals say.
namespace journal {
namespace {

using run::Lines;
using testing::Contains;
using testing::ElementsAre;
using testing::IsSupersetOf;
using testing::Not;

const std::wstring kCard = L"4929876538719900";

/// The ordinary booking, paid with a card.
practice::RehearsalScene CardScene() {
  auto scene = run::OrdinaryScene();
  scene.booking = common::Replace(scene.booking, L"CASH", L"CCVI" + kCard + L"/1209");
  scene.agent = common::Replace(scene.agent, L"CASH", L"CCVI" + kCard + L"/1209");
  return scene;
}

std::wstring JournalOf(practice::RehearsalScene scene) {
  JournalBench bench;
  bench.Attend(scene);
  run::RehearseInAgreement(scene);
  return bench.folder.Text();
}

Lines OwnLinesOf(practice::RehearsalScene scene) {
  JournalBench bench;
  bench.Attend(scene);
  run::RehearseInAgreement(scene);
  return bench.OwnLines();
}

// The entry that brings the first change.
constexpr int kFirstChange = 9;
// "BT", whose answer nobody looks at.
constexpr int kBackOffice = 14;

std::string Expected(const std::string& name) {
  return common::ToUtf8(run::ReadProjectFile("tests/journal/" + name));
}

TEST(JournalOfARun, OfTheOrdinaryBookingIsThis) {
  EXPECT_EQ(common::ToUtf8(JournalOf(run::OrdinaryScene())), Expected("ordinary.journal"));
}

TEST(JournalOfARun, PaidWithACardIsThis) {
  EXPECT_EQ(common::ToUtf8(JournalOf(CardScene())), Expected("card.journal"));
}

TEST(JournalOfARun, PaidWithACardHoldsNoDigitsOfItButTheLastFour) {
  const std::wstring journal = JournalOf(CardScene());
  constexpr std::size_t kTail = 4;
  for (std::size_t at = 0; at + kTail < kCard.size(); ++at) {
    EXPECT_EQ(journal.find(kCard.substr(at, kTail)), journal.npos) << at;
  }
  EXPECT_NE(journal.find(kCard.substr(kCard.size() - kTail)), journal.npos);
}

TEST(JournalOfARun, IsNamedAfterTheBookingItRead) {
  JournalBench bench;
  auto scene = run::OrdinaryScene();
  bench.Attend(scene);
  run::RehearseInAgreement(scene);
  EXPECT_THAT(bench.folder.Names(), ElementsAre(L"PTA_2007-02-20_133700_ABC123.txt"));
}

TEST(JournalOfARun, KeepsItsFirstNameWhenTheBookingHasNoLocator) {
  JournalBench bench;
  auto scene = run::SceneOf("no-locator");
  bench.Attend(scene);
  run::RehearseInAgreement(scene);
  EXPECT_THAT(bench.folder.Names(), ElementsAre(L"PTA_2007-02-20_133700.txt"));
}

TEST(JournalOfARun, HoldsAnEntryAndHasSecuredItBeforeTheHostHearsIt) {
  JournalBench bench;
  auto scene = run::OrdinaryScene();
  int number = 0;
  bench.Attend(scene);
  scene.prepare = [&, prepare = scene.prepare](practice::Host& host) {
    prepare(host);
    host.faults.slow = [&](int) {
      ++number;
      const Lines lines = bench.OwnLines();
      ASSERT_FALSE(lines.empty());
      EXPECT_TRUE(lines.back().starts_with(L"Entry " + std::to_wstring(number) + L" by "))
          << common::ToUtf8(lines.back());
      EXPECT_EQ(bench.folder.flushes, number);
    };
  };
  run::RehearseInAgreement(scene);
  EXPECT_EQ(number, 15);
}

TEST(JournalOfARun, TellsARefusedEntryByHowTheLibraryReadsItsAnswer) {
  auto scene = run::OrdinaryScene();
  scene.prepare = [](practice::Host& host) {
    host.faults.refusals[kFirstChange] = L"SIMULTANEOUS";
  };
  scene.agent +=
      L"box ok \"Error when updating the Ticketing Element!\\r\\rCorvane Central System gave an "
      L"incorrect response to the last transaction.\\rPlease verify the response given "
      L"and correct if possible, or contact your help desk. \\rThe program can not "
      L"continue.\"\n";
  const Lines lines = OwnLinesOf(scene);
  EXPECT_THAT(lines, IsSupersetOf({L"Entry 9 answered after 0.050 s:",
                                   L"Entry 9 refused, as the library reads its answer",
                                   L"Message by ShowError:", L"Message closed", L"Refused: 9",
                                   L"Entries: 9, accepted 5, refused 1, unknown 0, not judged 3",
                                   L"Last step: a message of the library",
                                   L"Run ended with exit code 0 after 0.450 s"}));
}

TEST(JournalOfARun, DoesNotCallAnEntryAcceptedWhoseRefusalTheProgramDoesNotRead) {
  auto scene = run::OrdinaryScene();
  scene.prepare = [](practice::Host& host) { host.faults.refusals[kBackOffice] = L"NO"; };
  EXPECT_THAT(OwnLinesOf(scene),
              IsSupersetOf({L"Entry 14 not judged", L"Not judged: 4, 6, 7, 14",
                            L"Entries: 15, accepted 11, refused 0, unknown 0, not judged 4"}));
}

/// A run that loses its session with its first change.
practice::RehearsalScene LostScene(bool answerOnly) {
  auto scene = run::OrdinaryScene();
  scene.prepare = [answerOnly](practice::Host& host) {
    host.faults.dropFrom = kFirstChange;
    host.faults.dropAnswerOnly = answerOnly;
  };
  return scene;
}

TEST(JournalOfARun, CallsAnEntryUnknownWhenTheCallBrokeOff) {
  for (const bool answerOnly : {false, true}) {
    JournalBench bench;
    auto scene = LostScene(answerOnly);
    bench.Attend(scene);
    practice::Rehearse(scene);  // the agent does not expect the messages that follow
    const Lines lines = bench.OwnLines();
    EXPECT_THAT(lines, IsSupersetOf(
                           {L"Entry 9 unknown after 0.050 s, the call broke off:", L"Unknown: 9"}));
    EXPECT_NE(bench.folder.Text().find(L"    | The session to the host was lost (0x80040903)"),
              std::wstring::npos);
  }
}

TEST(JournalOfARun, SaysThatItWasBrokenOffWhenThereIsNoExitCode) {
  JournalBench bench;
  auto scene = LostScene(true);
  bench.Attend(scene);
  EXPECT_NE(practice::Rehearse(scene).disagreement, L"");
  EXPECT_EQ(bench.OwnLines().back(), L"Run broken off after 0.450 s");
}

TEST(JournalOfARun, EndsWithTheWindowInWhichTheAgentCancelled) {
  auto scene = run::OrdinaryScene();
  scene.agent = L"form frmPTA\nclick cmdCancel\n";
  const Lines lines = OwnLinesOf(scene);
  EXPECT_THAT(lines, IsSupersetOf({L"Window frmWorking shown", L"Window frmPTA shown",
                                   L"Entries: 8, accepted 5, refused 0, unknown 0, not judged 3",
                                   L"Last step: window frmPTA"}));
  EXPECT_EQ(lines.back(), L"Run ended with exit code 0 after 0.400 s");
}

TEST(JournalOfARun, HoldsTheBoxesWithTheirAnswers) {
  const auto scene = run::SceneOf("write-closed-queue");
  EXPECT_THAT(OwnLinesOf(scene),
              IsSupersetOf({L"Box of style 1:", L"Box answered OK after 0.000 s"}));
  EXPECT_NE(JournalOf(scene).find(L"    | PNR was not Queued correctly ! \n"
                                  L"    | Press 'OK' to continue or 'Cancel' to terminate.\n"),
            std::wstring::npos);
}

TEST(JournalOfARun, HoldsTheBoxThatSaysWhyThereIsNoLibrary) {
  JournalBench bench;
  support::FakeDesktop desktop;
  RunJournal journal(desktop, bench.Place());
  journal.desktop().ShowBox(L"It does not fit", common::kCritical, common::kTitle);
  EXPECT_EQ(journal.Ended(1), 1);
  EXPECT_THAT(
      bench.OwnLines(),
      ElementsAre(L"Box of style 16:", L"Box answered OK after 0.000 s",
                  L"Entries: 0, accepted 0, refused 0, unknown 0, not judged 0",
                  L"Last step: a box answered OK", L"Run ended with exit code 1 after 0.000 s"));
}

TEST(JournalOfARun, HoldsTheOfficeFoundEarlierAndTheOneThatTheHostSays) {
  EXPECT_THAT(OwnLinesOf(run::OrdinaryScene()), Contains(L"Office \"ARNAG2100\", as found last"));
  auto scene = run::OrdinaryScene();
  scene.office.clear();
  EXPECT_THAT(OwnLinesOf(scene), Contains(L"Office \"ARNAG2100\", as the host says"));
}

TEST(JournalOfARun, HoldsWhatCouldNotBeMade) {
  auto scene = run::OrdinaryScene();
  scene.sessionRunning = false;
  scene.agent =
      L"box ok \"Failed to connect to Vantel session.\\r\\rVerify that there is a Vantel "
      L"session started.\"\n";
  const std::wstring journal = JournalOf(scene);
  EXPECT_NE(journal.find(L"Not made: TerminalSession:\n"
                         L"    | No terminal session is running (0x80040902)\n"),
            std::wstring::npos)
      << common::ToUtf8(journal);
}

/// What a run does besides its journal.
struct Deeds {
  Lines calls;
  Lines seen;
  std::vector<std::wstring> entries;
  std::wstring pnr;
  std::wstring ini;
  int exitCode;
  int liveObjects;
  bool operator==(const Deeds&) const = default;
};

Deeds DeedsOf(const practice::RehearsalScene& scene) {
  const auto outcome = practice::Rehearse(scene);
  return {outcome.calls,    outcome.seen,     outcome.EntryTexts(), outcome.pnrAfter,
          outcome.iniAfter, outcome.exitCode, outcome.liveObjects};
}

class EveryBooking : public testing::TestWithParam<std::string> {};

TEST_P(EveryBooking, IsDoneTheSameWithAJournalWithoutOneAndWithOneThatCanNotBeWritten) {
  if (!run::HasAgent(GetParam())) GTEST_SKIP() << "no written agent";
  const auto scene = run::SceneOf(GetParam());
  const Deeds without = DeedsOf(scene);
  for (const bool canWrite : {true, false}) {
    JournalBench bench;
    bench.folder.takesFiles = canWrite;
    auto attended = scene;
    bench.Attend(attended);
    EXPECT_EQ(DeedsOf(attended), without);
    EXPECT_EQ(bench.folder.files.size(), canWrite ? 1u : 0u);
  }
}

INSTANTIATE_TEST_SUITE_P(OfPractice, EveryBooking, testing::ValuesIn(run::BookingNames()),
                         [](const auto& row) {
                           return common::ToUtf8(
                               common::Replace(common::FromUtf8(row.param), L"-", L"_"));
                         });

/// A folder whose every act throws.
class BrokenFolder : public Folder {
 public:
  Naming CreateNew(std::wstring_view, std::unique_ptr<File>&) override { throw std::bad_alloc(); }
  std::vector<std::wstring> Names() const override { throw std::runtime_error("no names"); }
  void Remove(std::wstring_view) override { throw 1; }
};

/// A file whose every act throws, in a folder that makes it.
class BrokenFile : public File {
 public:
  bool Append(std::string_view) override { throw std::bad_alloc(); }
  void Flush() override { throw std::bad_alloc(); }
  Naming Rename(std::wstring_view) override { throw std::bad_alloc(); }
};
class FolderOfBrokenFiles : public FolderInMemory {
 public:
  Naming CreateNew(std::wstring_view, std::unique_ptr<File>& file) override {
    file = std::make_unique<BrokenFile>();
    return Naming::kDone;
  }
};

TEST(JournalOfARun, ThatThrowsChangesNothing) {
  const auto scene = run::OrdinaryScene();
  const Deeds without = DeedsOf(scene);
  BrokenFolder broken;
  FolderOfBrokenFiles brokenFiles;
  for (Folder* folder : {static_cast<Folder*>(&broken), static_cast<Folder*>(&brokenFiles)}) {
    auto attended = scene;
    attended.run = [&](hostlib::Library& library, ui::Desktop& desktop,
                       const platform::Platform& machine) {
      JournalBench bench;
      RunJournal journal(desktop, {bench.platform, *folder, bench.clock, L"1.2.3"});
      return journal.Ended(app::RunProgram(journal.Before(library), journal.desktop(), machine));
    };
    EXPECT_EQ(DeedsOf(attended), without);
  }
}

TEST(JournalOfARun, RemovesTheOldJournalsFirst) {
  JournalBench bench;
  bench.folder.files[L"PTA_2007-01-20_120000_OLD123.txt"];
  bench.folder.takesFiles = false;
  auto scene = run::OrdinaryScene();
  bench.Attend(scene);
  run::RehearseInAgreement(scene);
  EXPECT_TRUE(bench.folder.files.empty());
}

}  // namespace
}  // namespace journal
