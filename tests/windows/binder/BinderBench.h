#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <mutex>

#include "common/ConstDefintions.h"
#include "tests/windows/driver/Driver.h"
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
  /// Shows the form and runs the desktop while `person` acts, on a thread of its own, with the
  /// form's window. What the handlers throw comes out; what went wrong for the person too. The form
  /// is hidden when the person is done.
  void Run(const std::function<void(HWND)>& person) {
    desktop.Show(form);
    const DWORD mainThread = GetCurrentThreadId();
    auto acting = std::async(std::launch::async, [&] {
      const QuitAtEnd quit(mainThread);
      person(driver::WindowNamed(L"The test form"));
    });
    std::exception_ptr thrown;
    try {
      desktop.Run();
    } catch (...) {
      thrown = std::current_exception();
    }
    ended_ = true;
    acting.wait();
    MSG quit;
    while (PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
    }
    form.Hide();
    try {
      acting.get();
    } catch (const driver::DriverError& error) {
      ADD_FAILURE() << error.what();
    }
    if (thrown) std::rethrow_exception(thrown);
  }
  /// For a person whose last act makes the desktop's loop end by itself.
  void WaitForTheEnd() {
    driver::WaitUntil(L"the loop has ended", [this] { return ended_.load(); });
  }
  HWND Item(HWND window, int id) { return driver::Item(window, id); }

  void Log(std::wstring line) {
    const std::lock_guard lock(mutex_);
    log_.push_back(std::move(line));
  }
  std::vector<std::wstring> log() {
    const std::lock_guard lock(mutex_);
    return log_;
  }

  WindowsDesktop desktop{GetModuleHandleW(nullptr), L"Default"};
  frmTest form;

 private:
  /// Ends the desktop's loops when the person is done, or gives up.
  class QuitAtEnd {
   public:
    explicit QuitAtEnd(DWORD thread) : thread_(thread) {}
    ~QuitAtEnd() { PostThreadMessageW(thread_, WM_QUIT, 0, 0); }
    QuitAtEnd(const QuitAtEnd&) = delete;
    QuitAtEnd& operator=(const QuitAtEnd&) = delete;

   private:
    DWORD thread_;
  };

  std::atomic<bool> ended_ = false;
  std::mutex mutex_;
  std::vector<std::wstring> log_;
};

}  // namespace ui
