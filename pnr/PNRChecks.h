#pragma once

#include "common/MessageBoxes.h"
#include "errors/ErrorHandler.h"
#include "hostlib/ScriptGlobal.h"
#include "hostlib/TerminalSession.h"
#include "pnr/MCOInfo.h"
#include "pnr/PNRInfo.h"

namespace pnr {

/// The PWCT remark, the SK OSI and the IR entry.
class PNRChecks {
 public:
  PNRChecks(hostlib::Library& library, hostlib::ScriptGlobal& global,
            hostlib::TerminalSession& session, errors::ErrorHandler& errors,
            common::MessageBoxes& boxes, const MCOInfo& mco, PNRInfo& pnr);

  /// Number and text of the PWCT remark that belongs to the MCO; both stay when there is none.
  void GetPWCTInformation();
  /// Enters "OS SK PTA" unless the PNR has an OSI for SK.
  void CheckSKOSI();
  /// Sends "IR"; tells the agent when the host does not accept it.
  void CheckIR();

 private:
  bool BelongsToMCO(std::wstring_view segmentAssociation) const;
  bool HasOSIForSK();

  hostlib::Library& library_;
  hostlib::ScriptGlobal& global_;
  hostlib::TerminalSession& session_;
  errors::ErrorHandler& errors_;
  common::MessageBoxes& boxes_;
  const MCOInfo& mco_;
  PNRInfo& pnr_;
};

}  // namespace pnr
