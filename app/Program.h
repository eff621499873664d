#pragma once

#include "hostlib/Object.h"
#include "platform/Platform.h"
#include "ui/controls/Desktop.h"

namespace app {

/// One run of the program, from its entry procedure to its end. Lets no exception of the program's
/// own out; gives the process's exit code: 0, or 1 after a failure that nobody expected.
int RunProgram(hostlib::Library& library, ui::Desktop& desktop, const platform::Platform& platform);

}  // namespace app
