#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "practice/rehearsal/Rehearsal.h"
#include "tests/windows/driver/WindowAgent.h"
#include "tests/windows/terminal/PracticeTerminal.h"

namespace driver {

/// The product in a folder of its own with its settings, on a day on which it has not run yet, and
/// a practice terminal with the ordinary booking; none when the pointer is null.
class Stage {
 public:
  using TerminalPtr = std::shared_ptr<terminal::PracticeTerminal>;
  explicit Stage(TerminalPtr terminal = std::make_shared<terminal::PracticeTerminal>());
  /// Nothing of the program may be left in a terminal that runs.
  ~Stage();

  void SetBooking(const std::wstring& booking) { terminal().Load(booking); }
  /// The scene's booking, INI file and stored office.
  void Set(const practice::RehearsalScene& scene);
  /// The host takes this many milliseconds an entry.
  void SetPace(int milliseconds) { terminal().SlowDown(milliseconds); }
  Program& Start();
  Program& program() { return *program_; }
  terminal::PracticeTerminal& terminal() { return *terminal_; }
  void CloseTerminal() { terminal_ = nullptr; }
  void OpenTerminal() { terminal_ = std::make_shared<terminal::PracticeTerminal>(); }
  /// Starts the program and has a written agent do its lines.
  void Work(const std::wstring& lines);
  void WorkLikeTheOrdinaryAgent();
  /// The exit code of a program that asks for nothing more; it may have all its writing to do, on a
  /// busy machine.
  DWORD ExitCode() const;
  /// That of a program that has nothing left to do: it ends within 5 seconds.
  DWORD ExitCodeSoon() const;

  /// What the host was asked, in order; without the first, which is for the office.
  std::vector<std::wstring> Entries() const;
  std::wstring PnrAfter() const { return WithLineFeeds(terminal_->PnrText()); }
  std::wstring Ini() const;
  /// More of the settings file.
  void AddToIni(const std::wstring& lines);

  static std::wstring WithLineFeeds(std::wstring text);

 private:
  DWORD ExitCodeWithin(std::chrono::seconds time) const;
  TerminalPtr terminal_;
  std::wstring folder_;
  std::unique_ptr<Program> program_;
};

/// A file of the checkout, with "\n" as line end.
std::wstring ProjectFile(const std::wstring& path);

}  // namespace driver
