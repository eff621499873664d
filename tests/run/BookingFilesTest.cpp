#include <gtest/gtest.h>

#include "common/Text.h"
#include "tests/run/Scenes.h"

// Every booking of practice/pnrs, the ones that are added later too.
namespace run {
namespace {

std::wstring FirstLine(const std::wstring& text) { return text.substr(0, text.find(L'\n')); }

std::string TestName(const testing::TestParamInfo<std::string>& info) {
  std::string name = info.param;
  for (char& c : name) {
    if (c == '-' || c == '.') c = '_';
  }
  return name;
}

std::vector<std::string> BookingsWithAgent() {
  std::vector<std::string> names = BookingNames();
  std::erase_if(names, [](const std::string& name) { return !HasAgent(name); });
  return names;
}

class BookingFile : public testing::TestWithParam<std::string> {};

TEST_P(BookingFile, IsTakenByTheHostLineByLine) {
  practice::Host host;
  try {
    host.LoadBooking(SceneOf(GetParam()).booking);
  } catch (const practice::BookingError& error) {
    FAIL() << common::ToUtf8(error.description());
  }
  EXPECT_TRUE(host.HasActivePnr());
}

TEST_P(BookingFile, SaysInItsFirstLineWhatItTeaches) {
  const std::wstring teaching = FirstLine(SceneOf(GetParam()).booking);
  EXPECT_TRUE(teaching.starts_with(L"# ")) << common::ToUtf8(teaching);
  EXPECT_TRUE(teaching.ends_with(L".")) << common::ToUtf8(teaching);
  EXPECT_GT(teaching.size(), 30u) << common::ToUtf8(teaching);
  EXPECT_LE(teaching.size(), 110u) << common::ToUtf8(teaching);
}

class BookingAgent : public testing::TestWithParam<std::string> {};

TEST_P(BookingAgent, AgreesWithTheRun) { RehearseInAgreement(SceneOf(GetParam())); }

INSTANTIATE_TEST_SUITE_P(Practice, BookingFile, testing::ValuesIn(BookingNames()), TestName);
INSTANTIATE_TEST_SUITE_P(Practice, BookingAgent, testing::ValuesIn(BookingsWithAgent()), TestName);

}  // namespace
}  // namespace run
