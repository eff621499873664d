#pragma once

#include <string_view>

#include "errors/ErrorHandler.h"
#include "fares/Amounts.h"
#include "fares/Totals.h"
#include "hostlib/ScriptGlobal.h"
#include "pnr/TSTReaders.h"
#include "tst/FormsOfPayment.h"
#include "tst/TSTRecords.h"
#include "tst/TSTWarnings.h"

namespace tst {

/// What is done with each TST besides reading its display.
struct TSTServices {
  pnr::TSTReaders& readers;
  fares::Amounts& amounts;
  fares::Totals& sums;
};

/// Reads one TST from its display into the run's records. Lives for the run: it knows which
/// warnings the agent has answered.
class TSTDetailReader {
 public:
  TSTDetailReader(hostlib::Library& library, hostlib::ScriptGlobal& global,
                  errors::ErrorHandler& errors, const errors::StopFlag& stop,
                  common::MessageBoxes& boxes, common::RunEnd& runEnd, TSTRecords records,
                  TSTServices services);

  /// Reads a TST, adds it to the sums and files it. What is reported on the way and stops the run
  /// leaves the TST unfiled.
  void ReadCurrentTST(std::wstring_view responseText);
  /// False when it failed and was reported.
  bool ReadTSTDetail(std::wstring_view responseText, TSTInfo& tst);

 private:
  void MarkInfant(TSTInfo& tst);
  void TakeOriginCity(const std::wstring& fareCalc);
  void TakeTotals(const TSTInfo& tst);
  void TakeAirlineAndCommission(const TSTInfo& tst);
  void TakeCurrency(const TSTInfo& tst);
  void CheckSalesIndicator(const std::wstring& indicator);
  void AddToFirstOrLaterTotal();

  hostlib::Library& library_;
  hostlib::ScriptGlobal& global_;
  errors::ErrorHandler& errors_;
  const errors::StopFlag& stop_;
  TSTRecords records_;
  TSTServices services_;
  TSTWarnings warnings_;
  FormsOfPayment formsOfPayment_;
};

}  // namespace tst
