#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace hostlib::com {

/// What is registered to make objects of a class.
struct ClassServer {
  std::wstring path;
  bool isLibrary = false;  ///< loaded into this program; else a program of its own

  bool operator==(const ClassServer&) const = default;
};

/// The rights that programs run with, and what is registered, as far as the link wants to know it.
class Machine {
 public:
  virtual ~Machine() = default;
  virtual bool IsThisProgramElevated() const = 0;
  /// Both those of 64-bit and of 32-bit programs.
  virtual std::vector<ClassServer> ServersOf(const CLSID& classId) const = 0;
  /// The programs that run in the agent's session with more rights than are shown to us: their
  /// paths, or file names where not more is told.
  virtual std::vector<std::wstring> ElevatedPrograms() const = 0;
};

/// The one that this program runs on.
class ThisMachine : public Machine {
 public:
  bool IsThisProgramElevated() const override;
  std::vector<ClassServer> ServersOf(const CLSID& classId) const override;
  std::vector<std::wstring> ElevatedPrograms() const override;
};

/// An object of the class could not be made because its terminal runs with rights that this program
/// does not have. A terminal that brings its library as a DLL is known by its folder: the DLL's.
bool IsOutOfReach(const Machine& machine, const CLSID& classId, HRESULT failure);

/// The program in a registered command line: C:\A B\X.exe /y, "C:\A B\X.exe" /y, X.exe.
std::wstring ProgramIn(const std::wstring& commandLine);

}  // namespace hostlib::com
