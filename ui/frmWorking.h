#pragma once

#include "ui/controls/Form.h"

namespace ui {

/// Tells the agent that the run is gathering data.
class frmWorking : public Form {
 public:
  frmWorking() : Form(L"frmWorking") {}

  Label lblWorking{*this, L"lblWorking", L"Retrieving information from Corvane..."};
};

}  // namespace ui
