#include <gtest/gtest.h>

#include "pnr/MCOSegmentReader.h"
#include "tests/pnr/PNRBench.h"

namespace pnr {
namespace {

const Lines kNotValid =
    ShowError(38, L"Airline is not valid for MCO. The script will terminate.", 48);

/// An MCO for SK and an INI file that the tests fill.
struct MCOBench : PNRBench {
  MCOBench() {
    scripted.On(hostlib::operations::profile_store::kReadValue,
                [this](const hostlib::Arguments& a) {
                  return hostlib::Value(values[{a[1].Text(), a[2].Text()}]);
                });
    Issues(L"SK");
  }
  void Issues(std::wstring_view airline) {
    HasTyped(L"MCO", {{{L"strKeyMCOFATicketNbr", L"117-4012345678"},
                       {L"strKeyAirline", airline},
                       {L"strKeyMCOFMElement", L"*C*10"},
                       {L"strKeyMCOFPElement", L"CASH"}}});
  }
  Lines Reports() {
    room.GetMCOInformation(0);
    return OnlyReports(TakeCalls());
  }

  std::map<std::pair<std::wstring, std::wstring>, std::wstring> values;
  settings::IniFile file{L"C:\\PTA\\PTA_QX.ini", L"ARNAG2100"};
  settings::OfficeProfile profile{library, file};
  MCOInfo mco;
  MCOSegmentReader room{library, global, errors, profile, mco};
};

Lines LookUp(std::wstring_view section, std::wstring_view key, std::wstring_view value) {
  return {L"ProfileStore.1.9 ReadValue(\"C:\\PTA\\PTA_QX.ini\", \"" + std::wstring(section) +
          L"\", \"" + std::wstring(key) + L"\") -> \"" + std::wstring(value) + L"\""};
}

TEST(GetMCOInformation, AsksTheLibraryInThisExactOrder) {
  MCOBench bench;
  bench.room.GetMCOInformation(0);
  EXPECT_EQ(bench.TakeCalls(), Together({
                                   Put(L"intKeyIndex", L"0"),
                                   Put(L"strKeyPNRElement", L"\"MCO\""),
                                   Call(L"PnrReader.3.7 FindElements(<ParameterBag>)"),
                                   Read(L"strKeyMCOFATicketNbr", L"117-4012345678"),
                                   Read(L"strKeyAirline", L"SK"),
                                   LookUp(L"ARNAG2100", L"FVExceptionSK", L""),
                                   LookUp(L"FVException", L"SK", L""),
                                   LookUp(L"ARNAG2100", L"AirlinesNotValid", L""),
                                   LookUp(L"Airlines", L"NotValid", L""),
                                   Read(L"strKeyMCOFMElement", L"*C*10"),
                                   Read(L"strKeyMCOFPElement", L"CASH"),
                               }));
}

TEST(GetMCOInformation, FillsFourFieldsAndNothingBesides) {
  MCOBench bench;
  bench.room.GetMCOInformation(0);
  MCOInfo mco;
  mco.strMCONumber = L"117-4012345678";
  mco.strAirlineCode = L"SK";
  mco.strCommission = L"*C*10";
  mco.strFormOfPayment = L"CASH";
  EXPECT_EQ(Fields(bench.mco), Fields(mco));
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(GetMCOInformation, TheIndexChoosesTheSegment) {
  MCOBench bench;
  bench.HasTyped(L"MCO", {{{L"strKeyMCOFATicketNbr", L"117-1"}},
                          {{L"strKeyMCOFATicketNbr", L"117-2"}},
                          {{L"strKeyMCOFATicketNbr", L"117-3"}}});
  bench.room.GetMCOInformation(2);
  EXPECT_EQ(bench.mco.strMCONumber, L"117-3");
}

TEST(GetMCOInformation, TheOfficesExceptionReplacesTheAirlineAndIsFinal) {
  MCOBench bench;
  bench.values[{L"ARNAG2100", L"FVExceptionSK"}] = L"LH";
  bench.values[{L"FVException", L"SK"}] = L"KL";
  bench.values[{L"ARNAG2100", L"FVExceptionLH"}] = L"AF";
  bench.room.GetMCOInformation(0);
  EXPECT_EQ(bench.mco.strAirlineCode, L"LH");
  EXPECT_EQ(Only(L"ProfileStore", bench.TakeCalls()),
            Together({LookUp(L"ARNAG2100", L"FVExceptionSK", L"LH"),
                      LookUp(L"ARNAG2100", L"AirlinesNotValid", L""),
                      LookUp(L"Airlines", L"NotValid", L"")}));
}

TEST(GetMCOInformation, TheFixedSectionsExceptionServesEveryOffice) {
  MCOBench bench;
  bench.values[{L"FVException", L"SK"}] = L"LH";
  bench.values[{L"FVException", L"LH"}] = L"AF";
  bench.room.GetMCOInformation(0);
  EXPECT_EQ(bench.mco.strAirlineCode, L"LH");
}

TEST(GetMCOInformation, TheNotValidListIsHeldAgainstTheReplacedAirline) {
  MCOBench bench;
  bench.values[{L"ARNAG2100", L"FVExceptionSK"}] = L"LH";
  bench.values[{L"ARNAG2100", L"AirlinesNotValid"}] = L"SK";
  EXPECT_TRUE(bench.Reports().empty());
  bench.values[{L"ARNAG2100", L"AirlinesNotValid"}] = L"SK,LH";
  EXPECT_EQ(bench.Reports(), kNotValid);
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(GetMCOInformation, TheOfficesNotValidListStandsBeforeTheFixedOne) {
  MCOBench bench;
  bench.values[{L"ARNAG2100", L"AirlinesNotValid"}] = L"KL";
  bench.values[{L"Airlines", L"NotValid"}] = L"SK";
  EXPECT_TRUE(bench.Reports().empty());
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(GetMCOInformation, TheFixedNotValidListServesEveryOffice) {
  MCOBench bench;
  bench.values[{L"Airlines", L"NotValid"}] = L"LH,SK";
  EXPECT_EQ(bench.Reports(), kNotValid);
}

TEST(GetMCOInformation, ACodeIsFoundInsideALongerEntryOfTheList) {
  MCOBench bench;
  bench.Issues(L"KL");
  bench.values[{L"ARNAG2100", L"AirlinesNotValid"}] = L"SKLH";
  EXPECT_EQ(bench.Reports(), kNotValid);
}

TEST(GetMCOInformation, TheNotValidListIsSearchedWithRegardToCase) {
  MCOBench bench;
  bench.values[{L"ARNAG2100", L"AirlinesNotValid"}] = L"sk,Sk";
  EXPECT_TRUE(bench.Reports().empty());
}

TEST(GetMCOInformation, AnEmptyAirlineIsNeverReported) {
  MCOBench bench;
  bench.Issues(L"");
  bench.values[{L"ARNAG2100", L"AirlinesNotValid"}] = L"SK,LH";
  bench.room.GetMCOInformation(0);
  const Lines calls = bench.TakeCalls();
  EXPECT_TRUE(OnlyReports(calls).empty());
  EXPECT_FALSE(bench.stop.isSet);
  EXPECT_EQ(Only(L"ProfileStore", calls),
            Together({LookUp(L"ARNAG2100", L"FVException", L""), LookUp(L"FVException", L"", L""),
                      LookUp(L"ARNAG2100", L"AirlinesNotValid", L"SK,LH")}));
}

TEST(GetMCOInformation, CommissionAndFormOfPaymentAreFilledAfterANotValidAirlineToo) {
  MCOBench bench;
  bench.values[{L"Airlines", L"NotValid"}] = L"SK";
  bench.room.GetMCOInformation(0);
  EXPECT_EQ(Last(5, bench.TakeCalls()), Together({kNotValid, Read(L"strKeyMCOFMElement", L"*C*10"),
                                                  Read(L"strKeyMCOFPElement", L"CASH")}));
  EXPECT_EQ(bench.mco.strCommission, L"*C*10");
  EXPECT_EQ(bench.mco.strFormOfPayment, L"CASH");
}

TEST(GetMCOInformation, WithoutFMAndFPElementsTheirFieldsAreEmptied) {
  MCOBench bench;
  bench.mco.strCommission = L"9";
  bench.mco.strFormOfPayment = L"CC";
  bench.HasTyped(L"MCO", {{{L"strKeyAirline", L"SK"}}});
  bench.room.GetMCOInformation(0);
  EXPECT_EQ(bench.mco.strMCONumber, L"");
  EXPECT_EQ(bench.mco.strCommission, L"");
  EXPECT_EQ(bench.mco.strFormOfPayment, L"");
}

TEST(GetMCOInformation, AnOwnFailureShowsTheOwnTextAndStopsTheRun) {
  MCOBench bench;
  bench.room.GetMCOInformation(1);
  EXPECT_EQ(OnlyReports(bench.TakeCalls()),
            OwnFailure(90, L"Error when getting the MCO info!", 16));
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(GetMCOInformation, AFailureOfTheLibraryIsReportedByTheLibrary) {
  MCOBench bench;
  bench.scripted.Fail(hostlib::operations::profile_store::kReadValue, 84, L"profile broken");
  bench.room.GetMCOInformation(0);
  EXPECT_EQ(OnlyReports(bench.TakeCalls()), LibraryFailure(84));
  EXPECT_TRUE(bench.stop.isSet);
  EXPECT_EQ(bench.mco.strCommission, L"");
}

}  // namespace
}  // namespace pnr
