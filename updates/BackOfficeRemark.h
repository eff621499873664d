#pragma once

#include <string>

#include "errors/ErrorHandler.h"
#include "hostlib/ScriptGlobal.h"
#include "pnr/MCOInfo.h"
#include "settings/Settings.h"
#include "tst/TSTCollection.h"

namespace updates {

/// The money of the PTA per passenger, as the back office wants it.
class BackOfficeRemark {
 public:
  BackOfficeRemark(hostlib::ScriptGlobal& global, errors::ErrorHandler& errors,
                   const settings::Settings& settings, const tst::TSTCollection& tsts,
                   const pnr::MCOInfo& mco);

  /// The text of an RM* remark, e.g. *FARE:1160,TAX:160,PTA:250; "" when it could not be computed,
  /// which has been reported.
  std::wstring CreateRMStarElement();

 private:
  struct Taxes {
    double tax = 0;
    double vat = 0;
  };

  int CountPassengers() const;
  Taxes TaxesEach(int passengers);
  double FeeEach(int passengers) const;
  void AddGroup(std::wstring& groups, std::wstring_view name, double amount) const;

  hostlib::ScriptGlobal& global_;
  errors::ErrorHandler& errors_;
  const settings::Settings& settings_;
  const tst::TSTCollection& tsts_;
  const pnr::MCOInfo& mco_;
};

}  // namespace updates
