#pragma once

#include "fares/Amounts.h"
#include "fares/Totals.h"
#include "tests/support/RoomBench.h"

namespace fares {

inline const std::wstring kReport20 =
    L"ScriptErrorReporter.1.18 ShowError(-2147221484, \"  PTA Script \", \"Error when calculating "
    L"the total fare!\", 16)";
inline const std::wstring kReport21 =
    L"ScriptErrorReporter.1.18 ShowError(-2147221483, \"  PTA Script \", \"Error adding TST "
    L"values!\", 16)";
inline const std::wstring kReport26 =
    L"ScriptErrorReporter.1.18 ShowError(-2147221478, \"  PTA Script \", \"Error when multiplying "
    L"values!\", 16)";

class PTAField : public ui::Form {
 public:
  PTAField() : Form(L"frmPTA") {}
  ui::TextBox txtPTA{*this, L"txtPTA"};
};

/// The arithmetic over records of its own. The user's decimal separator is a comma, as in most of
/// the agencies.
struct FaresBench : support::RoomBench {
  explicit FaresBench(std::wstring_view symbol = L",") {
    settings.strSymbol = symbol;
    mco.strCurrency = L"SEK";
  }

  static tst::TSTInfo TST(int names) {
    tst::TSTInfo tst;
    tst.intNoNames = static_cast<std::int16_t>(names);
    return tst;
  }
  /// An amount text times the passengers of a TST.
  std::wstring Multiplied(std::wstring amount, int names) {
    amounts.MultiplyAmount(amount, TST(names));
    return amount;
  }
  /// Adds a TST that has nothing but these taxes.
  void AddTaxes(std::wstring_view taxes) {
    totals = {};
    totals.strTaxList = taxes;
    sums.AddTSTValues();
  }
  /// The document's list of the taxes added so far.
  const std::wstring& JoinedTaxes() {
    sums.JoinTaxes();
    return mco.strTaxList;
  }
  void AddFare(std::wstring_view fare) {
    totals = {};
    totals.strFare = fare;
    sums.AddTSTValues();
  }

  settings::Settings settings;
  tst::TSTTotals totals;
  pnr::MCOInfo mco;
  pnr::PNRInfo pnr;
  PTAField form;
  Amounts amounts{settings, totals, errors};
  Totals sums{amounts, settings, totals, mco, pnr, form.txtPTA, errors};
};

}  // namespace fares
