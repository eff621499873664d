#include <gtest/gtest.h>
#include <windows.h>
#include <wrl/client.h>

#include <new>

#include "common/ConstDefintions.h"
#include "hostlib/com/Apartment.h"

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

TEST(BusyFilterAlone, GivesTheCallUpWhenTheQuestionCannotBeAsked) {
  const hostlib::com::Apartment apartment([]() -> bool { throw std::bad_alloc(); });
  ComPtr<IMessageFilter> filter;
  CoRegisterMessageFilter(nullptr, &filter);
  EXPECT_EQ(filter->RetryRejectedCall(nullptr, kLongAgo, SERVERCALL_RETRYLATER),
            static_cast<DWORD>(hostlib::com::BusyPolicy::kGiveUp));
}

TEST_F(BusyFilter, LetsTheWindowsLiveWhileACallIsUnderWay) {
  EXPECT_EQ(filter_->MessagePending(nullptr, 0, 0), static_cast<DWORD>(PENDINGMSG_WAITDEFPROCESS));
}

TEST_F(BusyFilter, TakesTheLibrarysCallsIntoTheProgramsObjects) {
  EXPECT_EQ(filter_->HandleInComingCall(CALLTYPE_TOPLEVEL, nullptr, 0, nullptr),
            static_cast<DWORD>(SERVERCALL_ISHANDLED));
}

/// Shows nothing, and answers as it is told.
class ToldBoxes : public common::MessageBoxes {
 public:
  explicit ToldBoxes(int answer) : answer_(answer) {}
  int ShowBox(std::wstring_view text, int style, std::wstring_view title) override {
    seen += std::to_wstring(style) + L" " + std::wstring(title) + L"/" + std::wstring(text);
    return answer_;
  }
  std::wstring seen;

 private:
  int answer_;
};

TEST(BusyBox, SaysThatTheSessionIsBusy) {
  ToldBoxes boxes(common::kCancel);
  hostlib::com::AskToTryAgain(boxes);
  EXPECT_EQ(boxes.seen,
            L"53   PTA Script /The Vantel session is busy and does not take the next step.\r\r"
            L"Finish what it is waiting for, then choose Retry. Cancel gives the step up.");
}

TEST(BusyBox, TakesTheAgentsChoice) {
  for (const int answer : {common::kRetry, common::kCancel}) {
    ToldBoxes boxes(answer);
    EXPECT_EQ(hostlib::com::AskToTryAgain(boxes), answer == common::kRetry);
  }
}

}  // namespace
}  // namespace com_run
