#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tests/windows/driver/WindowAgent.h"

namespace driver {

/// The product in a folder of its own, with the ordinary booking and its settings, on a day on
/// which it has not run yet.
class Stage {
 public:
  Stage();

  void SetBooking(const std::wstring& booking);
  /// The ordinary booking, with a host that takes this many milliseconds an entry.
  void SetPace(int milliseconds);
  Program& Start();
  Program& program() { return *program_; }
  /// Starts the program and has a written agent do its lines, or the agent of this name.
  void Work(const std::wstring& lines);
  void WorkLikeTheOrdinaryAgent();

  /// What the host was asked, in order; without the first, that for the office.
  std::vector<std::wstring> Entries() const;
  std::wstring PnrBefore() const;
  std::wstring PnrAfter() const;
  std::wstring Ini() const;

 private:
  std::wstring Note(std::wstring_view heading) const;

  std::wstring folder_;
  std::unique_ptr<Program> program_;
};

/// A file of the checkout, with "\n" as line end.
std::wstring ProjectFile(const std::wstring& path);

}  // namespace driver
