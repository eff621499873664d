#include "practice/terminal/OfferedLibrary.h"

#include <windows.h>

#include "practice/library/PracticeObject.h"
#include "practice/terminal/Texts.h"
#include "practice/terminal/UsedHeap.h"
#include "practice/terminal/Waiting.h"

namespace practice::terminal {
namespace {

using hostlib::Arguments;
using hostlib::Value;

constexpr std::wstring_view kDeskClass = L"PracticeDesk";

/// The desk by slots, as any object of the library.
class DeskObject : public PracticeObject {
 public:
  DeskObject(Desk& desk, const PracticeLibrary& library, const Exporter& exporter)
      : PracticeObject(kDeskClass, nullptr) {
    OnSlot(7, [&exporter](const Arguments&) {
      return Value(static_cast<std::int32_t>(exporter.Live()));
    });
    OnSlot(8, [&desk](const Arguments& a) {
      desk.LoadBooking(a[0].Text(), texts::kStatusOfAProgram);
      return Value();
    });
    OnSlot(9, [&desk](const Arguments&) { return Value(desk.PnrText()); });
    OnSlot(10, [&desk](const Arguments&) { return Value(desk.transcript()); });
    OnSlot(11, [&desk](const Arguments& a) {
      desk.RefuseEntry(1, a[0].Text());
      return Value();
    });
    OnSlot(17, [&desk](const Arguments& a) {
      desk.RefuseEntry(a[0].Long(), a[1].Text());
      return Value();
    });
    OnSlot(12, [&desk](const Arguments& a) {
      desk.DropSession(a[0].Flag());
      return Value();
    });
    OnSlot(13, [&desk](const Arguments&) {
      desk.BehaveWell();
      return Value();
    });
    OnSlot(14, [&desk](const Arguments& a) {
      const std::chrono::milliseconds time(a[0].Long());
      desk.SlowDown([time] { WaitAlive(time); });
      return Value();
    });
    OnSlot(16, [&desk](const Arguments& a) {
      const int last = desk.EntryCount() + a[0].Long();
      desk.SlowDown([&desk, last] {
        if (desk.EntryCount() >= last) TerminateProcess(GetCurrentProcess(), 1);
      });
      return Value();
    });
    OnSlot(18, [&library](const Arguments&) {
      const AttachedProgram& program = library.attached();
      return Value(program.caption + L"\n" + program.text + L"\n" + program.title + L"\n" +
                   program.folder + L"\n" + std::to_wstring(program.instance));
    });
    OnSlot(19, [&desk](const Arguments& a) {
      const int held = desk.EntryCount() + a[0].Long();
      const std::chrono::milliseconds time(a[1].Long());
      desk.SlowDown([&desk, held, time] {
        if (desk.EntryCount() == held) WaitAlive(time, [&desk] { return !desk.IsSlow(); });
      });
      return Value();
    });
    OnSlot(20, [](const Arguments&) { return Value(static_cast<std::int32_t>(UsedHeap())); });
    OnSlot(21, [&desk](const Arguments&) {
      desk.ForgetTranscript();
      return Value();
    });
    OnSlot(15, [&desk](const Arguments&) {
      return Value(static_cast<std::int32_t>(desk.EntryCount()));
    });
  }
};

}  // namespace

hostlib::ObjectPtr OfferedLibrary::Create(std::wstring_view className) {
  if (className == kDeskClass) return std::make_shared<DeskObject>(desk_, library_, exporter_);
  return library_.Create(className);
}

}  // namespace practice::terminal
