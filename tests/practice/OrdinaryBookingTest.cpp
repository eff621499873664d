#include "tests/practice/LibraryBench.h"

namespace practice {
namespace {

using hostlib::Value;
using hostlib::operations::pnr_element_builder::kExecuteFO;
using hostlib::operations::pnr_element_builder::kExecuteOP;
using hostlib::operations::pnr_element_builder::kExecuteRM;
using testing::ElementsAre;

/// The ordinary booking, loaded and read by the session.
struct OrdinaryBooking : testing::Test {
  OrdinaryBooking() : bench(BookingFile("ordinary.pnr")) { bench.session.LoadPNR(); }

  std::wstring Remark(std::wstring_view text) {
    const auto bag =
        bench.Bag({{L"strKeyText", text}, {L"strKeyPasAsso", L"1"}, {L"strKeySegAsso", L""}});
    return hostlib::PnrElementBuilder(bench.library, kExecuteRM).Execute(bag);
  }

  LibraryBench bench;
};

TEST_F(OrdinaryBooking, PnrIsReadAsTheRunExpectsIt) {
  hostlib::PnrReader reader(bench.library);
  EXPECT_EQ(reader.GetRecordLocator(), L"ABC123");
  EXPECT_EQ(reader.CountTKElements(), 1);
  auto tk = bench.Index(0);
  reader.GetTKElement(tk);
  EXPECT_EQ(bench.Text(tk, L"strKeyElementNr"), L"5");
  EXPECT_EQ(bench.Text(tk, L"strKeyAction"), L"TL");
  EXPECT_EQ(bench.Text(tk, L"strKeyElement"), L"TL 10MAR07");
  EXPECT_EQ(reader.CountSegments(), 2);
  auto segment = bench.Index(0);
  reader.GetSegment(segment);
  EXPECT_EQ(bench.Text(segment, L"strKeySegment"), L"2 SG SK1234 Y 15MAR07 ARN CPH HK1 0700 0810");
  EXPECT_EQ(bench.Text(segment, L"strKeyDepCity"), L"ARN");
  EXPECT_EQ(bench.Text(segment, L"strKeyArrCity"), L"CPH");
  EXPECT_EQ(reader.CountFPElements(), 1);
  auto header = bench.Bag();
  reader.GetHeader(header);
  EXPECT_EQ(bench.Text(header, L"strKeyOfficeID"), L"ARNAG2100");
  EXPECT_EQ(reader.CountNameElements(), 1);
  auto name = bench.Index(0);
  reader.GetNameElement(name);
  EXPECT_EQ(bench.Text(name, L"strKeyElement"), L"1.SMITH/JOHN MR");
  EXPECT_EQ(bench.Text(name, L"strKeyElementNr"), L"1");
  EXPECT_EQ(reader.CountOSIElements(), 0);
  EXPECT_EQ(reader.CountOPElements(), 0);
  EXPECT_EQ(reader.CountRMElements(), 0);
  EXPECT_EQ(reader.CountFSElements(), 0);
}

TEST_F(OrdinaryBooking, McoIsReadAsTheRunExpectsIt) {
  EXPECT_TRUE(bench.session.SendEntryChecked(L"IR"));
  bench.session.LoadPNR();
  EXPECT_EQ(hostlib::PnrReader(bench.library).CountMCOElements(), 1);
  const auto mco = bench.ReadElement(L"MCO", 0);
  EXPECT_EQ(bench.Text(mco, L"strKeyElementNr"), L"4");
  EXPECT_EQ(bench.Text(mco, L"strKeyElement"), L"MCO SK,FM *C*10,FP CASH,FA 117-4012345678");
  EXPECT_EQ(bench.Text(mco, L"strKeyMCOFATicketNbr"), L"117-4012345678");
  EXPECT_EQ(bench.Text(mco, L"strKeyAirline"), L"SK");
  EXPECT_EQ(bench.Text(mco, L"strKeyMCOFMElement"), L"*C*10");
  EXPECT_EQ(bench.Text(mco, L"strKeyMCOFPElement"), L"CASH");
}

TEST_F(OrdinaryBooking, TsmIsShownAtOnceWithItsFee) {
  hostlib::TsmDisplayReader reader(bench.library);
  auto bag = bench.Bag();
  EXPECT_EQ(reader.BuildTQMEntry(bag), L"TQM");
  bag.SetValue(L"blnKeyRedisplayPNR", true);
  const auto result =
      reader.ParseTQMResponse(bench.session.SendCommand(reader.BuildTQMEntry(bag)), bag);
  EXPECT_TRUE(bench.Flag(result, L"blnKeyDisplayOK"));
  EXPECT_TRUE(bench.Flag(result, L"blnKeyTSMFound"));
  EXPECT_TRUE(bench.Flag(result, L"blnMCOFeeFound"));
  EXPECT_EQ(bench.Text(result, L"dblMCOFee"), L"250");
}

TEST_F(OrdinaryBooking, TstIsShownAtOnce) {
  hostlib::TstListRequest request(bench.library);
  bench.session.SendEntry(request.BuildListCommand());
  const auto bag = bench.Bag();
  const auto result =
      request.ReadResponse(bench.session.SendDisplay(request.BuildDisplayCommand(bag)));
  EXPECT_TRUE(bench.Flag(result, L"blnKeyTST"));
  EXPECT_FALSE(bench.Flag(result, L"blnKeyTSTList"));
  EXPECT_EQ(bench.Text(result, L"intKeyNoOfTST"), L"1");
  EXPECT_EQ(bench.Text(result, L"strKeyTSTNum"), L"1");
  EXPECT_TRUE(hostlib::TextsOf(result.GetValue(L"strKeyTSTSegment()")).items.empty());
}

TEST_F(OrdinaryBooking, TstDetailHasEveryKey) {
  hostlib::TstDetailRequest request(bench.library);
  const std::wstring response = bench.session.SendDisplay(L"TQT");
  auto bag = bench.Bag();
  request.ReadNames(bag, response);
  request.ReadGeneral(bag, response);
  request.ReadFare(bag, response);
  request.ReadFareElements(bag, response);
  const struct {
    common::Literal key;
    std::wstring_view value;
  } expected[] = {
      {L"strKeyTSTNames", L"1.SMITH/JOHN MR"},
      {L"strKeyFirstTravelDate", L"15MAR07"},
      {L"strKeyFirstFlightNo", L"SK1234"},
      {L"strKeyNotValidAfter", L""},
      {L"strKeyItinerary", L"ARN-CPH-ARN"},
      {L"strKeyAllFareBasis", L"YRT"},
      {L"strKeyTSTNum", L"1"},
      {L"strKeyFare", L"SEK1000"},
      {L"strKeyFareIndicator", L"F"},
      {L"strKeyEquivFare", L""},
      {L"strKeyXFTax", L""},
      {L"strKeyTotalFare", L"SEK1160"},
      {L"strKeyFareCalc", L"STO SK CPH500SK STO500SEK1000END"},
      {L"strKeySalesIndicator", L"SITI"},
      {L"intKeyFMElementNumber", L"8"},
      {L"strKeyFMElementValue", L"10"},
      {L"intKeyFPElementNumber", L"7"},
      {L"strKeyFPElementValue", L"CASH"},
      {L"intKeyFVElementNumber", L"9"},
      {L"strKeyFVElementValue", L"SK"},
  };
  for (const auto& [key, value] : expected) {
    EXPECT_EQ(bench.Text(bag, key), value) << common::ToUtf8(key);
  }
  EXPECT_FALSE(bench.Flag(bag, L"blnKeyReissue"));
  const auto taxes = hostlib::TextsOf(bag.GetValue(L"strKeyTaxArray()"));
  EXPECT_EQ(taxes.lowerBound, 0);
  EXPECT_THAT(taxes.items, ElementsAre(L"SEK120XT", L"SEK40YQ"));
}

TEST_F(OrdinaryBooking, MandatoryElementsAreFoundByTheirCode) {
  for (const std::wstring code : {L"AP", L"TK"}) {
    const auto bag = bench.Bag(
        {{L"strKeyPNRElement", L"ALL"}, {L"strKeyFind()", hostlib::TextArray{{L"", code}, 0}}});
    const auto result = hostlib::PnrReader(bench.library).FindElements(bag);
    EXPECT_EQ(hostlib::TextsOf(result.GetValue(L"strKeyResult()")).UpperBound(), 1);
  }
}

TEST_F(OrdinaryBooking, EveryWritingEntryIsAcceptedAndThePnrHoldsThePta) {
  EXPECT_TRUE(bench.session.SendCommand(L"OS SK PTA").starts_with(L"PNR ABC123"));

  hostlib::PnrElementChange change(bench.library);
  const auto tk = bench.Bag({{L"strKeyElementNr", L"5"}, {L"strKeyNewValue", L"OK"}});
  auto outcome = change.ReadResponse(bench.session.SendEntry(change.Execute(tk) + L"/STOSK08AA"));
  EXPECT_TRUE(bench.Flag(outcome, L"blnKeyPNRFound"));
  const auto fp = bench.Bag({{L"strKeyElementNr", L"7"}, {L"strKeyNewValue", L"O/PT/CASH"}});
  outcome = change.ReadResponse(bench.session.SendEntry(change.Execute(fp)));
  EXPECT_TRUE(bench.Flag(outcome, L"blnKeyPNRFound"));

  const auto fo = bench.Bag({{L"strKeyPasID", L""},
                             {L"strKeyMPDNumber", L"117-4012345678"},
                             {L"strKeyIATANumber", L"80246878"},
                             {L"strKeyCity", L"STO"},
                             {L"strKeyPasAsso", L"1"},
                             {L"strKeySegAsso", L""}});
  const auto op = bench.Bag({{L"strKeyText", L"CHECK IF TICKET OK"}, {L"strKeyDate", L"16MAR07"}});
  std::wstring entry;
  for (const std::wstring& element :
       {hostlib::PnrElementBuilder(bench.library, kExecuteFO).Execute(fo),
        Remark(L"PWCT SK AT ARN A/P BEFORE DEPARTURE"),
        hostlib::PnrElementBuilder(bench.library, kExecuteOP).Execute(op),
        Remark(L"PTA TTL SEK1000/TAX SEK120XT, SEK40YQ + SEK250XP"),
        Remark(L"*FARE:1160,TAX:160,PTA:250")}) {
    entry += element + L";";
  }
  outcome = hostlib::PnrElementEntry(bench.library).ReadResponse(bench.session.SendCommand(entry));
  EXPECT_TRUE(bench.Flag(outcome, L"blnKeyPNRFound"));

  hostlib::TstUpdateRequest update(bench.library);
  const auto tst = bench.Bag({{L"strKeyTSTNum", L"1"},
                              {L"strKeyFare", L"SEK1000"},
                              {L"strKeyFareIndicator", L"F"},
                              {L"strKeyEquivFare", L""},
                              {L"strKeyTaxArray", hostlib::TextArray{{L"SEK120XT", L"SEK40YQ"}, 0}},
                              {L"blnKeyPTA", true},
                              {L"strKeyNotValidAfter", L"15MAR07"}});
  outcome = hostlib::TstListRequest(bench.library)
                .ReadResponse(bench.session.SendSingle(update.BuildTSTEntry(tst) + L"/" +
                                                       update.BuildFareEntry(tst) + L"/" +
                                                       update.BuildValidityEntry(tst)));
  EXPECT_TRUE(bench.Flag(outcome, L"blnKeyTST"));
  EXPECT_FALSE(bench.Flag(outcome, L"blnKeyTSTList"));

  hostlib::PrintRequest print(bench.library);
  outcome = print.ReadResponse(
      bench.session.SendEntry(print.Execute(bench.Bag({{L"strKeyText", L"RT"}}))));
  EXPECT_TRUE(bench.Flag(outcome, L"blnKeyResult"));
  bench.session.SendEntry(
      hostlib::BackOfficeRequest(bench.library).Execute(bench.Bag({{L"strKeyRetain", L"True"}})));
  hostlib::QueueRequest queue(bench.library);
  const auto place = bench.Bag({{L"strKeyQueNumber", L"80"},
                                {L"strKeyQueCategory", L""},
                                {L"strKeyQueOfficeID", L"STOSK08AA"},
                                {L"blnKeyRetain", false},
                                {L"blnKeyRetrieve", false}});
  outcome = queue.ReadResponse(bench.session.SendEntry(queue.BuildCommand(place)));
  EXPECT_TRUE(bench.Flag(outcome, L"blnKeyQuePNR"));
  EXPECT_TRUE(bench.Flag(outcome, L"blnKeyQueOn"));

  const std::wstring pnr =
      L"PNR ABC123 OFFICE ARNAG2100\r\n"
      L"1.SMITH/JOHN MR\r\n"
      L"2 SG SK1234 Y 15MAR07 ARN CPH HK1 0700 0810\r\n"
      L"3 SG SK1423 Y 22MAR07 CPH ARN HK1 1800 1910\r\n"
      L"4 MCO SK,FM *C*10,FP CASH,FA 117-4012345678\r\n"
      L"5 TK OK/STOSK08AA\r\n"
      L"6 AP STO 08-1234567\r\n"
      L"7 FP O/PT/CASH\r\n"
      L"8 FM 10\r\n"
      L"9 FV SK\r\n"
      L"10 FO 117-4012345678 STO 80246878 [P1]\r\n"
      L"11 OP 16MAR07 CHECK IF TICKET OK\r\n"
      L"12 RM PWCT SK AT ARN A/P BEFORE DEPARTURE [P1]\r\n"
      L"13 RM PTA TTL SEK1000/TAX SEK120XT, SEK40YQ + SEK250XP [P1]\r\n"
      L"14 RM *FARE:1160,TAX:160,PTA:250 [P1]\r\n"
      L"15 OS SK PTA\r\n"
      L"END OF PNR";
  EXPECT_EQ(bench.host.StoredPnrText(L"ABC123"), pnr +
                                                     L"\r\n"
                                                     L"TST 1 [P1]\r\n"
                                                     L"NAME 1.SMITH/JOHN MR\r\n"
                                                     L"FLIGHT SK1234\r\n"
                                                     L"DATE 15MAR07\r\n"
                                                     L"ITINERARY ARN-CPH-ARN\r\n"
                                                     L"NVA 15MAR07\r\n"
                                                     L"FARE SEK1000\r\n"
                                                     L"IND F\r\n"
                                                     L"TAX SEK120XT\r\n"
                                                     L"TAX SEK40YQ\r\n"
                                                     L"TOTAL SEK1160\r\n"
                                                     L"SALES SITI\r\n"
                                                     L"CALC STO SK CPH500SK STO500SEK1000END\r\n"
                                                     L"BASIS YRT\r\n"
                                                     L"FM 8 10\r\n"
                                                     L"FP 7 O/PT/CASH\r\n"
                                                     L"FV 9 SK\r\n"
                                                     L"PTA\r\n"
                                                     L"END OF TST\r\n"
                                                     L"TSM 1\r\n"
                                                     L"PASSENGER 1.SMITH/JOHN MR\r\n"
                                                     L"L 2-3\r\n"
                                                     L"AMOUNT SEK1160\r\n"
                                                     L"FOP CASH\r\n"
                                                     L"FEE 250\r\n"
                                                     L"END OF TSM");
  EXPECT_EQ(bench.host.PnrText(), bench.host.StoredPnrText(L"ABC123"));
  EXPECT_FALSE(bench.host.HasActivePnr());
  EXPECT_THAT(bench.host.Printed(), ElementsAre(pnr));
  EXPECT_THAT(bench.host.SentToBackOffice(), ElementsAre(L"ABC123 RETAIN"));
  EXPECT_THAT(bench.host.queues().At({L"STOSK08AA", 80, L""}), ElementsAre(L"ABC123"));
}

TEST_F(OrdinaryBooking, TstMarkedAsPtaIsAReissueAtItsNextReading) {
  const std::wstring response = bench.session.SendEntry(L"TU 1 PTA");
  auto bag = bench.Bag();
  hostlib::TstDetailRequest(bench.library).ReadFare(bag, response);
  EXPECT_TRUE(bench.Flag(bag, L"blnKeyReissue"));
}

}  // namespace
}  // namespace practice
