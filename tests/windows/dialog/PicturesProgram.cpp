// Takes the pictures of the dialog for the user guide.
//
//   dialog_pictures FOLDER     NAME.bmp for each of them

#include <windows.h>

#include <cstdio>

#include "tests/ui/FilledDialog.h"
#include "tests/windows/dialog/DialogStage.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/driver/Picture.h"

namespace ui {

namespace {

/// The caret stays as it is while pictures are taken, so that two of the same look the same.
class SteadyCaret {
 public:
  SteadyCaret() : before_(GetCaretBlinkTime()) { SetCaretBlinkTime(kAnHour); }
  ~SteadyCaret() { SetCaretBlinkTime(before_); }
  SteadyCaret(const SteadyCaret&) = delete;
  SteadyCaret& operator=(const SteadyCaret&) = delete;

 private:
  static constexpr UINT kAnHour = 60 * 60 * 1000;
  UINT before_;
};

void FillAll(DialogStage& stage) {
  FillDialog(stage.form);
  stage.form.txtPTA.SetText(L"SEK1000/TAX SEK120XT, SEK40YQ");
  stage.form.chkPrintPNR.SetValue(true);
  stage.form.chkOP.SetValue(true);
  stage.form.txtOPText.SetText(L"CHECK IF TICKET OK");
  stage.form.chkBOD.SetValue(true);
  stage.form.txtRMBODInfo.SetText(L"PAID BY CARD");
}

class Pictures {
 public:
  explicit Pictures(std::wstring folder) : folder_(std::move(folder)) {}

  void Empty() const {
    DialogStage stage;
    stage.mco.dblMCOFee = 0;
    stage.Run([] {}, [&] { Take(stage, L"dialog-empty"); });
  }
  void Filled() const {
    DialogStage stage;
    stage.Run([&] { FillAll(stage); }, [&] { Take(stage, L"dialog-filled"); });
  }
  void WithoutQueueing() const {
    DialogStage stage;
    const auto fill = [&] {
      FillAll(stage);
      stage.form.txtQueueingOfficeID.SetText(L"");
    };
    stage.Run(fill, [&] { Take(stage, L"dialog-queue-off"); });
  }
  void WithAWarning() const {
    DialogStage stage;
    stage.AddTST(L"LH", L"10");
    const auto acts = [&] {
      driver::WaitForFocusWithin(driver::WindowNamed(common::kTitle));
      Save(stage, L"dialog-warning");
    };
    stage.Run([&] { FillAll(stage); }, acts);
  }

 private:
  void Take(const DialogStage& stage, const std::wstring& name) const {
    driver::WaitForFocusWithin(stage.window());
    Save(stage, name);
  }
  void Save(const DialogStage& stage, const std::wstring& name) const {
    driver::SavePicture(stage.window(), folder_ + L"\\" + name + L".bmp");
  }

  std::wstring folder_;
};

}  // namespace

}  // namespace ui

int wmain(int count, wchar_t** arguments) {
  if (count != 2) {
    std::puts("usage: dialog_pictures FOLDER");
    return 2;
  }
  try {
    const ui::SteadyCaret caret;
    const ui::Pictures pictures(arguments[1]);
    pictures.Empty();
    pictures.Filled();
    pictures.WithoutQueueing();
    pictures.WithAWarning();
    return 0;
  } catch (const std::exception& error) {
    std::puts(error.what());
  }
  return 1;
}
