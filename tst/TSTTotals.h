#pragma once

#include <string>

namespace tst {

/// The amounts of the TST read last, and the totals of the first and of the later ones; one
/// instance a run.
struct TSTTotals {
  std::wstring strXFTax;
  std::wstring strTotalFareLastTSTs;
  std::wstring strTotalFareFirstTST;
  std::wstring strTotalFare;
  std::wstring strTaxList;
  std::wstring strEquivalentFare;
  std::wstring strTourCode;
  std::wstring strSellingFare;
  std::wstring strNetFare;
  std::wstring strFare;
};

}  // namespace tst
