#pragma once

#include "ui/controls/Controls.h"

namespace settings {

/// The controls in which the agent sees and changes the settings.
struct SettingsControls {
  ui::TextBox& txtIATANumber;
  ui::TextBox& txtCityCode;
  ui::CheckBox& chkPrintPNR;
  ui::CheckBox& chkOP;
  ui::TextBox& txtOPText;
  ui::CheckBox& chkPanelMode;
  ui::CheckBox& chkBOD;
  ui::CheckBox& chkPasSegAsso;
  ui::CheckBox& chkTKNoUpdate;
};

/// Those of any form that has them under these names.
template <typename Dialog>
SettingsControls ControlsOf(Dialog& dialog) {
  return {dialog.txtIATANumber, dialog.txtCityCode,   dialog.chkPrintPNR,
          dialog.chkOP,         dialog.txtOPText,     dialog.chkPanelMode,
          dialog.chkBOD,        dialog.chkPasSegAsso, dialog.chkTKNoUpdate};
}

}  // namespace settings
