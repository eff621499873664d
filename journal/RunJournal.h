#pragma once

#include "hostlib/Interposer.h"
#include "journal/JournalDesktop.h"
#include "journal/JournalHook.h"
#include "journal/JournalSwitch.h"

namespace journal {

/// The journal of one run, from before there is a library. Give the run this library and this
/// desktop; both do what the real ones do. Where no journal is wanted they are the real ones. Must
/// outlive every library object of the run.
class RunJournal {
 public:
  /// Where and when a journal is written, and by what.
  struct Place {
    const platform::Platform& platform;
    Folder& folder;
    const Clock& clock;
    std::wstring version;
  };

  RunJournal(ui::Desktop& desktop, const Place& place);
  /// A run that gave no exit code was broken off.
  ~RunJournal();
  RunJournal(const RunJournal&) = delete;
  RunJournal& operator=(const RunJournal&) = delete;

  ui::Desktop& desktop() { return desktop_; }
  /// The journal's library before the run's one library.
  hostlib::Library& Before(hostlib::Library& library);

  /// The run has ended with this exit code, which is given back.
  int Ended(int exitCode) noexcept;

 private:
  class Book;
  static std::unique_ptr<Book> Begin(ui::Desktop& desktop, const Place& place) noexcept;

  std::unique_ptr<Book> book_;  ///< null when no journal is written
  ui::Desktop& desktop_;
};

}  // namespace journal
