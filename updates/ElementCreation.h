#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "common/EndOfRun.h"
#include "errors/ErrorHandler.h"
#include "fares/DateHelpers.h"
#include "hostlib/ScriptGlobal.h"
#include "hostlib/TerminalSession.h"
#include "pnr/MCOInfo.h"
#include "pnr/PNRInfo.h"
#include "settings/Settings.h"
#include "tst/TSTCollection.h"
#include "tst/TSTGeneral.h"
#include "updates/BackOfficeRemark.h"
#include "updates/ElementBuilders.h"
#include "updates/ElementEntry.h"

namespace updates {

/// Adds the new elements of the PTA to the PNR.
class ElementCreation {
 public:
  ElementCreation(hostlib::Library& library, hostlib::ScriptGlobal& global,
                  hostlib::TerminalSession& session, errors::ErrorHandler& errors,
                  common::RunEnd& runEnd, fares::DateHelpers& dates, BackOfficeRemark& backOffice,
                  const settings::Settings& settings, const tst::TSTGeneral& general,
                  const tst::TSTCollection& tsts, const pnr::PNRInfo& pnr, const pnr::MCOInfo& mco);

  /// Makes every element first, then sends them. `newPWCT`: the PNR has no PWCT remark yet.
  void EnterPNRElements(bool newPWCT, std::wstring_view officeID);

 private:
  using Creator = std::wstring (ElementBuilders::*)(std::wstring_view type,
                                                    std::wstring_view association);

  void CreateElements(bool newPWCT, std::wstring_view officeID);
  void AddFOElements();
  void AddPassengerElements(bool exists, std::wstring tst::TSTInfo::*value, Creator create);
  void AddRemark(std::wstring_view text);
  void Add(std::wstring element);
  std::wstring PTATotalRemark() const;
  std::wstring_view PassengerType() const;

  ElementBuilders builders_;
  BackOfficeRemark& backOffice_;
  ElementEntry entry_;
  errors::ErrorHandler& errors_;
  const settings::Settings& settings_;
  const tst::TSTCollection& tsts_;
  const pnr::PNRInfo& pnr_;
  const pnr::MCOInfo& mco_;
  std::vector<std::wstring> elements_;
};

}  // namespace updates
