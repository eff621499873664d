#pragma once

#include "errors/ErrorHandler.h"
#include "fares/DateHelpers.h"
#include "hostlib/Requests.h"
#include "hostlib/ScriptGlobal.h"
#include "hostlib/TerminalSession.h"
#include "pnr/MCOInfo.h"
#include "pnr/PNRInfo.h"
#include "settings/Settings.h"
#include "tst/TSTGeneral.h"
#include "ui/controls/Controls.h"

namespace pnr {

/// The dialog's follow-up box and its companions.
struct FollowUpControls {
  ui::CheckBox& chkOP;
  ui::Label& lblOPText;
  ui::TextBox& txtOPText;
};

/// Reads the active PNR into the records and checks that it is fit for a PTA.
class GetPTAPNRinfo {
 public:
  GetPTAPNRinfo(hostlib::Library& library, hostlib::ScriptGlobal& global,
                hostlib::TerminalSession& session, errors::ErrorHandler& errors,
                fares::DateHelpers& dates, const settings::Settings& settings,
                const tst::TSTGeneral& general, PNRInfo& pnr, MCOInfo& mco,
                FollowUpControls followUp);

  /// Makes the active PNR readable.
  void RetrievePNR();
  /// Record locator, mandatory elements, TK element, first segment, FP, responsible office.
  void GetPNRInformation();
  /// Switches the follow-up off when the PNR has an OP element for the day after departure.
  void GetOptionInformation();

 private:
  void ReadRecordLocator(hostlib::PnrReader& reader);
  void CheckMandatoryElements(hostlib::PnrReader& reader);
  bool IsInPNR(hostlib::PnrReader& reader, const std::wstring& element);
  void ReadTKElement(hostlib::PnrReader& reader);
  void ReadFirstSegment(hostlib::PnrReader& reader);
  void ReadResponsibleOffice(hostlib::PnrReader& reader);
  void SwitchFollowUpOff();

  hostlib::Library& library_;
  hostlib::ScriptGlobal& global_;
  hostlib::TerminalSession& session_;
  errors::ErrorHandler& errors_;
  fares::DateHelpers& dates_;
  const settings::Settings& settings_;
  const tst::TSTGeneral& general_;
  PNRInfo& pnr_;
  MCOInfo& mco_;
  FollowUpControls followUp_;
};

}  // namespace pnr
