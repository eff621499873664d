#pragma once

#include <memory>

#include "app/Common.h"
#include "app/VantelConnectDef.h"
#include "common/EndOfRun.h"
#include "errors/ErrorHandler.h"
#include "platform/Platform.h"
#include "ui/controls/Desktop.h"
#include "ui/frmPTA.h"
#include "ui/frmWorking.h"

namespace app {

struct Rooms;

/// The entry procedure, the run's sequence and its end.
class MainModule : public common::RunEnd, public ui::PTADialogActions {
 public:
  MainModule(hostlib::Library& library, ui::Desktop& desktop, const platform::Platform& platform);
  ~MainModule() override;

  /// Reads everything and shows the dialog, which drives the rest of the run. Ends the run by an
  /// exception where the rules say so.
  void Main();

  void UnloadForms() override;
  [[noreturn]] void EndScript() override;
  [[noreturn]] void EndAtOnce() override;

  // What the dialog sets going.
  void LoadSettings() override;
  void SaveSettings() override;
  void StartUpdateRun() override;
  void ReleaseSession() override;

 private:
  void ShowProgress();
  void Connect();
  void ReadPNR();
  void ChooseMCO();
  void ReadMCO();
  void ReadTSTs();
  void ReadRemarks();
  void ProposeQueueing();
  void ShowDialog();
  /// Ends the run when a report since the last step said that it cannot go on.
  void EndIfStopped();

  hostlib::Library& library_;
  ui::Desktop& desktop_;
  const platform::Platform& platform_;
  Common common_;
  errors::ErrorHandler errors_;
  VantelConnectDef connection_;
  ui::frmWorking frmWorking_;
  // The library may ask them as long as the run lasts.
  hostlib::ObjectPtr progressFormObject_;
  hostlib::ObjectPtr applicationObject_;
  ui::frmPTA frmPTA_;
  std::unique_ptr<Rooms> rooms_;
};

}  // namespace app
