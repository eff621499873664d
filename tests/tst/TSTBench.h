#pragma once

#include <map>

#include "fares/Amounts.h"
#include "fares/Totals.h"
#include "pnr/TSTReaders.h"
#include "settings/Settings.h"
#include "tests/support/RoomBench.h"
#include "tests/tst/Way.h"
#include "tst/TSTRecords.h"

namespace tst {

/// What the display of one TST holds.
struct ShownTST {
  std::wstring number = L"1";
  std::wstring names = L"1.SMITH/JOHN MR";
  std::wstring firstTravelDate = L"15MAR07";
  std::wstring firstFlightNo = L"SK1234";
  std::wstring notValidAfter = L"";
  std::wstring itinerary = L"ARNCPHARN";
  std::wstring fareBasis = L"YRT";
  std::wstring fare = L"SEK1000";
  std::wstring fareIndicator = L"F";
  std::wstring equivalentFare = L"";
  std::wstring xfTax = L"";
  std::wstring totalFare = L"SEK1160";
  std::wstring fareCalc = L"STO SK CPH";
  bool isReissue = false;
  std::wstring salesIndicator = L"SITI";
  std::vector<std::wstring> taxes = {L"SEK120XT", L"SEK40YQ"};
  std::wstring fm = L"10";
  std::wstring fp = L"CASH";
  std::wstring fv = L"SK";
};

/// A row of the TST list.
struct ListedTST {
  std::wstring number;
  std::wstring persons = L"1";
  std::wstring fop = L"CASH";
  std::wstring segment = L"2-3";
};

/// A scripted host with TSTs. The list is displayed by "TQT", TST n by "TQT/Tn"; the answer to a
/// display is the command and " SHOWN", to anything else "DONE".
struct TSTBench : support::RoomBench {
  TSTBench();

  /// The list command displays this TST directly.
  void HasOneTST(const ShownTST& tst);
  /// The list command displays a list, each of whose TSTs can be displayed by its number.
  void HasList(const std::vector<ListedTST>& rows);
  /// TST n is displayed so, instead of as a plain ShownTST of its number.
  void Shows(const ShownTST& tst);
  /// What ReadResponse gives for an answer of the host.
  void Answers(const std::wstring& response, hostlib::ObjectPtr bag);

  Lines TakeWay() { return Way(TakeCalls()); }
  /// The boxes that the library's reporter has shown so far, in short: "16 text".
  Lines ReportedBoxes() const;
  /// The texts of the program's own boxes so far.
  Lines OwnBoxes() const;

  std::vector<std::wstring> pnrNames = {L"1.SMITH/JOHN MR"};
  std::map<std::wstring, ShownTST> shown;  ///< by the host's answer

  settings::Settings settings;
  pnr::PNRInfo pnr;
  pnr::MCOInfo mco;
  TSTGeneral general;
  TSTTotals totals;
  TSTCollection tsts;
  TSTRecords records{pnr, mco, general, totals, tsts};

  ui::Form dialog{L"frmPTA"};
  ui::TextBox txtPTA{dialog, L"txtPTA"};
  pnr::TSTReaders readers{library, global, errors, general, pnr, mco, totals};
  fares::Amounts amounts{settings, totals, errors};
  fares::Totals sums{amounts, settings, totals, mco, pnr, txtPTA, errors};

 private:
  void ScriptList();
  void ScriptDetails();
  void ScriptNames();

  std::map<std::wstring, hostlib::ObjectPtr> answers_;
};

}  // namespace tst
