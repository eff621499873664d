#pragma once

#include "practice/terminal/TypeLibrary.h"

namespace practice::terminal {

/// This program's entries in the registry, by which scripts find its classes: for the user, and for
/// the whole machine where the system does not look at the user's own.
class Registration {
 public:
  explicit Registration(const TypeLibrary& types) : types_(types), program_(ProgramPath()) {}

  /// Leaves the names that another library has taken. False when scripts would not come to this
  /// program afterwards.
  bool Register() const;
  /// Leaves the names that another library has taken, and what another copy of this program has
  /// registered, as long as that is there.
  void Unregister() const;

 private:
  bool WriteClasses(HKEY root) const;
  bool IsFound() const;
  std::wstring CommandLine() const;
  bool IsAnothers(const std::wstring& program) const;
  bool IsTypeLibraryAnothers() const;

  const TypeLibrary& types_;
  std::wstring program_;
};

}  // namespace practice::terminal
