#pragma once

#include "tests/support/RoomBench.h"
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
  void Fill() {
    form.txtMCONumber.SetText(L"4012345678");
    form.txtAirlinePrefix.SetText(L"117");
    form.txtCarrier.SetText(L"SK");
    form.txtFormOfPayment.SetText(L"CASH");
    form.txtCommission.SetText(L"10");
    form.txtCityCode.SetText(L"STO");
    form.txtIATANumber.SetText(L"80246878");
    form.txtPWCT.SetText(L"SK AT ARN A/P BEFORE DEPARTURE");
    form.txtPTA.SetText(L"SEK1000/TAX SEK120XT");
    form.txtQueueingOfficeID.SetText(L"STOSK08AA");
  }
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
