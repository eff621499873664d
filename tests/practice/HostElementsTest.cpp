#include "common/Text.h"
#include "practice/host/Host.h"

namespace practice {
namespace {

constexpr std::wstring_view kBooking =
    L"NM SMITH/JOHN MR\n"
    L"NM SMITH/ANNA MRS(INFSMITH/BABY)\n"
    L"SG SK1234 Y 15MAR07 ARN CPH HK2\n"
    L"SG SK OPEN Y CPH ARN\n"
    L"TK TL 10MAR07\n"
    L"FP CASH\n"
    L"TR LOCATOR ABC123\n";

/// A PNR of two passengers, one with an infant, and two segments.
struct HostElements : testing::Test {
  HostElements() { host.LoadBooking(kBooking); }

  /// The PNR's display without its first and last line.
  std::wstring Lines() {
    const std::wstring display = host.Enter(L"RT");
    const std::size_t start = display.find(L"\r\n") + 2;
    return display.substr(start, display.rfind(L"\r\n") - start);
  }
  /// The lines behind the six of the booking.
  std::wstring Added() {
    const std::wstring lines = Lines();
    const std::size_t at = lines.find(L"6 FP CASH\r\n");
    return at == lines.npos ? std::wstring() : lines.substr(at + 11);
  }
  void ExpectRefused(const std::wstring& entry, const std::wstring& why) {
    const std::wstring before = host.PnrText();
    EXPECT_EQ(host.Enter(entry), L"REFUSED: " + why);
    EXPECT_EQ(host.PnrText(), before);
  }

