#pragma once

#include <cstdint>
#include <string>

namespace settings {

/// The agent's settings; one instance a run.
struct Settings {
  bool blnAddRMTotalinBOD = false;
  std::int16_t intTopMarg = 0;
  std::int16_t intLeftMarg = 0;
  std::int16_t intPaperBin = 0;
  std::wstring strPrinterDevice;
  std::wstring strDataPath;
  bool blnAddMCOInfo = false;
  std::wstring strSymbol;  ///< the user's decimal separator
  bool blnPrintPNR = false;
  bool blnTKNoUpdate = false;
  bool blnAddOP = false;
  bool blnAddPasSegAsso = false;
  bool blnSendBOD = false;
  bool blnPanelMode = false;
  std::wstring strOPText;
  std::wstring strCityCode;
  std::wstring strIATANumber;
  std::wstring strCountryCode;
  std::wstring strMandatoryElements;  ///< element codes joined with ","
};

}  // namespace settings
