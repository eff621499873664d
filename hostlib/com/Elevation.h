#pragma once

#include <windows.h>

#include <string>

namespace hostlib::com {

bool IsThisProgramElevated();

/// The file name, without its folder, of the program that is registered to make objects of the
/// class; "" when a library inside this process makes them.
std::wstring LocalServerOf(const CLSID& classId);

/// A program of that file name runs in the agent's session with more rights than are shown to us.
bool RunsElevated(const std::wstring& fileName);

/// The file name in a registered command line: C:\A B\X.exe /y, "C:\A B\X.exe" /y, X.exe.
std::wstring ProgramIn(const std::wstring& commandLine);

}  // namespace hostlib::com
