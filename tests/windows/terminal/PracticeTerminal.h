#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "tests/windows/driver/Process.h"
#include "tests/windows/terminal/Terminal.h"

namespace terminal {

/// A practice terminal with its window, in a process of its own, and the trainer's desk in it. The
/// calling thread has its COM apartment. Throws driver::DriverError or client::Failure.
class PracticeTerminal {
 public:
  /// With this booking, by name or path; "" is the first one. Waits until scripts can use it.
  explicit PracticeTerminal(const std::wstring& booking = L"");
  /// Closes it.
  ~PracticeTerminal();
  PracticeTerminal(const PracticeTerminal&) = delete;
  PracticeTerminal& operator=(const PracticeTerminal&) = delete;

  /// As its close box does, and waits for its end. Not killed: the system may go on offering the
  /// classes of a process that did not take them back.
  void Close();
  /// As the task manager does.
  void Kill();
  bool IsRunning() const { return process_.IsRunning(); }
  HWND window() const { return window_; }

  void Load(const std::wstring& booking);
  std::wstring PnrText() const;
  /// What the host was asked, in order, since the booking was opened.
  std::vector<std::wstring> Entries() const;
  std::wstring Transcript() const;
  void ForgetTranscript();
  /// The bytes in use on its heaps.
  long UsedHeap() const;
  /// The program that attached last: its progress form's caption and text, its title, folder and
  /// instance, a line each.
  std::wstring Attached() const;
  /// How many entries have arrived, with the one that waits for its answer.
  int EntryCount() const;
  /// Every entry takes this long.
  void SlowDown(int milliseconds);
  /// The next entry is number 1.
  void RefuseEntry(int number, const std::wstring& reason);
  /// This entry takes so long, or until the host is told to behave well; counted from now on.
  void HoldEntry(int number, std::chrono::milliseconds time);
  void BehaveWell();
  void DropSession(bool answerOnly);
  /// The terminal's process ends in the middle of this entry, counted from now on.
  void DieInEntry(int number);

 private:
  HWND window_;
  /// Not always the one that was started: a server without a window shows its own when it is asked.
  driver::Process process_;
};

/// Waits until scripts can use a terminal that is open or about to be, and gives its window. Throws
/// driver::DriverError.
HWND WaitUntilOpen();

/// The classes of a terminal are in the registry in its lifetime.
class Registered {
 public:
  /// Throws driver::DriverError.
  explicit Registered(std::wstring program = Program());
  ~Registered();
  Registered(const Registered&) = delete;
  Registered& operator=(const Registered&) = delete;

 private:
  std::wstring program_;
};

/// ... and are not in its lifetime.
class Unregistered {
 public:
  Unregistered();
  ~Unregistered();
  Unregistered(const Unregistered&) = delete;
  Unregistered& operator=(const Unregistered&) = delete;
};

}  // namespace terminal
