#pragma once

// The second does not stand alone.
// clang-format off
#include <windows.h>
#include <commctrl.h>
// clang-format on
