#include "practice/host/Host.h"

namespace practice {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::wstring_view kBooking =
    L"# one passenger\r\n"
    L"NM SMITH/JOHN MR\r\n"
    L"\r\n"
    L"MCO SK,FP CASH\r\n"
    L"TR LOCATOR ABC123\r\n";

struct HostScene : testing::Test {
  HostScene() { host.LoadBooking(kBooking); }
  void ExpectRefused(const std::wstring& entry, const std::wstring& why) {
    const std::wstring before = host.PnrText();
    EXPECT_EQ(host.Enter(entry), L"REFUSED: " + why);
    EXPECT_EQ(host.PnrText(), before);
  }
  Host host;
};

TEST_F(HostScene, RereadDropsWhatIsNotStored) {
  const std::wstring before = host.Enter(L"RT");
  EXPECT_NE(host.Enter(L"RM A"), before);
  EXPECT_EQ(host.Enter(L"IR"), before);
  EXPECT_EQ(host.Enter(L"RT"), before);
}

TEST_F(HostScene, RereadOfAPnrThatWasNeverStoredIsRefused) {
  host.LoadBooking(L"NM SMITH/JOHN MR");
  ExpectRefused(L"IR", L"THE PNR IS NOT STORED");
}

TEST_F(HostScene, EndStoresAndLeavesThePnrAndItCanBeRetrieved) {
  host.Enter(L"RM A");
  EXPECT_EQ(host.Enter(L"ET"), L"STORED ABC123");
  EXPECT_FALSE(host.HasActivePnr());
  EXPECT_NE(host.Enter(L"RT ABC123").find(L"RM A"), std::wstring::npos);
  ExpectRefused(L"RT XYZ999", L"NO PNR XYZ999");
}

TEST_F(HostScene, ANewPnrGetsALocatorWhenItIsStored) {
  host.LoadBooking(L"NM SMITH/JOHN MR");
  EXPECT_EQ(host.Enter(L"ET"), L"STORED PX0001");
  host.Enter(L"NM SMITH/ANNA MRS");
  EXPECT_EQ(host.Enter(L"ET"), L"STORED PX0002");
}

TEST_F(HostScene, IgnoreLeavesThePnrAsItWasStored) {
  host.Enter(L"RM A");
  ExpectRefused(L"RT ABC123", L"END OR IGNORE THE ACTIVE PNR FIRST");
  EXPECT_EQ(host.Enter(L"IG"), L"IGNORED");
  EXPECT_EQ(host.Enter(L"RT ABC123").find(L"RM A"), std::wstring::npos);
}

TEST_F(HostScene, OfficeDisplayShowsTheAgentsOffice) {
  EXPECT_EQ(host.Enter(L"PV"), L"OFFICE ARNAG2100\r\nCITY ARN\r\nEND OF OFFICE");
  EXPECT_EQ(host.Enter(L"TR OFFICE CPHSK0001"), L"OK");
  EXPECT_EQ(host.Enter(L"PV"), L"OFFICE CPHSK0001\r\nCITY CPH\r\nEND OF OFFICE");
}

TEST_F(HostScene, PrinterKeepsWhatItPrints) {
  EXPECT_EQ(host.Enter(L"PRINT RT"), L"PRINTED RT");
  EXPECT_EQ(host.Enter(L"PRINT TQT"), L"PRINTED TQT");
  EXPECT_THAT(host.Printed(), ElementsAre(host.Enter(L"RT"), L"NO ACTIVE TST"));
  ExpectRefused(L"PRINT", L"PRINT WANTS RT, TQT OR TQM");
  ExpectRefused(L"PRINT PV", L"PRINT WANTS RT, TQT OR TQM");
  host.Enter(L"TR PRINTER OFF");
  ExpectRefused(L"PRINT RT", L"THE PRINTER IS OFF");
  EXPECT_EQ(host.Printed().size(), 2u);
}

TEST_F(HostScene, BackOfficeTakesThePnrAndKeepsItActiveOnlyWhenRetained) {
  host.Enter(L"RM A");
  EXPECT_EQ(host.Enter(L"BT RETAIN [P1]"), L"SENT ABC123");
  EXPECT_TRUE(host.HasActivePnr());
  EXPECT_NE(host.StoredPnrText(L"ABC123").find(L"RM A"), std::wstring::npos);
  EXPECT_EQ(host.Enter(L"BT"), L"SENT ABC123");
  EXPECT_FALSE(host.HasActivePnr());
  EXPECT_THAT(host.SentToBackOffice(), ElementsAre(L"ABC123 RETAIN [P1]", L"ABC123"));
}

TEST_F(HostScene, MalformedBackOfficeEntriesAreRefused) {
  ExpectRefused(L"BT KEEP", L"ENTRY BT KEEP IS NOT UNDERSTOOD");
  ExpectRefused(L"BT [P2]", L"NO PASSENGER 2");
  EXPECT_THAT(host.SentToBackOffice(), IsEmpty());
}

TEST_F(HostScene, QueuePlacementStoresAndLeavesThePnr) {
  host.Enter(L"RM A");
  EXPECT_EQ(host.Enter(L"QE 80 CAT 1 AT STOSK08AA"),
            L"QUEUED ABC123 ON 80 CAT 1 AT STOSK08AA - QUEUE ON");
  EXPECT_FALSE(host.HasActivePnr());
  EXPECT_NE(host.StoredPnrText(L"ABC123").find(L"RM A"), std::wstring::npos);
  EXPECT_THAT(host.queues().At({L"STOSK08AA", 80, L"1"}), ElementsAre(L"ABC123"));
  EXPECT_THAT(host.queues().At({L"STOSK08AA", 80, L""}), IsEmpty());
}

TEST_F(HostScene, RetainedPnrIsNotQueuedTwice) {
  host.Enter(L"QE 80 AT STOSK08AA RETAIN");
  EXPECT_EQ(host.Enter(L"QE 80 AT STOSK08AA RETAIN RETRIEVE"),
            L"NOT QUEUED, THERE ALREADY ABC123 ON 80 AT STOSK08AA - QUEUE ON");
  EXPECT_TRUE(host.HasActivePnr());
  EXPECT_THAT(host.queues().At({L"STOSK08AA", 80, L""}), ElementsAre(L"ABC123"));
}

TEST_F(HostScene, AQueueThatIsOffTakesPnrsAndAClosedOneDoesNot) {
  host.Enter(L"TR QUEUE OFF 80 AT STOSK08AA");
  host.Enter(L"TR QUEUE CLOSED 80 CAT 1 AT STOSK08AA");
  ExpectRefused(L"QE 80 CAT 1 AT STOSK08AA", L"QUEUE 80 CAT 1 AT STOSK08AA IS CLOSED");
  EXPECT_EQ(host.Enter(L"QE 80 AT STOSK08AA"), L"QUEUED ABC123 ON 80 AT STOSK08AA - QUEUE OFF");
}

TEST_F(HostScene, MalformedQueuePlacementsAreRefused) {
  ExpectRefused(L"QE", L"QUEUE: 80 [CAT 1] AT OFFICE");
  ExpectRefused(L"QE 80C1 AT STOSK08AA", L"NO QUEUE 80C1");
  ExpectRefused(L"QE 80c1 AT STOSK08AA", L"NO QUEUE 80c1");
  ExpectRefused(L"QE 1000 AT STOSK08AA", L"NO QUEUE 1000");
  ExpectRefused(L"QE 80 CAT X AT STOSK08AA", L"NO CATEGORY X");
  ExpectRefused(L"QE 80 AT STO", L"NO OFFICE STO");
  ExpectRefused(L"QE 80 TO STOSK08AA", L"QUEUE: 80 [CAT 1] AT OFFICE");
}

TEST_F(HostScene, PricingPanelShowsThePnrThatWasWorkedOnLast) {
  host.Enter(L"TS FARE SEK1");
  host.Enter(L"QE 80 AT STOSK08AA");
  EXPECT_TRUE(host.Enter(L"TQTP").starts_with(L"TST 1 [P1]\r\n"));
  EXPECT_EQ(host.Enter(L"TQT"), L"REFUSED: NO ACTIVE PNR");
}

TEST_F(HostScene, AMissingDocumentComesWithTheRereadItWasToldFor) {
  EXPECT_EQ(host.Enter(L"TR FA 1 117-4012345678 AFTER 2"), L"OK");
  host.Enter(L"RT");
  EXPECT_EQ(host.Enter(L"IR").find(L",FA"), std::wstring::npos);
  EXPECT_NE(host.Enter(L"IR").find(L"MCO SK,FP CASH,FA 117-4012345678\r\n"), std::wstring::npos);
  EXPECT_NE(host.Enter(L"IR").find(L"MCO SK,FP CASH,FA 117-4012345678\r\n"), std::wstring::npos);
  ExpectRefused(L"TR FA 2 117-4012345678 AFTER 1", L"NO MCO 2");
  ExpectRefused(L"TR FA 1 117 AFTER 1", L"FA: MCO 1, DOCUMENT, AFTER RE-READS");
}

TEST_F(HostScene, MalformedTrainersEntriesAreRefused) {
  ExpectRefused(L"TR", L"TR: LOCATOR, OFFICE, PRINTER, LIST, QUEUE OR FA");
  ExpectRefused(L"TR SUN SHINES", L"TR: LOCATOR, OFFICE, PRINTER, LIST, QUEUE OR FA");
  ExpectRefused(L"TR LOCATOR abc", L"LOCATOR: ABC123");
  ExpectRefused(L"TR OFFICE HERE", L"NO OFFICE HERE");
  ExpectRefused(L"TR PRINTER BROKEN", L"ON OR OFF");
  ExpectRefused(L"TR LIST PNR ON", L"LIST: TST OR TSM");
  ExpectRefused(L"TR QUEUE FULL 80 AT STOSK08AA", L"ON OR OFF");
}

TEST_F(HostScene, ABookingForgetsTheSceneOfTheOneBefore) {
  host.Enter(L"TR OFFICE CPHSK0001");
  host.Enter(L"TR PRINTER OFF");
  host.Enter(L"TR LIST TSM ON");
  host.Enter(L"TR QUEUE CLOSED 80 AT STOSK08AA");
  host.LoadBooking(std::wstring(kBooking) + L"TM AMOUNT SEK1 [P1]");
  EXPECT_TRUE(host.Enter(L"PV").starts_with(L"OFFICE ARNAG2100"));
  EXPECT_EQ(host.Enter(L"PRINT RT"), L"PRINTED RT");
  EXPECT_TRUE(host.Enter(L"TQM").starts_with(L"TSM 1"));
  EXPECT_TRUE(host.Enter(L"QE 80 AT STOSK08AA").starts_with(L"QUEUED"));
}

TEST_F(HostScene, ABookingWithALocatorIsStoredAndOneWithoutIsNot) {
  EXPECT_EQ(host.PnrText(), host.StoredPnrText(L"ABC123"));
  EXPECT_NE(host.PnrText(), L"");
  host.LoadBooking(L"\xFEFFNM SMITH/JOHN MR");
  EXPECT_TRUE(host.PnrText().starts_with(L"PNR ------ "));
}

TEST_F(HostScene, AMalformedLineOfABookingIsNamedByItsNumber) {
  try {
    host.LoadBooking(L"# first\nNM SMITH/JOHN MR\n\nNM SMITH\n");
    FAIL();
  } catch (const BookingError& error) {
    EXPECT_EQ(error.line(), 4);
    EXPECT_EQ(error.description(), L"Line 4: NAME: LAST/FIRST");
  }
  EXPECT_FALSE(host.HasActivePnr());
}

TEST_F(HostScene, ListenerHearsEntriesButNotTheLinesOfABooking) {
  std::vector<std::wstring> heard;
  host.listener = [&heard](std::wstring_view entry, std::wstring_view answer) {
    heard.push_back(std::wstring(entry) + L" -> " + std::wstring(answer));
  };
  host.LoadBooking(kBooking);
  host.Enter(L"PRINT RT");
  host.Enter(L"HELLO");
  EXPECT_THAT(heard, ElementsAre(L"PRINT RT -> PRINTED RT",
                                 L"HELLO -> REFUSED: ENTRY HELLO IS NOT UNDERSTOOD"));
  EXPECT_EQ(host.EntryCount(), 2);
}

TEST_F(HostScene, FaultsRefuseAnswerGarbageAndAreSlowWhereTheyAreTold) {
  std::vector<int> slow;
  host.faults.refusals[1] = L"NOT TODAY";
  host.faults.garbage[2] = L"#!%";
  host.faults.slow = [&slow](int entry) { slow.push_back(entry); };
  const std::wstring before = host.PnrText();
  EXPECT_EQ(host.Enter(L"RM A"), L"REFUSED: NOT TODAY");
  EXPECT_EQ(host.PnrText(), before);
  EXPECT_EQ(host.Enter(L"RM B"), L"#!%");
  EXPECT_NE(host.PnrText().find(L"RM B"), std::wstring::npos);
  EXPECT_TRUE(host.Enter(L"RM C").starts_with(L"PNR "));
  EXPECT_THAT(slow, ElementsAre(1, 2, 3));
}

TEST_F(HostScene, AHostThatIsSlowMayBeToldToBehaveMeanwhile) {
  std::wstring after;
  // Longer than a function keeps within itself.
  const std::wstring words = L"this is still here when the faults are gone";
  host.faults.slow = [this, words, &after](int) {
    host.faults = {};
    after = words;
  };
  host.Enter(L"RM A");
  EXPECT_EQ(after, words);
}

TEST_F(HostScene, ALostSessionTakesNothingMore) {
  host.faults.dropFrom = 2;
  host.Enter(L"RM A");
  const std::wstring before = host.PnrText();
  EXPECT_THROW(host.Enter(L"RM B"), SessionLost);
  EXPECT_THROW(host.Enter(L"RM C"), SessionLost);
  EXPECT_EQ(host.PnrText(), before);
}

TEST_F(HostScene, ALostAnswerMayLeaveItsEntryTaken) {
  host.faults.dropFrom = 1;
  host.faults.dropAnswerOnly = true;
  EXPECT_THROW(host.Enter(L"RM A"), SessionLost);
  EXPECT_THROW(host.Enter(L"RM B"), SessionLost);
  EXPECT_NE(host.PnrText().find(L"RM A"), std::wstring::npos);
  EXPECT_EQ(host.PnrText().find(L"RM B"), std::wstring::npos);
}

}  // namespace
}  // namespace practice
