#include <gtest/gtest.h>

#include <algorithm>

#include "tests/pnr/PNRBench.h"

namespace pnr {
namespace {

// Where the fields lie, in the order in which they are named here.
template <typename... Field>
bool LieInThisOrder(const Field&... fields) {
  const std::vector<const void*> places{&fields...};
  return std::is_sorted(places.begin(), places.end());
}

template <typename... Field>
bool AreAllEmpty(const std::tuple<Field...>& fields) {
  return std::apply(
      [](const auto&... field) { return ((field == std::decay_t<decltype(field)>()) && ...); },
      fields);
}

TEST(PNRInfo, HasEighteenFieldsThatAllStartEmpty) {
  const PNRInfo fresh;
  const auto fields = Fields(fresh);
  EXPECT_EQ(std::tuple_size_v<decltype(fields)>, 18U);
  EXPECT_TRUE(AreAllEmpty(fields));
}

TEST(PNRInfo, ItsFieldsLieInClassOrder) {
  const PNRInfo r;
  EXPECT_TRUE(LieInThisOrder(r.strMCOElementNumber, r.strFP2, r.strFP1, r.blnFPExists, r.blnLH,
                             r.strDestination, r.strOrigin, r.strResponsibleOffice,
                             r.strTicketingText, r.strTicketingAction, r.strRMBODInfo,
                             r.strRMPWCTAction, r.strRMPTATotal, r.strTKElementNumber,
                             r.intTotalNames, r.strRMPWCTNumber, r.blnFMExists, r.blnFVExists));
}

TEST(PNRInfo, ItsNumberHasSixteenBits) {
  EXPECT_TRUE((std::is_same_v<decltype(PNRInfo::intTotalNames), std::int16_t>));
}

TEST(MCOInfo, HasFortyTwoFieldsThatAllStartEmpty) {
  const MCOInfo fresh;
  const auto fields = Fields(fresh);
  EXPECT_EQ(std::tuple_size_v<decltype(fields)>, 42U);
  EXPECT_TRUE(AreAllEmpty(fields));
}

TEST(MCOInfo, ItsFieldsLieInClassOrder) {
  const MCOInfo r;
  EXPECT_TRUE(LieInThisOrder(
      r.strTax2, r.strTax1, r.strNameList, r.strTaxList, r.strFlightInfo, r.strCashCollection,
      r.strXTTaxString3, r.strXTTaxString2, r.strXTTaxString1, r.strXTTax, r.sglXTTax,
      r.strNameString2, r.strNameString1, r.strExpiryDate, r.strMCOTotal, r.strAmountInLetters,
      r.intNoNames, r.blnInf, r.blnAllTSTs, r.blnReissue, r.strFirstName, r.strSegAsso,
      r.strINFPasAsso, r.strPasAsso, r.strCurrency, r.strAirlineCode, r.strCommission,
      r.strItinerary, r.strFormOfPayment, r.dblMCOFee, r.strXFTax, r.strFareCalc, r.strTotalFare,
      r.strEquivalentFare, r.strTourCode, r.strSellingFare, r.strNetFare, r.strFare,
      r.strRecordLocator, r.strMCONumber, r.intMCOCount, r.blnMultTST));
}

TEST(MCOInfo, ItsNumbersHaveTheirOwnWidths) {
  EXPECT_TRUE((std::is_same_v<decltype(MCOInfo::sglXTTax), float>));
  EXPECT_TRUE((std::is_same_v<decltype(MCOInfo::dblMCOFee), double>));
  EXPECT_TRUE((std::is_same_v<decltype(MCOInfo::intNoNames), std::int16_t>));
  EXPECT_TRUE((std::is_same_v<decltype(MCOInfo::intMCOCount), std::int16_t>));
}

}  // namespace
}  // namespace pnr
