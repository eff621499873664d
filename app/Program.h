#pragma once

#include "common/Body.h"
#include "hostlib/Object.h"
#include "platform/Platform.h"
#include "ui/controls/Desktop.h"

namespace app {

/// Does `work`. An exception of the program's own in it is told in a box.
void TellFailures(common::MessageBoxes& boxes, common::Body work);

/// One run of the program, from its entry procedure to its end. Lets nothing out but what is
/// no std::exception; gives the process's exit code: 0, or 1 after a failure that nobody expected.
int RunProgram(hostlib::Library& library, ui::Desktop& desktop, const platform::Platform& platform);

}  // namespace app
