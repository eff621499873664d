#pragma once

#include <windows.h>

/// The least that a program with a dialog shows, of this template; returns when the dialog is
/// closed.
int ShowMinimalDialog(HINSTANCE instance, const wchar_t* dialog = L"MINIMAL");
