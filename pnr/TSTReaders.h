#pragma once

#include "errors/ErrorHandler.h"
#include "hostlib/ScriptGlobal.h"
#include "pnr/MCOInfo.h"
#include "pnr/PNRInfo.h"
#include "tst/TSTGeneral.h"
#include "tst/TSTInfo.h"
#include "tst/TSTTotals.h"

namespace pnr {

/// What the PNR says about one TST: whose it is, and its FS element.
class TSTReaders {
 public:
  TSTReaders(hostlib::Library& library, hostlib::ScriptGlobal& global, errors::ErrorHandler& errors,
             const tst::TSTGeneral& general, PNRInfo& pnr, MCOInfo& mco, tst::TSTTotals& totals);

  /// Counts the TST's names and gathers their numbers.
  void GetNameInformation(tst::TSTInfo& tst);
  /// Net fare, selling fare and tour code of the TST into TSTTotals.
  void GetFareInformation(const tst::TSTInfo& tst);

 private:
  void CountInfant(const hostlib::ParameterBag& bag, tst::TSTInfo& tst);
  void CountAdult(const hostlib::ParameterBag& bag, const std::wstring& name, tst::TSTInfo& tst);
  void ReadFareElement(const hostlib::ParameterBag& bag, const tst::TSTInfo& tst);
  std::wstring WithCurrency(const std::wstring& amount) const;

  hostlib::Library& library_;
  hostlib::ScriptGlobal& global_;
  errors::ErrorHandler& errors_;
  const tst::TSTGeneral& general_;
  PNRInfo& pnr_;
  MCOInfo& mco_;
  tst::TSTTotals& totals_;
};

}  // namespace pnr
