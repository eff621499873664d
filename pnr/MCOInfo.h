#pragma once

#include <cstdint>
#include <string>

namespace pnr {

/// The MCO document that the PTA is written for; one instance a run. Some fields are filled by
/// nobody: they are part of the record and keep their initial values.
struct MCOInfo {
  std::wstring strTax2;
  std::wstring strTax1;
  std::wstring strNameList;
  std::wstring strTaxList;
  std::wstring strFlightInfo;
  std::wstring strCashCollection;
  std::wstring strXTTaxString3;
  std::wstring strXTTaxString2;
  std::wstring strXTTaxString1;
  std::wstring strXTTax;
  float sglXTTax = 0;
  std::wstring strNameString2;
  std::wstring strNameString1;
  std::wstring strExpiryDate;
  std::wstring strMCOTotal;
  std::wstring strAmountInLetters;
  std::int16_t intNoNames = 0;
  bool blnInf = false;
  bool blnAllTSTs = false;
  bool blnReissue = false;
  std::wstring strFirstName;
  std::wstring strSegAsso;
  std::wstring strINFPasAsso;
  std::wstring strPasAsso;
  std::wstring strCurrency;
  std::wstring strAirlineCode;
  std::wstring strCommission;
  std::wstring strItinerary;
  std::wstring strFormOfPayment;
  double dblMCOFee = 0;
  std::wstring strXFTax;
  std::wstring strFareCalc;
  std::wstring strTotalFare;
  std::wstring strEquivalentFare;
  std::wstring strTourCode;
  std::wstring strSellingFare;
  std::wstring strNetFare;
  std::wstring strFare;
  std::wstring strRecordLocator;
  std::wstring strMCONumber;
  std::int16_t intMCOCount = 0;
  bool blnMultTST = false;
};

}  // namespace pnr
