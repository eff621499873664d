#pragma once

#include "platform/Platform.h"

namespace journal {

/// Whether this machine's PTA_QX.ini lets journals be written: "Journal" in section "Settings" is
/// not "No", in whatever case.
bool IsWanted(const platform::Platform& platform);

}  // namespace journal
