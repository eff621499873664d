#pragma once

#include "tests/support/RoomBench.h"
#include "tests/ui/FilledDialog.h"
#include "tests/ui/RecordedActions.h"
#include "ui/frmPTA.h"

namespace ui {

/// The windowless desktop, with a look into the moments that matter to the dialog.
class WatchingDesktop : public support::FakeDesktop {
 public:
  /// While a box is up.
  std::function<void()> inBox;
  /// When a form has come up, before Show comes back.
  std::function<void()> onShown;

  int ShowBox(std::wstring_view text, int style, std::wstring_view title) override {
    const int answer = FakeDesktop::ShowBox(text, style, title);
    if (inBox) inBox();
    return answer;
  }
  void Show(Form& form) override {
    FakeDesktop::Show(form);
    if (onShown) onShown();
  }
};

struct DialogBench {
  DialogBench() { form.SetActions(actions); }

  /// The dialog as the agent finds it with nothing read into it.
  void ShowEmpty() {
    form.Form_Init();
    Display();
  }
  /// The dialog with every field right, and shown.
  void ShowFilled() {
    form.Form_Init();
    Fill();
    Display();
  }
  void Fill() { FillDialog(form); }
  void Display() { form.Form_Display(mco, general, tsts, L","); }
  void AddTST(const std::wstring& number, const std::wstring& fv, const std::wstring& fm) {
    tst::TSTInfo tst;
    tst.strTSTNum = number;
    tst.strFVElementValue = fv;
    tst.strFMElementValue = fm;
    tsts.Add(tst);
  }
  std::vector<std::wstring> TakeLog() { return std::exchange(desktop.log, {}); }

  support::RoomBench room;
  WatchingDesktop desktop;
  RecordedActions actions;
  pnr::MCOInfo mco;
  tst::TSTGeneral general;
  tst::TSTCollection tsts;
  frmPTA form{desktop, room.errors, room.runEnd};
};

using Lines = std::vector<std::wstring>;

inline std::wstring PlainBox(const std::wstring& text) {
  return L"box 0 \"  PTA Script \" \"" + text + L"\" -> 1";
}

}  // namespace ui
