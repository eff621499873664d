#include <gtest/gtest.h>

#include "hostlib/com/BusyPolicy.h"
#include "hostlib/com/CallOutcome.h"

namespace hostlib::com {
namespace {

class BusyPolicyTest : public testing::Test {
 protected:
  /// The time goes on to this point of the call, which is rejected again.
  std::int32_t RejectedAfter(std::uint32_t sinceItsStart) {
    now_ = start_ + sinceItsStart;
    return policy_.AfterRejection(sinceItsStart);
  }

  std::uint32_t start_ = 1000;
  std::uint32_t now_ = 1000;
  int questions_ = 0;
  bool agentWaits_ = true;
  std::uint32_t agentThinks_ = 0;
  BusyPolicy policy_{[this] { return now_; },
                     [this] {
                       ++questions_;
                       now_ += agentThinks_;
                       return agentWaits_;
                     }};
};

TEST_F(BusyPolicyTest, TriesAgainQuietlyAtFirst) {
  EXPECT_EQ(RejectedAfter(0), BusyPolicy::kPause);
  EXPECT_EQ(RejectedAfter(250), BusyPolicy::kPause);
  EXPECT_EQ(RejectedAfter(7999), BusyPolicy::kPause);
  EXPECT_EQ(questions_, 0);
}

TEST_F(BusyPolicyTest, AsksTheAgentWhenTheTerminalStaysBusy) {
  RejectedAfter(0);
  EXPECT_EQ(RejectedAfter(8000), BusyPolicy::kPause);
  EXPECT_EQ(questions_, 1);
}

TEST_F(BusyPolicyTest, GivesTheCallUpWhenTheAgentSaysSo) {
  agentWaits_ = false;
  RejectedAfter(0);
  EXPECT_EQ(RejectedAfter(8000), BusyPolicy::kGiveUp);
}

TEST_F(BusyPolicyTest, AsksAgainOnlyAfterAnotherWhile) {
  agentThinks_ = 60000;
  RejectedAfter(0);
  RejectedAfter(8000);
  RejectedAfter(8000 + 60000 + 250);
  RejectedAfter(8000 + 60000 + 7999);
  EXPECT_EQ(questions_, 1);
  RejectedAfter(8000 + 60000 + 8000);
  EXPECT_EQ(questions_, 2);
}

TEST_F(BusyPolicyTest, AnotherCallStartsWithNewPatience) {
  RejectedAfter(0);
  RejectedAfter(7900);
  start_ = 1000 + 7900 + 50;
  EXPECT_EQ(RejectedAfter(0), BusyPolicy::kPause);
  EXPECT_EQ(RejectedAfter(500), BusyPolicy::kPause);
  EXPECT_EQ(questions_, 0);
}

TEST_F(BusyPolicyTest, ACallAfterOneGivenUpStartsWithNewPatience) {
  agentWaits_ = false;
  RejectedAfter(0);
  RejectedAfter(8000);
  start_ = now_;
  EXPECT_EQ(RejectedAfter(0), BusyPolicy::kPause);
  EXPECT_EQ(questions_, 1);
}

TEST_F(BusyPolicyTest, ACallThatIsFirstRejectedLateHasUsedUpThePatience) {
  EXPECT_EQ(RejectedAfter(9000), BusyPolicy::kPause);
  EXPECT_EQ(questions_, 1);
}

TEST_F(BusyPolicyTest, TheClockMayWrapAround) {
  start_ = 0xFFFFFF00U;
  EXPECT_EQ(RejectedAfter(0), BusyPolicy::kPause);
  EXPECT_EQ(RejectedAfter(4000), BusyPolicy::kPause);
  EXPECT_EQ(questions_, 0);
  RejectedAfter(8000);
  EXPECT_EQ(questions_, 1);
}

TEST(CallOutcome, TellsWhetherTheEntryMayHaveReachedTheHost) {
  EXPECT_EQ(OutcomeOf(0x800706BE), LibraryError::Outcome::kInterrupted);
  EXPECT_EQ(OutcomeOf(0x800706BA), LibraryError::Outcome::kNotSent);
  EXPECT_EQ(OutcomeOf(0x80004005), LibraryError::Outcome::kRefused);
}

}  // namespace
}  // namespace hostlib::com
