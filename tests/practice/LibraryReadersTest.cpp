#include "tests/practice/LibraryObjects.h"

namespace practice {
namespace {

using hostlib::TextArray;
using hostlib::Value;
using testing::ElementsAre;

TEST_F(LibraryObjects, ElementsAreCountedByKind) {
  hostlib::PnrReader reader(bench.library);
  EXPECT_EQ(reader.CountNameElements(), 2);
  EXPECT_EQ(reader.CountSegments(), 2);
  EXPECT_EQ(reader.CountMCOElements(), 2);
  EXPECT_EQ(reader.CountTKElements(), 1);
  EXPECT_EQ(reader.CountFPElements(), 0);
  EXPECT_EQ(reader.CountFSElements(), 2);
  EXPECT_EQ(reader.CountOPElements(), 1);
  EXPECT_EQ(reader.CountRMElements(), 1);
  EXPECT_EQ(reader.CountOSIElements(), 2);
}

TEST_F(LibraryObjects, ElementsAreReadIntoTheBagThatAsksForThem) {
  hostlib::PnrReader reader(bench.library);
  auto bag = bench.Index(0);
  reader.GetSegment(bag);
  EXPECT_THAT(Texts(bag, {L"strKeySegment", L"strKeyDepCity", L"strKeyArrCity"}),
              ElementsAre(L"3 SG SK OPEN Y ARN CPH", L"ARN", L"CPH"));
  bag = bench.Index(1);
  reader.GetNameElement(bag);
  EXPECT_THAT(Texts(bag, {L"strKeyElement", L"strKeyElementNr"}),
              ElementsAre(L"2.SMITH/ANNA MRS(INFSMITH/BABY)", L"2"));
  bag = bench.Index(0);
  reader.GetTKElement(bag);
  EXPECT_THAT(Texts(bag, {L"strKeyElementNr", L"strKeyAction", L"strKeyElement"}),
              ElementsAre(L"7", L"XL", L"XL 10MAR07/1800/Q8"));
  bag = bench.Index(0);
  reader.GetOPElement(bag);
  EXPECT_EQ(bench.Text(bag, L"strKeyElement"), L"16MAR07 CHECK");
  bag = bench.Index(0);
  reader.GetRMElement(bag);
  EXPECT_THAT(Texts(bag, {L"strKeyText", L"strKeyPasAsso", L"strKeySegAsso", L"strKeyElementNr"}),
              ElementsAre(L" PWCT REISSUE", L"1", L"3-4", L"13"));
}

TEST_F(LibraryObjects, TicketingActionIsTheWordBeforeAnySlash) {
  bench.host.Enter(L"CH 7 OK/STOSK08AA");
  bench.session.LoadPNR();
  auto bag = bench.Index(0);
  hostlib::PnrReader(bench.library).GetTKElement(bag);
  EXPECT_EQ(bench.Text(bag, L"strKeyAction"), L"OK");
}

TEST_F(LibraryObjects, TypedReadsGiveMcosFaresAndServices) {
  EXPECT_THAT(Texts(bench.ReadElement(L"MCO", 0),
                    {L"strKeyElementNr", L"strKeyMCOFATicketNbr", L"strKeyAirline",
                     L"strKeyMCOFMElement", L"strKeyMCOFPElement", L"strKeyElement"}),
              ElementsAre(L"5", L"117-4012345678", L"SK", L"*C*10", L"CASH",
                          L"MCO SK,FM *C*10,FP CASH,FA 117-4012345678"));
  EXPECT_THAT(Texts(bench.ReadElement(L"MCO", 1),
                    {L"strKeyElementNr", L"strKeyMCOFATicketNbr", L"strKeyAirline",
                     L"strKeyMCOFMElement", L"strKeyMCOFPElement", L"strKeyElement"}),
              ElementsAre(L"6", L"", L"", L"", L"", L"MCO --"));
  EXPECT_THAT(
      Texts(bench.ReadElement(L"FS", 0), {L"strKeyNetFare", L"strKeySellFare", L"strKeyTourCode",
                                          L"strKeyPasAsso", L"strKeySegAsso", L"strKeyElement"}),
      ElementsAre(L"SEK800", L"1000", L"IT5SK1", L"1,2", L"3",
                  L"NET SEK800 SELL 1000 TOUR IT5SK1"));
  EXPECT_THAT(Texts(bench.ReadElement(L"FS", 1),
                    {L"strKeyNetFare", L"strKeySellFare", L"strKeyPasAsso", L"strKeySegAsso"}),
              ElementsAre(L"", L"SEK100", L"INF2", L""));
  EXPECT_THAT(
      Texts(bench.ReadElement(L"OSI", 0), {L"strKeyElementNr", L"strKeyElement", L"strKeyAirline"}),
      ElementsAre(L"14", L"", L"LH"));
  EXPECT_THAT(
      Texts(bench.ReadElement(L"OSI", 1), {L"strKeyElementNr", L"strKeyElement", L"strKeyAirline"}),
      ElementsAre(L"15", L"PTA TEXT", L"SK"));
}

TEST_F(LibraryObjects, ReadingPastTheLastElementIsAFailure) {
  EXPECT_EQ(Failure([&] { bench.ReadElement(L"MCO", 2); }).first, Number(0x80040906));
  EXPECT_EQ(Failure([&] { bench.ReadElement(L"OSI", -1); }).first, Number(0x80040906));
  EXPECT_EQ(Failure([&] { bench.ReadElement(L"XX", 0); }).first, Number(0x80040906));
}

TEST_F(LibraryObjects, SearchGivesTheLinesFromIndexOneOn) {
  const auto search = [this](std::wstring_view type, std::wstring sought) {
    const auto result = hostlib::PnrReader(bench.library)
                            .FindElements(bench.Bag({{L"strKeyPNRElement", type},
                                                     {L"strKeyFind()", TextArray{{L"", sought}}}}));
    return hostlib::TextsOf(result.GetValue(L"strKeyResult()"));
  };
  EXPECT_THAT(search(L"ALL", L"AP").items, ElementsAre(L"", L"8 AP STO 08-1", L"9 AP STO 08-2"));
  EXPECT_EQ(search(L"ALL", L"AP").lowerBound, 0);
  EXPECT_EQ(search(L"ALL", L"FP").UpperBound(), 0);
  EXPECT_EQ(search(L"ALL", L"OSI").UpperBound(), 2);
  EXPECT_EQ(search(L"ALL", L" AP").UpperBound(), 0);
  EXPECT_THAT(search(L"AP", L"08-2").items, ElementsAre(L"", L"9 AP STO 08-2"));
}

TEST_F(LibraryObjects, TqmEntryNamesTheTsmWhenThereIsOne) {
  hostlib::TsmDisplayReader reader(bench.library);
  EXPECT_EQ(reader.BuildTQMEntry(bench.Bag()), L"TQM");
  EXPECT_EQ(reader.BuildTQMEntry(bench.Bag({{L"blnKeyRedisplayPNR", true}})), L"TQM RT");
  EXPECT_EQ(reader.BuildTQMEntry(bench.Bag(
                {{L"blnKeyRedisplayPNR", true}, {L"strNoTSM", static_cast<std::int16_t>(3)}})),
            L"TQM 3 RT");
}

TEST_F(LibraryObjects, TsmListFillsItsArraysFromZero) {
  bench.host.Enter(L"TM FEE 250,AMOUNT SEK1160.50,FOP CASH,R CONF [P1 S3-4]");
  bench.host.Enter(L"TM AMOUNT NOK90 [P2]");
  const auto bag = bench.Bag();
  const auto result = hostlib::TsmDisplayReader(bench.library)
                          .ParseTQMResponse(bench.session.SendCommand(L"TQM RT"), bag);
  EXPECT_TRUE(bench.Flag(result, L"blnKeyDisplayOK"));
  EXPECT_FALSE(bench.Flag(result, L"blnKeyTSMFound"));
  EXPECT_FALSE(bench.Flag(result, L"blnMCOFeeFound"));
  EXPECT_EQ(result.GetValue(L"intNoTSM").Integer(), 2);
  EXPECT_EQ(bench.Text(result, L"dblMCOFee"), L"0");
  EXPECT_THAT(hostlib::IntegersOf(result.GetValue(L"intTSMListMArray")).items, ElementsAre(1, 2));
  EXPECT_THAT(hostlib::IntegersOf(result.GetValue(L"intTSMListPArray")).items, ElementsAre(1, 2));
  EXPECT_THAT(hostlib::TextsOf(result.GetValue(L"strTSMListRArray")).items,
              ElementsAre(L"CONF", L""));
  EXPECT_THAT(hostlib::TextsOf(result.GetValue(L"strTSMListLArray")).items,
              ElementsAre(L"3-4", L""));
  EXPECT_THAT(hostlib::TextsOf(result.GetValue(L"strTSMListNameArray")).items,
              ElementsAre(L"SMITH/JOHN MR", L"SMITH/ANNA MRS"));
  EXPECT_THAT(hostlib::TextsOf(result.GetValue(L"strTSMListCurrencyArray")).items,
              ElementsAre(L"SEK", L"NOK"));
  EXPECT_THAT(hostlib::DoublesOf(result.GetValue(L"dblTSMListAmountArray")).items,
              ElementsAre(1160.5, 90));
  EXPECT_THAT(hostlib::TextsOf(result.GetValue(L"strTSMListFOPArray")).items,
              ElementsAre(L"CASH", L""));
}

TEST_F(LibraryObjects, TsmWithoutFeeIsFoundWithoutIt) {
  bench.host.Enter(L"TM AMOUNT NOK90 [P2]");
  const auto bag = bench.Bag();
  const auto result = hostlib::TsmDisplayReader(bench.library)
                          .ParseTQMResponse(bench.session.SendCommand(L"TQM"), bag);
  EXPECT_TRUE(bench.Flag(result, L"blnKeyTSMFound"));
  EXPECT_FALSE(bench.Flag(result, L"blnMCOFeeFound"));
  EXPECT_EQ(bench.Text(result, L"strKeyErrorResponse"), L"TSM 1 HAS NO FEE");
}

TEST_F(LibraryObjects, TqmAnswerThatIsNoDisplayIsAnErrorResponse) {
  for (const std::wstring response :
       {L"REFUSED: NO TSM 4", L"TSM 1\r\nFEE 2", L"", L"TSM LIST 1\r\n1,2,3\r\nEND OF LIST"}) {
    const auto bag = bench.Bag();
    const auto result = hostlib::TsmDisplayReader(bench.library).ParseTQMResponse(response, bag);
    EXPECT_FALSE(bench.Flag(result, L"blnKeyDisplayOK"));
    EXPECT_FALSE(bench.Flag(result, L"blnKeyTSMFound"));
    EXPECT_EQ(bench.Text(result, L"strKeyErrorResponse"), response.substr(0, response.find(L'\r')));
  }
}

TEST_F(LibraryObjects, TstListFillsItsArraysFromOne) {
  bench.host.Enter(L"FP CASH");
  bench.host.Enter(L"TS FARE SEK1 [P1 S3-4]");
  bench.host.Enter(L"TS FARE SEK1,FOP CCVI 4111 [INF P2]");
  hostlib::TstListRequest request(bench.library);
  const auto result = request.ReadResponse(bench.session.SendDisplay(L"TQT"));
  EXPECT_TRUE(bench.Flag(result, L"blnKeyTST"));
  EXPECT_TRUE(bench.Flag(result, L"blnKeyTSTList"));
  EXPECT_EQ(bench.Text(result, L"intKeyNoOfTST"), L"2");
  EXPECT_EQ(result.GetValue(L"strKeyTSTSegment()"), Value(TextArray{{L"3-4", L""}, 1}));
  EXPECT_EQ(result.GetValue(L"strKeyPersonNbrArray()"), Value(TextArray{{L"1", L"2"}, 1}));
  EXPECT_EQ(result.GetValue(L"strKeyTSTNumArray()"), Value(TextArray{{L"1", L"2"}, 1}));
  EXPECT_EQ(result.GetValue(L"strKeyFOPArray()"), Value(TextArray{{L"CASH", L"CCVI 4111"}, 1}));
}

TEST_F(LibraryObjects, TstCommandsAreBuilt) {
  hostlib::TstListRequest request(bench.library);
  EXPECT_EQ(request.BuildListCommand(), L"TQT");
  EXPECT_EQ(request.BuildPricingCommand(), L"TQTP");
  EXPECT_EQ(request.BuildDisplayCommand(bench.Bag()), L"TQT");
  EXPECT_EQ(request.BuildDisplayCommand(bench.Bag({{L"strKeyTSTNum", L"3"}})), L"TQT 3");
}

TEST_F(LibraryObjects, AnswerThatIsNoTstIsNeitherTstNorList) {
  for (const std::wstring_view response :
       {L"NO ACTIVE TST", L"REFUSED: NO TST 4", L"", L"TST 1 [P1]\r\nFARE SEK1"}) {
    const auto result = hostlib::TstListRequest(bench.library).ReadResponse(response);
    EXPECT_FALSE(bench.Flag(result, L"blnKeyTST"));
    EXPECT_FALSE(bench.Flag(result, L"blnKeyTSTList"));
    EXPECT_EQ(bench.Text(result, L"intKeyNoOfTST"), L"0");
    const auto bag = bench.Bag();
    EXPECT_EQ(
        Failure([&] { hostlib::TstDetailRequest(bench.library).ReadFare(bag, response); }).first,
        Number(0x80040907));
  }
}

TEST_F(LibraryObjects, TstWithoutLinkedElementsOrTaxesLeavesTheirKeysUnset) {
  bench.host.Enter(L"TS FARE NOK1,EQUIV SEK2,XF SEK3 [INF P2]");
  const std::wstring response = bench.session.SendDisplay(L"TQT 1");
  auto bag = bench.Bag();
  hostlib::TstDetailRequest request(bench.library);
  request.ReadFareElements(bag, response);
  request.ReadFare(bag, response);
  request.ReadNames(bag, response);
  request.ReadGeneral(bag, response);
  EXPECT_THAT(Texts(bag, {L"intKeyFPElementNumber", L"strKeyFPElementValue", L"strKeyEquivFare",
                          L"strKeyXFTax", L"strKeyTSTNames", L"strKeyFirstFlightNo",
                          L"strKeyFirstTravelDate"}),
              ElementsAre(L"", L"", L"SEK2", L"SEK3", L"2.SMITH/ANNA MRS(INF)", L"SKOPEN", L""));
  EXPECT_TRUE(bag.GetValue(L"strKeyTaxArray()").IsEmpty());
}

}  // namespace
}  // namespace practice
