#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/frmPTA.h"

namespace ui {

/// What the dialog sets going, written down.
class RecordedActions : public PTADialogActions {
 public:
  std::vector<std::wstring> calls;
  std::function<void()> inLoad;
  std::function<void()> inSave;
  std::function<void()> inRun;

  void LoadSettings() override { Note(L"load", inLoad); }
  void SaveSettings() override { Note(L"save", inSave); }
  void StartUpdateRun() override { Note(L"run", inRun); }
  void ReleaseSession() override { Note(L"release session", nullptr); }

 private:
  void Note(const wchar_t* call, const std::function<void()>& then) {
    calls.push_back(call);
    if (then) then();
  }
};

}  // namespace ui
