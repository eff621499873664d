#pragma once

#include <string>
#include <vector>

#include "common/EndOfRun.h"
#include "errors/ErrorHandler.h"
#include "fares/Totals.h"
#include "hostlib/Requests.h"
#include "hostlib/ScriptGlobal.h"
#include "hostlib/TerminalSession.h"
#include "tst/TSTDetailReader.h"
#include "tst/TSTList.h"
#include "tst/TSTRecords.h"
#include "ui/controls/Desktop.h"
#include "ui/frmWorking.h"

namespace tst {

/// Finds the PNR's TSTs, lets the agent choose where there are several, and has the chosen ones
/// read. Lives for the run.
class SendTSTTrans {
 public:
  SendTSTTrans(hostlib::Library& library, hostlib::TerminalSession& session,
               hostlib::ScriptGlobal& global, errors::ErrorHandler& errors,
               const errors::StopFlag& stop, ui::Desktop& desktop, common::RunEnd& runEnd,
               ui::frmWorking& working, TSTRecords records, TSTDetailReader& details,
               fares::Totals& sums);

  void ReadTSTList();
  /// Displays the TST from the pricing transaction; the answer is not looked at.
  void SendTQTP();
  /// Shows the rows, which count from 1, and keeps what the agent picked.
  void SelectTSTFromList(const hostlib::TextArray& segments, const hostlib::TextArray& tstNumbers,
                         const hostlib::TextArray& persons, const hostlib::TextArray& fops);

  const std::wstring& LastTransaction() const { return lastTransaction_; }
  const std::wstring& CurrentResponse() const { return currentResponse_; }
  /// The number of the only TST, or the picked ones joined with ",".
  const std::wstring& SelectedTSTNumbers() const { return selectedTSTs_; }
  const std::vector<std::wstring>& SelectedTSTArray() const { return selectedTSTArray_; }

 private:
  void Reset();
  void DisplayList();
  void Display(hostlib::TstListRequest& request, const hostlib::ParameterBag& bag);
  TSTList ReadList();
  void ReplaceByItsOnlyTST(TSTList& list);
  void ReadPickedTSTs(const TSTList& list);
  void ReadPickedTST(const std::wstring& tstNumber, const std::wstring& segment);
  bool IsPicked(const std::wstring& tstNumber) const;
  void DeriveMCOData();

  hostlib::Library& library_;
  hostlib::TerminalSession& session_;
  hostlib::ScriptGlobal& global_;
  errors::ErrorHandler& errors_;
  const errors::StopFlag& stop_;
  ui::Desktop& desktop_;
  common::RunEnd& runEnd_;
  ui::frmWorking& working_;
  TSTRecords records_;
  TSTDetailReader& details_;
  fares::Totals& sums_;

  std::wstring lastTransaction_;
  std::wstring currentResponse_;
  std::wstring selectedTSTs_;
  std::vector<std::wstring> selectedTSTArray_;
};

}  // namespace tst
