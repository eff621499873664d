#pragma once

#include "tests/tst/TSTBench.h"
#include "tst/SendTSTTrans.h"
#include "tst/frmSelectTST.h"

namespace tst {

/// The list reading on the scripted host, with an agent who picks rows in the dialog.
struct SelectionBench : TSTBench {
  /// The agent selects these rows, which count from 0, and presses OK.
  void AgentPicks(const std::vector<int>& rows) {
    desktop.inModal = [rows](ui::Form& form) {
      auto& selection = static_cast<frmSelectTST&>(form);
      for (const int row : rows) selection.lstTST.Select(row);
      selection.cmdOK.Clicked();
    };
  }
  Lines Filed() const {
    Lines numbers;
    for (const TSTInfo& tst : tsts) numbers.push_back(tst.strTSTNum);
    return numbers;
  }
  /// What the session has sent so far, without the answers.
  Lines Sent() const {
    Lines sent;
    for (const std::wstring& line : recorder.lines()) {
      if (line.starts_with(L"TerminalSession")) sent.push_back(line.substr(0, line.find(L" ->")));
    }
    return sent;
  }

  ui::frmWorking working;
  TSTDetailReader details{library, global, errors,  stop,
                          desktop, runEnd, records, {readers, amounts, sums}};
  SendTSTTrans room{library, session, global,  errors,  stop, desktop,
                    runEnd,  working, records, details, sums};
};

}  // namespace tst
