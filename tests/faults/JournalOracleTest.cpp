#include <gmock/gmock.h>

#include <algorithm>

#include "common/Text.h"
#include "tests/faults/JournalOracle.h"
#include "tests/journal/JournalBench.h"
#include "tests/run/Scenes.h"

// The journal's oracle finds what a journal says wrongly.
namespace faults {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// A run of eight entries at least, with a box at its end.
struct JournalOracle : testing::Test {
  JournalOracle() { Run({}); }
  void Run(Fault fault) {
    journal::JournalBench bench;
    practice::RehearsalScene scene = run::SceneOf("write-closed-queue");
    bench.Attend(scene);
    shown = Perform(scene, fault);
    text = bench.folder.Text();
  }
  /// Which call of the run that is, from 1.
  int PlaceOf(std::wstring_view call) const {
    const auto site = std::ranges::find(shown.sites, call, &CallSite::name);
    return static_cast<int>(site - shown.sites.begin()) + 1;
  }
  Complaints WithInstead(std::wstring_view old, std::wstring_view other) const {
    EXPECT_NE(text.find(old), text.npos);
    return OnTheJournal(shown, common::Replace(text, old, other));
  }

  Shown shown;
  std::wstring text;
};

TEST_F(JournalOracle, FindsNothingInATrueJournal) {
  EXPECT_THAT(OnTheJournal(shown, text), IsEmpty());
}

TEST_F(JournalOracle, FindsAStateThatIsNotTheEntrys) {
  EXPECT_THAT(WithInstead(L"Entry 3 accepted after", L"Entry 3 unknown after")[0],
              L"\"unknown after 0.050 s\" is not what happened to RT");
  EXPECT_THAT(WithInstead(L"Entry 3 accepted after 0.050 s",
                          L"Entry 3 refused after 0.050 s, it was not sent")[0],
              L"\"refused after 0.050 s, it was not sent\" is not what happened to RT");
}

TEST_F(JournalOracle, FindsAnEntryCalledAcceptedThatTheHostRefused) {
  shown.outcome.entries[2].answer = L"REFUSED: NO";
  EXPECT_THAT(OnTheJournal(shown, text),
              ElementsAre(L"\"accepted after 0.050 s\" is not what happened to RT"));
}

TEST_F(JournalOracle, FindsAnEntryCalledAcceptedWhoseAnswerNeverCame) {
  for (Event& event : shown.timeline) {
    if (event.text == L"IR") event.outcome = Event::Outcome::kBrokeOff;
  }
  EXPECT_THAT(OnTheJournal(shown, text),
              ElementsAre(L"\"accepted after 0.050 s\" is not what happened to IR"));
}

TEST_F(JournalOracle, FindsAMissingState) {
  EXPECT_THAT(WithInstead(L"Entry 4 not judged", L"Nothing")[0], L"no one state: TQT");
}

TEST_F(JournalOracle, FindsATextThatIsWithheldWithoutNeed) {
  const std::wstring withheld = common::Replace(text, L"    | TQM RT\n", L"    | <withheld>\n");
  EXPECT_THAT(OnTheJournal(shown, withheld), ElementsAre(L"another text: <withheld>\n"));
  EXPECT_THAT(OnTheJournal(shown, withheld, Withholding::kPossible), IsEmpty());
}

TEST_F(JournalOracle, FindsAnotherText) {
  EXPECT_THAT(WithInstead(L"    | TQM RT\n", L"    | TQM\n"), ElementsAre(L"another text: TQM\n"));
}

TEST_F(JournalOracle, FindsAnotherTextThatLooksMasked) {
  for (const wchar_t* wrong : {L"*", L"TQM R*", L"TQM *RT", L"TQM \uFFFDT", L"T<payment>M"}) {
    EXPECT_THAT(WithInstead(L"    | TQM RT\n", std::wstring(L"    | ") + wrong + L"\n"),
                ElementsAre(std::wstring(L"another text: ") + wrong + L"\n"));
  }
}

TEST_F(JournalOracle, FindsAnotherTextBesideWhatIsMasked) {
  constexpr auto kComplaint = L"another text: CH 7 ";
  EXPECT_THAT(WithInstead(L"CH 7 O/PT/<payment>\n", L"CH 7 O/PT/<payment>+SEK1\n"),
              ElementsAre(testing::StartsWith(kComplaint)));
  EXPECT_THAT(WithInstead(L"CH 7 O/PT/<payment>\n", L"CH 7 O/PX/<payment>\n"),
              ElementsAre(testing::StartsWith(kComplaint)));
}

TEST_F(JournalOracle, FindsAnotherTextBesideAnAsterisk) {
  EXPECT_THAT(WithInstead(L";RM *FARE:1160,", L";RM *FARE:1161,"),
              ElementsAre(testing::StartsWith(L"another text: FO 117-")));
}

TEST_F(JournalOracle, FindsAMissingEntry) {
  shown.timeline.push_back({.kind = Event::Kind::kEntry, .text = L"BT"});
  EXPECT_THAT(OnTheJournal(shown, text)[0], testing::HasSubstr(L" entries"));
}

TEST_F(JournalOracle, FindsASummaryThatCountsOtherwise) {
  EXPECT_THAT(WithInstead(L", refused 1, ", L", refused 0, ")[0],
              testing::StartsWith(L"no such line: Entries: "));
  EXPECT_THAT(WithInstead(L"Not judged: 4, ", L"Not judged: "),
              ElementsAre(testing::StartsWith(L"no such line: Not judged: 4, ")));
}

TEST_F(JournalOracle, FindsAMissingBoxAndAnotherAnswer) {
  const auto complaint = ElementsAre(L"the journal has other boxes, or elsewhere");
  EXPECT_THAT(WithInstead(L"Box of style ", L"Nothing of style "), complaint);
  EXPECT_THAT(WithInstead(L"Box answered OK ", L"Box answered Cancel "), complaint);
}

TEST_F(JournalOracle, FindsAnotherBox) {
  EXPECT_THAT(WithInstead(L"PNR was not Queued", L"PNR was Queued")[0],
              testing::StartsWith(L"another box: PNR was Queued"));
}

TEST_F(JournalOracle, FindsAnotherLastErrorThatTheLibraryShows) {
  Run({.place = PlaceOf(L"PnrReader.CountMCOElements"), .way = Way::kErrorWithNumber});
  EXPECT_THAT(OnTheJournal(shown, text), IsEmpty());
  constexpr auto kMessage = L"Message by ReportLastError:\n    | The library";
  EXPECT_THAT(WithInstead(kMessage, L"Message by ReportLastError:\n    | The terminal"),
              ElementsAre(testing::StartsWith(L"another box: The terminal failed ")));
}

}  // namespace
}  // namespace faults
