#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <mutex>

#include "common/ConstDefintions.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/driver/Person.h"
#include "ui/win32/WindowsDesktop.h"
#include "ui/win32/resource.h"

namespace ui {

/// Has one of everything.
class frmTest : public Form {
 public:
  frmTest() : Form(L"frmTest") { SetCaption(L"The test form"); }

  Label lblPwct{*this, L"lblPwct", L"P&WCT:"};
  TextBox txtPWCT{*this, L"txtPWCT"};
  Label lblPTATotal{*this, L"lblPTATotal", L"&PTA Total:"};
  TextBox txtPTA{*this, L"txtPTA"};
  CheckBox chkOP{*this, L"chkOP", L"PNR Follow Up"};
  ListBox lstTST{*this, L"lstTST", ListBox::Selection::kMultiple};
  Button cmdOK{*this, L"cmdOK", L"OK"};
  Button cmdCancel{*this, L"cmdCancel", L"Cancel"};
  Timer tmrWait{*this, L"tmrWait"};
  StatusBar staStatusText{*this, L"staStatusText"};

  int closeAsked = 0;
  void OnCloseBox() override { ++closeAsked; }

  std::function<void(const Control&)> whenLost;
  std::function<void(const Control&)> whenGot;
  std::function<void(const Control&, int)> whenKeyDown;
  void OnLostFocus(Control& control) override {
    if (whenLost) whenLost(control);
  }
  void OnGotFocus(Control& control) override {
    if (whenGot) whenGot(control);
  }
  void OnKeyDown(Control& control, int key) override {
    if (whenKeyDown) whenKeyDown(control, key);
  }
};

/// Has a default button, and closes by it and by its close box.
class frmInner : public Form {
 public:
  frmInner() : Form(L"frmInner") {
    SetCaption(L"The inner form");
    btnOK.onClick = [this] { Hide(); };
  }
  TextBox txtOPText{*this, L"txtOPText"};
  Button btnOK{*this, L"btnOK", L"OK"};
  void OnCloseBox() override { Unload(); }
};

class frmInnermost : public Form {
 public:
  frmInnermost() : Form(L"frmInnermost") { SetCaption(L"The innermost form"); }
  Button btnCancel{*this, L"btnCancel", L"Cancel"};
};

/// A real desktop with the test form on it, and a person before it.
class BinderBench : public testing::Test {
 protected:
  /// Shows the form and runs the desktop while `acts` acts on the form's window. What the handlers
  /// throw comes out. The form is hidden afterwards.
  void Run(const std::function<void(HWND)>& acts) {
    const HiddenAtEnd hidden(form);
    person_.Run(
        [this] {
          desktop.Show(form);
          desktop.Run();
        },
        [&] { acts(driver::WindowNamed(L"The test form")); });
  }
  /// For a person whose last act makes the desktop's loop end by itself.
  void WaitForTheEnd() { person_.WaitForTheEnd(); }
  HWND Item(HWND window, int id) { return driver::Item(window, id); }

  void Log(std::wstring_view line) {
    const std::lock_guard lock(mutex_);
    log_.emplace_back(line);
  }
  std::vector<std::wstring> log() {
    const std::lock_guard lock(mutex_);
    return log_;
  }

  WindowsDesktop desktop{GetModuleHandleW(nullptr), L"Default"};
  frmTest form;

 private:
  class HiddenAtEnd {
   public:
    explicit HiddenAtEnd(Form& form) : form_(form) {}
    ~HiddenAtEnd() { form_.Hide(); }
    HiddenAtEnd(const HiddenAtEnd&) = delete;
    HiddenAtEnd& operator=(const HiddenAtEnd&) = delete;

   private:
    Form& form_;
  };

  driver::Person person_;
  std::mutex mutex_;
  std::vector<std::wstring> log_;
};

}  // namespace ui
