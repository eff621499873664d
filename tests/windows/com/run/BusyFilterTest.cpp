#include <gtest/gtest.h>
#include <windows.h>
#include <wrl/client.h>

#include <thread>

#include "hostlib/com/Apartment.h"
#include "tests/windows/driver/Driver.h"

// What COM is told when the terminal does not take a call. Wine never asks, so the registered
// filter is asked here in its place.
namespace com_run {
namespace {

using Microsoft::WRL::ComPtr;

constexpr DWORD kLongAgo = 60'000;

class BusyFilter : public testing::Test {
 protected:
  BusyFilter() {
    // There is no way to look at the filter but to take it away.
    CoRegisterMessageFilter(nullptr, &filter_);
    CoRegisterMessageFilter(filter_.Get(), nullptr);
  }

  DWORD AfterRejection(DWORD sinceItsStart) {
    return filter_->RetryRejectedCall(nullptr, sinceItsStart, SERVERCALL_RETRYLATER);
  }

  int questions_ = 0;
  bool tryAgain_ = false;
  hostlib::com::Apartment apartment_{[this] {
    ++questions_;
    return tryAgain_;
  }};
  ComPtr<IMessageFilter> filter_;
};

TEST_F(BusyFilter, IsRegisteredAsLongAsTheApartmentStands) { ASSERT_NE(filter_, nullptr); }

TEST_F(BusyFilter, TriesACallAgainAfterAPauseWithoutAsking) {
  EXPECT_EQ(AfterRejection(0), static_cast<DWORD>(hostlib::com::BusyPolicy::kPause));
  EXPECT_EQ(questions_, 0);
}

TEST_F(BusyFilter, AsksAfterAWhileAndGivesTheCallUpWhenTheAgentDoes) {
  EXPECT_EQ(AfterRejection(kLongAgo), static_cast<DWORD>(hostlib::com::BusyPolicy::kGiveUp));
  EXPECT_EQ(questions_, 1);
}

TEST_F(BusyFilter, AsksAfterAWhileAndGoesOnWhenTheAgentWantsTo) {
  tryAgain_ = true;
  EXPECT_EQ(AfterRejection(kLongAgo), static_cast<DWORD>(hostlib::com::BusyPolicy::kPause));
  EXPECT_EQ(questions_, 1);
}

TEST_F(BusyFilter, LetsTheWindowsLiveWhileACallIsUnderWay) {
  EXPECT_EQ(filter_->MessagePending(nullptr, 0, 0), static_cast<DWORD>(PENDINGMSG_WAITDEFPROCESS));
}

TEST_F(BusyFilter, TakesTheLibrarysCallsIntoTheProgramsObjects) {
  EXPECT_EQ(filter_->HandleInComingCall(CALLTYPE_TOPLEVEL, nullptr, 0, nullptr),
            static_cast<DWORD>(SERVERCALL_ISHANDLED));
}

struct Choice {
  int button;
  bool triesAgain;
};

class BusyBox : public testing::TestWithParam<Choice> {};

TEST_P(BusyBox, SaysThatTheSessionIsBusyAndTakesTheAgentsChoice) {
  std::wstring text;
  std::thread agent([&] {
    const HWND box = driver::WindowNamed(L"  PTA Script ");
    text = driver::BoxText(box);
    driver::Click(driver::Item(box, GetParam().button));
  });
  EXPECT_EQ(hostlib::com::AskToTryAgain(), GetParam().triesAgain);
  agent.join();
  EXPECT_EQ(driver::ToUtf8(text),
            "The Vantel session is busy and does not take the next step.\n\n"
            "Finish what it is waiting for, then choose Retry. Cancel gives the step up.");
}

INSTANTIATE_TEST_SUITE_P(RetryOrCancel, BusyBox,
                         testing::Values(Choice{IDRETRY, true}, Choice{IDCANCEL, false}));

}  // namespace
}  // namespace com_run
