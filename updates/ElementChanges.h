#pragma once

#include <string>
#include <string_view>

#include "common/EndOfRun.h"
#include "errors/ErrorHandler.h"
#include "hostlib/Requests.h"
#include "hostlib/ScriptGlobal.h"
#include "hostlib/TerminalSession.h"
#include "pnr/MCOInfo.h"
#include "pnr/PNRInfo.h"
#include "settings/Settings.h"
#include "tst/TSTCollection.h"
#include "ui/controls/Form.h"

namespace updates {

/// Brings the PNR's existing elements into line with the PTA. Each change replaces the text of one
/// element, addressed by its number; a change that the host refuses ends the run before the next.
class ElementChanges {
 public:
  /// The change made last.
  struct Change {
    std::wstring elementNumber;
    std::wstring newValue;
    std::wstring command;
    std::wstring response;
    bool pnrFound = false;
  };

  ElementChanges(hostlib::Library& library, hostlib::ScriptGlobal& global,
                 hostlib::TerminalSession& session, errors::ErrorHandler& errors,
                 common::RunEnd& runEnd, ui::Form& dialog, const settings::Settings& settings,
                 const tst::TSTCollection& tsts, const pnr::PNRInfo& pnr, const pnr::MCOInfo& mco);

  /// Makes the changes that are needed: TK, PWCT, FV, FM, FP. `tkText` goes behind a changed TK.
  void UpdatePNR(std::wstring_view tkText);

  void UpdateTKElement(std::wstring_view tkText);
  void UpdateRMPWCTElement();
  void UpdateFVElement(std::wstring_view elementNumber, std::wstring_view airline);
  void UpdateFMElement(std::wstring_view elementNumber, std::wstring_view commission);
  void UpdateFPElement(std::wstring_view elementNumber, std::wstring_view fpText);

  const Change& last() const { return last_; }

 private:
  void ChangeFVElements();
  void ChangeFMElements();
  void ChangeFPElements();
  void ChangeElement(const errors::Procedure& procedure, std::wstring_view elementNumber,
                     std::wstring_view newValue, std::wstring_view suffix = {});
  void Transact(const errors::Procedure& procedure, std::wstring_view suffix);

  hostlib::Library& library_;
  hostlib::ScriptGlobal& global_;
  hostlib::TerminalSession& session_;
  errors::ErrorHandler& errors_;
  common::RunEnd& runEnd_;
  ui::Form& dialog_;
  const settings::Settings& settings_;
  const tst::TSTCollection& tsts_;
  const pnr::PNRInfo& pnr_;
  const pnr::MCOInfo& mco_;
  Change last_;
};

}  // namespace updates
