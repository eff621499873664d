#pragma once

#include <string>

namespace tst {

/// What the selected TSTs have in common; one instance a run. Each field is set from the first TST
/// that supplies it and never overwritten.
struct TSTGeneral {
  bool blnMultipleFP = false;  ///< two different forms of payment
  std::wstring strSegAsso;
  std::wstring strOriginCity;
  std::wstring strNotValidAfterDate;
  std::wstring strFirstFlightNo;
  std::wstring strFirstTravelDate;
  std::wstring strOriginAirport;
};

}  // namespace tst
