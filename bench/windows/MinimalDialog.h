#pragma once

#include <windows.h>

/// The least that a program with a dialog shows; returns when the dialog is closed.
int ShowMinimalDialog(HINSTANCE instance);
