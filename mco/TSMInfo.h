#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace mco {

/// The TSMs of the PNR as the TQM display lists them; one instance a run. Eight parallel arrays,
/// one entry a TSM, 0-based and of the same length; each is read and replaced as a whole.
class TSMInfo {
 public:
  std::vector<std::int16_t> GetArrIntM() const { return intM_; }
  void SetArrIntM(std::vector<std::int16_t> values) { intM_ = std::move(values); }
  std::vector<std::int16_t> GetArrIntP() const { return intP_; }
  void SetArrIntP(std::vector<std::int16_t> values) { intP_ = std::move(values); }
  std::vector<double> GetArrDblAmount() const { return dblAmount_; }
  void SetArrDblAmount(std::vector<double> values) { dblAmount_ = std::move(values); }
  std::vector<std::wstring> GetArrStrR() const { return strR_; }
  void SetArrStrR(std::vector<std::wstring> values) { strR_ = std::move(values); }
  std::vector<std::wstring> GetArrStrL() const { return strL_; }
  void SetArrStrL(std::vector<std::wstring> values) { strL_ = std::move(values); }
  std::vector<std::wstring> GetArrStrName() const { return strName_; }
  void SetArrStrName(std::vector<std::wstring> values) { strName_ = std::move(values); }
  std::vector<std::wstring> GetArrStrCurrency() const { return strCurrency_; }
  void SetArrStrCurrency(std::vector<std::wstring> values) { strCurrency_ = std::move(values); }
  std::vector<std::wstring> GetArrStrFOP() const { return strFOP_; }
  void SetArrStrFOP(std::vector<std::wstring> values) { strFOP_ = std::move(values); }

  double dblMCOFee = 0;  ///< of the TSM last displayed
  std::int16_t intNoTSM = 0;
  bool blnTSMFound = false;              ///< the last display showed one TSM, not a list
  bool blnMCOFeeFound = false;           ///< the last display held an MCO fee; for the record
  std::wstring strErrResponse;           ///< the host's error response to the last display
  std::int16_t intSelectedMCO = 0;       ///< TSM number (M) of the chosen MCO
  std::int16_t intSelectedMCOIndex = 0;  ///< 0-based, among the PNR's MCO segments

 private:
  std::vector<std::int16_t> intM_;
  std::vector<std::int16_t> intP_;
  std::vector<double> dblAmount_;
  std::vector<std::wstring> strR_;
  std::vector<std::wstring> strL_;
  std::vector<std::wstring> strName_;
  std::vector<std::wstring> strCurrency_;
  std::vector<std::wstring> strFOP_;
};

}  // namespace mco