  Host host;
};

TEST_F(HostElements, PnrIsShownWithItsLinesNumbered) {
  EXPECT_EQ(host.Enter(L"RT"),
            L"PNR ABC123 OFFICE ARNAG2100\r\n"
            L"1.SMITH/JOHN MR\r\n"
            L"2.SMITH/ANNA MRS(INFSMITH/BABY)\r\n"
            L"3 SG SK1234 Y 15MAR07 ARN CPH HK2\r\n"
            L"4 SG SK OPEN Y CPH ARN\r\n"
            L"5 TK TL 10MAR07\r\n"
            L"6 FP CASH\r\n"
            L"END OF PNR");
}

TEST_F(HostElements, EveryKindOfElementIsTakenAndShown) {
  for (const std::wstring element :
       {L"FM *C*10", L"FM 10.50A", L"FV SK", L"FS NET SEK800 SELL 1000 TOUR IT5SK1", L"FS NET 800",
        L"FA 117-2401234567", L"FO 117-4012345678 STO 80246878", L"OP 16MAR07 CHECK IF TICKET OK",
        L"OP 16MAR07", L"RM PWCT SK", L"RM  leading blanks and lower case", L"OS SK PTA",
        L"OS SK"}) {
    const std::wstring answer = host.Enter(element);
    EXPECT_TRUE(answer.starts_with(L"PNR ABC123")) << common::ToUtf8(answer);
    EXPECT_NE(answer.find(L" " + element + L"\r\n"), answer.npos) << common::ToUtf8(answer);
  }
}

TEST_F(HostElements, AssociationsAreTakenRawOrShortenedAndShownShortened) {
  host.Enter(L"RM A [P1,2 S3,4]");
  host.Enter(L"RM B [P1-2 S3-4]");
  host.Enter(L"RM C [INF P2]");
  host.Enter(L"RM D [PAX P2 S4]");
  host.Enter(L"RM E [INF]");
  EXPECT_EQ(Added(),
            L"7 RM A [P1-2 S3-4]\r\n8 RM B [P1-2 S3-4]\r\n9 RM C [INF P2]\r\n"
            L"10 RM D [PAX P2 S4]\r\n11 RM E [INF]");
}

TEST_F(HostElements, MalformedElementsAreRefusedWithAReason) {
  ExpectRefused(L"NM SMITH", L"NAME: LAST/FIRST");
  ExpectRefused(L"NM SMITH/ANNA(INFBABY)", L"INFANT: (INFLAST/FIRST)");
  ExpectRefused(
      L"SG SK1234 Y 31FEB07 ARN CPH HK1",
      L"SEGMENT: SK1234 Y 15MAR07 ARN CPH HK1 [0700 0810] OR SK OPEN Y [15MAR07] ARN CPH");
  ExpectRefused(L"TK OX", L"TICKETING: OK, TL OR XL");
  ExpectRefused(L"TK TL", L"TICKETING: TL AND XL WANT A DATE");
  ExpectRefused(L"TK OK/STOSK", L"TICKETING: /OFFICE, /TIME OR /Q");
  ExpectRefused(L"FP O/", L"FORM OF PAYMENT: [O/][PT/]CASH");
  ExpectRefused(L"FM ", L"COMMISSION: 10, 10.50, 100A OR *C*10");
  ExpectRefused(L"FM TEN", L"COMMISSION: 10, 10.50, 100A OR *C*10");
  ExpectRefused(L"FV SAS", L"CARRIER: AIRLINE");
  ExpectRefused(L"FS SELL 10 NET 5", L"FARE: NET, SELL, TOUR, IN THIS ORDER");
  ExpectRefused(L"FS NET TEN", L"FARE: SEK1000 OR 1000");
  ExpectRefused(L"FA 117", L"DOCUMENT: 117-4012345678");
  ExpectRefused(L"FO 117-4012345678 STO 8024687", L"FO: DOCUMENT, CITY, IATA NUMBER");
  ExpectRefused(L"OP TOMORROW", L"OPTION: DATE, TEXT");
  ExpectRefused(L"OS SKANDIA", L"OSI: AIRLINE, TEXT");
  ExpectRefused(L"RM ", L"NO TEXT");
  ExpectRefused(L"RM A]B", L"CHARACTERS [ ] ; AND CONTROL CHARACTERS ARE NOT FOR TEXTS");
  ExpectRefused(L"AP A\tB", L"CHARACTERS [ ] ; AND CONTROL CHARACTERS ARE NOT FOR TEXTS");
  ExpectRefused(L"MCO SK,FP CASH,FM 10", L"MCO: FM, FP, FA, EACH ONCE, IN THIS ORDER");
  ExpectRefused(L"MCO SAS", L"MCO: AIRLINE, OR -- FOR NONE");
  ExpectRefused(L"MCO SK,FA 117", L"DOCUMENT: 117-4012345678");
  ExpectRefused(L"RO ARN", L"RO WANTS AN OFFICE");
}

TEST_F(HostElements, AssociationsWithWhatIsNotThereAreRefused) {
  ExpectRefused(L"RM A [P3]", L"NO PASSENGER 3");
  ExpectRefused(L"RM A [P99]", L"NO PASSENGER 99");
  ExpectRefused(L"RM A [S1]", L"NO SEGMENT 1");
  ExpectRefused(L"RM A [INF P1]", L"NO INFANT WITH PASSENGER 1");
  ExpectRefused(L"RM A [P2-1]", L"ASSOCIATION: [P1-2,4 S3]");
  ExpectRefused(L"RM A [Q1]", L"ASSOCIATION: [P1-2,4 S3]");
  ExpectRefused(L"TK OK [P1]", L"NO ASSOCIATION FOR TK");
  ExpectRefused(L"CH 2 SMITH/ANNA MRS [P1]", L"NO ASSOCIATION FOR NM");
}

TEST_F(HostElements, AssociationsMayNameLinesInAnyOrderAndTwice) {
  EXPECT_THAT(host.Enter(L"RM A [P2,1]"), testing::HasSubstr(L" RM A [P1-2]\r\n"));
  EXPECT_THAT(host.Enter(L"RM B [P1,1]"), testing::HasSubstr(L" RM B [P1]\r\n"));
  EXPECT_THAT(host.Enter(L"RM C [P2,1-2]"), testing::HasSubstr(L" RM C [P1-2]\r\n"));
}

TEST_F(HostElements, NoInfantInThePnrIsRefused) {
  host.LoadBooking(L"NM SMITH/JOHN MR");
  ExpectRefused(L"FP CASH [INF]", L"NO INFANT IN THE PNR");
}

TEST_F(HostElements, EntriesThatAreNotUnderstoodAreRefused) {
  ExpectRefused(L"", L"EMPTY ENTRY");
  ExpectRefused(L"  ", L"ENTRY    IS NOT UNDERSTOOD");
  ExpectRefused(L"HELLO", L"ENTRY HELLO IS NOT UNDERSTOOD");
  ExpectRefused(L"rm lower", L"ENTRY rm lower IS NOT UNDERSTOOD");
  ExpectRefused(L"IR NOW", L"ENTRY IR NOW IS NOT UNDERSTOOD");
  ExpectRefused(L"RT ABC123 X", L"ENTRY RT ABC123 X IS NOT UNDERSTOOD");
  ExpectRefused(L"TQT X", L"ENTRY TQT X IS NOT UNDERSTOOD");
  ExpectRefused(L"TQTP 1", L"ENTRY TQTP 1 IS NOT UNDERSTOOD");
  ExpectRefused(L"PV X", L"ENTRY PV X IS NOT UNDERSTOOD");
}

TEST_F(HostElements, AnEntryOfAThousandCharactersIsTakenAndOneMoreIsNot) {
  std::wstring entry;
  while (entry.size() < 900) entry += L"RM " + std::wstring(96, L'A') + L";";
  entry += L"RM " + std::wstring(1000 - entry.size() - 4, L'A') + L";";
  ASSERT_EQ(entry.size(), 1000u);
  EXPECT_TRUE(host.Enter(entry).starts_with(L"PNR "));
  ExpectRefused(entry + L";", L"ENTRY IS TOO LONG");
}

TEST_F(HostElements, ARemarkHasAtMost124CharactersWithItsCodeAndAssociation) {
  const std::wstring room(124 - 3 - 5, L'A');
  EXPECT_TRUE(host.Enter(L"RM " + room + L" [P1]").starts_with(L"PNR "));
  ExpectRefused(L"RM " + room + L"A [P1]", L"REMARK IS LONGER THAN 124");
  EXPECT_TRUE(host.Enter(L"RM " + room + L"AAAAA").starts_with(L"PNR "));
  ExpectRefused(L"RM " + room + L"AAAAAA", L"REMARK IS LONGER THAN 124");
}

TEST_F(HostElements, OtherTextsHaveAtMost200Characters) {
  EXPECT_TRUE(host.Enter(L"AP " + std::wstring(200, L'A')).starts_with(L"PNR "));
  ExpectRefused(L"AP " + std::wstring(201, L'A'), L"TEXT IS TOO LONG");
}

TEST_F(HostElements, SeveralElementsTakeEffectWhollyOrNotAtAll) {
  EXPECT_TRUE(host.Enter(L"RM ONE;OS SK PTA;FV SK;").starts_with(L"PNR "));
  EXPECT_EQ(Added(), L"7 FV SK\r\n8 RM ONE\r\n9 OS SK PTA");
  ExpectRefused(L"RM TWO;RM THREE [P7];RM FOUR", L"ELEMENT 2: NO PASSENGER 7");
  ExpectRefused(L"CH 6 O/PT/CASH;DEL 99", L"ELEMENT 2: NO ELEMENT 99");
  ExpectRefused(L"RM TWO;;RM THREE", L"ELEMENT 2: ENTRY  IS NOT UNDERSTOOD");
  ExpectRefused(L"RM TWO;IR", L"ELEMENT 2: ENTRY IR IS NOT UNDERSTOOD");
  ExpectRefused(L";", L"ENTRY  IS NOT UNDERSTOOD");
}

TEST_F(HostElements, LinesMoveWhenElementsComeAndGo) {
  host.Enter(L"RM FOR ANNA [P2 S4]");
  host.Enter(L"NM AHO/LIISA MS");
  host.Enter(L"SG SK1500 Y 20MAR07 CPH OSL HK3");
  EXPECT_EQ(Lines(),
            L"1.SMITH/JOHN MR\r\n2.SMITH/ANNA MRS(INFSMITH/BABY)\r\n3.AHO/LIISA MS\r\n"
            L"4 SG SK1234 Y 15MAR07 ARN CPH HK2\r\n5 SG SK OPEN Y CPH ARN\r\n"
            L"6 SG SK1500 Y 20MAR07 CPH OSL HK3\r\n7 TK TL 10MAR07\r\n8 FP CASH\r\n"
            L"9 RM FOR ANNA [P2 S5]");
  host.Enter(L"DEL 1");
  EXPECT_EQ(Lines(),
            L"1.SMITH/ANNA MRS(INFSMITH/BABY)\r\n2.AHO/LIISA MS\r\n"
            L"3 SG SK1234 Y 15MAR07 ARN CPH HK2\r\n4 SG SK OPEN Y CPH ARN\r\n"
            L"5 SG SK1500 Y 20MAR07 CPH OSL HK3\r\n6 TK TL 10MAR07\r\n7 FP CASH\r\n"
            L"8 RM FOR ANNA [P1 S4]");
}

TEST_F(HostElements, WhatSomethingIsAssociatedWithCanNotBeRemoved) {
  host.Enter(L"RM FOR ANNA [P2 S4]");
  ExpectRefused(L"DEL 2", L"ELEMENT 2 IS ASSOCIATED");
  ExpectRefused(L"DEL 4", L"ELEMENT 4 IS ASSOCIATED");
  EXPECT_TRUE(host.Enter(L"DEL 7").starts_with(L"PNR "));
  EXPECT_TRUE(host.Enter(L"DEL 2").starts_with(L"PNR "));
  ExpectRefused(L"DEL 9", L"NO ELEMENT 9");
  ExpectRefused(L"DEL 0", L"NO ELEMENT 0");
  ExpectRefused(L"DEL", L"DEL WANTS A NUMBER, TST OR TSM");
  ExpectRefused(L"DEL TST 1", L"NO TST 1");
  ExpectRefused(L"DEL TSM 1", L"NO TSM 1");
}

TEST_F(HostElements, ChangeReplacesTheTextAndKeepsTheAssociation) {
  host.Enter(L"RM PWCT OLD [P1]");
  EXPECT_TRUE(host.Enter(L"CH 5 OK/STOSK08AA/Q").starts_with(L"PNR "));
  EXPECT_TRUE(host.Enter(L"CH 6 O/PT/CASHAGT").starts_with(L"PNR "));
  EXPECT_TRUE(host.Enter(L"CH 7 PWCT NEW").starts_with(L"PNR "));
  const std::wstring lines = Lines();
  EXPECT_NE(lines.find(L"5 TK OK/STOSK08AA/Q\r\n6 FP O/PT/CASHAGT\r\n7 RM PWCT NEW [P1]"),
            lines.npos);
  host.Enter(L"CH 7 PWCT NEW [P2]");
  EXPECT_NE(Lines().find(L"7 RM PWCT NEW [P2]"), std::wstring::npos);
}

TEST_F(HostElements, ChangeOfWhatIsNotThereOrNotWellFormedIsRefused) {
  ExpectRefused(L"CH 7 OK", L"NO ELEMENT 7");
  ExpectRefused(L"CH 5 KO", L"TICKETING: OK, TL OR XL");
  ExpectRefused(L"CH 5", L"TICKETING: OK, TL OR XL");
  ExpectRefused(L"CH X OK", L"CH WANTS AN ELEMENT NUMBER");
  ExpectRefused(L"CH", L"CH WANTS AN ELEMENT NUMBER");
}

TEST_F(HostElements, APnrTakes99NamesAnd999Elements) {
  for (int i = 3; i <= 99; ++i) host.Enter(L"NM SMITH/JOHN MR");
  ExpectRefused(L"NM SMITH/JOHN MR", L"TOO MANY NAMES");
  for (int i = 104; i <= 999; ++i) host.Enter(L"RM A");
  EXPECT_NE(Lines().find(L"\r\n999 RM A"), std::wstring::npos);
  ExpectRefused(L"RM A", L"THE PNR IS FULL");
}

TEST_F(HostElements, ResponsibleOfficeIsShownInTheHead) {
  EXPECT_TRUE(host.Enter(L"RO STOSK0100").starts_with(L"PNR ABC123 OFFICE STOSK0100\r\n"));
}

TEST(HostWithoutPnr, ANameBeginsAPnrAndNothingElseDoes) {
  Host host;
  for (const std::wstring_view entry :
       {L"RM A", L"RT", L"IR", L"ET", L"IG", L"TQT", L"TQTP", L"TQM", L"BT", L"PRINT RT",
        L"QE 80 AT STOSK08AA", L"TU 1 PTA", L"RM A;NM SMITH/JOHN", L"TR LOCATOR ABC123"}) {
    EXPECT_TRUE(host.Enter(entry).ends_with(L"NO ACTIVE PNR")) << common::ToUtf8(entry);
  }
  EXPECT_EQ(host.PnrText(), L"");
  EXPECT_EQ(host.Enter(L"NM SMITH/JOHN MR;RM A"),
            L"PNR ------ OFFICE ARNAG2100\r\n1.SMITH/JOHN MR\r\n2 RM A\r\nEND OF PNR");
}

}  // namespace
}  // namespace practice
