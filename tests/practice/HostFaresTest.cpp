#include "practice/host/Host.h"

namespace practice {
namespace {

constexpr std::wstring_view kBooking =
    L"NM SMITH/JOHN MR\n"
    L"NM SMITH/ANNA MRS(INFSMITH/BABY)\n"
    L"SG SK1234 Y 15MAR07 ARN CPH HK2\n"
    L"SG SK OPEN Y OSL ARN\n"
    L"TR LOCATOR ABC123\n";

struct HostFares : testing::Test {
  HostFares() { host.LoadBooking(kBooking); }
  void ExpectRefused(const std::wstring& entry, const std::wstring& why) {
    const std::wstring before = host.PnrText();
    EXPECT_EQ(host.Enter(entry), L"REFUSED: " + why);
    EXPECT_EQ(host.PnrText(), before);
  }
  Host host;
};

TEST_F(HostFares, TstShowsEverythingThatItHolds) {
  host.Enter(L"FP CASH;FM 10;FV SK;");
  host.Enter(
      L"TS FARE NOK900,IND G,EQUIV SEK1000,TAX SEK120XT,TAX SEK25XSGO,XF SEK10.50,TOTAL SEK1155,"
      L"CALC 15MAR07STO SK CPH,BASIS YRT,SALES SITO,NVA 20MAR07,REISSUE,PTA [P1 S3]");
  EXPECT_EQ(host.Enter(L"TQT"),
            L"TST 1 [P1 S3]\r\nNAME 1.SMITH/JOHN MR\r\nFLIGHT SK1234\r\nDATE 15MAR07\r\n"
            L"ITINERARY ARN-CPH\r\nNVA 20MAR07\r\nFARE NOK900\r\nIND G\r\nEQUIV SEK1000\r\n"
            L"TAX SEK120XT\r\nTAX SEK25XSGO\r\nXF SEK10.50\r\nTOTAL SEK1155\r\nSALES SITO\r\n"
            L"CALC 15MAR07STO SK CPH\r\nBASIS YRT\r\nFM 6 10\r\nFP 5 CASH\r\nFV 7 SK\r\n"
            L"REISSUE\r\nPTA\r\nEND OF TST");
}

TEST_F(HostFares, TstForAllNamesEveryoneAndCoversAllSegments) {
  host.Enter(L"TS FARE SEK1000");
  EXPECT_EQ(host.Enter(L"TQT 1"),
            L"TST 1 [P1-2]\r\nNAME 1.SMITH/JOHN MR\r\nNAME 2.SMITH/ANNA MRS\r\nFLIGHT SK1234\r\n"
            L"DATE 15MAR07\r\nITINERARY ARN-CPH//OSL-ARN\r\nFARE SEK1000\r\nEND OF TST");
}

TEST_F(HostFares, InfantsTstNamesThemAsInfantsOfTheirAdults) {
  host.Enter(L"TS FARE SEK100 [INF]");
  EXPECT_EQ(host.Enter(L"TQT"),
            L"TST 1 [INF P2]\r\nNAME 2.SMITH/ANNA MRS(INF)\r\nFLIGHT SK1234\r\nDATE 15MAR07\r\n"
            L"ITINERARY ARN-CPH//OSL-ARN\r\nFARE SEK100\r\nEND OF TST");
}

TEST_F(HostFares, TstOfAnOpenSegmentHasNoDate) {
  host.Enter(L"TS FARE SEK100 [S4]");
  EXPECT_EQ(host.Enter(L"TQT"),
            L"TST 1 [P1-2 S4]\r\nNAME 1.SMITH/JOHN MR\r\nNAME 2.SMITH/ANNA MRS\r\n"
            L"FLIGHT SKOPEN\r\nITINERARY OSL-ARN\r\nFARE SEK100\r\nEND OF TST");
}

TEST_F(HostFares, TstTakesTheAssociatedElementBeforeTheOneForAll) {
  host.Enter(L"FP CASH;FP CCVI [P1];FP INV [INF];FP NOT [P1 S3];");
  host.Enter(L"TS FARE SEK1 [P1]");
  host.Enter(L"TS FARE SEK1 [P2]");
  host.Enter(L"TS FARE SEK1 [INF P2]");
  host.Enter(L"TS FARE SEK1 [P1 S3]");
  EXPECT_EQ(host.Enter(L"TQT"),
            L"TST LIST 4\r\n1 [P1] CCVI\r\n2 [P2] CASH\r\n3 [INF P2] INV\r\n4 [P1 S3] CCVI\r\n"
            L"END OF LIST");
}

TEST_F(HostFares, ListShowsTheStoredFormOfPaymentCutToItsColumn) {
  host.Enter(L"TS FARE SEK1,FOP ABCDEFGHIJKLMNOPQRSTUVWXYZ123 [P1]");
  host.Enter(L"TS FARE SEK1 [P2]");
  EXPECT_EQ(host.Enter(L"TQT"),
            L"TST LIST 2\r\n1 [P1] ABCDEFGHIJKLMNOPQRSTUVWXYZ\r\n2 [P2] \r\nEND OF LIST");
}

TEST_F(HostFares, NoTstIsSaidAndAListOfOneCanBeForced) {
  EXPECT_EQ(host.Enter(L"TQT"), L"NO ACTIVE TST");
  host.Enter(L"TS FARE SEK1 [P1]");
  EXPECT_EQ(host.Enter(L"TR LIST TST ON"), L"OK");
  EXPECT_EQ(host.Enter(L"TQT"), L"TST LIST 1\r\n1 [P1] \r\nEND OF LIST");
  EXPECT_TRUE(host.Enter(L"TQT 1").starts_with(L"TST 1 [P1]\r\n"));
}

TEST_F(HostFares, TstNumbersStayWhenOneIsRemoved) {
  host.Enter(L"TS FARE SEK1 [P1]");
  host.Enter(L"TS FARE SEK2 [P2]");
  host.Enter(L"DEL TST 1");
  EXPECT_TRUE(host.Enter(L"TQT").starts_with(L"TST 2 [P2]\r\n"));
  ExpectRefused(L"TQT 1", L"NO TST 1");
  host.Enter(L"TS FARE SEK3 [P1]");
  EXPECT_EQ(host.Enter(L"TQT"), L"TST LIST 2\r\n2 [P2] \r\n3 [P1] \r\nEND OF LIST");
}

TEST_F(HostFares, MalformedTstsAreRefused) {
  ExpectRefused(L"TS TOTAL SEK1", L"A TST WANTS A FARE");
  ExpectRefused(L"TS FARE 1000", L"FARE: 1000?");
  ExpectRefused(L"TS FARE SEK1,TAX SEK1", L"TAX: SEK1?");
  ExpectRefused(L"TS FARE SEK1,IND FF", L"IND: FF?");
  ExpectRefused(L"TS FARE SEK1,SALES ITIN", L"SALES: ITIN?");
  ExpectRefused(L"TS FARE SEK1,NVA 32MAR07", L"NVA: 32MAR07?");
  ExpectRefused(L"TS FARE SEK1,FARE SEK2", L"FARE IS THERE TWICE");
  ExpectRefused(L"TS FARE SEK1,PTA NO", L"PTA TAKES NO VALUE");
  ExpectRefused(L"TS FARE SEK1,COLOUR RED", L"NO FIELD COLOUR IN A TST");
  ExpectRefused(L"TS FARE SEK1 [P9]", L"NO PASSENGER 9");
  host.Enter(L"TS FARE NOFARE");
  EXPECT_NE(host.Enter(L"TQT").find(L"\r\nFARE NOFARE\r\n"), std::wstring::npos);
}

TEST_F(HostFares, UpdateReplacesFareTaxesValidityAndXf) {
  host.Enter(L"TS FARE SEK1000,IND F,EQUIV NOK900,TAX SEK40YQ,TOTAL SEK1040 [P1 S3]");
  EXPECT_EQ(host.Enter(L"TU 1 PTA/FARE G SEK2000 TAX SEK120XT SEK10SE/C+PD XF SEK5/NVA 15MAR07"),
            L"TST 1 [P1 S3]\r\nNAME 1.SMITH/JOHN MR\r\nFLIGHT SK1234\r\nDATE 15MAR07\r\n"
            L"ITINERARY ARN-CPH\r\nNVA 15MAR07\r\nFARE SEK2000\r\nIND G\r\nTAX SEK120XT\r\n"
            L"TAX SEK10SE\r\nXF SEK5\r\nTOTAL SEK1040\r\nPTA\r\nEND OF TST");
  EXPECT_NE(host.Enter(L"TU 1/FARE F SEK1000 EQUIV NOK900").find(L"EQUIV NOK900"),
            std::wstring::npos);
}

TEST_F(HostFares, MalformedUpdatesAreRefusedWhole) {
  host.Enter(L"TS FARE SEK1000,IND F [P1]");
  ExpectRefused(L"TU 2 PTA/FARE F SEK1", L"NO TST 2");
  ExpectRefused(L"TU X", L"TU WANTS A TST NUMBER");
  ExpectRefused(L"TU 1 ABC", L"TU: NUMBER, PTA");
  ExpectRefused(L"TU 1 PTA/FARE F", L"FARE: INDICATOR, AMOUNT");
  ExpectRefused(L"TU 1 PTA/FARE F SEK1 TAX", L"FARE: EQUIV, TAX");
  ExpectRefused(L"TU 1 PTA/FARE F SEK1 TAX SEK1", L"TAX: SEK1?");
  ExpectRefused(L"TU 1 PTA/FARE F SEK1/NVA MONDAY", L"NVA: MONDAY?");
  ExpectRefused(L"TU 1 PTA/FARE F SEK1/C+PD XF 5", L"XF: 5?");
  ExpectRefused(L"TU 1 PTA/FARE F SEK1/FARE F SEK2", L"FARE F SEK2 IS THERE TWICE");
  ExpectRefused(L"TU 1 PTA/HELLO", L"NO PIECE HELLO IN A TST UPDATE");
}

TEST_F(HostFares, OneTsmIsShownAtOnceAndSeveralAsAList) {
  host.Enter(L"TM FEE 250,AMOUNT SEK1160.50,FOP CASH,R CONF [P1 S3-4]");
  const std::wstring one =
      L"TSM 1\r\nPASSENGER 1.SMITH/JOHN MR\r\nR CONF\r\nL 3-4\r\nAMOUNT SEK1160.50\r\n"
      L"FOP CASH\r\nFEE 250\r\nEND OF TSM";
  EXPECT_EQ(host.Enter(L"TQM"), one);
  host.Enter(L"TM AMOUNT SEK90,L OTHER [P2]");
  EXPECT_EQ(host.Enter(L"TQM"),
            L"TSM LIST 2\r\n1,1,CONF,3-4,SMITH/JOHN MR,SEK,1160.50,CASH\r\n"
            L"2,2,,OTHER,SMITH/ANNA MRS,SEK,90,\r\nEND OF LIST");
  EXPECT_EQ(host.Enter(L"TQM 1"), one);
  ExpectRefused(L"TQM 3", L"NO TSM 3");
}

TEST_F(HostFares, TsmDisplayMayBeFollowedByThePnr) {
  EXPECT_EQ(host.Enter(L"TQM RT"), L"TSM LIST 0\r\nEND OF LIST\r\n" + host.Enter(L"RT"));
}

TEST_F(HostFares, AListOfOneTsmCanBeForced) {
  host.Enter(L"TM AMOUNT SEK90 [P1]");
  host.Enter(L"TR LIST TSM ON");
  EXPECT_TRUE(host.Enter(L"TQM").starts_with(L"TSM LIST 1\r\n"));
  host.Enter(L"TR LIST TSM OFF");
  EXPECT_TRUE(host.Enter(L"TQM").starts_with(L"TSM 1\r\n"));
}

TEST_F(HostFares, MalformedTsmsAreRefused) {
  ExpectRefused(L"TM AMOUNT SEK90", L"A TSM WANTS ONE PASSENGER");
  ExpectRefused(L"TM AMOUNT SEK90 [P1-2]", L"A TSM WANTS ONE PASSENGER");
  ExpectRefused(L"TM FEE 250 [P1]", L"A TSM WANTS AN AMOUNT");
  ExpectRefused(L"TM FEE MUCH,AMOUNT SEK90 [P1]", L"FEE: MUCH?");
  ExpectRefused(L"TM COLOUR RED [P1]", L"NO FIELD COLOUR IN A TSM");
}

TEST_F(HostFares, PassengersAndSegmentsOfFaresCanNotBeRemoved) {
  host.Enter(L"TS FARE SEK1 [S4]");
  host.Enter(L"TM AMOUNT SEK90 [P1]");
  ExpectRefused(L"DEL 4", L"ELEMENT 4 IS ASSOCIATED");
  ExpectRefused(L"DEL 1", L"ELEMENT 1 IS ASSOCIATED");
}

TEST_F(HostFares, APnrTakes100Tsts) {
  for (int i = 0; i < 100; ++i) host.Enter(L"TS FARE SEK1");
  EXPECT_TRUE(host.Enter(L"TQT").starts_with(L"TST LIST 100\r\n"));
  ExpectRefused(L"TS FARE SEK1", L"THE PNR IS FULL");
}

}  // namespace
}  // namespace practice
