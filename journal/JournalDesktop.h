#pragma once

#include "journal/PaymentFields.h"
#include "journal/Writer.h"
#include "ui/controls/Desktop.h"

namespace journal {

/// A desktop before another one, which does everything; this one writes down the boxes with their
/// answers, and the windows.
class JournalDesktop : public ui::Desktop {
 public:
  JournalDesktop(ui::Desktop& inner, Writer& writer, const Clock& clock, PaymentFields& fields)
      : Desktop(inner.input()), inner_(inner), writer_(writer), clock_(clock), fields_(fields) {}

  void Show(ui::Form& form) override;
  void ShowModal(ui::Form& form) override;
  void Refresh(ui::Form& form) override { inner_.Refresh(form); }
  void Beep() override { inner_.Beep(); }
  void Pause(std::chrono::milliseconds time) override { inner_.Pause(time); }
  void Run() override { inner_.Run(); }
  int ShowBox(std::wstring_view text, int style, std::wstring_view title) override;

 private:
  ui::Desktop& inner_;
  Writer& writer_;
  const Clock& clock_;
  PaymentFields& fields_;
};

}  // namespace journal
