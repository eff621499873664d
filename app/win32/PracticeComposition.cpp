#include "app/win32/PracticeComposition.h"

#include "app/win32/resources.h"
#include "common/Text.h"

namespace app {

namespace {

std::wstring BesideProgram(const platform::Platform& machine, const wchar_t* name) {
  return machine.ProgramFolder() + L"\\" + name;
}

std::wstring OrdinaryBooking(HINSTANCE instance) {
  const HRSRC place = FindResourceW(instance, MAKEINTRESOURCEW(IDR_ORDINARY_BOOKING), RT_RCDATA);
  const auto* bytes = static_cast<const char*>(LockResource(LoadResource(instance, place)));
  return common::FromUtf8({bytes, SizeofResource(instance, place)});
}

/// Milliseconds an entry.
int PaceOf(std::wstring_view booking) {
  constexpr std::wstring_view kPace = L"# PACE ";
  const std::size_t at = booking.find(kPace);
  if (at == booking.npos) return 0;
  return static_cast<int>(std::wcstol(booking.data() + at + kPace.size(), nullptr, 10));
}

}  // namespace

PracticeComposition::PracticeComposition(HINSTANCE instance, const platform::Platform& machine,
                                         ui::Desktop& desktop)
    : log_(OpenFile(BesideProgram(machine, L"practice.log"), L"wb")),
      library_({host_, machine, profiles_, userValues_, desktop}) {
  const std::wstring booking =
      ReadTextFile(BesideProgram(machine, L"practice.pnr")).value_or(OrdinaryBooking(instance));
  host_.LoadBooking(booking);
  if (const int pace = PaceOf(booking); pace > 0) {
    host_.faults.slow = [&desktop, pace](int) {
      const ui::InputGate::Shut shut(desktop.input());
      desktop.Pause(std::chrono::milliseconds(pace));
    };
  }
  Note(L"PNR before", host_.PnrText());
  host_.listener = [this](std::wstring_view entry, std::wstring_view answer) {
    Note(L"> " + std::wstring(entry), answer);
  };
}

PracticeComposition::~PracticeComposition() { Note(L"PNR after", host_.PnrText()); }

void PracticeComposition::Note(std::wstring_view heading, std::wstring_view text) {
  if (!log_) return;
  const std::string note =
      common::ToUtf8(std::wstring(heading) + L"\r\n" + std::wstring(text) + L"\r\n\r\n");
  std::fwrite(note.data(), 1, note.size(), log_.get());
  std::fflush(log_.get());
}

}  // namespace app
