#pragma once

#include <cstdint>
#include <string>

namespace pnr {

/// What the run knows of the active PNR; one instance a run.
struct PNRInfo {
  std::wstring strMCOElementNumber;
  std::wstring strFP2;
  std::wstring strFP1;
  bool blnFPExists = false;
  bool blnLH = false;
  std::wstring strDestination;
  std::wstring strOrigin;
  std::wstring strResponsibleOffice;
  std::wstring strTicketingText;
  std::wstring strTicketingAction;
  std::wstring strRMBODInfo;
  std::wstring strRMPWCTAction;
  std::wstring strRMPTATotal;
  std::wstring strTKElementNumber;
  std::int16_t intTotalNames = 0;
  std::wstring strRMPWCTNumber;
  bool blnFMExists = false;
  bool blnFVExists = false;
};

}  // namespace pnr
