#pragma once

#include "tests/support/RoomBench.h"
#include "tests/ui/RecordedActions.h"
#include "tests/windows/driver/Person.h"
#include "ui/frmPTA.h"
#include "ui/win32/WindowsDesktop.h"
#include "ui/win32/resource.h"

namespace ui {

/// The dialog in its real window on the real desktop, without the rest of the program: what it sets
/// going is written down. A person acts on it from a thread of its own.
class DialogStage : private common::RunEnd {
 public:
  DialogStage();
  ~DialogStage() override;
  DialogStage(const DialogStage&) = delete;
  DialogStage& operator=(const DialogStage&) = delete;

  /// Initialises the dialog, has `fill` fill it, displays it and runs the desktop while `acts`
  /// acts. What ends the run comes out.
  void Run(const std::function<void()>& fill, const std::function<void()>& acts);
  /// The same with every field right.
  void RunFilled(const std::function<void()>& acts);

  /// Every box ticked that has something behind it, so that every control can take the focus.
  void RunWithEverythingOn(const std::function<void()>& acts);
  void AddTST(const std::wstring& fv, const std::wstring& fm);

  // For the person.
  HWND window() const;
  HWND Item(int id) const;
  HWND Item(std::wstring_view name) const;
  std::wstring Text(int id) const;
  std::wstring Status() const;
  /// Puts the focus there, as a click with the mouse would, but without clicking anything.
  void GoTo(HWND control) const;
  void GoTo(int id) const { GoTo(Item(id)); }
  /// Presses keys one after the other in this control.
  void Type(int id, std::wstring_view keys) const;
  /// For a person whose last act ends the run.
  void WaitForTheEnd() const { person_.WaitForTheEnd(); }

  support::RoomBench room;
  RecordedActions actions;
  WindowsDesktop desktop;
  pnr::MCOInfo mco;
  tst::TSTGeneral general;
  tst::TSTCollection tsts;
  frmPTA form{desktop, room.errors, *this};

 private:
  // Ends the run the way the program does.
  void UnloadForms() override;
  [[noreturn]] void EndScript() override;
  [[noreturn]] void EndAtOnce() override;

  driver::Person person_;
};

}  // namespace ui
