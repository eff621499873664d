#include "tests/updates/UpdatesBench.h"
#include "updates/ElementEntry.h"

namespace updates {
namespace {

using namespace hostlib::operations;

std::wstring Element(std::size_t length) { return std::wstring(length, L'E'); }

struct EntryBench : UpdatesBench {
  EntryBench() { AnswerFlag(pnr_element_entry::kReadResponse, L"blnKeyPNRFound", true); }

  ReleaseWatchingRunEnd end{recorder};
  ElementEntry entry{library, global, session, errors, end};
};

TEST(JoinElements, NoElementMakesNoEntry) { EXPECT_EQ(JoinElements({}), Lines{}); }

TEST(JoinElements, EveryElementIsFollowedByASemicolonTheLastOneToo) {
  EXPECT_EQ(JoinElements({L"A", L"B"}), Lines{L"A;B;"});
}

TEST(JoinElements, AnEntryOf238CharactersIsOne) {
  EXPECT_EQ(JoinElements({Element(100), Element(136)}),
            Lines{Element(100) + L";" + Element(136) + L";"});
}

TEST(JoinElements, AnEntryOf239CharactersIsOne) {
  const Lines entries = JoinElements({Element(100), Element(137)});
  EXPECT_EQ(entries, Lines{Element(100) + L";" + Element(137) + L";"});
  EXPECT_EQ(entries.front().size(), 239u);
}

TEST(JoinElements, WhatWouldReach240CharactersOpensASecondEntry) {
  EXPECT_EQ(JoinElements({Element(100), Element(138)}),
            (Lines{Element(100) + L";", Element(138) + L";"}));
}

TEST(JoinElements, AFirstElementThatFillsAnEntryGoesAlone) {
  EXPECT_EQ(JoinElements({Element(240), L"B"}), (Lines{Element(240) + L";", L"B;"}));
}

TEST(JoinElements, ALaterElementThatFillsAnEntryGoesAlone) {
  EXPECT_EQ(JoinElements({L"A", Element(300), L"B"}), (Lines{L"A;", Element(300) + L";", L"B;"}));
}

TEST(JoinElements, ADividedRemarkIsNotSplitOverTwoEntries) {
  const std::wstring divided = Element(120) + L";" + Element(60);
  EXPECT_EQ(JoinElements({Element(100), divided}), (Lines{Element(100) + L";", divided + L";"}));
}

TEST(JoinElements, TheEntryAfterAFullOneIsFilledAgain) {
  EXPECT_EQ(
      JoinElements({Element(200), Element(100), Element(100), Element(100)}),
      (Lines{Element(200) + L";", Element(100) + L";" + Element(100) + L";", Element(100) + L";"}));
}

TEST(ElementEntry, AnEntryGoesBySendCommandHoweverShortAndIsChecked) {
  EntryBench bench;
  bench.entry.Send({L"FO A", L"RM B"});
  EXPECT_EQ(bench.TakeCalls(),
            Joined({{L"TerminalSession.1.10 SendCommand(\"FO A;RM B;\") -> \"LONG ANSWER\"",
                     L"PnrElementEntry.1.8 ReadResponse(\"LONG ANSWER\") -> <ParameterBag>"},
                    ReadFlag(L"blnKeyPNRFound", true)}));
}

TEST(ElementEntry, NothingToEnterSendsNothing) {
  EntryBench bench;
  bench.entry.Send({});
  EXPECT_EQ(bench.TakeCalls(), Lines{});
}

TEST(ElementEntry, EachEntryIsCheckedBeforeTheNextIsSent) {
  EntryBench bench;
  bench.entry.Send({Element(200), Element(100)});
  const Lines check =
      Joined({{L"PnrElementEntry.1.8 ReadResponse(\"LONG ANSWER\") -> <ParameterBag>"},
              ReadFlag(L"blnKeyPNRFound", true)});
  EXPECT_EQ(
      bench.TakeCalls(),
      Joined({{L"TerminalSession.1.10 SendCommand(\"" + Element(200) + L";\") -> \"LONG ANSWER\""},
              check,
              {L"TerminalSession.1.10 SendCommand(\"" + Element(100) + L";\") -> \"LONG ANSWER\""},
              check}));
}

TEST(ElementEntry, ARefusedEntryIsShownAndEndsTheRunBeforeTheNext) {
  EntryBench bench;
  bench.AnswerFlag(pnr_element_entry::kReadResponse, L"blnKeyPNRFound", false);
  bench.ShowObjects();
  EXPECT_THROW(bench.entry.Send({Element(200), Element(100)}), support::EndedByEndScript);
  EXPECT_EQ(bench.CallsOf(L"TerminalSession").size(), 1u);
  EXPECT_EQ(bench.CallsOf(L"ScriptErrorReporter"),
            Lines{RefusalBox(70, L"Error when entering the PNR elements!")});
  EXPECT_EQ(bench.end.heldAtEnd, 0);
}

TEST(ElementEntry, ARefusedSecondEntryComesAfterAnAcceptedFirst) {
  EntryBench bench;
  bench.scripted.Answers(pnr_element_entry::kReadResponse,
                         {hostlib::ObjectPtr(bench.scripted.Bag({{L"blnKeyPNRFound", true}})),
                          hostlib::ObjectPtr(bench.scripted.Bag({{L"blnKeyPNRFound", false}}))});
  EXPECT_THROW(bench.entry.Send({Element(200), Element(100), Element(200)}),
               support::EndedByEndScript);
  EXPECT_EQ(bench.CallsOf(L"TerminalSession").size(), 2u);
  EXPECT_EQ(bench.CallsOf(L"ScriptErrorReporter").size(), 1u);
}

TEST(ElementEntry, AnEntryWithoutAnOutcomeIsRefused) {
  EntryBench bench;
  bench.scripted.Answer(pnr_element_entry::kReadResponse, hostlib::ObjectPtr(bench.scripted.Bag()));
  EXPECT_THROW(bench.entry.Send({L"A"}), support::EndedByEndScript);
}

TEST(ElementEntry, WithoutARequestObjectNothingIsSent) {
  EntryBench bench;
  bench.scripted.FailToCreate(pnr_element_entry::kClass);
  EXPECT_THROW(bench.entry.Send({L"A"}), hostlib::LibraryError);
  EXPECT_EQ(bench.CallsOf(L"TerminalSession"), Lines{});
}

}  // namespace
}  // namespace updates
