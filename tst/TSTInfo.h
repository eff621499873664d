#pragma once

#include <cstdint>
#include <string>

namespace tst {

/// One TST; a new record for each TST read. Amounts keep the host's form: a 3-letter currency code
/// followed by the amount with ".".
struct TSTInfo {
  std::wstring strFareBasis;
  std::wstring strNames;
  std::int16_t intNoNames = 0;
  std::wstring strTaxList;  ///< each tax followed by ";", the last one too
  std::wstring strPasAsso;
  std::wstring strFMElementNumber;
  std::wstring strFMElementValue;
  std::wstring strFPElementNumber;
  std::wstring strFVElementNumber;
  std::wstring strFVElementValue;
  std::wstring strXFTax;
  std::wstring strFareIndicator;
  std::wstring strFareCalc;
  std::wstring strTotalFare;
  std::wstring strEquivalentFare;
  std::wstring strFPElementValue;
  std::wstring strTSTNum;
  bool blnInf = false;
  std::wstring strFare;  ///< "NOFARE" for a TST without fare
};

}  // namespace tst
