#include <future>

#include "tests/windows/terminal/TerminalBench.h"

namespace {

using client::Call;
using client::ComPtr;
using client::Failure;
using client::Variant;
using testing::HasSubstr;

std::vector<Variant> One(Variant argument) {
  std::vector<Variant> arguments;
  arguments.push_back(std::move(argument));
  return arguments;
}

using TerminalWindow = terminal::TerminalBench;

TEST_F(TerminalWindow, SaysThatThisIsPractice) {
  EXPECT_THAT(driver::TextOf(window_), HasSubstr(L"PRACTICE"));
  EXPECT_THAT(Status(), HasSubstr(L"PRACTICE - no real host"));
}

TEST_F(TerminalWindow, ShowsAnEntryThatIsTypedAndItsAnswer) {
  Enter(L"RT");
  EXPECT_TRUE(Shows(L"> RT\r\n"));
  EXPECT_TRUE(Shows(L"SMITH/JOHN MR"));
  EXPECT_EQ(driver::TextOf(Entry()), L"");
}

TEST_F(TerminalWindow, TheArrowKeysBringEarlierEntriesBack) {
  Enter(L"RT");
  Enter(L"PV");
  driver::Press(Entry(), VK_UP);
  EXPECT_TRUE(driver::Holds([this] { return driver::TextOf(Entry()) == L"PV"; }));
  driver::Press(Entry(), VK_UP);
  EXPECT_TRUE(driver::Holds([this] { return driver::TextOf(Entry()) == L"RT"; }));
  driver::Press(Entry(), VK_DOWN);
  EXPECT_TRUE(driver::Holds([this] { return driver::TextOf(Entry()) == L"PV"; }));
}

TEST_F(TerminalWindow, ShowsWhatAScriptEnters) {
  EXPECT_THAT(Send(L"OS SK PTA"), HasSubstr(L"OS SK PTA"));
  EXPECT_TRUE(Shows(L"> OS SK PTA\r\n"));
}

TEST_F(TerminalWindow, CountsTheObjectsOfScripts) {
  EXPECT_TRUE(Says(L"Objects in use: 0"));
  {
    const auto bag = client::Bag();
    EXPECT_TRUE(Says(L"Objects in use: 1"));
  }
  EXPECT_TRUE(Says(L"Objects in use: 0"));
}

TEST_F(TerminalWindow, ASecondStartShowsTheRunningOneAndOpensItsBookingThere) {
  EXPECT_EQ(driver::Process(terminal::Program(), L"document-on-its-way").ExitCode(), 0U);
  EXPECT_THAT(Status(), HasSubstr(L"Booking: document-on-its-way"));
  EXPECT_EQ(terminal::Running(), 1);
}

TEST_F(TerminalWindow, ASecondStartWithoutABookingLeavesTheOneInUse) {
  EXPECT_EQ(driver::Process(terminal::Program(), L"document-on-its-way").ExitCode(), 0U);
  EXPECT_EQ(driver::Process(terminal::Program(), L"").ExitCode(), 0U);
  EXPECT_THAT(Status(), HasSubstr(L"Booking: document-on-its-way"));
}

TEST_F(TerminalWindow, StaysResponsiveWhileASlowHostAnswersAScript) {
  Choose(Command::kSlow);
  auto answer = std::async(std::launch::async, [] {
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    const std::wstring text = Send(L"RT");
    CoUninitialize();
    return text;
  });
  int looks = 0;
  while (answer.wait_for(std::chrono::milliseconds(50)) != std::future_status::ready) {
    DWORD_PTR result = 0;
    ASSERT_NE(SendMessageTimeoutW(window_, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, 1000, &result), 0);
    ++looks;
  }
  EXPECT_GT(looks, 10);
  EXPECT_THAT(answer.get(), HasSubstr(L"SMITH/JOHN MR"));
}

TEST_F(TerminalWindow, ClosingItEndsTheSessionsOfScripts) {
  const auto session = client::Make(L"TerminalSession");
  terminal_.Close();
  EXPECT_THROW(Call(*session.Get(), L"LoadPNR"), Failure);
}

// The host has taken the entry, so its answer is still given, at once; nothing after it is taken.
TEST_F(TerminalWindow, ClosingItInTheMiddleOfACallEndsTheCallWithItsAnswer) {
  const int before = terminal_.EntryCount();
  terminal_.SlowDown(60'000);
  auto answer = std::async(std::launch::async, [] {
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    std::wstring text;
    try {
      text = Send(L"RT");
    } catch (const Failure& failure) {
      text = L"failed with " + std::to_wstring(failure.result);
    }
    CoUninitialize();
    return text;
  });
  driver::WaitUntil(L"the host has the entry", [&] { return terminal_.EntryCount() > before; });
  EXPECT_EQ(answer.wait_for(std::chrono::seconds(0)), std::future_status::timeout);
  terminal_.Close();
  ASSERT_EQ(answer.wait_for(std::chrono::seconds(20)), std::future_status::ready);
  EXPECT_THAT(answer.get(), HasSubstr(L"SMITH/JOHN MR"));
  ComPtr<IDispatch> session;
  EXPECT_TRUE(FAILED(client::Make(L"TerminalSession", session)));
}

TEST_F(TerminalWindow, SaysWhatIsWrongWithABooking) {
  try {
    terminal_.Load(L"NM SMITH/JOHN MR\nNO SUCH ENTRY\n");
    FAIL() << "it was loaded";
  } catch (const Failure& failure) {
    EXPECT_THAT(failure.text, testing::StartsWith(L"Line 2: "));
  }
}

/// A script's call that shows a box, from another thread, until its box is answered.
class BoxOfAScript {
 public:
  explicit BoxOfAScript(const std::function<void(IDispatch& reporter)>& call)
      : shown_(std::async(std::launch::async, [call] {
          CoInitializeEx(nullptr, COINIT_MULTITHREADED);
          call(*client::Make(L"ScriptErrorReporter").Get());
          CoUninitialize();
        })) {}

  bool IsWaiting() const {
    return shown_.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
  }
  void Answer(HWND box) {
    PostMessageW(driver::OkButton(box), BM_CLICK, 0, 0);
    shown_.get();
  }

 private:
  std::future<void> shown_;
};

TEST_F(TerminalWindow, AnErrorBoxOfAScriptIsShownAndWaitedFor) {
  BoxOfAScript shown([](IDispatch& reporter) {
    std::vector<Variant> arguments = One(client::Number(7));
    arguments.push_back(client::Text(L"  A Title "));
    arguments.push_back(client::Text(L"One\rTwo"));
    arguments.push_back(client::Number(16));
    Call(reporter, L"ShowError", std::move(arguments));
  });
  const HWND box = driver::WindowNamed(L"  A Title ");
  EXPECT_EQ(driver::BoxText(box), L"One\nTwo");
  EXPECT_TRUE(shown.IsWaiting());
  shown.Answer(box);
}

TEST_F(TerminalWindow, AMessageOfAScriptIsShownAndWaitedFor) {
  BoxOfAScript shown([](IDispatch& reporter) {
    std::vector<Variant> arguments = One(client::Number(7));
    arguments.push_back(client::Text(L"  A Title "));
    arguments.push_back(client::Text(L"A message"));
    Call(reporter, L"ShowMessage", std::move(arguments));
  });
  const HWND box = driver::WindowNamed(L"  A Title ");
  EXPECT_EQ(driver::BoxText(box), L"A message");
  EXPECT_TRUE(shown.IsWaiting());
  shown.Answer(box);
}

TEST_F(TerminalWindow, TheLastErrorIsReportedInABoxThatIsWaitedFor) {
  terminal_.DropSession(false);
  EXPECT_THROW(Send(L"RT"), Failure);
  BoxOfAScript shown([](IDispatch& reporter) { Call(reporter, L"ReportLastError"); });
  HWND box = nullptr;
  driver::WaitUntil(L"there is a box", [&] {
    box = FindWindowW(L"#32770", nullptr);
    return box != nullptr && IsWindowVisible(box);
  });
  EXPECT_THAT(driver::BoxText(box), HasSubstr(L"session"));
  EXPECT_TRUE(shown.IsWaiting());
  shown.Answer(box);
}

}  // namespace
