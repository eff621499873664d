#pragma once

#include <windows.h>

#include "app/win32/TextFile.h"
#include "practice/host/Host.h"
#include "practice/library/PracticeLibrary.h"
#include "practice/library/win32/RegistryUserValues.h"
#include "practice/library/win32/WindowsProfiles.h"
#include "ui/controls/Desktop.h"

namespace app {

/// The practice host and its script library within the program itself, until the program is linked
/// to a terminal. The PNR is that of `practice.pnr` beside the program, or the ordinary booking.
/// What the host is asked and answers goes into `practice.log` beside the program. A booking with
/// a line "# PACE n" makes every entry take n milliseconds, so that a person can follow.
class PracticeComposition {
 public:
  /// Throws practice::BookingError.
  PracticeComposition(HINSTANCE instance, const platform::Platform& machine, ui::Desktop& desktop);
  /// Notes the PNR as the run has left it.
  ~PracticeComposition();
  PracticeComposition(const PracticeComposition&) = delete;
  PracticeComposition& operator=(const PracticeComposition&) = delete;

  hostlib::Library& library() { return library_; }

 private:
  void Note(std::wstring_view heading, std::wstring_view text);

  FileHandle log_;
  practice::Host host_;
  practice::WindowsProfiles profiles_;
  practice::RegistryUserValues userValues_;
  practice::PracticeLibrary library_;
};

}  // namespace app
