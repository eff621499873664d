#pragma once

#include <string>
#include <vector>

#include "errors/ErrorHandler.h"
#include "fares/Amounts.h"
#include "pnr/MCOInfo.h"
#include "pnr/PNRInfo.h"
#include "tst/TSTTotals.h"
#include "ui/controls/Controls.h"

namespace fares {

/// The sums over the selected TSTs, kept in MCOInfo, and the remark made of them. Lives for the
/// run: it holds the tax items gathered so far.
class Totals {
 public:
  Totals(const Amounts& amounts, const settings::Settings& settings, const tst::TSTTotals& tst,
         pnr::MCOInfo& mco, pnr::PNRInfo& pnr, ui::TextBox& txtPTA, errors::ErrorHandler& errors);

  /// Adds the values of the TST read last; its taxes to those gathered so far.
  void AddTSTValues();
  /// MCOInfo.strTaxList from the taxes gathered, once all TSTs are added; left alone without any.
  void JoinTaxes();
  /// MCOInfo.strTotalFare from the (equivalent) fare and the taxes.
  void CalculateTotalFare();
  /// PNRInfo.strRMPTATotal and the dialog's field.
  void BuildPTATotalRemark();

  /// The tax items gathered.
  int TaxCount() const { return static_cast<int>(taxes_.size()); }

 private:
  void AddXFTax();
  double XFAmount(std::wstring_view items) const;
  void AddTaxes();
  void AddTax(std::wstring_view item);

  const Amounts& amounts_;
  const settings::Settings& settings_;
  const tst::TSTTotals& tst_;
  pnr::MCOInfo& mco_;
  pnr::PNRInfo& pnr_;
  ui::TextBox& txtPTA_;
  errors::ErrorHandler& errors_;
  std::vector<std::wstring> taxes_;
};

}  // namespace fares
