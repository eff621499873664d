#pragma once

#include <deque>
#include <string>
#include <vector>

#include "common/ConstDefintions.h"
#include "common/Text.h"
#include "ui/controls/WindowlessDesktop.h"

namespace support {

/// A desktop without windows: writes down what happens, and answers boxes as the test said (OK
/// when it said nothing). Focus moves at once. `log` lines:
///   show frmWorking | modal frmSelectMCO | close frmPTA | refresh frmWorking | beep | pause 100
///   box 33 "  PTA Script " "text" -> 1
class FakeDesktop : public ui::WindowlessDesktop {
 public:
  std::vector<std::wstring> log;
  std::deque<int> answers;
  /// What the agent does in a modal form; when it leaves the form visible, the form is hidden.
  std::function<void(ui::Form&)> inModal;

  void Show(ui::Form& form) override {
    if (!form.Load()) return;
    log.push_back(common::Joined({L"show ", form.name()}));
    form.Shown(*this);
  }
  void ShowModal(ui::Form& form) override {
    if (!form.Load()) return;
    log.push_back(common::Joined({L"modal ", form.name()}));
    form.Shown(*this);
    if (inModal) inModal(form);
    form.Hide();
  }
  void Refresh(ui::Form& form) override {
    log.push_back(common::Joined({L"refresh ", form.name()}));
  }
  void Beep() override { log.push_back(L"beep"); }
  void Pause(std::chrono::milliseconds time) override {
    log.push_back(L"pause " + std::to_wstring(time.count()));
  }
  void Run() override { log.push_back(L"run"); }
  int ShowBox(std::wstring_view text, int style, std::wstring_view title) override {
    int answer = common::kOk;
    if (!answers.empty()) {
      answer = answers.front();
      answers.pop_front();
    }
    log.push_back(L"box " + std::to_wstring(style) + L" \"" + std::wstring(title) + L"\" \"" +
                  std::wstring(text) + L"\" -> " + std::to_wstring(answer));
    return answer;
  }
  void FormClosed(ui::Form& form) override {
    log.push_back(common::Joined({L"close ", form.name()}));
  }
};

}  // namespace support
