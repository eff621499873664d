#pragma once

#include "errors/ErrorHandler.h"
#include "hostlib/Requests.h"
#include "hostlib/ScriptGlobal.h"
#include "hostlib/TerminalSession.h"
#include "tst/TSTCollection.h"
#include "tst/TSTGeneral.h"

namespace tst {

/// Writes the PTA data back into the TSTs that were read.
class TSTUpdater {
 public:
  TSTUpdater(hostlib::Library& library, hostlib::TerminalSession& session,
             hostlib::ScriptGlobal& global, errors::ErrorHandler& errors, const TSTGeneral& general,
             TSTCollection& tsts);

  /// A refused TST is reported and the next one updated; a failure leaves the rest as it is.
  void UpdateTST();

 private:
  void UpdateOne(TSTInfo& tst);
  void FillBag(hostlib::ParameterBag& bag, TSTInfo& tst);
  std::wstring BuildCommand(hostlib::TstUpdateRequest& request, const hostlib::ParameterBag& bag,
                            const TSTInfo& tst);
  hostlib::TextArray TaxesOf(const TSTInfo& tst);
  bool IsAccepted(const std::wstring& answer);

  hostlib::Library& library_;
  hostlib::TerminalSession& session_;
  hostlib::ScriptGlobal& global_;
  errors::ErrorHandler& errors_;
  const TSTGeneral& general_;
  TSTCollection& tsts_;
};

}  // namespace tst
